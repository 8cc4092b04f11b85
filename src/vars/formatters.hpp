#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// One argument through each of the ";"-separated Boost format strings, every result quoted where needed and
/// followed by a blank. An undefinition ("-U…") passes untouched. Errors of Boost format fly on.
ustring applyFormatters(const ustring& part, const ustring& formatters);

}  // namespace zex_cmd
