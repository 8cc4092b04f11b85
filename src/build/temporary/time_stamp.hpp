#pragma once

#include <cstdint>

namespace zex_cmd {

/// A count that goes up with every call of this process: the processor's time stamp counter or, where that cannot
/// be read, a monotonic clock.
std::uint64_t timeStampCount();

}  // namespace zex_cmd
