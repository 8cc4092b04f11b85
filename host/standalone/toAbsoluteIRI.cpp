#include "foundation/storage/vfs/toAbsoluteIRI.hpp"

#include <string>
#include <string_view>

#include "fl/filesystem/operations.hpp"
#include "standalone/utf.hpp"

namespace foundation::storage::vfs {

namespace {

constexpr std::string_view keptAsIs = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

std::string percentEncoded(const std::string& bytes) {
  std::string result;
  for (const char byte : bytes) {
    if (keptAsIs.find(byte) != std::string_view::npos) {
      result += byte;
      continue;
    }
    const auto value = static_cast<unsigned char>(byte);
    result += {'%', hexDigits[value >> 4], hexDigits[value & 0xF]};
  }
  return result;
}

}  // namespace

fl::ustring toAbsoluteIRI(const fl::ustring& scheme, const fl::ustring& folder) {
  const std::string path = host::standalone::toUtf8(fl::filesystem::absolute(folder));
  return scheme + u"://" + host::standalone::fromUtf8(percentEncoded(path));
}

}  // namespace foundation::storage::vfs
