#pragma once

#include <cstdarg>
#include <string>

#include "zex.h"

namespace zx {

/// The characters of a text, or a failure where there are none.
const char* presentText(const char* text);
const zxUnit* presentText(const zxUnit* text);

/// The text that a format of std::printf makes of its arguments.
std::string formatted(const char* format, va_list arguments);

}  // namespace zx
