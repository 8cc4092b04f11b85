#pragma once

#include <string_view>
#include <type_traits>

namespace host {

/// A text without the given characters at both ends.
template <class Unit>
constexpr std::basic_string_view<Unit> trimmed(std::basic_string_view<Unit> text,
                                               std::type_identity_t<std::basic_string_view<Unit>> characters) {
  const auto first = text.find_first_not_of(characters);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

}  // namespace host
