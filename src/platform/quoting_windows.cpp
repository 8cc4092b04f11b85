#include "platform/quoting.hpp"

namespace zex_cmd {

ustring quoteInCommand(const ustring& text) {
  return quoteWhenNeeded(text);
}

}  // namespace zex_cmd
