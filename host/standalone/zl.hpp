#pragma once

#include "standalone/calls/HostCall.hpp"

namespace host::standalone {

/// The host function "zl": runs the tool that its first argument names.
void zl(Services& services, const HostCall& call);

}  // namespace host::standalone
