#include <windows.h>

#include <cstdlib>

#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "texts/wide.hpp"

namespace fl::i18n {

ustring getenv(const std::string& name) {
  const ustring wideName = to_ustring(name);
  const wchar_t* const key = host::wide(wideName);
  std::wstring value(GetEnvironmentVariableW(key, nullptr, 0), L'\0');
  // Without its end mark; shorter than told where another thread changed it meanwhile.
  value.resize(GetEnvironmentVariableW(key, value.data(), static_cast<DWORD>(value.size())));
  return host::fromWide(value);
}

bool setenv(const std::string& name, const ustring& value) {
  // The system would take what stands ahead of the zero and call it success.
  if (name.find('\0') != std::string::npos || value.find(u'\0') != ustring::npos) return false;
  if (name.empty() || name.find('=') != std::string::npos) return false;
  const ustring wideName = to_ustring(name);
  const wchar_t* const key = host::wide(wideName);
  // Through the C library, which tells the system and also keeps a copy of its own.
  if (_wputenv_s(key, host::wide(value)) != 0) return false;
  // It takes an empty value for the wish to remove the variable.
  return !value.empty() || SetEnvironmentVariableW(key, L"") != 0;
}

}  // namespace fl::i18n
