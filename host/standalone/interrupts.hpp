#pragma once

#include "host/visibility.hpp"

namespace host::standalone {

/// For programs, called once at the start: from then on SIGINT, SIGTERM and SIGHUP are only noted, so that a
/// command unwinds and cleans up in place of dying where it stands. A signal that is ignored stays so.
ZEXHOST_API void installInterruptHandlers();

/// The first signal that was noted, or 0. It stays noted: no further shell line starts.
ZEXHOST_API int pendingInterrupt();

}  // namespace host::standalone
