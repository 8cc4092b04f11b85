#include <cerrno>

#include "build/temporary/ZexTempFile.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/streams.hpp"
#include "fl/i18n/strings.hpp"
#include "host/Services.hpp"
#include "platform/ShellCommand.hpp"
#include "platform/captured_text.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

namespace {

ZexTempFile captureFile() {
  return ZexTempFile(true, {});
}

/// Zero, or the system's error number where the script does not stand on the disk in full.
int writeScript(const ZexTempFile& script, const ustring& text, const ZexTempFile& output,
                const ZexTempFile& errors) {
  const ustring content = u"#!/bin/sh\n" + text + u" > " + quoteWhenNeeded(output.path()) + u" 2> " +
                          quoteWhenNeeded(errors.path()) + u"\n";
  errno = 0;
  fl::filesystem::basic_ofstream stream(script.path(), std::ios_base::out | std::ios_base::binary);
  stream << fl::i18n::codecvt_ustring_to_string("UTF-8")(content);
  stream.close();
  if (stream) return 0;
  return errno != 0 ? errno : EIO;
}

/// The shell's own words begin with the path of a script that no user has heard of, and a line number.
void cutShellPrefix(ustring& errors, const ustring& scriptPath) {
  const ustring prefix = scriptPath + u":";
  const std::size_t at = errors.find(prefix);
  if (at == ustring::npos) return;
  const std::size_t colon = errors.find(u':', at + prefix.size());
  if (colon != ustring::npos) errors.erase(0, colon + 1);
}

}  // namespace

host::ShellStatus runShellCommand(const ustring& text, ustring& standardOutput, ustring& standardError,
                                  bool calledFromHost) {
  standardOutput.clear();
  standardError.clear();
  const ZexTempFile script = inWords(captureFile);
  const ZexTempFile output = inWords(captureFile);
  const ZexTempFile errors = inWords(captureFile);

  // Half a command could do anything.
  if (const int failure = writeScript(script, text, output, errors); failure != 0)
    return host::ShellStatus::notStarted(failure);

  const host::ShellResult result =
      host::services().runShellLine(u"sh " + quoteWhenNeeded(script.path()), calledFromHost);
  standardOutput = result.text + capturedText(output.path());
  standardError = capturedText(errors.path());
  cutShellPrefix(standardError, script.path());
  return result.status;
}

}  // namespace zex_cmd
