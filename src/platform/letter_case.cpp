#include "platform/letter_case.hpp"

#include <locale>

#include "fl/i18n/strings.hpp"

namespace zex_cmd {

std::string lowered(std::string text) {
  const std::locale locale;
  std::use_facet<std::ctype<char>>(locale).tolower(text.data(), text.data() + text.size());
  return text;
}

std::string uppered(std::string text) {
  const std::locale locale;
  std::use_facet<std::ctype<char>>(locale).toupper(text.data(), text.data() + text.size());
  return text;
}

ustring lowered(const ustring& text) {
  return fl::i18n::lcctype::transform(text, fl::i18n::to_lower);
}

std::string caseFolded(const ustring& token) {
  return lowered(fl::i18n::to_string(token));
}

}  // namespace zex_cmd
