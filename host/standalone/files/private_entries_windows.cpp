#include <windows.h>

#include "standalone/files/private_entries.hpp"

namespace host::standalone {

void makePrivateFile(const std::filesystem::path& path, std::string_view content, std::error_code& reason) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD failure = file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS;
  if (file != INVALID_HANDLE_VALUE) {
    DWORD written = 0;
    if (WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) == 0)
      failure = GetLastError();
    CloseHandle(file);
    if (failure != ERROR_SUCCESS) DeleteFileW(path.c_str());
  }
  reason.assign(static_cast<int>(failure), std::system_category());
}

bool makePrivateFolders(const std::filesystem::path& path, std::error_code& reason) {
  return std::filesystem::create_directories(path, reason);
}

}  // namespace host::standalone
