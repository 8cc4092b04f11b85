#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string_view>

#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/file_status.hpp"
#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace fl::filesystem {

/// `exists`, `status` and `symlink_status` do not throw: what cannot be looked at does not exist.
ZEXHOST_API bool exists(const ustring& path);
ZEXHOST_API file_status status(const ustring& path);
ZEXHOST_API file_status symlink_status(const ustring& path);

/// Absolute path with all links resolved. Throws if any component is missing.
ZEXHOST_API ustring canonical(const ustring& path);

/// Lexically absolute path, against `base` or, where that is empty, the current folder.
ZEXHOST_API ustring absolute(const ustring& path, const ustring& base = {});

/// Makes the folder and its missing parents. True if at least one was made.
/// Throws NotDirectoryError where a file stands in the way.
ZEXHOST_API bool create_directories(const ustring& path);

/// As `create_directories`; what is made is for the owner alone, whatever the umask. False where the folder, or a
/// link to one, was there.
ZEXHOST_API bool create_private_directories(const ustring& path);

/// Makes a file for the owner alone, whatever the umask. Zero, or the system's error number, as for a name that is
/// taken: nothing is overwritten, and no link followed. A file that cannot be written in full does not stay.
ZEXHOST_API int create_private_file(const ustring& path, std::string_view content);

/// For telling whether a file was written meanwhile. Both are zero where there is none.
struct file_stamp {
  std::uintmax_t size = 0;
  std::int64_t time = 0;  ///< of the last change, in the finest steps that the system has
  bool operator==(const file_stamp&) const = default;
};
ZEXHOST_API file_stamp stamp(const ustring& path);

/// True if something was removed; a missing path is no failure.
ZEXHOST_API bool remove(const ustring& path);

/// Removes a path with all that is below it, without following links. Gives the number of entries removed.
ZEXHOST_API std::uintmax_t remove_all(const ustring& path);

ZEXHOST_API void rename(const ustring& from, const ustring& to);
ZEXHOST_API void permissions(const ustring& path, perms bits);

/// A file made by `tmpfile`. It is neither closed nor removed by itself.
struct ZEXHOST_API temporary_file {
  std::FILE* stream;
  ustring path;
  void close();
};

/// Creates an empty file of a new name in `folder`; gives nothing where the folder refuses.
ZEXHOST_API std::optional<temporary_file> tmpfile(const ustring& folder);

/// Without a trailing separator (but for the root itself).
ZEXHOST_API ustring get_current_path();

/// Root of the installed tree, without a trailing separator.
ZEXHOST_API ustring get_install_path();

}  // namespace fl::filesystem
