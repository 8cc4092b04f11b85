#pragma once

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace fl::filesystem::upath_constant {

/// "/" on POSIX, "\" on Windows.
ZEXHOST_API extern const ustring PATHNAME_SEPARATOR;

}  // namespace fl::filesystem::upath_constant

/// Operations on the text of a path alone. They touch no disk and accept an empty text.
namespace fl::filesystem::detail {

/// The form that the system itself uses: every separator becomes PATHNAME_SEPARATOR. On POSIX a backslash is no
/// separator and the text stays as it is.
ZEXHOST_API ustring make_native_form(const ustring& path);

/// The last component; empty where the text ends in a separator.
ZEXHOST_API ustring extract_filename(const ustring& path);

/// What follows the last "." of the file name, without the dot. Empty where there is none, and for a name whose
/// only dot stands first (".profile") or that is "." or "..".
ZEXHOST_API ustring extract_extension(const ustring& path);

/// The file name without its extension and the dot of it.
ZEXHOST_API ustring extract_stem(const ustring& path);

/// What stands ahead of the last component, without a trailing separator (but for the root itself). Empty for a
/// bare name.
ZEXHOST_API ustring extract_parent_path(const ustring& path);

/// The path without its last component and without a trailing separator (but for the root itself). "a/b/" gives
/// "a/b".
ZEXHOST_API ustring remove_filename(const ustring& path);

/// Joins with exactly one separator; an empty part adds none.
ZEXHOST_API ustring concatenate_pathname(const ustring& folder, const ustring& name);

}  // namespace fl::filesystem::detail
