#include "standalone/StandaloneServices.hpp"

#include <cstdio>
#include <utility>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/MessageCatalog.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/locale_name.hpp"
#include "standalone/places.hpp"
#include "standalone/separators.hpp"

namespace host::standalone {

namespace {

fl::ustring withoutTrailingSeparator(fl::ustring path) {
  while (path.size() > rootLength(path) && isSeparator(path.back())) path.pop_back();
  return path;
}

}  // namespace

StandaloneServices::StandaloneServices(std::string programName) : programName_(std::move(programName)) {}

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
  return withoutTrailingSeparator(fl::filesystem::absolute(told));
}

fl::ustring StandaloneServices::preferencesFolder(bool create) const {
  fl::ustring folder = withoutTrailingSeparator(userPreferencesFolder());
  if (create) fl::filesystem::create_directories(folder);
  return folder;
}

std::string StandaloneServices::locale() const {
  return localeOfEnvironment();
}

}  // namespace host::standalone
