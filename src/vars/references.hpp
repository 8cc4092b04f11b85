#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;
using fl::ustring_view;

/// Position of the dollar sign and the position just past the name.
using ReferenceRange = std::pair<std::size_t, std::size_t>;

/// The mode of `collectReferences` that every caller takes.
inline constexpr int plainOnly = 0;

/// The `$NAME` references of a text. Mode 0 gives the plain ones, 1 the escaped ones ("$$NAME"), 2 both.
std::vector<ReferenceRange> collectReferences(const ustring& text, int mode);

/// The name without its dollar sign. Views into `text`.
inline ustring_view referenceName(ustring_view text, const ReferenceRange& reference) {
  return text.substr(reference.first + 1, reference.second - reference.first - 1);
}

inline void keepReference(ustring_view name, ustring& out) {
  out += u'$';
  out += name;
}

/// The text with what `insert(name, out)` appends in the place of each reference.
template <class Insert>
ustring replaceReferences(const ustring& text, const std::vector<ReferenceRange>& references,
                          const Insert& insert) {
  ustring result;
  result.reserve(text.size());
  std::size_t copied = 0;
  for (const ReferenceRange& reference : references) {
    result.append(text, copied, reference.first - copied);
    insert(referenceName(text, reference), result);
    copied = reference.second;
  }
  result.append(text, copied);
  return result;
}

}  // namespace zex_cmd
