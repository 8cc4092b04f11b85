#include "fl/filesystem/directory_iterator.hpp"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/files/file_failures.hpp"
#include "standalone/files/native_path.hpp"
#include "standalone/files/path_names.hpp"

namespace fl::filesystem {

namespace fs = std::filesystem;

namespace {

/// "*" stands for any run of units. On a mismatch only the latest "*" has to take more.
bool matches(ustring_view name, ustring_view pattern) {
  std::size_t inName = 0;
  std::size_t inPattern = 0;
  std::size_t afterStar = ustring_view::npos;
  std::size_t takenByStar = 0;
  while (inName < name.size()) {
    if (inPattern < pattern.size() && pattern[inPattern] == u'*') {
      afterStar = ++inPattern;
      takenByStar = inName;
    } else if (inPattern < pattern.size() && pattern[inPattern] == name[inName]) {
      ++inPattern;
      ++inName;
    } else if (afterStar != ustring_view::npos) {
      inPattern = afterStar;
      inName = ++takenByStar;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(u'*', inPattern) == ustring_view::npos;
}

bool selects(ustring_view pattern, ustring_view name) {
  if (name.starts_with(u'.') && !pattern.starts_with(u'.')) return false;
  return matches(name, pattern);
}

/// Sorted. An entry whose bytes are no text is there, but no operation takes its name.
std::vector<ustring> namesIn(const ustring& folder) {
  std::error_code reason;
  fs::directory_iterator at(host::standalone::nativePath(folder), reason);
  std::vector<ustring> names;
  while (!reason && at != fs::directory_iterator()) {
    names.push_back(host::standalone::foundPath(at->path().filename()));
    at.increment(reason);
  }
  if (reason) host::standalone::raiseFileFailure(folder, reason);
  std::sort(names.begin(), names.end());
  return names;
}

bool canNameAnEntry(const ustring& name) {
  return !name.empty() && name != u"." && name != u".." &&
         std::none_of(name.begin(), name.end(), host::standalone::isSeparator);
}

bool isThere(const ustring& folder, const ustring& name) {
  if (!canNameAnEntry(name)) return false;
  const file_type type = symlink_status(detail::concatenate_pathname(folder, name)).type();
  return type != status_error && type != file_not_found;
}

/// A folder that cannot be read is a failure even where no name in it was asked for.
void requireFolder(const ustring& folder) {
  std::error_code reason;
  const fs::directory_iterator opened(host::standalone::nativePath(folder), reason);
  if (reason) host::standalone::raiseFileFailure(folder, reason);
}

}  // namespace

upath_directory_entry::upath_directory_entry(ustring folder, ustring name)
    : folder_(std::move(folder)), name_(std::move(name)) {}

file_type upath_directory_entry::type() const {
  return status(full_pathname()).type();
}

ustring upath_directory_entry::full_pathname() const {
  return detail::concatenate_pathname(folder_, name_);
}

upath_directory_iterator::upath_directory_iterator(const ustring& folder) {
  for (ustring& name : namesIn(folder)) entries_.emplace_back(folder, std::move(name));
}

upath_directory_iterator::upath_directory_iterator(const ustring& folder,
                                                   const tessel_pattern_string_context& pattern) {
  if (pattern.pattern.find(u'*') == ustring::npos) {
    if (!folder.empty() && isThere(folder, pattern.pattern)) {
      entries_.emplace_back(folder, pattern.pattern);
    } else {
      requireFolder(folder);
    }
    return;
  }
  for (ustring& name : namesIn(folder)) {
    if (selects(pattern.pattern, name)) entries_.emplace_back(folder, std::move(name));
  }
}

}  // namespace fl::filesystem
