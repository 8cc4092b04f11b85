#include "standalone/StandaloneServices.hpp"

#include <cstdio>
#include <utility>

#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/MessageCatalog.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/Interrupted.hpp"
#include "standalone/calls/HostCall.hpp"
#include "standalone/files/path_names.hpp"
#include "standalone/messages/locale_name.hpp"
#include "standalone/shell/interrupts.hpp"
#include "standalone/shell/shell_line.hpp"
#include "standalone/standard_folders.hpp"
#include "standalone/zl.hpp"

namespace host::standalone {

namespace {

fl::ustring withoutTrailingSeparator(fl::ustring path) {
  while (path.size() > rootLength(path) && isSeparator(path.back())) path.pop_back();
  return path;
}

fl::ustring absoluteIfPossible(const fl::ustring& path) {
  try {
    return fl::filesystem::absolute(path);
  } catch (const fl::filesystem::FsysExceptionBase&) {
    // The current folder is gone. Failures are shown with the help of this folder, so it may not fail itself.
    return path;
  }
}

void makeIfPossible(const fl::ustring& folder) {
  try {
    fl::filesystem::create_directories(folder);
  } catch (const fl::filesystem::FsysExceptionBase&) {
    // Whoever looks into the folder fails with a message of its own.
  }
}

}  // namespace

StandaloneServices::StandaloneServices(std::string programName, Tdispatcher* dispatcher)
    : programName_(std::move(programName)), dispatcher_(dispatcher) {}

void StandaloneServices::write(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
}

void StandaloneServices::showWarning(const resource_core::BaseMsgID& record) {
  const std::string words =
      fl::i18n::to_string(fl::i18n::MessageCatalog::get_message(record, fl::i18n::ZwLocale(locale())));
  const std::string text = words.substr(0, words.find_last_not_of('\n') + 1);
  std::fflush(stdout);
  std::fprintf(stderr, "%s: warning: %s [%s]\n", programName_.c_str(), text.c_str(), record.identifier().c_str());
}

fl::ustring StandaloneServices::installFolder() const {
  const fl::ustring told = fl::i18n::getenv("TESSEL_ROOT");
  if (told.empty()) return folderTreeOfThisLibrary();
  return withoutTrailingSeparator(absoluteIfPossible(told));
}

fl::ustring StandaloneServices::preferencesFolder(bool create) const {
  fl::ustring folder = withoutTrailingSeparator(userPreferencesFolder());
  if (create) makeIfPossible(folder);
  return folder;
}

std::string StandaloneServices::locale() const {
  return localeOfEnvironment();
}

ShellResult StandaloneServices::runShellLine(const fl::ustring& line, bool /*calledFromHost*/) {
  return runLineOfShell(*this, line);
}

void StandaloneServices::stopIfInterrupted() {
  const int signal = pendingInterrupt();
  if (signal == 0) return;
  awaitEndOfTools();
  throw Interrupted(signal);
}

zxArray* StandaloneServices::callFunction(const std::string& name, int outputCount, zxArray* outputs[],
                                          int inputCount, zxArray* inputs[]) {
  if (name != "zl") return Services::callFunction(name, outputCount, outputs, inputCount, inputs);
  return callTrapped(*this, name, zl, {{inputs, inputs + inputCount}, {outputs, outputs + outputCount}});
}

}  // namespace host::standalone
