#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "standalone/files/native_path.hpp"
#include "standalone/files/path_names.hpp"

namespace fl::filesystem {

const ustring upath_constant::PATHNAME_SEPARATOR = u"/";

ustring detail::make_native_form(const ustring& path) {
  return path;
}

}  // namespace fl::filesystem

namespace host::standalone {

bool isSeparator(char16_t unit) {
  return unit == u'/';
}

std::size_t rootLength(fl::ustring_view path) {
  return path.starts_with(u'/') ? 1 : 0;
}

fl::ustring wholePath(const fl::ustring& path) {
  return pathText(nativePath(fl::filesystem::absolute(path)).lexically_normal());
}

bool isAbsolute(fl::ustring_view path) {
  return path.starts_with(u'/');
}

}  // namespace host::standalone
