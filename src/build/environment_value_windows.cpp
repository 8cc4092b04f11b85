#include "build/ZexEnvironmentGuard.hpp"

namespace zex_cmd {

ustring joinedEnvironmentValue(const ustring& first, const ustring& former) {
  // The separator is written ahead of an empty value as well.
  return first + u";" + former;
}

}  // namespace zex_cmd
