#pragma once

#include <optional>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"
#include "zx/zxArray.hpp"

namespace Korvane {

/// Text of a host value: a character vector or a string scalar.
struct ZEXHOST_API String {
  static bool isString(const zxArray* array);

  /// The text; nothing for a missing string value. Only for values that `isString` accepts.
  static std::optional<fl::ustring> getString(const zxArray* array);
};

}  // namespace Korvane
