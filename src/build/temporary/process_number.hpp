#pragma once

#include <cstdint>

namespace zex_cmd {

/// Number of this process, as the system gives it.
std::uint64_t processNumber();

}  // namespace zex_cmd
