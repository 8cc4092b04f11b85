#include "printed_values.hpp"

#include <algorithm>
#include <boost/json/src.hpp>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <type_traits>

#include "values.hpp"
#include "zx/kinds.hpp"

namespace tool {

namespace {

namespace json = boost::json;

using zx::Logical;

bool isTrue(Logical truth) {
  return static_cast<unsigned char>(truth) != 0;
}

/// A number as an integer where that says the same, for 100000 is easier to read than 1e+05.
std::optional<std::int64_t> plainInteger(double number) {
  constexpr double exactIntegers = 9007199254740992;
  const bool isMinusZero = number == 0 && std::signbit(number);
  if (std::trunc(number) != number || !(std::abs(number) < exactIntegers) || isMinusZero) return std::nullopt;
  return static_cast<std::int64_t>(number);
}

/// The shortest text that reads back as the same number.
template <class Number>
std::string written(Number number) {
  char text[64];
  const auto end = std::to_chars(std::begin(text), std::end(text), number);
  return {text, end.ptr};
}

std::string written(Logical truth) {
  return isTrue(truth) ? "true" : "false";
}

std::string written(double number) {
  if (std::isnan(number)) return "NaN";
  if (std::isinf(number)) return number < 0 ? "-Inf" : "Inf";
  if (const auto integer = plainInteger(number)) return written(*integer);
  return written<double>(number);
}

std::string written(zxComplex number) {
  const std::string imaginary = written(number.im);
  return written(number.re) + (imaginary.front() == '-' ? "" : "+") + imaginary + "i";
}

template <class Number>
json::value inJson(Number number) {
  return number;
}

json::value inJson(Logical truth) {
  return isTrue(truth);
}

json::value inJson(double number) {
  if (!std::isfinite(number)) return json::string(written(number));
  if (const auto integer = plainInteger(number)) return *integer;
  return number;
}

json::value inJson(zxComplex number) {
  return json::array{inJson(number.re), inJson(number.im)};
}

/// Calls a function with the elements of an array; not for texts and objects.
template <class Use>
void withElements(const zxArray* array, Use use) {
  const zxKind kind = zxKindOf(array);
  zx::withElementType(kind, [&]<class Element>(std::type_identity<Element>) {
    if constexpr (std::is_same_v<Element, zxComplex>) {
      use(zxReadComplexes(array));
    } else {
      use(static_cast<const Element*>(zxReadData(array, kind)));
    }
  });
}

/// The rows to print; none without elements, however many rows an array of no columns has.
std::size_t printedRows(const zxArray* array) {
  return zxCountOf(array) == 0 ? 0 : static_cast<std::size_t>(zxRowsOf(array));
}

using Row = std::vector<std::string>;

std::vector<Row> writtenRows(const zxArray* array) {
  std::vector<Row> rows(printedRows(array));
  const auto count = static_cast<std::size_t>(zxCountOf(array));
  withElements(array, [&](const auto* elements) {
    for (std::size_t index = 0; index < count; ++index)
      rows[index % rows.size()].push_back(written(elements[index]));
  });
  return rows;
}

std::string aligned(const std::vector<Row>& rows) {
  std::string text;
  std::vector<std::size_t> widths(rows.empty() ? 0 : rows.front().size());
  for (const Row& row : rows) {
    for (std::size_t column = 0; column < row.size(); ++column)
      widths[column] = std::max(widths[column], row[column].size());
  }
  for (const Row& row : rows) {
    text += "  ";
    for (std::size_t column = 0; column < row.size(); ++column)
      text += "  " + std::string(widths[column] - row[column].size(), ' ') + row[column];
    text += "\n";
  }
  return text;
}

json::array rowsInJson(const zxArray* array) {
  json::array rows(printedRows(array), json::array());
  const auto count = static_cast<std::size_t>(zxCountOf(array));
  withElements(array, [&](const auto* elements) {
    for (std::size_t index = 0; index < count; ++index)
      rows[index % rows.size()].as_array().push_back(inJson(elements[index]));
  });
  return rows;
}

}  // namespace

std::string printed(const NamedValues& values) {
  std::string text;
  for (const auto& [name, array] : values) {
    text += name + ": " + nameOf(zxKindOf(array)) + ", " + written(zxRowsOf(array)) + " by " +
            written(zxColumnsOf(array)) + "\n";
    text +=
        zxKindOf(array) == ZX_TEXT ? std::string("    ") + zxReadText(array) + "\n" : aligned(writtenRows(array));
  }
  return text;
}

std::string jsonOf(const NamedValues& values) {
  json::array list;
  for (const auto& [name, array] : values) {
    json::object object;
    object["name"] = name;
    object["kind"] = nameOf(zxKindOf(array));
    object["rows"] = zxRowsOf(array);
    object["columns"] = zxColumnsOf(array);
    if (zxKindOf(array) == ZX_TEXT) {
      object["value"] = zxReadText(array);
    } else if (zxKindOf(array) != ZX_OTHER) {
      object["values"] = rowsInJson(array);
    }
    list.push_back(std::move(object));
  }
  return json::serialize(list) + "\n";
}

}  // namespace tool
