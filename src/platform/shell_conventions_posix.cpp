#include "platform/shell_conventions.hpp"

namespace zex_cmd {

namespace {

/// What the shell acts upon in double quotes too, or what ends a command whatever stands around it.
constexpr fl::ustring_view signsInQuotes = u"$`\";\n";

}  // namespace

// Not here: "$", a backtick, a double quote and ";", which paths may not hold and values bring along for the
// shell.
constexpr fl::ustring_view quotableSigns = u"'|<>*?[]{}#~!\\\t";

bool isCarriedByShell(const ustring& path) {
  return path.find_first_of(signsInQuotes) == ustring::npos;
}

ustring joinedEnvironmentValue(const ustring& first, const ustring& former) {
  // An empty entry of a search path means the current folder, so nothing is joined to an empty value.
  return former.empty() ? first : first + u":" + former;
}

}  // namespace zex_cmd
