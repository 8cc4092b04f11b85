#pragma once

#include <optional>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// The current folder, for what names no path. Raises "TESSEL:zex:FileSystemException".
ustring currentFolder();

/// The folder that "TESSEL_PREFDIR" names, if it is there; else the host's preferences folder. Raises
/// "TESSEL:zex:FileSystemException" where there is none.
ustring preferencesFolder();

/// The same for who only reads: nothing where there is no such folder, or none that can be looked into.
std::optional<ustring> readablePreferencesFolder();

/// What to say to a user whose preferences folder cannot be written.
inline constexpr char16_t preferencesHint[] =
    u"the preferences lie there; TESSEL_PREFDIR, XDG_CONFIG_HOME or HOME can name another place";

/// Whether a path, or the folder of a path that is no folder, is the preferences folder. Compares texts exactly.
bool isInPreferencesFolder(const ustring& path);

bool existsInFolder(const ustring& name, const ustring& folder);

/// Tried by making a file there and removing it.
bool canWriteToFolder(const ustring& path, bool mustBeFolder);

void makeOwnerWritable(const ustring& path);

/// Renames `from` to `to`, removing what is there first.
void replaceFile(const ustring& from, const ustring& to);

/// Folder of the option documents for an architecture, in the installed tree.
ustring systemOptionsFolder(const ustring& architecture);

}  // namespace zex_cmd
