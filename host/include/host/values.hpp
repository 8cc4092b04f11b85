#pragma once

#include <string>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"
#include "zx/zxArray.hpp"

namespace host {

/// The exception object with which a host function fails: the fields "identifier", such as "TESSEL:host:Tag", and
/// "message", which is words already. It belongs to whoever receives it.
ZEXHOST_API zxArray* createException(const std::string& identifier, const fl::ustring& message);

}  // namespace host
