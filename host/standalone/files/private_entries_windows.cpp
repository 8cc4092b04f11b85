#include <windows.h>

#include "standalone/files/private_entries.hpp"

namespace host::standalone {

void makePrivateFile(const std::filesystem::path& path, std::error_code& reason) {
  reason.clear();
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    reason.assign(static_cast<int>(GetLastError()), std::system_category());
  } else {
    CloseHandle(file);
  }
}

bool makePrivateFolders(const std::filesystem::path& path, std::error_code& reason) {
  return std::filesystem::create_directories(path, reason);
}

}  // namespace host::standalone
