#pragma once

#include <string>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// Letter case of each 8-bit character by the default locale.
std::string lowered(std::string text);
std::string uppered(std::string text);

/// Lower case by Unicode.
ustring lowered(const ustring& text);

/// Form of a token in which most switches are compared: 8-bit and lowered. Loses what the native encoding lacks,
/// so values are never taken from it.
std::string caseFolded(const ustring& token);

}  // namespace zex_cmd
