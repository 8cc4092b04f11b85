#pragma once

#include <string>

namespace zex_cmd {

/// Architecture that this library was built for, such as "glnxa64"; "unknown" for a platform outside the table.
std::string architectureName();

}  // namespace zex_cmd
