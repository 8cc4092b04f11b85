#pragma once

#include <string>

namespace zex_cmd {

/// Architecture for an extension tag such as "zexa64"; "unknown" for a tag that is not in the table.
std::string architectureOfTag(const std::string& extensionTag);

/// Architecture that this library was built for, such as "glnxa64".
std::string architectureName();

}  // namespace zex_cmd
