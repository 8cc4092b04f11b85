#pragma once

#include <string>

#include "fl/i18n/strings.hpp"

namespace zex_test {

/// Texts as literals hold them, whatever the native encoding.
inline std::string utf8(const fl::ustring& text) {
  return fl::i18n::codecvt_ustring_to_string("UTF-8")(text);
}
inline fl::ustring utf16(const std::string& text) {
  return fl::i18n::codecvt_string_to_ustring("UTF-8")(text);
}

}  // namespace zex_test
