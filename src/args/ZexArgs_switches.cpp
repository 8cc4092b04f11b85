#include <cstdlib>

#include "args/ZexArgs.hpp"
#include "args/known_names.hpp"
#include "cmd/messages/notices.hpp"
#include "cmd/messages/raise.hpp"
#include "cmd/messages/show.hpp"
#include "cmd/messages/warnings.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/contains.hpp"
#include "platform/letter_case.hpp"
#include "platform/paths.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

namespace {

/// One switch on its way through the tests.
struct Switch {
  const std::vector<ustring>& tokens;
  std::size_t& index;
  const ustring& token;    ///< as typed: for tests that mind the case, and for values
  const std::string form;  ///< lowered, 8-bit: for tests that do not; every length is taken here
  ustring pathLookedAt;    ///< what a file system failure is about

  char letter() const { return form[1]; }
  char16_t exactLetter() const { return token[1]; }
  bool isLetterAlone() const { return form.size() == 2; }
  ustring behindLetter() const { return token.substr(2); }

  /// The token behind the switch, which it uses up.
  const ustring& nextValue() {
    if (index + 1 >= tokens.size()) raiseTyped(msg::ErrOption(token));
    return tokens[++index];
  }

  ustring fullPathOf(const ustring& path) {
    pathLookedAt = path;
    return fullPath(path);
  }
};

enum class Verdict {
  NotMine,  ///< the next test is asked
  Taken,
  Unknown,  ///< no later test is asked
};

/// A folder as a command names it.
ustring quotedFolder(const ustring& path) {
  if (!isCarried(path)) raiseTyped(withNote(msg::FileNameConversionFailed(), path));
  return quoteAlways(nativeFolderForm(path));
}

bool isRelease(const std::string& digits) {
  char* end = nullptr;
  const long value = std::strtol(digits.c_str(), &end, 16);
  if (digits.empty() || end != digits.c_str() + digits.size()) return false;
  // Any text that reads as one of these will do, "0" and "0x2018a" too.
  return value == 0x2017b || value == 0x2018a || value == 0;
}

Verdict takeRelease(ZexArgs& args, Switch& item) {
  if (item.letter() != 'r') return Verdict::NotMine;
  const std::string digits = item.form.substr(2);
  // There may be one only, and saying the same one twice is no excuse.
  if (!args.release.empty()) raiseTyped(msg::IncompatibleSwitches(args.release, "R" + digits));
  if (!isRelease(digits)) return Verdict::Unknown;
  args.release = "R" + digits;
  return Verdict::Taken;
}

void takeClient(ZexArgs& args, const ustring& value) {
  args.client = uppered(fl::i18n::to_string(value));
  if (contains(clientNames, args.client)) return;
  args.client.clear();
  raiseTyped(msg::UnknownClient(value));
}

Verdict takeC(ZexArgs& args, Switch& item) {
  if (item.letter() != 'c') return Verdict::NotMine;
  if (item.isLetterAlone()) {
    args.compileOnly = true;
  } else if (item.form == "-called_from_tessel") {
    args.calledFromHost = true;
  } else if (item.form == "-client") {
    takeClient(args, item.nextValue());
  } else if (item.token == u"-compatibleArrayDims") {
    args.compatibleArrayDims = true;
  } else if (item.form == "-cxx") {
    args.takeLanguageOf(".cpp");
  } else {
    return Verdict::Unknown;
  }
  return Verdict::Taken;
}

Verdict takeDefine(ZexArgs& args, Switch& item) {
  if (item.exactLetter() != u'D' || item.isLetterAlone()) return Verdict::NotMine;
  args.defines += u" " + quoteWhenNeeded(item.behindLetter());
  return Verdict::Taken;
}

Verdict takeF(ZexArgs& args, Switch& item) {
  if (item.letter() != 'f') return Verdict::NotMine;
  if (item.isLetterAlone()) {
    args.optionsFile = item.fullPathOf(item.nextValue());
  } else if (item.form == "-fortran") {
    // Goes past the rules for mixing: this is how a command gets a second language.
    args.languages.push_back("FORTRAN");
  } else {
    return Verdict::Unknown;
  }
  return Verdict::Taken;
}

Verdict takeDebugOrInclude(ZexArgs& args, Switch& item) {
  if (item.isLetterAlone() && item.exactLetter() == u'g') {
    args.debug = true;
  } else if (!item.isLetterAlone() && item.exactLetter() == u'I') {
    args.includes += u" -I" + quotedFolder(item.behindLetter());
  } else {
    return Verdict::NotMine;
  }
  return Verdict::Taken;
}

/// "-largearraydims" is a library "argearraydims" here: only the exact word is the switch. Kept so.
Verdict takeL(ZexArgs& args, Switch& item) {
  if (item.letter() != 'l') return Verdict::NotMine;
  if (item.token == u"-largeArrayDims") {
    args.largeArrayDims = true;
  } else if (item.isLetterAlone()) {
    return Verdict::Unknown;
  } else if (item.exactLetter() == u'L') {
    args.libraryPaths += u" " + quotedFolder(item.behindLetter());
  } else {
    args.addLibrary(item.behindLetter(), true);
  }
  return Verdict::Taken;
}

Verdict takeTessel(ZexArgs&, Switch& item) {
  if (item.form != "-tessel") return Verdict::NotMine;
  emitWarning(msg::NotAnOption(item.token));
  // Whatever follows is its value, and no error if nothing does.
  ++item.index;
  return Verdict::Taken;
}

Verdict takeTesselArch(ZexArgs&, Switch& item) {
  return item.form.starts_with("-tessel_arch") ? Verdict::Taken : Verdict::NotMine;
}

/// This letter has no error: what it does not know is dropped, a misspelt "-no_zexcheck" too. Kept so.
Verdict takeN(ZexArgs& args, Switch& item) {
  if (item.letter() != 'n') return Verdict::NotMine;
  if (item.isLetterAlone()) args.dryRun = true;
  if (item.form == "-no_zexcheck") args.zexCheck = false;
  return Verdict::Taken;
}

Verdict takeO(ZexArgs& args, Switch& item) {
  if (item.letter() != 'o') return Verdict::NotMine;
  if (item.form == "-outdir") {
    args.outDir = item.fullPathOf(item.nextValue());
  } else if (item.form == "-output") {
    args.output = item.nextValue();
  } else if (item.token == u"-O") {
    args.optimize = true;
  } else {
    return Verdict::Unknown;
  }
  return Verdict::Taken;
}

/// A document's path is made whole; anything else, such as a short name, stays as typed.
ustring setupArgument(Switch& item) {
  const ustring typed = item.token.substr(std::string_view("-setup:").size());
  const ustring path = item.fullPathOf(typed);
  return fl::filesystem::is_regular(fl::filesystem::status(path)) ? path : typed;
}

Verdict takeS(ZexArgs& args, Switch& item) {
  if (item.letter() != 's') return Verdict::NotMine;
  if (item.form == "-silent") {
    args.silent = true;
    return Verdict::Taken;
  }
  if (!item.form.starts_with("-setup")) return Verdict::Unknown;
  args.setup = true;
  if (item.form == "-setup") return Verdict::Taken;
  if (!item.form.starts_with("-setup:") || item.form == "-setup:") return Verdict::Unknown;
  args.setupArgument = setupArgument(item);
  return Verdict::Taken;
}

Verdict takeUndefine(ZexArgs& args, Switch& item) {
  if (item.exactLetter() != u'U' || item.isLetterAlone()) return Verdict::NotMine;
  args.defines += u" " + item.token;
  return Verdict::Taken;
}

Verdict takeVerbose(ZexArgs& args, Switch& item) {
  if (item.form != "-v") return Verdict::NotMine;
  printMessage(msg::Verbose());
  args.verbose = true;
  return Verdict::Taken;
}

Verdict takeArchitecture(ZexArgs& args, Switch& item) {
  const std::string name = item.form.substr(1);
  if (!contains(architectureNames, name)) return Verdict::NotMine;
  args.arch = name;
  return Verdict::Taken;
}

/// The order decides: the first test that knows the switch, or owns its letter, ends the search. "-xml:PATH" is
/// known to none of them, though the record has a field for it.
using Test = Verdict (*)(ZexArgs&, Switch&);
constexpr Test tests[] = {
    takeRelease,    takeC, takeDefine, takeF, takeDebugOrInclude, takeL,       takeTessel,
    takeTesselArch, takeN, takeO,      takeS, takeUndefine,       takeVerbose, takeArchitecture,
};

bool isTaken(ZexArgs& args, Switch& item) {
  for (const Test test : tests) {
    const Verdict verdict = test(args, item);
    if (verdict != Verdict::NotMine) return verdict == Verdict::Taken;
  }
  return false;
}

}  // namespace

void ZexArgs::parseSwitch(const std::vector<ustring>& tokens, std::size_t& index) {
  const ustring& token = tokens[index];
  Switch item{tokens, index, token, caseFolded(token), token};
  try {
    if (!isTaken(*this, item)) raiseTyped(msg::UnknownSwitch(token));
  } catch (const fl::filesystem::FsysExceptionBase&) {
    translateFilesystemError(item.pathLookedAt);
  }
}

}  // namespace zex_cmd
