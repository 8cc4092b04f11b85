#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

/// Characters in a text of a command that the shell of this platform acts upon outside double quotes, beside those
/// that `quoteWhenNeeded` looks for.
extern const fl::ustring_view shellActsUpon;

}  // namespace zex_cmd
