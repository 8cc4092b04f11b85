#pragma once

#include <vector>

#include "fl/filesystem/file_status.hpp"
#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace fl::filesystem {

/// A file-name pattern in which only "*" is special (any run of characters, also none). Matching is
/// case-sensitive.
struct tessel_pattern_string_context {
  ustring pattern;
};

class ZEXHOST_API upath_directory_entry {
 public:
  upath_directory_entry(ustring folder, ustring name);

  /// Type of what the entry leads to, links followed.
  file_type type() const;
  const ustring& file_name() const { return name_; }
  /// Folder as it was given, a separator and the name; not made canonical.
  ustring full_pathname() const;

 private:
  ustring folder_;
  ustring name_;
};

/// The entries of one folder, without "." and "..", sorted by name (code unit order), so that builds are the same
/// everywhere. Hidden names are matched only by a pattern that begins with a dot. Throws PathNotFound,
/// NotDirectoryError or AccessDenied where the folder cannot be read. A pattern without "*" costs one look and
/// yields the entry of that name, if it is there, without reading the folder.
class ZEXHOST_API upath_directory_iterator {
 public:
  explicit upath_directory_iterator(const ustring& folder);
  upath_directory_iterator(const ustring& folder, const tessel_pattern_string_context& pattern);

  std::vector<upath_directory_entry>::const_iterator begin() const { return entries_.begin(); }
  std::vector<upath_directory_entry>::const_iterator end() const { return entries_.end(); }

 private:
  std::vector<upath_directory_entry> entries_;
};

}  // namespace fl::filesystem
