#include "platform/quoting.hpp"

namespace zex_cmd {

namespace {

/// Beside those that `quoteWhenNeeded` looks for. Not here: "$", a backtick, a double quote and ";", which paths
/// may not hold and values bring along for the shell.
constexpr fl::ustring_view shellActsUpon = u"'|<>*?[]{}#~!\\\t";

}  // namespace

ustring quoteInCommand(const ustring& text) {
  const ustring quoted = quoteWhenNeeded(text);
  return holdsOutsideQuotes(quoted, shellActsUpon) ? quoteAlways(quoted) : quoted;
}

}  // namespace zex_cmd
