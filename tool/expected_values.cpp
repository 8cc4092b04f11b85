#include "expected_values.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "printed_values.hpp"
#include "program.hpp"

namespace tool {

namespace {

bool isNear(double actual, double expected, double tolerance) {
  if (actual == expected || (std::isnan(actual) && std::isnan(expected))) return true;
  return std::abs(actual - expected) <= tolerance * std::max(1.0, std::abs(expected));
}

bool isNear(const zxComplex& actual, const zxComplex& expected, double tolerance) {
  return isNear(actual.re, expected.re, tolerance) && isNear(actual.im, expected.im, tolerance);
}

template <class Element>
bool areNear(const Element* actual, const Element* expected, zxIndex count, double tolerance) {
  return std::equal(actual, actual + count, expected,
                    [=](const Element& one, const Element& other) { return isNear(one, other, tolerance); });
}

}  // namespace

bool isAsExpected(const zxArray* actual, const zxArray* expected, double tolerance) {
  const zxKind kind = zxKindOf(expected);
  if (zxKindOf(actual) != kind || zxRowsOf(actual) != zxRowsOf(expected) ||
      zxColumnsOf(actual) != zxColumnsOf(expected))
    return false;
  const zxIndex count = zxCountOf(expected);
  if (kind == ZX_REAL) return areNear(zxReadReals(actual), zxReadReals(expected), count, tolerance);
  if (kind == ZX_COMPLEX) return areNear(zxReadComplexes(actual), zxReadComplexes(expected), count, tolerance);
  return jsonOf({{"", actual}}) == jsonOf({{"", expected}});
}

double parsedTolerance(const std::string& argument) {
  double tolerance = 0;
  const char* const last = argument.data() + argument.size();
  const auto [end, error] = std::from_chars(argument.data(), last, tolerance);
  if (error != std::errc() || end != last || !(tolerance >= 0))
    throw UsageError("'" + argument + "' is no tolerance; write a number such as 1e-9");
  return tolerance;
}

}  // namespace tool
