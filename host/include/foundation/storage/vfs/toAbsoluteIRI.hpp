#pragma once

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace foundation::storage::vfs {

/// Absolute resource name, such as "file:///home/me/a%20b", percent-encoded where the syntax of resource names
/// asks.
ZEXHOST_API fl::ustring toAbsoluteIRI(const fl::ustring& scheme, const fl::ustring& folder);

}  // namespace foundation::storage::vfs
