#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// What a tool wrote into a capture file, decoded: the lines that are not empty, each ended by a line feed. Empty
/// where the file does not open.
ustring capturedText(const ustring& path);

}  // namespace zex_cmd
