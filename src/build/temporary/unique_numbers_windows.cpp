#include <windows.h>

#include "build/temporary/unique_numbers.hpp"

namespace zex_cmd {

std::uint64_t processNumber() {
  return GetCurrentProcessId();
}

}  // namespace zex_cmd
