#pragma once

#include "host/visibility.hpp"

namespace host::standalone {

/// For programs, called once at the start: from then on SIGINT, SIGTERM, SIGHUP and SIGQUIT are only noted, so
/// that a command unwinds and cleans up in place of dying where it stands, and a closed output pipe or a file that
/// reaches the limit of sizes shows as a failed write for the same reason. A signal that is ignored stays so. On
/// Windows it is Ctrl-C and Ctrl-Break, noted as SIGINT and SIGBREAK; no key reaches the tools there, so from then
/// on all that this program starts is ended.
ZEXHOST_API void installInterruptHandlers();

/// From here on an interrupt ends the program where it stands. One that is ignored stays so.
ZEXHOST_API void letInterruptsEndTheProgram();

/// The first signal that was noted, or 0. It stays noted: no further shell line starts.
ZEXHOST_API int pendingInterrupt();

/// After an interrupt, waits until all that this program started is gone, for a few seconds at most: on Windows,
/// files that it has open cannot be removed. Elsewhere there is nothing to wait for.
void awaitEndOfTools();

}  // namespace host::standalone
