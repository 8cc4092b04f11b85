#include "build/ZexCommandResult.hpp"

#include <string>
#include <system_error>

#include "build/deprecated_names.hpp"
#include "build/response_file.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/ShellCommand.hpp"

namespace zex_cmd {

namespace {

ustring reasonOfSystem(std::int32_t error) {
  return u"it was not started, and this is the system's error: " +
         fl::i18n::to_ustring(std::system_category().message(error));
}

}  // namespace

ZexCommandResult runBuildCommand(services::io::uout& output, const ZexBuildCommand& record,
                                 const ustring& tempDir) {
  const ZexBuildCommand run = needsResponseFile(record) ? responseFileCommand(record, tempDir) : record;
  logVerbose(run.command, true);

  ZexCommandResult result;
  ustring standardOutput;
  ustring standardError;
  const host::ShellStatus status = runShellCommand(run.command, standardOutput, standardError, run.calledFromHost);
  result.exitCode = status;
  result.started = status.started();

  // Status 0 without the expected file is a failure too.
  result.succeeded = result.exitCode == 0 && (run.output.empty() || fl::filesystem::exists(run.output));
  if (!result.succeeded) {
    if (!standardOutput.empty()) result.errorText = standardOutput + u"\n";
    result.errorText += standardError;
    return result;
  }
  if (!standardError.empty()) output << standardError + u"\n";
  logVerbose(standardOutput, true);
  return result;
}

void raiseCommandFailure(const ustring& commandText, const ZexCommandResult& result) {
  if (result.succeeded) return;
  raiseDeprecatedName(result);
  if (!result.errorText.empty()) raiseTyped(msg::Error(result.errorText));
  const ustring program = commandText.substr(0, commandText.find(u' '));
  const auto record = msg::ZexErrorCode(program, std::to_string(result.exitCode));
  raiseTyped(result.started ? record : withNote(record, reasonOfSystem(result.exitCode)));
}

}  // namespace zex_cmd
