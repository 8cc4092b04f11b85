#include "build/temporary/ZexTempFile.hpp"

#include <string>

#include "build/temporary/unique_numbers.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "host/temporary_folders.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

namespace {

ustring firstSetFolder() {
  for (const char* variable : host::temporaryFolderVariables) {
    const ustring value = fl::i18n::getenv(variable);
    if (!value.empty()) return value;
  }
  // On every platform, odd as it looks there: programs set TMPDIR before they get here.
  return u"C:\\Temp";
}

}  // namespace

ustring systemTempDirectory() {
  const ustring folder = firstSetFolder();
  if (!fs::is_directory(fs::status(folder))) fs::create_private_directories(folder);
  return folder;
}

ustring uniqueTempName(const ustring& directory) {
  const ustring base = directory.empty() ? systemTempDirectory() : fs::detail::make_native_form(directory);
  const std::string name = "zex_" + std::to_string(timeStampCount()) + "_" + std::to_string(processNumber());
  return base + fs::upath_constant::PATHNAME_SEPARATOR + fl::i18n::to_ustring(name);
}

ZexTempFile::ZexTempFile(bool isFile, const ustring& directory)
    : path_(uniqueTempName(directory)), isFile_(isFile) {
  if (isFile_) return;
  // In a folder that many share, another could have made it and wait for what is put there.
  if (!fs::create_private_directories(path_))
    throw fs::SystemError(fl::i18n::to_string(path_) + ": the name of a new folder is taken");
  path_ = fs::detail::make_native_form(path_);
}

int ZexTempFile::makeFile(std::string_view content) {
  const int failure = fs::create_private_file(path_, content);
  isOurs_ = failure == 0;
  return failure;
}

ZexTempFile::~ZexTempFile() {
  if (!isOurs_) return;
  try {
    if (isFile_) {
      fs::remove(path_);
    } else {
      fs::remove_all(path_);
    }
  } catch (const fs::FsysExceptionBase&) {
    // A leftover does not spoil the result of a command; only who asked for details hears of it.
    logMessage(msg::DeleteTmpFile(path_), true);
  }
}

}  // namespace zex_cmd
