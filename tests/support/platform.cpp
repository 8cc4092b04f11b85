#include "support/platform.hpp"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "support/texts.hpp"

namespace zex_test {

constexpr bool writesBackslashes = std::filesystem::path::preferred_separator != '/';

std::string told(std::string text) {
  text = toldMessage(std::move(text));
  if (writesBackslashes) std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

std::string toldMessage(std::string text) {
  for (std::size_t at = 0; writesBackslashes && (at = text.find("\\\\", at)) != std::string::npos;)
    text.replace(at, 2, "/");
  return text;
}

std::string fromNative(std::string_view bytes) {
  // Bytes that are no text are kept where they need no conversion.
  return writesBackslashes ? utf8(fl::i18n::to_ustring(std::string(bytes))) : std::string(bytes);
}

}  // namespace zex_test
