#include "fl/i18n/strings.hpp"
#include "texts/utf.hpp"

namespace fl::i18n {

std::string to_string(const ustring& text) {
  return host::toUtf8(text);
}

ustring to_ustring(const std::string& text) {
  return host::fromUtf8(text);
}

}  // namespace fl::i18n
