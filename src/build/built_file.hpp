#pragma once

#include <optional>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// Inspects a product for the interface records of its sources. Raises "TESSEL:zex:Error" where they contradict
/// each other. Gives the flag with which the API version source must be compiled again so that its record agrees
/// with them, or nothing where all is well. `output` is the product, `verbose` shows what else the inspection
/// found.
std::optional<ustring> inspectBuiltFile(const ustring& output, bool verbose);

/// The flag in the form that a compile command takes: for the switch character of its tool, and with the array
/// dimensions that the old handle interface asks for.
ustring versionFlagFor(const ustring& compileCommand, ustring flag);

}  // namespace zex_cmd
