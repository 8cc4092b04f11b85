#include <algorithm>

#include "fl/filesystem/path_names.hpp"
#include "standalone/separators.hpp"

namespace fl::filesystem {

const ustring upath_constant::PATHNAME_SEPARATOR = u"\\";

ustring detail::make_native_form(const ustring& path) {
  ustring native = path;
  std::replace(native.begin(), native.end(), u'/', u'\\');
  return native;
}

}  // namespace fl::filesystem

namespace host::standalone {

bool isSeparator(char16_t unit) {
  return unit == u'\\' || unit == u'/';
}

std::size_t rootLength(fl::ustring_view path) {
  const bool drive = path.size() >= 2 && path[1] == u':';
  const std::size_t afterDrive = drive ? 2 : 0;
  return afterDrive + (path.size() > afterDrive && isSeparator(path[afterDrive]) ? 1 : 0);
}

}  // namespace host::standalone
