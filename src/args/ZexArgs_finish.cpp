#include "args/ZexArgs.hpp"
#include "args/known_names.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "cmd/messages/show.hpp"
#include "cmd/messages/warnings.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/contains.hpp"
#include "platform/folders.hpp"
#include "platform/paths.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

namespace {

void setVerboseFlags(bool verbose) {
  ZexConfigPerTVM& config = ZexConfigPerTVM::current();
  config.verboseEnabled = verbose;
  config.verboseEcho = verbose;
}

void settleSetupLanguages(ZexArgs& args) {
  if (args.languages.empty() || contains(args.languages, "any")) {
    args.languages.assign(languageNames.begin(), languageNames.end());
  }
}

void settleInputs(ZexArgs& args) {
  if (!args.sources.empty()) return;
  if (args.objects.empty()) raiseTyped(msg::minrhs());
  if (args.languages.empty() && args.optionsFile.empty()) args.languages.push_back("C");
  args.linkOnly = true;
}

ustring outputFolder(const ZexArgs& args) {
  if (!args.outDir.empty()) return args.outDir;
  if (!args.output.empty()) return fs::detail::extract_parent_path(fullPath(args.output));
  return fs::get_current_path();
}

void prepareOutputFolder(const ZexArgs& args) {
  if (args.dryRun) return;
  // What a failure names until the folder is known: only the current folder can fail to be told then.
  ustring folder = args.output.empty() ? ustring(u".") : args.output;
  try {
    folder = outputFolder(args);
    if (!fs::exists(folder)) {
      fs::create_directories(folder);
    } else if (!fs::is_directory(fs::status(folder))) {
      raiseTyped(msg::NotADirectory(folder));
    }
    if (!canWriteToFolder(folder, true)) raiseTyped(msg::AccessDenied(folder));
  } catch (const fs::FsysExceptionBase&) {
    translateFilesystemError(folder);
  }
}

void optimizeByDefault(ZexArgs& args) {
  if (!args.debug) args.optimize = true;
}

/// Fortran sources name the width of array indices themselves, so a silent default may not be the one they mean.
void checkFortranDims(const ZexArgs& args) {
  if (!contains(args.languages, "FORTRAN") || args.compatibleArrayDims || args.largeArrayDims) return;
  if (args.release == "R2018a") raiseTyped(msg::ErrorFortranR2018a());
  emitWarning(utPrintfIsHot() ? msg::FortranLargeArrayDimsWarn_link() : msg::FortranLargeArrayDimsWarn());
}

void addArrayDefine(ZexArgs& args, const std::string& switchName, const ustring& define) {
  if (!args.release.empty()) raiseTyped(msg::IncompatibleSwitches(args.release, switchName));
  args.defines += u" " + define;
}

void settleArrayDims(ZexArgs& args) {
  checkFortranDims(args);
  if (args.compatibleArrayDims) {
    addArrayDefine(args, "compatibleArrayDims", u"ZX_COMPAT_32");
  } else if (args.largeArrayDims) {
    addArrayDefine(args, "largeArrayDims", u"ZX_COMPAT_64");
  }
}

void settleRelease(ZexArgs& args) {
  if (args.release.empty()) {
    args.defines += u" TESSEL_DEFAULT_RELEASE=R2017b";
  } else {
    args.defines += u" ZX_COMPAT_64 TESSEL_ZEXCMD_RELEASE=" + fl::i18n::to_ustring(args.release);
  }
}

}  // namespace

void ZexArgs::finishParsing() {
  setVerboseFlags(verbose);
  if (setup) return settleSetupLanguages(*this);

  settleInputs(*this);
  prepareOutputFolder(*this);
  optimizeByDefault(*this);
  settleArrayDims(*this);
  settleRelease(*this);
  defines += u" USE_ZEX_CMD";
  if (compileOnly && !output.empty()) emitWarning(msg::IgnoreOutput());
}

}  // namespace zex_cmd
