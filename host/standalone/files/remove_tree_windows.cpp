#include <windows.h>

#include <string_view>

#include "standalone/files/remove_tree.hpp"

namespace host::standalone {

// The standard library stops at a file that is write-protected, and goes through links into folders of others.

namespace {

namespace fs = std::filesystem;

std::error_code lastFailure() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

class Remover {
 public:
  void remove(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
      if (GetLastError() != ERROR_FILE_NOT_FOUND && GetLastError() != ERROR_PATH_NOT_FOUND) note(lastFailure());
      return;
    }
    const bool folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (folder && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) removeBelow(path);
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    const BOOL removed = folder ? RemoveDirectoryW(path.c_str()) : DeleteFileW(path.c_str());
    if (removed != 0) {
      ++count;
    } else {
      note(lastFailure());
    }
  }

  std::uintmax_t count = 0;
  std::error_code first;  ///< the reason of the first failure; the rest is removed all the same

 private:
  void note(const std::error_code& reason) {
    if (!first) first = reason;
  }

  void removeBelow(const fs::path& folder) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder / L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return note(lastFailure());
    do {
      const std::wstring_view name = found.cFileName;
      if (name != L"." && name != L"..") remove(folder / name);
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
  }
};

}  // namespace

std::uintmax_t removeTree(const fs::path& path, std::error_code& reason) {
  Remover remover;
  remover.remove(path);
  reason = remover.first;
  return remover.count;
}

}  // namespace host::standalone
