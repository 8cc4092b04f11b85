#pragma once

#include <optional>

#include "fl/ustring.hpp"

namespace host::standalone {

/// Why a product cannot be called through this libzx, by the records in it; nothing where it can.
std::optional<fl::ustring> interfaceMismatch(const fl::ustring& product);

}  // namespace host::standalone
