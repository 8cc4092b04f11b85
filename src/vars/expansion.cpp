#include "vars/expansion.hpp"

#include <algorithm>
#include <array>
#include <optional>

#include "options/ZexOpt.hpp"
#include "platform/tokens.hpp"
#include "vars/references.hpp"

namespace zex_cmd {

namespace {

bool namesSource(const ustring& value, const std::vector<ReferenceRange>& references) {
  return std::any_of(references.begin(), references.end(), [&](const ReferenceRange& reference) {
    const ustring_view name = referenceName(value, reference);
    return name == u"SRC" || name == u"OBJ";
  });
}

std::vector<ustring> listOf(const ustring& text) {
  return splitTokens(text, u";");
}

/// The only names that vanish where nothing defines them.
bool isOptionalLibraryList(ustring_view name) {
  static constexpr std::array<ustring_view, 3> names = {u"CLIBS", u"CXXLIBS", u"FLIBS"};
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

std::vector<ustring> expandPerSource(const ustring& value, const ustring& sources, const ustring& objects) {
  const std::vector<ReferenceRange> references = collectReferences(value, plainOnly);
  // The lists may hold thousands of entries; most values have no use for them.
  if (!namesSource(value, references)) return {value};

  const bool noSources = sources.empty();
  const std::vector<ustring> sourceList = noSources ? std::vector<ustring>(1) : listOf(sources);
  std::vector<ustring> objectList = noSources ? std::vector<ustring>(1) : listOf(objects);
  objectList.resize(std::max(objectList.size(), sourceList.size()));

  std::vector<ustring> result;
  result.reserve(sourceList.size());
  for (std::size_t index = 0; index < sourceList.size(); ++index) {
    result.push_back(replaceReferences(value, references, [&](ustring_view name, ustring& out) {
      if (name == u"SRC") {
        out += sourceList[index];
      } else if (name == u"OBJ") {
        out += objectList[index];
      } else {
        keepReference(name, out);
      }
    }));
    if (result.size() == 1 && result.front() == value) break;
  }
  return result;
}

void expandReferences(const ZexOpt& opt, ustring& text, const ustring& self) {
  text = replaceReferences(text, collectReferences(text, plainOnly), [&](ustring_view name, ustring& out) {
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
