#pragma once

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace settings::core {

/// The user's preferences folder, without a trailing separator. With `create` it is made if it is missing.
ZEXHOST_API fl::ustring getPreferencesDirectoryUStr(bool create);

}  // namespace settings::core
