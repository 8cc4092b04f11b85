#pragma once

#include <cstddef>
#include <string_view>

namespace zex_cmd {

/// Elements of an option document that may stand within each other; a real one has fewer than ten such levels. The
/// reader of XML and all that walks its tree call themselves for each level.
inline constexpr std::size_t deepestElement = 200;

/// How deep the elements of a text lie that the reader of XML would take, before it is handed to that reader. Of a
/// text that it would refuse, at least the depth that it comes to until then.
std::size_t xmlDepth(std::string_view text);

}  // namespace zex_cmd
