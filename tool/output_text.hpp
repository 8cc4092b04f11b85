#pragma once

#include <string>

namespace tool {

/// Texts of extensions are in UTF-8. This gives one in the form that the output takes.
std::string outputText(std::string utf8);

}  // namespace tool
