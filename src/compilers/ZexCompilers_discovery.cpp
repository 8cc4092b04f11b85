#include <algorithm>
#include <boost/make_shared.hpp>

#include "args/ZexArgs.hpp"
#include "cmd/messages/raise.hpp"
#include "compilers/ZexCompilers.hpp"
#include "compilers/selected_name.hpp"
#include "fl/filesystem/directory_iterator.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/folders.hpp"
#include "platform/letter_case.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

namespace {

bool isXmlFile(const fs::upath_directory_entry& entry) {
  const ustring extension = u"." + fs::detail::extract_extension(entry.file_name());
  return lowered(extension) == u".xml";
}

}  // namespace

ZexCompilers::ZexCompilers(const boost::shared_ptr<ZexArgs>* args)
    : args_(args), unsupportedCompilers_{u"lcc-win64", u"lcc64"} {}

std::vector<ustring> ZexCompilers::acceptedNames(const std::string& language,
                                                 const std::string& architecture) const {
  const ustring upperLanguage = fl::i18n::to_ustring(language);
  const std::string& client = args().client;
  std::vector<ustring> names{selectedName(client, upperLanguage, architecture)};
  if (!client.empty()) names.push_back(names.front());  // the same name again; harmless and settled
  if (client == "ENGINE") names.push_back(selectedName({}, upperLanguage, architecture));
  return names;
}

bool ZexCompilers::servesClient(const ZexOpt& opt) const {
  return args().client.empty() || opt.clientElement(fl::i18n::to_ustring(args().client)).has_value();
}

boost::shared_ptr<ZexOpt> ZexCompilers::readOpt(const ustring& path, const std::string& language,
                                                const ustring& shortNameFilter) const {
  return boost::make_shared<ZexOpt>(path, language, shortNameFilter, args().calledFromHost);
}

ZexOptList ZexCompilers::scanDirectory(const ustring& directory, const std::string& language,
                                       const std::string& architecture, const ustring& shortNameFilter,
                                       bool useCache) {
  ZexOptList found;
  if (language.empty()) return found;

  std::vector<ustring> names;
  if (!architecture.empty()) names = acceptedNames(language, architecture);

  try {
    for (const fs::upath_directory_entry& entry : fs::upath_directory_iterator(directory)) {
      if (entry.type() != fs::regular_file || !isXmlFile(entry)) continue;
      if (!names.empty() && std::find(names.begin(), names.end(), entry.file_name()) == names.end()) continue;

      const ustring path = entry.full_pathname();
      // A document that the command has seen is left out on purpose: a second scan yields only what is new.
      if (useCache && optCache_.contains(path)) continue;

      const boost::shared_ptr<ZexOpt> opt = readOpt(path, language, shortNameFilter);
      const bool passedFilters = !opt->attribute(u"ZEXOPT").empty();
      if (!passedFilters || !servesClient(*opt)) continue;

      cacheOpt(path, opt);
      found.push_back(opt);
      if (!shortNameFilter.empty()) return found;
    }
  } catch (const fs::FsysExceptionBase&) {
    translateFilesystemError(directory);
  }
  return found;
}

ZexOptList ZexCompilers::findCatalogueOpts(const std::string& language, const ustring& shortNameFilter,
                                           bool useCache) {
  const ustring catalogue = systemOptionsFolder(fl::i18n::to_ustring(args().arch));
  return scanDirectory(catalogue, language, {}, shortNameFilter, useCache);
}

ZexOptList ZexCompilers::findSelectedOpts(const std::string& language, const ustring& shortNameFilter) {
  const ustring& optionsFile = args().optionsFile;
  if (!optionsFile.empty() && args().setupArgument.empty()) {
    boost::shared_ptr<ZexOpt> opt;
    if (!isCachedOpt(optionsFile, opt)) {
      opt = readOpt(optionsFile, {}, {});
      cacheOpt(optionsFile, opt);
    }
    opt->selected = true;
    return {opt};
  }
  if (language.empty()) return {};

  ZexOptList found = scanDirectory(currentFolder(), language, args().arch, shortNameFilter, true);
  if (const auto preferences = readablePreferencesFolder(); preferences && found.empty()) {
    found = scanDirectory(*preferences, language, args().arch, shortNameFilter, true);
  }
  if (!found.empty()) found.front()->selected = true;
  return found;
}

bool ZexCompilers::isCachedOpt(const ustring& path, boost::shared_ptr<ZexOpt>& opt) const {
  const auto cached = optCache_.find(path);
  if (cached == optCache_.end()) return false;
  opt = cached->second;
  return true;
}

void ZexCompilers::cacheOpt(const ustring& path, const boost::shared_ptr<ZexOpt>& opt) {
  optCache_[path] = opt;
}

void ZexCompilers::eraseCachedOpt(const ustring& path) {
  optCache_.erase(path);
}

}  // namespace zex_cmd
