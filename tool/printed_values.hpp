#pragma once

#include <string>
#include <utility>
#include <vector>

#include "zex.h"

namespace tool {

/// Values with their names, in order.
using NamedValues = std::vector<std::pair<std::string, const zxArray*>>;

/// For people: name, kind and size on a line, then the elements in aligned columns.
std::string printed(const NamedValues& values);

/// An array of objects with the keys name, kind, rows, columns, and "values", a list of rows (empty without
/// elements), or "value" for a text. A complex element is a pair; what JSON has no numbers for is "NaN", "Inf" or
/// "-Inf".
std::string jsonOf(const NamedValues& values);

}  // namespace tool
