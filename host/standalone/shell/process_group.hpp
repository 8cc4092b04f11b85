#pragma once

#include <sys/types.h>

namespace host::standalone {

/// Waits until no process of the group lives, those that only wait to be reaped not counted; for a few seconds at
/// most, since the system may hold one back even from being killed.
void awaitEndOfGroup(pid_t group);

}  // namespace host::standalone
