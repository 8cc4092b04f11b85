#pragma once

namespace host {

/// The variables that name the folder of temporary files: the first one that is not empty counts, for the driver
/// and for whoever wants its own files to lie beside those of the driver.
inline constexpr const char* temporaryFolderVariables[] = {"TMPDIR", "TMP", "TEMP"};

}  // namespace host
