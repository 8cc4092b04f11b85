#pragma once

#include <cstddef>
#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexOpt;

/// Indices of value paths in the order in which they can be expanded: each after all that it refers to. Raises
/// "TESSEL:zex:CircRef" and "TESSEL:zex:ErrXMLAttr".
std::vector<std::size_t> orderVariables(const ZexOpt& opt, const std::vector<ustring>& paths);

}  // namespace zex_cmd
