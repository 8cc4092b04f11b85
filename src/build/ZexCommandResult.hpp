#pragma once

#include <cstdint>

#include "build/ZexBuildCommand.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

/// How one command ended.
struct ZexCommandResult {
  std::int32_t exitCode = -1;
  bool started = true;  ///< false: nothing was run, and the exit code is the system's error number
  bool succeeded = false;
  ustring errorText;  ///< what the tool printed; filled on failure only
};

/// Runs one command, through a response file in `tempDir` if it is long. It has succeeded when its exit status is
/// 0 and the expected output, if any, is there. Standard error of a good run is printed on `output`, whatever the
/// verbosity.
ZexCommandResult runBuildCommand(services::io::uout& output, const ZexBuildCommand& record,
                                 const ustring& tempDir);

/// Returns only if the command succeeded. Raises the message of a deprecated interface name in the tool's words,
/// "TESSEL:zex:Error" with those words or, where there are none, "TESSEL:zex:ZexErrorCode".
void raiseCommandFailure(const ustring& commandText, const ZexCommandResult& result);

}  // namespace zex_cmd
