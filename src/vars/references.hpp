#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// Position of the dollar sign and the position just past the name.
using ReferenceRange = std::pair<std::size_t, std::size_t>;

/// The `$NAME` references of a text. Mode 0 gives the plain ones, 1 the escaped ones ("$$NAME"), 2 both.
std::vector<ReferenceRange> collectReferences(const ustring& text, int mode);

/// One text for each source, with `$SRC` and `$OBJ` filled in from the ";"-separated lists; a single text where
/// the value names neither.
std::vector<ustring> expandPerSource(const ustring& value, const ustring& sources, const ustring& objects);

}  // namespace zex_cmd
