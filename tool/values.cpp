#include "values.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <type_traits>
#include <vector>

#include "program.hpp"

namespace tool {

namespace {

struct NamedKind {
  const char* name;
  zxKind kind;
};

constexpr NamedKind kinds[] = {
    {"real", ZX_REAL},     {"complex", ZX_COMPLEX}, {"int8", ZX_INT8},       {"int16", ZX_INT16},
    {"int32", ZX_INT32},   {"int64", ZX_INT64},     {"uint8", ZX_UINT8},     {"uint16", ZX_UINT16},
    {"uint32", ZX_UINT32}, {"uint64", ZX_UINT64},   {"logical", ZX_LOGICAL}, {"text", ZX_TEXT},
    {"object", ZX_OTHER},
};

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

bool isBlank(char character) {
  return character == ' ' || character == '\t' || character == '\n';
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
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

template <class Number>
std::optional<Number> number(const std::string& element) {
  std::string_view rest = element;
  const std::optional<Number> value = taken<Number>(rest);
  return rest.empty() ? value : std::nullopt;
}

std::optional<zxComplex> complexNumber(const std::string& element) {
  std::string_view rest = element;
  const std::optional<double> first = taken<double>(rest);
  if (!first) return std::nullopt;
  if (rest.empty()) return zxComplex{*first, 0};
  if (rest == "i") return zxComplex{0, *first};
  const std::optional<double> second =
      rest.starts_with('+') || rest.starts_with('-') ? taken<double>(rest) : std::nullopt;
  if (!second || rest != "i") return std::nullopt;
  return zxComplex{*first, *second};
}

std::optional<unsigned char> truth(const std::string& element) {
  if (element == "true" || element == "1") return static_cast<unsigned char>(1);
  if (element == "false" || element == "0") return static_cast<unsigned char>(0);
  return std::nullopt;
}

/// Reads all elements and puts them where they belong, column after column.
template <class Element>
void fill(Element* to, const Matrix& matrix, const std::string& argument,
          std::optional<Element> (*read)(const std::string&), zxKind kind) {
  for (std::size_t index = 0; index < matrix.elements.size(); ++index) {
    const std::optional<Element> element = read(matrix.elements[index]);
    if (!element) refuse(argument, "'" + matrix.elements[index] + "' cannot be read as " + nameOf(kind));
    to[index / matrix.columns + index % matrix.columns * matrix.rows] = *element;
  }
}

template <class Element>
void fillData(zxArray* array, const Matrix& matrix, const std::string& argument) {
  const zxKind kind = zxKindOf(array);
  fill(static_cast<Element*>(zxEditData(array, kind)), matrix, argument, number<Element>, kind);
}

Value arrayOf(zxKind kind, const Matrix& matrix, const std::string& argument) {
  Value array(zxMake(kind, static_cast<zxIndex>(matrix.rows), static_cast<zxIndex>(matrix.columns)));
  switch (kind) {
    case ZX_REAL:
      fillData<double>(array.get(), matrix, argument);
      break;
    case ZX_INT8:
      fillData<std::int8_t>(array.get(), matrix, argument);
      break;
    case ZX_INT16:
      fillData<std::int16_t>(array.get(), matrix, argument);
      break;
    case ZX_INT32:
      fillData<std::int32_t>(array.get(), matrix, argument);
      break;
    case ZX_INT64:
      fillData<std::int64_t>(array.get(), matrix, argument);
      break;
    case ZX_UINT8:
      fillData<std::uint8_t>(array.get(), matrix, argument);
      break;
    case ZX_UINT16:
      fillData<std::uint16_t>(array.get(), matrix, argument);
      break;
    case ZX_UINT32:
      fillData<std::uint32_t>(array.get(), matrix, argument);
      break;
    case ZX_UINT64:
      fillData<std::uint64_t>(array.get(), matrix, argument);
      break;
    case ZX_COMPLEX:
      fill(zxEditComplexes(array.get()), matrix, argument, complexNumber, kind);
      break;
    case ZX_LOGICAL:
      fill(static_cast<unsigned char*>(zxEditData(array.get(), kind)), matrix, argument, truth, kind);
      break;
    case ZX_TEXT:
    case ZX_OTHER:
      break;  // no matrix is read as one of these
  }
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
  for (const NamedKind& named : kinds) {
    const std::string begin = std::string(named.name) + "(";
    if (!text.starts_with(begin) || named.kind == ZX_TEXT || named.kind == ZX_OTHER) continue;
    if (!text.ends_with(')')) refuse(argument, "the ')' is missing");
    text.remove_prefix(begin.size());
    text.remove_suffix(1);
    return arrayOf(named.kind, matrixOf(trimmed(text), argument), argument);
  }
  return std::nullopt;
}

}  // namespace

const char* nameOf(zxKind kind) {
  return std::find_if(std::begin(kinds), std::end(kinds), [=](const NamedKind& row) { return row.kind == kind; })
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
