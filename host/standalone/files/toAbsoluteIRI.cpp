#include "foundation/storage/vfs/toAbsoluteIRI.hpp"

#include <algorithm>
#include <string>
#include <string_view>

#include "fl/filesystem/operations.hpp"
#include "standalone/files/path_names.hpp"
#include "texts/utf.hpp"

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

/// A drive stands behind an empty server; a network path begins with its own.
fl::ustring rootForm(const fl::ustring& root) {
  if (root.starts_with(u"//")) return root.substr(2);
  return root.starts_with(u'/') ? root : u'/' + root;
}

}  // namespace

fl::ustring toAbsoluteIRI(const fl::ustring& scheme, const fl::ustring& folder) {
  fl::ustring path = fl::filesystem::absolute(folder);
  std::replace_if(path.begin(), path.end(), host::standalone::isSeparator, u'/');
  const std::size_t root = host::standalone::rootLength(path);
  return scheme + u"://" + rootForm(path.substr(0, root)) +
         host::fromUtf8(percentEncoded(host::toUtf8(path.substr(root))));
}

}  // namespace foundation::storage::vfs
