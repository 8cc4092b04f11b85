#pragma once

namespace zex_cmd {

/// Copies the help file of the installation to the output, without any conversion. A missing file is no error: a
/// fixed line says so.
void printHelp();

}  // namespace zex_cmd
