#include "platform/folders.hpp"

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/environment.hpp"
#include "platform/paths.hpp"
#include "settings/core/preferences.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

namespace {

/// As the environment and the host tell it.
ustring toldPreferencesFolder() {
  const ustring named = fl::i18n::getenv("TESSEL_PREFDIR");
  if (!isCarried(named)) raiseTyped(withNote(msg::FileNameConversionFailed(), u"TESSEL_PREFDIR"));
  if (!named.empty() && fs::exists(named)) return named;
  return settings::core::getPreferencesDirectoryUStr(true);
}

}  // namespace

ustring currentFolder() {
  return inWords([] { return fs::get_current_path(); });
}

ustring preferencesFolder() {
  return inWords([] { return toldPreferencesFolder(); });
}

std::optional<ustring> readablePreferencesFolder() {
  try {
    ustring folder = toldPreferencesFolder();
    if (fs::is_directory(fs::status(folder))) return folder;
  } catch (const fs::FsysExceptionBase&) {
    // Nobody has preferences where there is no home.
  }
  return std::nullopt;
}

bool isInPreferencesFolder(const ustring& path) {
  ustring folder = fs::detail::make_native_form(path);
  if (!fs::is_directory(fs::status(folder))) folder = fs::detail::remove_filename(folder);
  return folder == readablePreferencesFolder();
}

bool existsInFolder(const ustring& name, const ustring& folder) {
  return fs::exists(fs::detail::concatenate_pathname(fs::detail::make_native_form(folder), name));
}

bool canWriteToFolder(const ustring& path, bool mustBeFolder) {
  if (mustBeFolder && !fs::is_directory(fs::status(path))) return false;
  auto file = fs::tmpfile(path);
  if (!file) return false;
  file->close();
  fs::remove(file->path);
  return true;
}

void makeOwnerWritable(const ustring& path) {
  const fs::perms linkBit = fs::is_symlink(fs::symlink_status(path)) ? fs::perms_symlink : fs::no_perms;
  fs::permissions(path, fs::perms_add | fs::owner_write | linkBit);
}

void replaceFile(const ustring& from, const ustring& to) {
  if (fs::exists(to)) {
    makeOwnerWritable(to);
    fs::remove(to);
  }
  makeOwnerWritable(from);
  fs::rename(from, to);
}

ustring systemOptionsFolder(const ustring& architecture) {
  const ustring& separator = fs::upath_constant::PATHNAME_SEPARATOR;
  return fs::detail::make_native_form(fs::get_install_path() + separator + u"bin" + separator + architecture +
                                      separator + u"zexopts");
}

}  // namespace zex_cmd
