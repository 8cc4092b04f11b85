#include "compiler_records.hpp"

#include <algorithm>
#include <array>
#include <boost/json/src.hpp>

#include "fl/i18n/strings.hpp"

namespace tool {

namespace {

struct Column {
  const char* heading;
  const char16_t* key;
};

constexpr Column columns[] = {
    {"NAME", u"Name"},       {"LANGUAGE", u"Language"}, {"SHORT NAME", u"ShortName"},
    {"VERSION", u"Version"}, {"LOCATION", u"Location"}, {"OPTIONS", u"ZexOpt"},
};

using Row = std::array<std::string, std::size(columns)>;

Row headings() {
  Row row;
  std::transform(std::begin(columns), std::end(columns), row.begin(),
                 [](const Column& column) { return column.heading; });
  return row;
}

Row rowOf(const zex_cmd::CompilerRecord& record) {
  Row row;
  std::transform(std::begin(columns), std::end(columns), row.begin(), [&](const Column& column) {
    const auto entry = record.find(column.key);
    const bool present = entry != record.end() && !entry->second.empty();
    return present ? fl::i18n::to_string(entry->second) : std::string("-");
  });
  return row;
}

/// Characters of a UTF-8 text: what counts for the alignment.
std::size_t width(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

}  // namespace

std::string jsonOf(const std::vector<zex_cmd::CompilerRecord>& records) {
  boost::json::array list;
  for (const auto& record : records) {
    boost::json::object object;
    for (const auto& [key, value] : record) object[fl::i18n::to_string(key)] = fl::i18n::to_string(value);
    list.push_back(std::move(object));
  }
  return boost::json::serialize(list) + "\n";
}

std::string tableOf(const std::vector<zex_cmd::CompilerRecord>& records) {
  if (records.empty()) return "No compilers.\n";
  std::vector<Row> rows = {headings()};
  std::transform(records.begin(), records.end(), std::back_inserter(rows), rowOf);

  std::array<std::size_t, std::size(columns)> widths{};
  for (const Row& row : rows) {
    for (std::size_t index = 0; index < row.size(); ++index) {
      widths[index] = std::max(widths[index], width(row[index]));
    }
  }
  std::string table;
  for (const Row& row : rows) {
    for (std::size_t index = 0; index + 1 < row.size(); ++index) {
      table += row[index] + std::string(widths[index] - width(row[index]) + 2, ' ');
    }
    table += row.back() + "\n";
  }
  return table;
}

}  // namespace tool
