#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "options/LocationFinder.hpp"
#include "options/ZexOpt.hpp"

namespace zex_cmd {

namespace {

/// Stops at the first variable that is not found; those before it stay set. No condition at all counts as not
/// found.
bool findAll(ZexOpt& opt, const OptionTree::Element& conditions) {
  const LocationFinder finder(opt.calledFromHost);
  bool found = false;
  for (const auto& condition : conditions) {
    if (isXmlPart(condition.first)) continue;
    ustring value;
    found = finder.evaluateFinderElement(condition, value);
    if (!found) return false;
    opt.setVariable(condition.first, value);
  }
  return found;
}

}  // namespace

void ZexOpt::findLocations() {
  const ustring name = attribute(u"NAME");
  logMessage(msg::LookingCompiler(name), true);
  const OptionTree::Element* conditions = tree_->find(u"config.locationFinder");
  if (conditions == nullptr || !findAll(*this, *conditions)) {
    logMessage(msg::NotInstalledCompiler(name), true);
    return;
  }
  logMessage(msg::InstalledCompiler(name), true);
  installed = true;
}

}  // namespace zex_cmd
