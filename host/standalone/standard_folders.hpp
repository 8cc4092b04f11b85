#pragma once

#include "fl/ustring.hpp"

namespace host::standalone {

/// Root of the tree that this library was loaded from; empty where the system does not tell.
fl::ustring folderTreeOfThisLibrary();

/// Folder of one user's preferences for one release. Raises PathNotFound where the user has no home.
fl::ustring userPreferencesFolder();

}  // namespace host::standalone
