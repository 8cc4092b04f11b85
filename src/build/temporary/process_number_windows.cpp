#include <windows.h>

#include "build/temporary/process_number.hpp"

namespace zex_cmd {

std::uint64_t processNumber() {
  return GetCurrentProcessId();
}

}  // namespace zex_cmd
