#include "vars/formatters.hpp"

#include <boost/format.hpp>
#include <locale>
#include <string>

#include "platform/quoting.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

/// Unit by unit, since the library has no formats of UTF-16; the way back restores every unit.
std::wstring widened(const ustring& text) {
  return {text.begin(), text.end()};
}

ustring narrowed(const std::wstring& text) {
  ustring result;
  result.reserve(text.size());
  for (const wchar_t unit : text) result += static_cast<char16_t>(unit);
  return result;
}

ustring formatted(const ustring& pattern, const ustring& part) {
  return narrowed((boost::wformat(widened(pattern), std::locale()) % widened(part)).str());
}

}  // namespace

ustring applyFormatters(const ustring& part, const ustring& formatters, Quote quote) {
  if (part.starts_with(u"-U")) return part + u" ";
  ustring result;
  for (const ustring& pattern : splitTokens(formatters, u";")) {
    result += quote(formatted(pattern, part)) + u" ";
  }
  return result;
}

}  // namespace zex_cmd
