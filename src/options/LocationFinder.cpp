#include "options/LocationFinder.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "fl/i18n/strings.hpp"

namespace zex_cmd {

namespace {

void addDiagnostic(const OptionTree::Element& element) {
  const std::optional<ustring> text = attributeOf(element, u"diagnostic");
  if (!text || text->empty()) return;
  ZexConfigPerTVM::current().locationTrace += fl::i18n::to_string(*text) + "\n";
}

}  // namespace

LocationFinder::Evaluation LocationFinder::evaluationFor(const ustring& elementName) {
  static constexpr std::array<std::pair<std::u16string_view, Evaluation>, 9> table = {{
      {u"fileExists", &LocationFinder::fileExists},
      {u"dirExists", &LocationFinder::dirExists},
      {u"envVarExists", &LocationFinder::envVarExists},
      {u"cmdReturns", &LocationFinder::cmdReturns},
      {u"hklmExists", &LocationFinder::hklmExists},
      {u"hkcuExists", &LocationFinder::hkcuExists},
      {u"or", &LocationFinder::anyOf},
      {u"and", &LocationFinder::allOf},
      {u"not", &LocationFinder::noneOf},
  }};
  const auto row =
      std::find_if(table.begin(), table.end(), [&](const auto& entry) { return entry.first == elementName; });
  return row == table.end() ? &LocationFinder::allOf : row->second;
}

bool LocationFinder::evaluateFinderElement(const Element::value_type& element, ustring& value) const {
  const auto& [name, content] = element;
  const Verdict verdict = (this->*evaluationFor(name))(content, value);
  if (!verdict) return false;
  if (!*verdict) addDiagnostic(content);
  return *verdict;
}

// A group without a condition says no, whatever its kind.

LocationFinder::Verdict LocationFinder::anyOf(const Element& element, ustring& value) const {
  return std::any_of(element.begin(), element.end(), [&](const auto& child) {
    return !isXmlPart(child.first) && evaluateFinderElement(child, value);
  });
}

LocationFinder::Verdict LocationFinder::allOf(const Element& element, ustring& value) const {
  bool result = false;
  for (const auto& child : element) {
    if (isXmlPart(child.first)) continue;
    result = evaluateFinderElement(child, value);
    if (!result) break;
  }
  return result;
}

LocationFinder::Verdict LocationFinder::noneOf(const Element& element, ustring& value) const {
  bool anyRan = false;
  for (const auto& child : element) {
    if (isXmlPart(child.first)) continue;
    if (evaluateFinderElement(child, value)) return false;
    anyRan = true;
  }
  return anyRan;
}

}  // namespace zex_cmd
