#pragma once

#include <vector>

#include "host/Services.hpp"

namespace host::standalone {

/// Builds one Ada source, with all units that it needs, into a library that elaborates itself when it is loaded,
/// by the GNAT tools. The arguments are a whole command line of `zex`. Fails with a HostFunctionFailure.
ZEXHOST_API void buildAda(Services& services, const std::vector<fl::ustring>& arguments);

}  // namespace host::standalone
