#include "fl/i18n/strings.hpp"
#include "standalone/texts/utf.hpp"

namespace fl::i18n {

std::string to_string(const ustring& text) {
  return host::standalone::toUtf8(text);
}

ustring to_ustring(const std::string& text) {
  return host::standalone::fromUtf8(text);
}

}  // namespace fl::i18n
