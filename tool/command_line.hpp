#pragma once

#include <vector>

#include "fl/ustring.hpp"

namespace tool {

/// The arguments behind the program's name, as the user typed them: of what `main` is given on Windows, letters
/// outside the code page are lost.
std::vector<fl::ustring> commandLineArguments(int count, char** values);

}  // namespace tool
