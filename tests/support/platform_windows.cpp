#include <windows.h>

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
};

std::optional<std::string> variable(const std::string& name) {
  const fl::ustring key = utf16(name);
  const DWORD size = GetEnvironmentVariableW(host::standalone::wide(key), nullptr, 0);  // with its end mark
  if (size == 0) return std::nullopt;
  std::wstring value(size, L'\0');
  value.resize(GetEnvironmentVariableW(host::standalone::wide(key), value.data(), size));
  return utf8(host::standalone::fromWide(value));
}

void setVariable(const std::string& name, const char* value) {
  const fl::ustring key = utf16(name), text = utf16(value == nullptr ? "" : value);
  SetEnvironmentVariableW(host::standalone::wide(key), value == nullptr ? nullptr : host::standalone::wide(text));
}

}  // namespace zex_test
