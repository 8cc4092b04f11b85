#pragma once

namespace zex_cmd {

class ZexOpt;

/// Prints the location, the path and all variables of a resolved document, for -v.
void printOptionDetails(const ZexOpt& option);

}  // namespace zex_cmd
