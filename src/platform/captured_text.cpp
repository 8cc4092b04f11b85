#include "platform/captured_text.hpp"

#include <algorithm>
#include <string>

#include "fl/filesystem/streams.hpp"
#include "fl/i18n/strings.hpp"

namespace zex_cmd {

ustring capturedText(const ustring& path) {
  fl::filesystem::basic_ifstream stream(path);
  const fl::i18n::codecvt_string_to_ustring decode;
  ustring text;
  for (std::string line; std::getline(stream, line);) {
    // Empty lines are dropped on purpose.
    if (!line.empty()) text.append(decode(line)).append(u"\n");
  }
  // As other bytes that are no text: a zero would hide all that stands behind it.
  std::replace(text.begin(), text.end(), u'\0', u'\uFFFD');
  return text;
}

}  // namespace zex_cmd
