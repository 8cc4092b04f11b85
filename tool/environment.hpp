#pragma once

namespace tool {

/// Settles the environment of a program before it calls the library: a temporary folder that is sure to be the
/// system's own, and a preferences folder without a trailing separator, since folders are compared as text.
void prepareEnvironment();

}  // namespace tool
