#include <windows.h>

#include "fl/i18n/strings.hpp"
#include "texts/wide.hpp"

namespace fl::i18n {

std::string to_string(const ustring& text) {
  const wchar_t* const units = host::wide(text);
  const int count = static_cast<int>(text.size());
  // A letter that looks alike would make another name; a mark shows that something was lost. UTF-8 has all
  // letters, and refuses the flag.
  const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
  const auto convert = [&](char* to, int room) {
    return WideCharToMultiByte(CP_ACP, flags, units, count, to, room, nullptr, nullptr);
  };
  std::string result(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(result.data(), static_cast<int>(result.size()));
  return result;
}

ustring to_ustring(const std::string& text) {
  const int count = static_cast<int>(text.size());
  const auto convert = [&](wchar_t* to, int room) {
    return MultiByteToWideChar(CP_ACP, 0, text.data(), count, to, room);
  };
  std::wstring result(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
  convert(result.data(), static_cast<int>(result.size()));
  return host::fromWide(result);
}

}  // namespace fl::i18n
