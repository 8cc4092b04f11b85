#include "platform/shell_signs.hpp"

namespace zex_cmd {

// Not here: "$", a backtick, a double quote and ";", which paths may not hold and values bring along for the
// shell.
constexpr fl::ustring_view shellActsUpon = u"'|<>*?[]{}#~!\\\t";

}  // namespace zex_cmd
