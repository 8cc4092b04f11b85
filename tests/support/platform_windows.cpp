#include <algorithm>
#include <cstdlib>
#include <utility>

#include "fl/i18n/strings.hpp"
#include "standalone/texts/wide.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"

namespace zex_test {

const Platform platform = {
    .architecture = "win64",
    .drive = "C:",
    .listSeparator = ";",
    .joinedToNone = ";",
    .program = ".exe",
    .quotedInCommands = u" ()&^|<>\t",
    .closedFolder = "Z:/proc/self",
    .refusesShellSigns = false,
    .keepsEmptyVariables = false,
};

std::string told(std::string text) {
  text = toldMessage(std::move(text));
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

std::string toldMessage(std::string text) {
  for (std::size_t at = 0; (at = text.find("\\\\", at)) != std::string::npos;) text.replace(at, 2, "/");
  return text;
}

std::string fromNative(std::string_view bytes) {
  return utf8(fl::i18n::to_ustring(std::string(bytes)));
}

std::optional<std::string> variable(const std::string& name) {
  const wchar_t* const value = _wgetenv(host::standalone::wide(utf16(name)));
  if (value == nullptr) return std::nullopt;
  return utf8(host::standalone::fromWide(value));
}

void setVariable(const std::string& name, const std::optional<std::string>& value) {
  const fl::ustring text = utf16(value.value_or(""));
  _wputenv_s(host::standalone::wide(utf16(name)), host::standalone::wide(text));
}

}  // namespace zex_test
