#pragma once

#include "fl/ustring.hpp"
#include "host/Services.hpp"

namespace zex_cmd {

using fl::ustring;

/// Runs a command line through the platform's shell and waits for its end, without a time limit. Both texts lose
/// empty lines and end in a line feed unless they are empty. Gives the exit status; a shell that cannot be started
/// shows as a non-zero status and two empty texts. Raises
/// nothing of its own; failures of the temporary folder pass, and what the host raises.
host::ShellStatus runShellCommand(const ustring& text, ustring& standardOutput, ustring& standardError,
                                  bool calledFromHost);

}  // namespace zex_cmd
