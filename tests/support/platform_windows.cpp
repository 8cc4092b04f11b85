#include <windows.h>

#include "support/platform.hpp"
#include "support/texts.hpp"
#include "texts/wide.hpp"

namespace zex_test {

const Platform platform = {
    .architecture = "win64",
    .drive = "C:",
    .listSeparator = ";",
    .joinedToNone = ";",
    .quotedInCommands = u" ()&^|<>\t",
    .refusesShellSigns = false,
};

std::optional<std::string> variable(const std::string& name) {
  const fl::ustring key = utf16(name);
  const DWORD size = GetEnvironmentVariableW(host::wide(key), nullptr, 0);  // with its end mark
  if (size == 0) return std::nullopt;
  std::wstring value(size, L'\0');
  value.resize(GetEnvironmentVariableW(host::wide(key), value.data(), size));
  return utf8(host::fromWide(value));
}

void setVariable(const std::string& name, const char* value) {
  const fl::ustring key = utf16(name), text = utf16(value == nullptr ? "" : value);
  SetEnvironmentVariableW(host::wide(key), value == nullptr ? nullptr : host::wide(text));
}

}  // namespace zex_test
