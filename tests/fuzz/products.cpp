// Files of any format through the inspector of products.

#include "fl/filesystem/operations.hpp"
#include "fuzz/target.hpp"
#include "zexfile/Inspector.hpp"

namespace zex_fuzz {

void tryInput(std::string_view input) {
  static const bool entered = (enterFolder(), true);
  if (!entered) return;
  writeFile("product", input);
  const zexfile::Inspector inspector(fl::filesystem::absolute(u"product"), !input.empty() && input.back() == 1);
  demand(inspector.has_error() <= !inspector.issues.empty(), "an error says what it is");
  const std::u16string_view flag = inspector.get_embedded_version_compiler_flag();
  demand(inspector.needs_consistent_embedded_version() == !flag.empty(), "a flag for what it is needed for");
  // It becomes part of a command.
  demand(flag.find_first_of(u"\"'$`;|&<>()\n") == flag.npos, "a flag holds no sign of the shell");
}

}  // namespace zex_fuzz
