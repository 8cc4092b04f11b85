#include <algorithm>

#include "args/ZexArgs.hpp"
#include "cmd/messages/show.hpp"
#include "cmd/messages/warnings.hpp"
#include "compilers/ZexCompilers.hpp"
#include "compilers/opt_lists.hpp"
#include "compilers/selected_name.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/folders.hpp"
#include "platform/letter_case.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

bool ZexCompilers::needsUpgrade(const ZexOpt& opt) const {
  if (!args().optionsFile.empty()) return false;
  const ustring path = opt.attribute(u"ZEXOPT");
  const ustring name = fs::detail::make_native_form(fs::detail::extract_filename(path));
  // The name alone counts: a document of the current folder is treated as its twin in the preferences folder.
  const auto preferences = readablePreferencesFolder();
  return preferences && existsInFolder(name, *preferences) && !opt.currentRelease;
}

boost::shared_ptr<ZexOpt> ZexCompilers::upgradeOpt(const boost::shared_ptr<ZexOpt>& opt) {
  boost::shared_ptr<ZexOpt> replacement = findReplacementOpt(opt);
  if (replacement->resolved) {
    // What is written holds no values of this command.
    const auto fresh = readOpt(opt->attribute(u"ZEXOPT"), {}, {});
    writeSelectedFile(*fresh);
    replacement->setZexoptPath(fresh->attribute(u"ZEXOPT"));
  } else {
    writeSelectedFile(*replacement);
  }
  opt->selected = false;
  replacement->currentRelease = true;
  replacement->selected = true;
  return replacement;
}

bool ZexCompilers::keepsDocument(const ZexOpt& opt) const {
  if (isUnsupportedCompiler(opt)) return true;
  if (args().setupArgument.empty()) return false;
  if (!isInPreferencesFolder(opt.attribute(u"ZEXOPT"))) return true;
  return !args().optionsFile.empty() && !isInPreferencesFolder(args().optionsFile);
}

boost::shared_ptr<ZexOpt> ZexCompilers::findReplacementOpt(const boost::shared_ptr<ZexOpt>& opt) {
  if (keepsDocument(*opt)) return opt;

  const std::string language = fl::i18n::to_string(opt->upperLanguage());
  const ZexOptList catalogue = findCatalogueOpts(language, {}, false);
  boost::shared_ptr<ZexOpt> source = findOptByField(catalogue, u"SHORTNAME", opt->attribute(u"SHORTNAME"));
  if (!source) {
    source = lowestPriorityOpt(catalogue);
    if (source) {
      emitWarning(msg::UnsupportedCompiler(opt->attribute(u"NAME")));
    } else {
      emitWarning(msg::NoAlternativeCompilerFound(opt->attribute(u"NAME")));
      source = opt;
    }
  }
  return readOpt(source->attribute(u"ZEXOPT"), language, {});
}

bool ZexCompilers::isUnsupportedCompiler(const ZexOpt& opt) const {
  const ustring name = lowered(opt.attribute(u"SHORTNAME"));
  return std::any_of(unsupportedCompilers_.begin(), unsupportedCompilers_.end(),
                     [&](const ustring& unsupported) { return lowered(unsupported) == name; });
}

ustring ZexCompilers::selectedFileName(const ZexOpt& opt) const {
  return fs::upath_constant::PATHNAME_SEPARATOR + selectedName(args().client, opt.upperLanguage(), args().arch);
}

void ZexCompilers::writeSelectedFile(ZexOpt& opt) const {
  const ustring& optionsFile = args().optionsFile;
  ustring target = optionsFile;
  if (args().setupArgument.empty() || optionsFile.empty()) {
    target = preferencesFolder() + selectedFileName(opt);
  } else if (fs::is_directory(fs::status(optionsFile))) {
    target = optionsFile + selectedFileName(opt);
  }
  opt.writeSelected(target);
}

}  // namespace zex_cmd
