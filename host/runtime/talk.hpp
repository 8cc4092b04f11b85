#pragma once

#include <string>
#include <string_view>

namespace zx {

/// Gives a text to the host's output.
void print(std::string_view text);

[[noreturn]] void fail(std::string identifier, std::string message);

}  // namespace zx
