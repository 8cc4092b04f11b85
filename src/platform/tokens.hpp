#pragma once

#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// The text without tab, line feed, vertical tab, form feed, carriage return and blank at both ends.
ustring trimmed(const ustring& text);

/// Joins pieces of a quoted text again: a piece with an odd count of double quotes opens or closes a run, whose
/// pieces are joined by one blank. A run that is never closed takes all that follows.
std::vector<ustring> rejoinQuoted(const std::vector<ustring>& tokens);

/// Splits at runs of any character of `separator`. A separator at an end yields an empty token. With exactly one
/// blank as separator, quoted runs are rejoined and lose their outer quotes.
std::vector<ustring> splitTokens(const ustring& text, const ustring& separator);

/// `text` with every `from` replaced by `to`; what was put in is not looked at again. An empty `from` changes
/// nothing.
ustring replacedAll(const ustring& text, const ustring& from, const ustring& to);

}  // namespace zex_cmd
