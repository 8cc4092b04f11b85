#include "compilers/ZexSetup.hpp"

#include <utility>

#include "args/ZexArgs.hpp"
#include "cmd/messages/raise.hpp"
#include "compilers/compiler_reports.hpp"
#include "compilers/opt_lists.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/folders.hpp"
#include "platform/letter_case.hpp"
#include "platform/paths.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

ZexSetup::ZexSetup(boost::shared_ptr<ZexArgs> args, boost::shared_ptr<ZexCompilers> compilers,
                   const std::string& kind)
    : args_(std::move(args)), compilers_(std::move(compilers)) {
  if (!args_->setupArgument.empty()) {
    setupFromArgument(kind);
    return;
  }
  const bool bare = kind.empty() && !args_->setupLanguageGiven;
  if (bare) args_->languages = {"C"};  // whatever the parser put there

  const ZexOptList list = compilers_->listSetupOpts(kind);
  for (const auto& opt : list) {
    // The document of -f stands there once for each language.
    if (!opt->resolved) ZexVarResolver(args_, compilers_).resolve(opt);
  }
  if (!args_->xmlFile.empty()) {
    ustring path = args_->xmlFile;
    writeCompilerList(path, list);
  }
  if (kind.empty()) reportCompilers(list, allLanguagesCOrCpp(args_->languages));
  if (bare) printClosingHint(*args_);
}

void ZexSetup::setupFromArgument(const std::string& kind) {
  try {
    const boost::shared_ptr<ZexOpt> opt = documentOfArgument();
    const ustring directory = targetDirectory();
    if (kind.empty()) configureCompiler(opt, directory);
  } catch (const fs::FsysExceptionBase&) {
    translateFilesystemError(args_->setupArgument);
  }
}

boost::shared_ptr<ZexOpt> ZexSetup::documentOfArgument() {
  const ustring& argument = args_->setupArgument;
  if (!fs::exists(argument) || !fs::is_regular(fs::status(argument))) {
    return compilers_->findOptByShortName(argument);
  }
  boost::shared_ptr<ZexOpt> opt = compilers_->readOpt(argument, {}, {});
  if (!opt->installed) raiseTyped(msg::NotConfiguredToUse(clientOrZex(*args_), opt->attribute(u"NAME")));
  return opt;
}

ustring ZexSetup::targetDirectory() const {
  if (args_->optionsFile.empty()) return preferencesFolder();
  const ustring target = fullPath(args_->optionsFile);
  const ustring extension = lowered(fs::detail::extract_extension(target));
  const bool namesFile =
      extension == u"xml" && (!fs::exists(target) || fs::is_regular(fs::status(args_->optionsFile)));
  return namesFile ? fs::detail::extract_parent_path(target) : target;
}

void ZexSetup::reportCompilers(ZexOptList list, bool cOrCpp) {
  keepInstalled(list);
  if (list.empty()) raiseNoCompiler(cOrCpp);
  if (list.size() == 1) {
    configureCompiler(list.front(), preferencesFolder());
    return;
  }
  Alternatives alternatives(*args_);
  for (const auto& opt : list) {
    if (opt->selected) configureCompiler(opt, preferencesFolder());
    alternatives.add(*opt);
  }
  alternatives.print();
}

void ZexSetup::configureCompiler(const boost::shared_ptr<ZexOpt>& opt, const ustring& directory) {
  try {
    if (!fs::exists(directory)) fs::create_directories(directory);
    const boost::shared_ptr<ZexOpt> chosen = writtenDocument(opt);
    compilers_->cacheOpt(chosen->attribute(u"ZEXOPT"), chosen);
    printConfigured(*chosen, *args_);
  } catch (const fs::FsysExceptionBase&) {
    const bool isPreference = args_->optionsFile.empty();
    translateFilesystemError(directory, isPreference ? preferencesHint : u"");
  }
}

boost::shared_ptr<ZexOpt> ZexSetup::writtenDocument(const boost::shared_ptr<ZexOpt>& opt) {
  if (compilers_->needsRewrite(*opt)) return compilers_->upgradeOpt(opt);
  if (args_->optionsFile.empty()) return opt;

  // Read afresh: the document in hand holds the expanded values of this command.
  boost::shared_ptr<ZexOpt> fresh =
      compilers_->readOpt(opt->attribute(u"ZEXOPT"), fl::i18n::to_string(opt->upperLanguage()), {});
  fresh->stampRelease();
  fresh->currentRelease = true;
  compilers_->writeSelectedFile(*fresh);
  fresh->selected = true;
  return fresh;
}

}  // namespace zex_cmd
