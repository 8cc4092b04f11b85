#pragma once

#include <cstdint>

namespace zex_cmd {

/// The processor's time stamp counter or, where that cannot be read, a monotonic clock: fine enough that two calls
/// in a row are not expected to meet, which nothing guarantees.
std::uint64_t timeStampCount();

/// Number of this process, as the system gives it.
std::uint64_t processNumber();

}  // namespace zex_cmd
