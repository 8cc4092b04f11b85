#pragma once

#include <cstdint>
#include <filesystem>
#include <system_error>

namespace host::standalone {

/// Removes a path with all that is below it, without following links, and gives the number of entries removed.
std::uintmax_t removeTree(const std::filesystem::path& path, std::error_code& reason);

}  // namespace host::standalone
