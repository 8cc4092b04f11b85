#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "compilers/compiler_reports.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/streams.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"

namespace zex_cmd {

namespace {

std::string utf8(const ustring& text) {
  return fl::i18n::codecvt_ustring_to_string("UTF-8")(text);
}

/// The document without its XML declaration.
std::string listedDocument(const ZexOpt& opt) {
  const ustring xml = opt.compilerXml();
  return utf8(xml.substr(xml.find(u'\n') + 1));
}

/// The double quotes are part of the form.
std::string commentBlock(const std::string& text) {
  return "<!--\n\"" + text + "\"-->\n";
}

std::string compilerList(const ZexOptList& list) {
  std::string report = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<compiler-list>\n";
  for (const auto& opt : list) report += listedDocument(*opt);
  const ZexConfigPerTVM& texts = ZexConfigPerTVM::current();
  return report + "</compiler-list>" + commentBlock(utf8(texts.reportText)) +
         commentBlock(utf8(texts.verboseText)) + commentBlock(texts.locationTrace);
}

}  // namespace

void writeCompilerList(ustring& path, const ZexOptList& list) {
  // Whole before the file is opened, so that a failure on the way leaves no half of it.
  const std::string report = compilerList(list);
  try {
    fl::filesystem::basic_ofstream stream(path);
    if (!stream.is_open()) raiseTyped(msg::FileCannotOpen(path));
    logVerbose(path + u" is output.", true);
    stream << report << "\n";
    stream.flush();
    stream.close();
    if (stream.fail()) raiseTyped(msg::XMLWriteFailed(path));
  } catch (const fl::filesystem::FsysExceptionBase&) {
    translateFilesystemError(path);
  }
  path.clear();
}

}  // namespace zex_cmd
