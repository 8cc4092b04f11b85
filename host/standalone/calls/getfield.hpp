#pragma once

#include "standalone/calls/HostCall.hpp"

namespace host::standalone {

/// Gives a field of an exception object.
void getfield(Services& services, const HostCall& call);

}  // namespace host::standalone
