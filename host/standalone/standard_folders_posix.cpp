#include <dlfcn.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/standard_folders.hpp"

namespace host::standalone {

using fl::filesystem::detail::concatenate_pathname;

namespace {

fl::ustring treeAtLoad() {
  Dl_info place{};
  if (dladdr(reinterpret_cast<const void*>(&folderTreeOfThisLibrary), &place) == 0) return {};
  // <root>/bin/<arch>/<library>, with links resolved: a link to the library is not where the tree is.
  std::error_code reason;
  const std::filesystem::path library = std::filesystem::canonical(place.dli_fname, reason);
  if (reason) return {};
  return fl::i18n::to_ustring(library.parent_path().parent_path().parent_path().native());
}

/// Taken while the library is loaded: the loader may have told a relative path, and the current folder changes.
const fl::ustring loadedTree = treeAtLoad();

fl::ustring homeFolder() {
  if (fl::ustring home = fl::i18n::getenv("HOME"); !home.empty()) return home;
  const passwd* const account = getpwuid(getuid());
  if (account == nullptr || account->pw_dir == nullptr || *account->pw_dir == '\0')
    throw fl::filesystem::PathNotFound(
        "no home folder for the preferences: set TESSEL_PREFDIR, XDG_CONFIG_HOME or HOME");
  return fl::i18n::to_ustring(account->pw_dir);
}

fl::ustring configurationFolder() {
  const fl::ustring told = fl::i18n::getenv("XDG_CONFIG_HOME");
  // A relative path in it is to be ignored, says its convention.
  return told.starts_with(u'/') ? told : concatenate_pathname(homeFolder(), u".config");
}

}  // namespace

fl::ustring folderTreeOfThisLibrary() {
  return loadedTree;
}

fl::ustring userPreferencesFolder() {
  return concatenate_pathname(configurationFolder(), u"tessel/R2018a");
}

}  // namespace host::standalone
