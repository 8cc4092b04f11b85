#pragma once

#include <memory>
#include <string>

#include "zex.h"

namespace tool {

struct Destroyed {
  void operator()(zxArray* array) const { zxDestroyArray(array); }
};

/// An array that goes away with its owner.
using Value = std::unique_ptr<zxArray, Destroyed>;

/// The name of a kind on the command line and in output, such as "real" or "int8".
const char* nameOf(zxKind kind);

/// The value that an argument writes, in UTF-8: `3`, `-2.5e3`, `1-2i`, `true`, `'text'` or `"text"`, a matrix such
/// as `[1 2; 3 4]`, or one of them as another kind, as in `int8([1 2])`. Raises UsageError.
Value parsedValue(const std::string& argument);

}  // namespace tool
