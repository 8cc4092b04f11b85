#include "fl/i18n/strings.hpp"
#include "standalone/files/file_failures.hpp"
#include "standalone/files/native_path.hpp"
#include "texts/utf.hpp"

namespace host::standalone {

std::filesystem::path nativePath(const fl::ustring& path) {
  const auto bytes = toUtf8Exactly(path);
  if (!bytes) raiseFileFailure(path, std::make_error_code(std::errc::illegal_byte_sequence));
  // The system would stop at the zero and act on another file.
  if (bytes->find('\0') != std::string::npos)
    raiseFileFailure(path, std::make_error_code(std::errc::invalid_argument));
  return *bytes;
}

std::optional<std::filesystem::path> nativePathIfAny(const fl::ustring& path) {
  auto bytes = toUtf8Exactly(path);
  if (!bytes || bytes->find('\0') != std::string::npos) return std::nullopt;
  return std::move(*bytes);
}

fl::ustring pathText(const std::filesystem::path& path) {
  auto text = fromUtf8Exactly(path.native());
  if (!text)
    raiseFileFailure(fl::i18n::to_ustring(path.native()), std::make_error_code(std::errc::illegal_byte_sequence));
  return std::move(*text);
}

fl::ustring foundPath(const std::filesystem::path& path) {
  return fromBytes(path.native());
}

}  // namespace host::standalone
