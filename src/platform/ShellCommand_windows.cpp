#include <windows.h>

#include "build/temporary/ZexTempFile.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/i18n/environment.hpp"
#include "host/Services.hpp"
#include "platform/ShellCommand.hpp"
#include "platform/captured_text.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

namespace {

ZexTempFile captureFile() {
  return ZexTempFile(true, {});
}

/// The shell cannot work in a network folder; "pushd" maps a drive for the time of the command. Its argument
/// stays unquoted.
ustring enteringNetworkFolder() {
  const ustring folder = fl::filesystem::get_current_path();
  return folder.starts_with(u"\\\\") ? u"pushd " + folder + u" & " : ustring();
}

ustring shellProgram() {
  const ustring named = fl::i18n::getenv("COMSPEC");
  return named.empty() ? u"CMD.EXE" : named;
}

std::int32_t waitForEnd(const PROCESS_INFORMATION& process) {
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD exitCode = 0;
  // A code that cannot be read counts as success; kept so.
  if (GetExitCodeProcess(process.hProcess, &exitCode) == 0) exitCode = 0;
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<std::int32_t>(exitCode);
}

host::ShellStatus runProcess(ustring commandLine) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_HIDE;
  PROCESS_INFORMATION process{};
  // A console of its own that stays hidden: console tools would open a window over the host otherwise.
  const BOOL started = CreateProcessW(nullptr, reinterpret_cast<wchar_t*>(commandLine.data()), nullptr, nullptr,
                                      FALSE, CREATE_NEW_CONSOLE, nullptr, nullptr, &startup, &process);
  if (started == 0) return host::ShellStatus::notStarted(static_cast<std::int32_t>(GetLastError()));
  return waitForEnd(process);
}

}  // namespace

host::ShellStatus runShellCommand(const ustring& text, ustring& standardOutput, ustring& standardError,
                                  bool /*calledFromHost*/) {
  standardOutput.clear();
  standardError.clear();
  ZexTempFile output = inWords(captureFile);
  ZexTempFile errors = inWords(captureFile);
  // Ahead of the line, which tells their names.
  for (ZexTempFile* file : {&output, &errors}) {
    if (const int failure = file->makeFile(); failure != 0) return host::ShellStatus::notStarted(failure);
  }
  const ustring line =
      u"( " + text + u" ) > " + quoteWhenNeeded(output.path()) + u" 2> " + quoteWhenNeeded(errors.path());

  host::services().stopIfInterrupted();
  const host::ShellStatus result = runProcess(shellProgram() + u" /c " + enteringNetworkFolder() + line);
  // A tool that an interrupt ended must not pass for one that failed by itself.
  host::services().stopIfInterrupted();
  standardOutput = capturedText(output.path());
  standardError = capturedText(errors.path());
  return result;
}

}  // namespace zex_cmd
