#include "standalone/file_failures.hpp"
#include "standalone/native_path.hpp"
#include "standalone/wide.hpp"

namespace host::standalone {

std::filesystem::path nativePath(const fl::ustring& path) {
  // The system would stop at the zero and act on another file.
  if (path.find(u'\0') != fl::ustring::npos)
    raiseFileFailure(path, std::make_error_code(std::errc::invalid_argument));
  return toWide(path);
}

std::optional<std::filesystem::path> nativePathIfAny(const fl::ustring& path) {
  if (path.find(u'\0') != fl::ustring::npos) return std::nullopt;
  return toWide(path);
}

fl::ustring pathText(const std::filesystem::path& path) {
  return fromWide(path.native());
}

fl::ustring shownPath(const std::filesystem::path& path) {
  return fromWide(path.native());
}

}  // namespace host::standalone
