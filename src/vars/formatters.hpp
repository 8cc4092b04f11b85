#pragma once

#include "fl/ustring.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

using fl::ustring;

using Quote = ustring (*)(const ustring&);

/// One argument through each of the ";"-separated Boost format strings, every result quoted and followed by a
/// blank. An undefinition ("-U…") passes untouched. Errors of Boost format fly on.
ustring applyFormatters(const ustring& part, const ustring& formatters, Quote quote = quoteWhenNeeded);

}  // namespace zex_cmd
