#include "platform/shell_signs.hpp"

namespace zex_cmd {

constexpr fl::ustring_view shellActsUpon = u"^|<>\t";

}  // namespace zex_cmd
