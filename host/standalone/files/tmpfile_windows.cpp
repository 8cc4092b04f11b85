#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "texts/wide.hpp"

namespace fl::filesystem {

namespace {

/// Names that no other process or call gives meanwhile; -1 where the folder refuses.
HANDLE newFileIn(const ustring& folder, ustring& path) {
  static LONG64 calls = 0;
  for (;;) {
    const std::string number = std::to_string(GetCurrentProcessId()) + "_" + std::to_string(++calls);
    path = detail::concatenate_pathname(folder, u"zex_" + i18n::to_ustring(number));
    const HANDLE file = CreateFileW(host::wide(path), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) return file;
  }
}

}  // namespace

std::optional<temporary_file> tmpfile(const ustring& folder) {
  if (folder.empty() || folder.find(u'\0') != ustring::npos) return std::nullopt;
  ustring path;
  const HANDLE file = newFileIn(folder, path);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;

  const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY);
  std::FILE* const stream = descriptor < 0 ? nullptr : _fdopen(descriptor, "w+b");
  if (stream != nullptr) return temporary_file{stream, path};
  if (descriptor < 0) {
    CloseHandle(file);
  } else {
    _close(descriptor);
  }
  DeleteFileW(host::wide(path));
  return std::nullopt;
}

}  // namespace fl::filesystem
