#include "build/shared_objects.hpp"

#include <algorithm>
#include <map>
#include <vector>

#include "args/ZexArgs.hpp"
#include "cmd/messages/show.hpp"
#include "cmd/messages/warnings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

void warnOfSharedObjects(const ZexOpt& option, const ZexArgs& args) {
  const std::vector<ustring> objects = splitTokens(option.variable(u"OBJ").value_or(ustring()), u";");
  std::map<ustring, ustring> sourceOf;
  for (std::size_t index = 0; index < std::min(objects.size(), args.sources.size()); ++index) {
    const ustring& source = args.sources[index];
    const auto [first, isNew] = sourceOf.try_emplace(objects[index], source);
    if (!isNew && first->second != source) emitWarning(msg::SameObject(first->second, source));
  }
}

}  // namespace zex_cmd
