#include <boost/locale/utf.hpp>
#include <clocale>
#include <cwctype>
#include <iterator>

#include "fl/i18n/strings.hpp"

namespace fl::i18n {

namespace {

namespace utf = boost::locale::utf;

/// A locale that knows all letters, whatever the process has chosen; null where the system has none such.
locale_t unicodeLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

utf::code_point asciiTransformed(utf::code_point point, letter_case form) {
  constexpr utf::code_point distance = u'a' - u'A';
  if (form == to_lower && point >= u'A' && point <= u'Z') return point + distance;
  if (form == to_upper && point >= u'a' && point <= u'z') return point - distance;
  return point;
}

utf::code_point transformed(utf::code_point point, letter_case form) {
  const locale_t locale = unicodeLocale();
  if (locale == nullptr) return asciiTransformed(point, form);
  const auto letter = static_cast<wint_t>(point);
  return static_cast<utf::code_point>(form == to_lower ? towlower_l(letter, locale) : towupper_l(letter, locale));
}

}  // namespace

ustring lcctype::transform(const ustring& text, letter_case form) {
  ustring result;
  result.reserve(text.size());
  for (auto at = text.begin(); at != text.end();) {
    const auto start = at;
    const utf::code_point point = utf::utf_traits<char16_t>::decode(at, text.end());
    if (point == utf::illegal || point == utf::incomplete) {
      // Half a character has no case; it is not this function's to repair.
      result += *start;
      at = std::next(start);
      continue;
    }
    utf::utf_traits<char16_t>::encode(transformed(point, form), std::back_inserter(result));
  }
  return result;
}

}  // namespace fl::i18n
