#include "vars/references.hpp"

#include <algorithm>
#include <boost/regex.hpp>

#include "platform/tokens.hpp"
#include "vars/referenceNames.hpp"

namespace zex_cmd {

namespace {

constexpr int plainOnly = 0;
constexpr int highestMode = 2;

bool isEscaped(const ustring& text, std::size_t dollar) {
  return dollar > 0 && text[dollar - 1] == u'$';
}

bool namesSource(const ustring& value, const std::vector<ReferenceRange>& references) {
  return std::any_of(references.begin(), references.end(), [&](const ReferenceRange& reference) {
    const ustring_view name = referenceName(value, reference);
    return name == u"SRC" || name == u"OBJ";
  });
}

std::vector<ustring> listOf(const ustring& text) {
  return splitTokens(text, u";");
}

}  // namespace

std::vector<ReferenceRange> collectReferences(const ustring& text, int mode) {
  std::vector<ReferenceRange> result;
  if (mode > highestMode) return result;
  // Matched over the UTF-16 units, so that positions are offsets into the text.
  static const boost::wregex reference(L"\\$([A-Z][A-Z0-9_]+)");
  boost::match_results<ustring::const_iterator> match;
  for (auto from = text.begin(); boost::regex_search(from, text.end(), match, reference); from = match[0].second) {
    const auto start = static_cast<std::size_t>(match[0].first - text.begin());
    const auto end = static_cast<std::size_t>(match[0].second - text.begin());
    if (isEscaped(text, start)) {
      if (mode > 0) result.emplace_back(start - 1, end);
    } else if (mode % 2 == 0) {
      result.emplace_back(start, end);
    }
  }
  return result;
}

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

}  // namespace zex_cmd
