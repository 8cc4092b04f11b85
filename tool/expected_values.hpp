#pragma once

#include <string>

#include "zex.h"

namespace tool {

/// Whether an output is the expected one: of the same kind and size, with the same elements. A real or complex
/// element may lie off by `tolerance`, relative to expected ones above 1; NaN is equal to NaN.
bool isAsExpected(const zxArray* actual, const zxArray* expected, double tolerance);

/// The tolerance that an argument writes: a number that is not negative. Raises UsageError.
double parsedTolerance(const std::string& argument);

}  // namespace tool
