#include <stdlib.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "cmd/messages/raise.hpp"
#include "platform/paths.hpp"

namespace zex_cmd {

namespace {

/// Sources are kept as a list with ";" between them, and the shell puts the value of a variable in place of its
/// name between two "%", in double quotes too.
bool isCarriedByShell(const ustring& path) {
  return path.find(u';') == ustring::npos && std::count(path.begin(), path.end(), u'%') < 2;
}

}  // namespace

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
