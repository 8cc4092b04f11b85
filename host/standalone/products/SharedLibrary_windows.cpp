#include <windows.h>

#include <bit>
#include <stdexcept>
#include <system_error>

#include "standalone/products/SharedLibrary.hpp"
#include "texts/wide.hpp"

namespace host::standalone {

SharedLibrary::SharedLibrary(const fl::ustring& path)
    // What the product itself needs is looked for beside it too.
    : handle_(LoadLibraryExW(wide(path), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {
  if (handle_ == nullptr) {
    const auto reason = static_cast<int>(GetLastError());
    throw std::runtime_error(std::system_category().message(reason) + " (" + std::to_string(reason) + ")");
  }
}

SharedLibrary::~SharedLibrary() {
  FreeLibrary(static_cast<HMODULE>(handle_));
}

void* SharedLibrary::symbol(const char* name) const {
  return std::bit_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

bool SharedLibrary::isResident(const fl::ustring& path) {
  return GetModuleHandleW(wide(path)) != nullptr;
}

std::optional<FileIdentity> identityOf(const fl::ustring& path) {
  constexpr DWORD toAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = CreateFileW(wide(path), 0, toAll, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  BY_HANDLE_FILE_INFORMATION told{};
  const bool known = GetFileInformationByHandle(file, &told) != 0;
  CloseHandle(file);
  if (!known || (told.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;

  const std::uint64_t number = (std::uint64_t{told.nFileIndexHigh} << 32U) | told.nFileIndexLow;
  // Written in steps of 100 ns; one number, kept in two fields.
  return FileIdentity{told.dwVolumeSerialNumber, number, told.ftLastWriteTime.dwHighDateTime,
                      told.ftLastWriteTime.dwLowDateTime};
}

}  // namespace host::standalone
