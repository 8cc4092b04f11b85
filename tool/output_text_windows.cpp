#include "fl/i18n/strings.hpp"
#include "output_text.hpp"

namespace tool {

std::string outputText(std::string utf8) {
  return fl::i18n::to_string(fl::i18n::codecvt_string_to_ustring("UTF-8")(utf8));
}

}  // namespace tool
