#pragma once

#include "host/Services.hpp"

namespace host::standalone {

/// Runs one line through the system's shell, as `StandaloneServices::runShellLine` promises. The services say
/// whether an interrupt ends the command.
ShellResult runLineOfShell(Services& services, const fl::ustring& line);

}  // namespace host::standalone
