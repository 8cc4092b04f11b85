#pragma once

#include <algorithm>
#include <iterator>

namespace zex_cmd {

/// Whether a list has an element that equals `value`.
template <class List, class Value>
bool contains(const List& list, const Value& value) {
  return std::find(std::begin(list), std::end(list), value) != std::end(list);
}

}  // namespace zex_cmd
