#include "compilers/opt_lists.hpp"

#include <algorithm>

#include "options/ZexOpt.hpp"

namespace zex_cmd {

boost::shared_ptr<ZexOpt> findOptByField(const ZexOptList& list, const ustring& field, const ustring& value) {
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const auto& opt) { return opt->attribute(field) == value; });
  return found == list.end() ? nullptr : *found;
}

boost::shared_ptr<ZexOpt> lowestPriorityOpt(const ZexOptList& list) {
  boost::shared_ptr<ZexOpt> best;
  ustring lowest;
  for (const auto& opt : list) {
    if (!opt->installed) continue;
    const ustring priority = opt->attribute(u"PRIORITY");
    if (best && priority >= lowest) continue;
    best = opt;
    lowest = priority;
  }
  return best;
}

void keepInstalled(ZexOptList& list) {
  std::erase_if(list, [](const auto& opt) { return !opt->installed; });
}

}  // namespace zex_cmd
