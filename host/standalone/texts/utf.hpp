#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace host::standalone {

/// What cannot be converted becomes U+FFFD.
std::string toUtf8(fl::ustring_view text);
fl::ustring fromUtf8(std::string_view text);

/// Every byte comes back as it was: one that is no part of UTF-8 becomes half a character, which no text holds.
ZEXHOST_API fl::ustring fromBytes(std::string_view bytes);
std::string toBytes(fl::ustring_view text);

/// Nothing where the text is not well formed: a name with a replacement in it would be a different name.
std::optional<std::string> toUtf8Exactly(fl::ustring_view text);
std::optional<fl::ustring> fromUtf8Exactly(std::string_view text);

}  // namespace host::standalone
