#include <stdlib.h>

#include <array>
#include <string_view>

#include "cmd/messages/raise.hpp"
#include "platform/paths.hpp"
#include "platform/shell_conventions.hpp"

namespace zex_cmd {

bool isCarried(const ustring& /*path*/) {
  // Names are of the same units as texts here.
  return true;
}

ustring fullPath(const ustring& path) {
  std::array<wchar_t, 512> buffer{};
  const auto* wide = reinterpret_cast<const wchar_t*>(path.c_str());
  if (_wfullpath(buffer.data(), wide, buffer.size()) == nullptr) {
    raiseTyped(msg::Error(u"Invalid path " + path));
  }
  const std::wstring_view whole = buffer.data();
  const ustring result(whole.begin(), whole.end());
  if (!isCarriedByShell(result)) raiseTyped(msg::Error(u"Invalid path " + path));
  return result;
}

}  // namespace zex_cmd
