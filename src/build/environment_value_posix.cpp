#include "build/ZexEnvironmentGuard.hpp"

namespace zex_cmd {

ustring joinedEnvironmentValue(const ustring& first, const ustring& former) {
  // An empty entry of a search path means the current folder, so nothing is joined to an empty value.
  return former.empty() ? first : first + u":" + former;
}

}  // namespace zex_cmd
