#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zex_fuzz {

/// One input to one target, which ends the process where it finds a fault. Defined once by each target.
void tryInput(std::string_view input);

/// Ends the process with the words where the condition does not hold.
void demand(bool condition, const char* words);

/// A folder in memory of this process alone, the current and the temporary one, in which a target may do as it
/// likes. Gives true.
bool enterFolder();

void writeFile(const std::string& name, std::string_view content);

}  // namespace zex_fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
