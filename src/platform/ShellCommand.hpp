#pragma once

#include <cstdint>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// How a command ended.
struct ShellStatus {
  std::int32_t code;
  bool ofSystem;  ///< nothing was run: the code is the system's error number

  /// The system's error that kept a command from running.
  ShellStatus(std::int32_t error) : ShellStatus(error, true) {}
  ShellStatus(std::int32_t number, bool isOfSystem) : code(number), ofSystem(isOfSystem) {}

  operator std::int32_t() const { return code; }
};

/// Runs a command line through the platform's shell and waits for its end, without a time limit. Both texts lose
/// empty lines and end in a line feed unless they are empty. Gives the exit status; a shell that cannot be started
/// shows as a non-zero status and two empty texts. Raises
/// nothing of its own; failures of the temporary folder pass, and what the host raises.
ShellStatus runShellCommand(const ustring& text, ustring& standardOutput, ustring& standardError,
                            bool calledFromHost);

}  // namespace zex_cmd
