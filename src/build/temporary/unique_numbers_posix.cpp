#include <unistd.h>

#include "build/temporary/unique_numbers.hpp"

namespace zex_cmd {

std::uint64_t processNumber() {
  return static_cast<std::uint64_t>(getpid());
}

}  // namespace zex_cmd
