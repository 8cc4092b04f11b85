#pragma once

#include <cstddef>

#include "fl/ustring.hpp"

namespace host::standalone {

bool isSeparator(char16_t unit);

/// How many units at the start name a root, its separator included: 1 for "/usr", 0 for a relative path.
std::size_t rootLength(fl::ustring_view path);

/// Whether nothing of the process's own, such as its current folder, is needed to find the path.
bool isAbsolute(fl::ustring_view path);

/// The absolute form, without "." and "..", by the system's own rules.
fl::ustring wholePath(const fl::ustring& path);

}  // namespace host::standalone
