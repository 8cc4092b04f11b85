#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// Absolute form of a path by its text alone; an empty text gives the current folder. Raises "TESSEL:zex:Error"
/// where the result has 512 units or more or, on POSIX, holds a character that the fixed quoting of commands
/// cannot carry through a shell.
ustring fullPath(const ustring& path);

/// Whether the characters of a path can be told to the system: bytes that are no text cannot.
bool isCarried(const ustring& path);

/// Raises what `fullPath` would, for a path that stays as it was told.
void requireUsablePath(const ustring& path);

/// Native form less one trailing separator; an empty path stays empty.
ustring nativeFolderForm(const ustring& path);

/// Reduces doubled separators (but for one pair at the very start) and removes folder-and-".." pairs, innermost
/// first. Serves commands as well as paths.
void normalizePath(ustring& text);

}  // namespace zex_cmd
