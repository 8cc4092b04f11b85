#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace host::standalone {

/// What is made here was not there before and is the owner's alone from its first moment, whatever the umask; a
/// link at its name is not followed. Windows has no such modes: there the folder above decides who gets in.

/// A name that is taken is a failure, and what cannot be written in full does not stay.
void makePrivateFile(const std::filesystem::path& path, std::string_view content, std::error_code& reason);

/// A folder and its missing parents, as std::filesystem::create_directories does: false where it was there.
bool makePrivateFolders(const std::filesystem::path& path, std::error_code& reason);

}  // namespace host::standalone
