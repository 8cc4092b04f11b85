#pragma once

#include <string>
#include <string_view>

#include "fl/ustring.hpp"

namespace host {

/// Between the two spellings of UTF-16: the system's calls take `wchar_t`, texts here are of `char16_t`.
inline const wchar_t* wide(const fl::ustring& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}
inline fl::ustring fromWide(std::wstring_view text) {
  return {text.begin(), text.end()};
}
inline std::wstring toWide(fl::ustring_view text) {
  return {text.begin(), text.end()};
}

}  // namespace host
