#include <windows.h>

#include <algorithm>
#include <utility>

#include "fl/i18n/strings.hpp"
#include "support/platform.hpp"
#include "support/texts.hpp"
#include "texts/wide.hpp"

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
  const fl::ustring key = utf16(name);
  SetLastError(ERROR_SUCCESS);
  std::wstring value(GetEnvironmentVariableW(host::wide(key), nullptr, 0), L'\0');
  if (GetLastError() == ERROR_ENVVAR_NOT_FOUND) return std::nullopt;
  value.resize(GetEnvironmentVariableW(host::wide(key), value.data(), static_cast<DWORD>(value.size())));
  return utf8(host::fromWide(value));
}

void setVariable(const std::string& name, const std::optional<std::string>& value) {
  const fl::ustring key = utf16(name);
  const fl::ustring text = utf16(value.value_or(""));
  SetEnvironmentVariableW(host::wide(key), value ? host::wide(text) : nullptr);
}

}  // namespace zex_test
