#pragma once

#include <filesystem>
#include <system_error>

namespace host::standalone {

/// As the operations of the standard library, which on Windows lose the system's reason for a failure.
bool removeEntry(const std::filesystem::path& path, std::error_code& reason);
void moveEntry(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& reason);

/// Whether somebody has the file open, where that refuses changes.
bool isInUse(const std::error_code& reason);

}  // namespace host::standalone
