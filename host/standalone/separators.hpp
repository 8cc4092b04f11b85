#pragma once

#include <cstddef>

#include "fl/ustring.hpp"

namespace host::standalone {

bool isSeparator(char16_t unit);

/// How many units at the start name a root, its separator included: 1 for "/usr", 0 for a relative path.
std::size_t rootLength(fl::ustring_view path);

}  // namespace host::standalone
