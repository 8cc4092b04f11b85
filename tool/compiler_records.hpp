#pragma once

#include <string>
#include <vector>

#include "cmd/ZexCmdI.hpp"

namespace tool {

/// An array of objects with the records' own keys, in UTF-8.
std::string jsonOf(const std::vector<zex_cmd::CompilerRecord>& records);

/// An aligned table of what a person asks for; without records a line that says so.
std::string tableOf(const std::vector<zex_cmd::CompilerRecord>& records);

}  // namespace tool
