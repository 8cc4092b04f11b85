#include <stdlib.h>

#include <array>

#include "cmd/messages/raise.hpp"
#include "platform/paths.hpp"

namespace zex_cmd {

ustring fullPath(const ustring& path) {
  std::array<wchar_t, 512> buffer{};
  const auto* wide = reinterpret_cast<const wchar_t*>(path.c_str());
  if (_wfullpath(buffer.data(), wide, buffer.size()) == nullptr) {
    raiseTyped(msg::Error(u"Invalid path " + path));
  }
  return ustring(reinterpret_cast<const char16_t*>(buffer.data()));
}

}  // namespace zex_cmd
