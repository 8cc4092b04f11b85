#include <windows.h>

#include "standalone/files/file_changes.hpp"

namespace host::standalone {

namespace {

std::error_code reasonOf(BOOL succeeded) {
  if (succeeded != 0) return {};
  return {static_cast<int>(GetLastError()), std::system_category()};
}

}  // namespace

bool removeEntry(const std::filesystem::path& path, std::error_code& reason) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool isFolder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  reason = reasonOf(isFolder ? RemoveDirectoryW(path.c_str()) : DeleteFileW(path.c_str()));
  const bool removed = !reason;
  if (reason == std::errc::no_such_file_or_directory) reason.clear();
  return removed;
}

void moveEntry(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& reason) {
  reason = reasonOf(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED));
}

bool isInUse(const std::error_code& reason) {
  return reason == std::errc::device_or_resource_busy;
}

}  // namespace host::standalone
