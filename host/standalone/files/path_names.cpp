#include "fl/filesystem/path_names.hpp"

#include "standalone/files/path_names.hpp"

namespace fl::filesystem::detail {

using host::standalone::isSeparator;
using host::standalone::rootLength;

namespace {

/// Where the last component begins.
std::size_t filenameStart(const ustring& path) {
  std::size_t start = path.size();
  while (start > rootLength(path) && !isSeparator(path[start - 1])) --start;
  return start;
}

/// Where the extension's dot stands in a file name, or npos.
std::size_t extensionDot(const ustring& name) {
  const std::size_t dot = name.rfind(u'.');
  return dot == 0 || name == u".." ? ustring::npos : dot;
}

}  // namespace

ustring extract_filename(const ustring& path) {
  return path.substr(filenameStart(path));
}

ustring extract_extension(const ustring& path) {
  const ustring name = extract_filename(path);
  const std::size_t dot = extensionDot(name);
  return dot == ustring::npos ? ustring() : name.substr(dot + 1);
}

ustring extract_stem(const ustring& path) {
  const ustring name = extract_filename(path);
  return name.substr(0, extensionDot(name));
}

ustring extract_parent_path(const ustring& path) {
  std::size_t length = filenameStart(path);
  while (length > rootLength(path) && isSeparator(path[length - 1])) --length;
  return path.substr(0, length);
}

ustring remove_filename(const ustring& path) {
  return extract_parent_path(path);
}

ustring concatenate_pathname(const ustring& folder, const ustring& name) {
  if (folder.empty()) return name;
  if (name.empty()) return folder;
  std::size_t length = folder.size();
  while (length > 0 && isSeparator(folder[length - 1])) --length;
  std::size_t start = 0;
  while (start < name.size() && isSeparator(name[start])) ++start;
  return folder.substr(0, length) + upath_constant::PATHNAME_SEPARATOR + name.substr(start);
}

}  // namespace fl::filesystem::detail
