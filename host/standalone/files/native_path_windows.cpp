#include "standalone/files/file_failures.hpp"
#include "standalone/files/native_path.hpp"
#include "standalone/files/path_names.hpp"
#include "texts/wide.hpp"

namespace host::standalone {

namespace {

/// The standard library takes no drive alone for a folder: with half a root, the path is made whole ahead of it.
fl::ustring known(const fl::ustring& path) {
  return rootLength(path) > 0 && !isAbsolute(path) ? wholePath(path) : path;
}

}  // namespace

std::filesystem::path nativePath(const fl::ustring& path) {
  // The system would stop at the zero and act on another file.
  if (path.find(u'\0') != fl::ustring::npos)
    raiseFileFailure(path, std::make_error_code(std::errc::invalid_argument));
  return toWide(known(path));
}

std::optional<std::filesystem::path> nativePathIfAny(const fl::ustring& path) {
  if (path.find(u'\0') != fl::ustring::npos) return std::nullopt;
  return toWide(known(path));
}

fl::ustring pathText(const std::filesystem::path& path) {
  return fromWide(path.native());
}

fl::ustring foundPath(const std::filesystem::path& path) {
  return fromWide(path.native());
}

}  // namespace host::standalone
