#pragma once

#include "host/visibility.hpp"

/// A value of the host, owned by whoever made or received it until `zxDestroyArray`.
struct zxArray;

ZEXHOST_API zxArray* zxCreateString(const char* text);  ///< native 8-bit encoding
ZEXHOST_API zxArray* zxCreateString_UTF16(const char16_t* text);
ZEXHOST_API void zxDestroyArray(zxArray* array);  ///< null is allowed
