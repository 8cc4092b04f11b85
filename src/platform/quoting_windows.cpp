#include "platform/quoting.hpp"

namespace zex_cmd {

namespace {

/// Beside those that `quoteWhenNeeded` looks for.
constexpr fl::ustring_view shellActsUpon = u"^|<>\t";

}  // namespace

ustring quoteInCommand(const ustring& text) {
  const ustring quoted = quoteWhenNeeded(text);
  return holdsOutsideQuotes(quoted, shellActsUpon) ? quoteAlways(quoted) : quoted;
}

}  // namespace zex_cmd
