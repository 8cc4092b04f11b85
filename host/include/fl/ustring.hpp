#pragma once

#include <string>
#include <string_view>

namespace fl {

/// UTF-16 text: file names, document values and everything shown to a user.
using ustring = std::u16string;
using ustring_view = std::u16string_view;

}  // namespace fl
