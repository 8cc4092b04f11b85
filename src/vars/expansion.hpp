#pragma once

#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexOpt;

/// One text for each source, with `$SRC` and `$OBJ` filled in from the ";"-separated lists; a single text where
/// the value names neither.
std::vector<ustring> expandPerSource(const ustring& value, const ustring& sources, const ustring& objects);

/// Replaces references by the document's variables; `self`, and names that nothing defines, stay.
void expandReferences(const ZexOpt& opt, ustring& text, const ustring& self);

}  // namespace zex_cmd
