#include "platform/architecture.hpp"

#include <array>
#include <string_view>

namespace zex_cmd {

namespace {

struct Architecture {
  std::string_view tag;
  std::string_view name;
};

constexpr std::array<Architecture, 5> architectures{{
    {"zexglx", "glnx86"},
    {"zexa64", "glnxa64"},
    {"zexmaci64", "maci64"},
    {"zexw32", "win32"},
    {"zexw64", "win64"},
}};

}  // namespace

std::string architectureName() {
  for (const Architecture& row : architectures) {
    if (row.tag == ZEX_PLATFORM_TAG) return std::string(row.name);
  }
  return "unknown";
}

}  // namespace zex_cmd
