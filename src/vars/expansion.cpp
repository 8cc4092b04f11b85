#include <algorithm>
#include <array>

#include "options/ZexOpt.hpp"
#include "vars/ZexVarResolver.hpp"
#include "vars/referenceNames.hpp"

namespace zex_cmd {

namespace {

/// The only names that vanish where nothing defines them.
bool isOptionalLibraryList(ustring_view name) {
  static constexpr std::array<ustring_view, 3> names = {u"CLIBS", u"CXXLIBS", u"FLIBS"};
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

void expandReferences(const ZexOpt& opt, ustring& text, const ustring& self) {
  text = replaceReferences(text, collectReferences(text, 0), [&](ustring_view name, ustring& out) {
    if (name == self) return keepReference(name, out);
    // What is put in is final already, by the order of expansion, and is not looked at again.
    if (const auto found = opt.variable(ustring(name))) {
      out += *found;
    } else if (!isOptionalLibraryList(name)) {
      keepReference(name, out);
    }
  });
}

}  // namespace zex_cmd
