#include <windows.h>

#include "fl/i18n/strings.hpp"
#include "texts/wide.hpp"

namespace fl::i18n {

ustring lcctype::transform(const ustring& text, letter_case form) {
  if (text.empty()) return text;
  const DWORD mapping = form == to_lower ? LCMAP_LOWERCASE : LCMAP_UPPERCASE;
  const int length = static_cast<int>(text.size());
  // Unit by unit: the mapped text is as long as the given one.
  std::wstring mapped(text.size(), L'\0');
  if (LCMapStringEx(LOCALE_NAME_INVARIANT, mapping, host::wide(text), length, mapped.data(), length, nullptr,
                    nullptr, 0) == 0) {
    return text;
  }
  return host::fromWide(mapped);
}

}  // namespace fl::i18n
