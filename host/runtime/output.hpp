#pragma once

#include <string_view>

namespace zx {

/// Gives a text to the host's output.
void print(std::string_view text);

}  // namespace zx
