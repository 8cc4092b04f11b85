#include "values.hpp"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <type_traits>
#include <vector>

#include "program.hpp"
#include "texts/trimmed.hpp"
#include "zx/kinds.hpp"

namespace tool {

namespace {

[[noreturn]] void refuse(const std::string& argument, const std::string& why) {
  throw UsageError(
      "'" + argument + "' is no value: " + why +
      ". Write a number (3, -2.5e3, 1-2i), true or false, a matrix ([1 2; 3 4]), a text in quotes of its "
      "own (\"'abc'\"), or one of these as another kind (int8(3)).");
}

/// Rows of elements that are still texts.
struct Matrix {
  std::size_t rows = 0;
  std::size_t columns = 0;
  std::vector<std::string> elements;  ///< row after row
};

std::string_view trimmed(std::string_view text) {
  return host::trimmed(text, " \t\n");
}

/// Elements between blanks; one comma may stand between two of them.
std::vector<std::string> elementsOf(std::string_view row, const std::string& argument) {
  std::vector<std::string> elements;
  bool comma = false;
  for (row = trimmed(row); !row.empty(); row = trimmed(row)) {
    if (row.front() == ',') {
      if (comma || elements.empty()) refuse(argument, "an element is missing at a comma");
      comma = true;
      row.remove_prefix(1);
      continue;
    }
    const std::size_t end = std::min(row.find_first_of(" \t\n,"), row.size());
    elements.emplace_back(row.substr(0, end));
    row.remove_prefix(end);
    comma = false;
  }
  if (comma) refuse(argument, "an element is missing at a comma");
  return elements;
}

Matrix matrixOf(std::string_view text, const std::string& argument) {
  Matrix matrix;
  if (!text.starts_with('[')) return {1, 1, {std::string(text)}};
  if (!text.ends_with(']')) refuse(argument, "the ']' is missing");
  text = trimmed(text.substr(1, text.size() - 2));
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(';'), text.size());
    const std::vector<std::string> row = elementsOf(text.substr(0, end), argument);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (row.empty() || (matrix.rows > 0 && row.size() != matrix.columns))
      refuse(argument, "its rows are not equally long");
    matrix.columns = row.size();
    ++matrix.rows;
    matrix.elements.insert(matrix.elements.end(), row.begin(), row.end());
  }
  return matrix;
}

bool isTruth(const std::string& element) {
  return element == "true" || element == "false";
}

/// Takes a number off the front of a text.
template <class Number>
std::optional<Number> taken(std::string_view& text) {
  std::string_view rest = text;
  if (rest.starts_with('+') && rest.size() > 1 && rest[1] != '-') rest.remove_prefix(1);
  Number number{};
  auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
  if constexpr (std::is_floating_point_v<Number>) {
    // Too small or too large is a number nevertheless: it is rounded to 0 or to infinity.
    if (error == std::errc::result_out_of_range) {
      number = std::strtod(std::string(rest.data(), end).c_str(), nullptr);
      error = {};
    }
  }
  if (error != std::errc()) return std::nullopt;
  text = rest.substr(static_cast<std::size_t>(end - rest.data()));
  return number;
}

template <class Element>
std::optional<Element> elementOf(const std::string& text) {
  std::string_view rest = text;
  const std::optional<Element> value = taken<Element>(rest);
  return rest.empty() ? value : std::nullopt;
}

template <>
std::optional<zxComplex> elementOf(const std::string& text) {
  std::string_view rest = text;
  const std::optional<double> first = taken<double>(rest);
  if (!first) return std::nullopt;
  if (rest.empty()) return zxComplex{*first, 0};
  if (rest == "i") return zxComplex{0, *first};
  const std::optional<double> second =
      rest.starts_with('+') || rest.starts_with('-') ? taken<double>(rest) : std::nullopt;
  if (!second || rest != "i") return std::nullopt;
  return zxComplex{*first, *second};
}

template <>
std::optional<zx::Logical> elementOf(const std::string& text) {
  if (text == "true" || text == "1") return zx::Logical{1};
  if (text == "false" || text == "0") return zx::Logical{0};
  return std::nullopt;
}

template <class Element>
Element* elementsToFill(zxArray* array) {
  return static_cast<Element*>(zxEditData(array, zxKindOf(array)));
}

template <>
zxComplex* elementsToFill(zxArray* array) {
  return zxEditComplexes(array);
}

/// Of a kind with elements. All are read and put where they belong, column after column.
Value arrayOf(zxKind kind, const Matrix& matrix, const std::string& argument) {
  Value array(zxMake(kind, static_cast<zxIndex>(matrix.rows), static_cast<zxIndex>(matrix.columns)));
  zx::withElementType(kind, [&]<class Element>(std::type_identity<Element>) {
    auto* const to = elementsToFill<Element>(array.get());
    for (std::size_t index = 0; index < matrix.elements.size(); ++index) {
      const std::optional<Element> element = elementOf<Element>(matrix.elements[index]);
      if (!element) refuse(argument, "'" + matrix.elements[index] + "' cannot be read as " + nameOf(kind));
      to[index / matrix.columns + index % matrix.columns * matrix.rows] = *element;
    }
  });
  return array;
}

/// The kind that elements have by themselves.
zxKind naturalKind(const Matrix& matrix) {
  const auto& elements = matrix.elements;
  if (!elements.empty() && std::all_of(elements.begin(), elements.end(), isTruth)) return ZX_LOGICAL;
  const auto isComplex = [](const std::string& element) { return element.ends_with('i'); };
  return std::any_of(elements.begin(), elements.end(), isComplex) ? ZX_COMPLEX : ZX_REAL;
}

/// The text between quotes; a quote within is written twice.
Value textOf(std::string_view quoted, const std::string& argument) {
  const char quote = quoted.front();
  std::string text;
  std::string_view rest = quoted.substr(1);
  for (std::size_t end = rest.find(quote); end + 1 < rest.size(); end = rest.find(quote)) {
    if (end == std::string_view::npos || rest[end + 1] != quote) break;
    text += rest.substr(0, end + 1);
    rest.remove_prefix(end + 2);
  }
  if (rest.find(quote) + 1 != rest.size() || rest.empty()) refuse(argument, "its quotes do not match");
  return Value(zxCreateString((text + std::string(rest.substr(0, rest.size() - 1))).c_str()));
}

/// A kind's name with something in parentheses behind it.
std::optional<Value> converted(std::string_view text, const std::string& argument) {
  for (const zx::KindOfArray& named : zx::kinds) {
    const std::string begin = std::string(named.name) + "(";
    if (!text.starts_with(begin) || named.size == 0) continue;
    if (!text.ends_with(')')) refuse(argument, "the ')' is missing");
    text.remove_prefix(begin.size());
    text.remove_suffix(1);
    return arrayOf(named.kind, matrixOf(trimmed(text), argument), argument);
  }
  return std::nullopt;
}

}  // namespace

const char* nameOf(zxKind kind) {
  return std::find_if(std::begin(zx::kinds), std::end(zx::kinds),
                      [=](const auto& row) { return row.kind == kind; })
      ->name;
}

Value parsedValue(const std::string& argument) {
  const std::string_view text = trimmed(argument);
  if (text.starts_with('\'') || text.starts_with('"')) return textOf(text, argument);
  if (std::optional<Value> value = converted(text, argument)) return std::move(*value);
  const Matrix matrix = matrixOf(text, argument);
  return arrayOf(naturalKind(matrix), matrix, argument);
}

}  // namespace tool
