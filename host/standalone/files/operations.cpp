#include "fl/filesystem/operations.hpp"

#include <filesystem>

#include "fl/filesystem/path_names.hpp"
#include "host/Services.hpp"
#include "standalone/files/file_changes.hpp"
#include "standalone/files/file_failures.hpp"
#include "standalone/files/native_path.hpp"
#include "standalone/files/path_names.hpp"
#include "standalone/files/private_entries.hpp"
#include "standalone/files/remove_tree.hpp"

namespace fl::filesystem {

using host::standalone::nativePath;
using host::standalone::nativePathIfAny;
using host::standalone::pathText;
using host::standalone::raiseFileFailure;

namespace fs = std::filesystem;

namespace {

file_type typeOf(const fs::file_status& found) {
  switch (found.type()) {
    case fs::file_type::none:
      return status_error;
    case fs::file_type::not_found:
      return file_not_found;
    case fs::file_type::regular:
      return regular_file;
    case fs::file_type::directory:
      return directory_file;
    case fs::file_type::symlink:
      return symlink_file;
    default:
      return other_file;
  }
}

template <class Look>
file_status statusBy(const ustring& path, Look look) {
  const auto native = nativePathIfAny(path);
  if (!native) return file_status(status_error);
  std::error_code ignored;
  return file_status(typeOf(look(*native, ignored)));
}

/// A drive that is not there is told in odd words.
bool hasRoot(const ustring& path) {
  const ustring root = path.substr(0, host::standalone::rootLength(path));
  return root.empty() || exists(root);
}

template <class Make>
bool makeFolders(const ustring& path, Make make) {
  std::error_code reason;
  const bool made = make(nativePath(path), reason);
  // A dangling link in the way is told as something that exists.
  if (reason == std::errc::file_exists) reason = std::make_error_code(std::errc::not_a_directory);
  if (reason && !hasRoot(path)) reason = std::make_error_code(std::errc::no_such_file_or_directory);
  if (reason) raiseFileFailure(path, reason);
  return made;
}

}  // namespace

bool exists(const ustring& path) {
  const file_type type = status(path).type();
  return type != status_error && type != file_not_found;
}

file_status status(const ustring& path) {
  return statusBy(path, [](const fs::path& name, std::error_code& reason) { return fs::status(name, reason); });
}

file_status symlink_status(const ustring& path) {
  return statusBy(path,
                  [](const fs::path& name, std::error_code& reason) { return fs::symlink_status(name, reason); });
}

ustring canonical(const ustring& path) {
  std::error_code reason;
  const fs::path result = fs::canonical(nativePath(path), reason);
  if (reason) raiseFileFailure(path, reason);
  return pathText(result);
}

ustring absolute(const ustring& path, const ustring& base) {
  if (host::standalone::isAbsolute(path)) return path;
  // Half a root: a drive and its own current folder, or the root of the current drive.
  if (host::standalone::rootLength(path) > 0) return host::standalone::wholePath(path);
  return detail::concatenate_pathname(base.empty() ? get_current_path() : absolute(base), path);
}

bool create_directories(const ustring& path) {
  return makeFolders(
      path, [](const fs::path& name, std::error_code& reason) { return fs::create_directories(name, reason); });
}

bool create_private_directories(const ustring& path) {
  return makeFolders(path, host::standalone::makePrivateFolders);
}

int create_private_file(const ustring& path, std::string_view content) {
  std::error_code reason = std::make_error_code(std::errc::illegal_byte_sequence);
  if (const auto native = nativePathIfAny(path)) host::standalone::makePrivateFile(*native, content, reason);
  return reason.value();
}

file_stamp stamp(const ustring& path) {
  const auto native = nativePathIfAny(path);
  std::error_code missing;
  const std::uintmax_t size = native ? fs::file_size(*native, missing) : 0;
  if (!native || missing) return {};
  const auto time = fs::last_write_time(*native, missing);
  return {size, missing ? 0 : time.time_since_epoch().count()};
}

bool remove(const ustring& path) {
  std::error_code reason;
  const bool removed = host::standalone::removeEntry(nativePath(path), reason);
  if (reason) raiseFileFailure(path, reason);
  return removed;
}

std::uintmax_t remove_all(const ustring& path) {
  std::error_code reason;
  const std::uintmax_t removed = host::standalone::removeTree(nativePath(path), reason);
  if (reason) raiseFileFailure(path, reason);
  return removed;
}

void rename(const ustring& from, const ustring& to) {
  std::error_code reason;
  host::standalone::moveEntry(nativePath(from), nativePath(to), reason);
  if (reason) raiseFileFailure(from + u" -> " + to, reason);
}

void permissions(const ustring& path, perms bits) {
  fs::perm_options how = bits & perms_add ? fs::perm_options::add : fs::perm_options::replace;
  if (bits & perms_symlink) how |= fs::perm_options::nofollow;
  std::error_code reason;
  fs::permissions(nativePath(path), static_cast<fs::perms>(bits) & fs::perms::mask, how, reason);
  if (bits & perms_symlink && reason == std::errc::operation_not_supported) return;
  if (reason) raiseFileFailure(path, reason);
}

void temporary_file::close() {
  std::fclose(stream);
  stream = nullptr;
}

ustring get_current_path() {
  std::error_code reason;
  const fs::path current = fs::current_path(reason);
  if (reason) raiseFileFailure(u"the current folder", reason);
  return pathText(current);
}

ustring get_install_path() {
  return host::services().installFolder();
}

}  // namespace fl::filesystem
