#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// True where the text begins and ends with a double quote; one lone quote counts.
bool isQuoted(const ustring& text);

/// The text without the double quotes around it, if it has both. A lone quote becomes empty.
ustring withoutQuotes(const ustring& text);

/// In double quotes, unless it already begins and ends with one.
ustring quoteAlways(const ustring& text);

/// In double quotes if a blank, "(", ")" or "&" stands outside the quotes that the text has.
ustring quoteWhenNeeded(const ustring& text);

/// A text that becomes part of a command: as `quoteWhenNeeded` gives it, and in double quotes too if another
/// character that the platform's shell acts upon stands outside the quotes that the text has.
ustring quoteInCommand(const ustring& text);

/// In single quotes if the text holds a blank, "=", "(" or ")".
ustring quoteForPosix(const ustring& text);

}  // namespace zex_cmd
