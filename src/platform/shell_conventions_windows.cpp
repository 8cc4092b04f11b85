#include <algorithm>

#include "platform/shell_conventions.hpp"

namespace zex_cmd {

constexpr fl::ustring_view quotableSigns = u"^|<>\t";

bool isCarriedByShell(const ustring& path) {
  // Sources are kept as a list with ";" between them, and the shell puts the value of a variable in place of its
  // name between two "%", in double quotes too.
  return path.find(u';') == ustring::npos && std::count(path.begin(), path.end(), u'%') < 2;
}

ustring joinedEnvironmentValue(const ustring& first, const ustring& former) {
  // The separator is written ahead of an empty value as well.
  return first + u";" + former;
}

}  // namespace zex_cmd
