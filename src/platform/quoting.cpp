#include "platform/quoting.hpp"

#include "platform/shell_conventions.hpp"

namespace zex_cmd {

namespace {

bool standsBetween(const ustring& text, char16_t mark) {
  return !text.empty() && text.front() == mark && text.back() == mark;
}

ustring between(const ustring& text, char16_t mark) {
  return mark + text + mark;
}

/// Whether one of the characters stands outside the double quotes that the text has. A quote that is never closed
/// encloses nothing.
bool holdsOutsideQuotes(const ustring& text, fl::ustring_view characters) {
  const std::size_t lastQuote = text.rfind(u'"');
  bool insideQuotes = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'"') {
      insideQuotes = !insideQuotes;
      continue;
    }
    const bool neverClosed = lastQuote == ustring::npos || lastQuote < i;
    if (characters.find(text[i]) != fl::ustring_view::npos && (!insideQuotes || neverClosed)) return true;
  }
  return false;
}

}  // namespace

bool isQuoted(const ustring& text) {
  return standsBetween(text, u'"');
}

ustring withoutQuotes(const ustring& text) {
  if (!isQuoted(text)) return text;
  return text.size() == 1 ? ustring() : text.substr(1, text.size() - 2);
}

ustring quoteAlways(const ustring& text) {
  return isQuoted(text) ? text : between(text, u'"');
}

ustring quoteWhenNeeded(const ustring& text) {
  return !isQuoted(text) && holdsOutsideQuotes(text, u" ()&") ? between(text, u'"') : text;
}

ustring quoteInCommand(const ustring& text) {
  const ustring quoted = quoteWhenNeeded(text);
  return holdsOutsideQuotes(quoted, quotableSigns) ? quoteAlways(quoted) : quoted;
}

ustring quoteForPosix(const ustring& text) {
  if (standsBetween(text, u'\'') || isQuoted(text)) return text;
  return text.find_first_of(u" =()") == ustring::npos ? text : between(text, u'\'');
}

}  // namespace zex_cmd
