#include "vars/references.hpp"

#include <boost/regex.hpp>

namespace zex_cmd {

namespace {

constexpr int highestMode = 2;

bool isEscaped(const ustring& text, std::size_t dollar) {
  return dollar > 0 && text[dollar - 1] == u'$';
}

}  // namespace

std::vector<ReferenceRange> collectReferences(const ustring& text, int mode) {
  std::vector<ReferenceRange> result;
  if (mode > highestMode) return result;
  // Matched over the UTF-16 units, so that positions are offsets into the text. Built once for all calls.
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

}  // namespace zex_cmd
