#pragma once

namespace tool {

/// Settles the environment of a program before it calls the library: a temporary folder that commands can name,
/// the system's own where the variables tell none such, and a preferences folder without a trailing separator,
/// since folders are compared as text.
void prepareEnvironment();

}  // namespace tool
