#pragma once

#include <cstddef>

#include "build/ZexBuildCommand.hpp"

namespace zex_cmd {

/// A compile or link command of this many characters goes through a response file.
inline constexpr std::size_t responseFileLength = 8000;

bool needsResponseFile(const ZexBuildCommand& record);

/// Writes the arguments of a command to "zex_temp.rsp" in the build's temporary folder and gives a copy of the
/// record whose command names that file instead. Every long command of a build overwrites the same file. Where the
/// file cannot be written the copy names it all the same, and the tool then fails on the missing file.
ZexBuildCommand responseFileCommand(const ZexBuildCommand& record, const ustring& tempDir);

}  // namespace zex_cmd
