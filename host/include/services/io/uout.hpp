#pragma once

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace services::io {

/// The host's output channel. Cheap: make one at each use.
class ZEXHOST_API uout {
 public:
  uout& operator<<(const fl::ustring& text);
};

}  // namespace services::io

/// Formatted 8-bit text to the same channel, without any conversion.
#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
ZEXHOST_API void
utPrintf(const char* format, ...);

/// Whether the channel can show links and bold text.
ZEXHOST_API bool utPrintfIsHot();
