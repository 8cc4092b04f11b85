#pragma once

#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

/// Hands a whole command, "-ada" among it, to the host's own builder of Ada sources. The host's error reaches the
/// caller with its identifier and message unchanged; one that lacks either text is dropped.
void runAdaRoute(const std::vector<fl::ustring>& arguments);

}  // namespace zex_cmd
