#include <string>

#include "build/temporary/ZexTempFile.hpp"
#include "cmd/messages/raise.hpp"
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

std::string scriptOf(const ustring& text, const ZexTempFile& output, const ZexTempFile& errors) {
  const ustring content = u"#!/bin/sh\n" + text + u" > " + quoteWhenNeeded(output.path()) + u" 2> " +
                          quoteWhenNeeded(errors.path()) + u"\n";
  return fl::i18n::codecvt_ustring_to_string("UTF-8")(content);
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
  ZexTempFile script = inWords(captureFile);
  ZexTempFile output = inWords(captureFile);
  ZexTempFile errors = inWords(captureFile);

  // The script tells the names of the other two: they are there first.
  for (ZexTempFile* capture : {&output, &errors}) {
    if (const int failure = capture->makeFile(); failure != 0) return host::ShellStatus::notStarted(failure);
  }
  // Half a command could do anything.
  if (const int failure = script.makeFile(scriptOf(text, output, errors)); failure != 0)
    return host::ShellStatus::notStarted(failure);

  const host::ShellResult result =
      host::services().runShellLine(u"sh " + quoteWhenNeeded(script.path()), calledFromHost);
  standardOutput = result.text + capturedText(output.path());
  standardError = capturedText(errors.path());
  cutShellPrefix(standardError, script.path());
  return result.status;
}

}  // namespace zex_cmd
