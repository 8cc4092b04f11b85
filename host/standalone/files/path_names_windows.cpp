#include <windows.h>

#include <algorithm>

#include "fl/filesystem/path_names.hpp"
#include "standalone/files/path_names.hpp"
#include "texts/wide.hpp"

namespace fl::filesystem {

const ustring upath_constant::PATHNAME_SEPARATOR = u"\\";

ustring detail::make_native_form(const ustring& path) {
  ustring native = path;
  std::replace(native.begin(), native.end(), u'/', u'\\');
  return native;
}

}  // namespace fl::filesystem

namespace host::standalone {

namespace {

bool isSeparatorAt(fl::ustring_view path, std::size_t at) {
  return at < path.size() && isSeparator(path[at]);
}

std::size_t endOfComponent(fl::ustring_view path, std::size_t at) {
  while (at < path.size() && !isSeparator(path[at])) ++at;
  return at;
}

bool isNetworkPath(fl::ustring_view path) {
  return isSeparatorAt(path, 0) && isSeparatorAt(path, 1) && !isSeparatorAt(path, 2) && path.size() > 2;
}

bool hasDrive(fl::ustring_view path) {
  return path.size() >= 2 && path[1] == u':';
}

/// "\\server\share\": what is ahead of it names no folder.
std::size_t networkRootLength(fl::ustring_view path) {
  const std::size_t server = endOfComponent(path, 2);
  const std::size_t share = endOfComponent(path, std::min(server + 1, path.size()));
  return std::min(share + 1, path.size());
}

}  // namespace

bool isSeparator(char16_t unit) {
  return unit == u'\\' || unit == u'/';
}

std::size_t rootLength(fl::ustring_view path) {
  if (isNetworkPath(path)) return networkRootLength(path);
  const std::size_t afterDrive = hasDrive(path) ? 2 : 0;
  return afterDrive + (isSeparatorAt(path, afterDrive) ? 1 : 0);
}

fl::ustring wholePath(const fl::ustring& path) {
  std::wstring whole(GetFullPathNameW(wide(path), 0, nullptr, nullptr), L'\0');
  // Without its end mark.
  whole.resize(GetFullPathNameW(wide(path), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
  return whole.empty() ? path : fromWide(whole);
}

bool isAbsolute(fl::ustring_view path) {
  return isNetworkPath(path) || (hasDrive(path) && isSeparatorAt(path, 2));
}

}  // namespace host::standalone
