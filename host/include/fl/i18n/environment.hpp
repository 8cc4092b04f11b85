#pragma once

#include <string>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace fl::i18n {

/// Value of an environment variable; empty where it is unset.
ZEXHOST_API ustring getenv(const std::string& name);

/// Sets a variable of this process, replacing an old value. False where the system refuses.
ZEXHOST_API bool setenv(const std::string& name, const ustring& value);

}  // namespace fl::i18n
