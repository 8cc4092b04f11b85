#include "compiler_records.hpp"

#include <algorithm>
#include <array>
#include <boost/json/src.hpp>

#include "fl/i18n/strings.hpp"

namespace tool {

namespace {

struct Column {
  const char16_t* heading;
  const char16_t* key;
};

constexpr Column columns[] = {
    {u"NAME", u"Name"},       {u"LANGUAGE", u"Language"}, {u"SHORT NAME", u"ShortName"},
    {u"VERSION", u"Version"}, {u"LOCATION", u"Location"}, {u"OPTIONS", u"ZexOpt"},
};

using Row = std::array<fl::ustring, std::size(columns)>;

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
    return present ? entry->second : fl::ustring(u"-");
  });
  return row;
}

/// Characters: what counts for the alignment. Some take two units.
std::size_t width(const fl::ustring& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char16_t unit) { return (unit & 0xFC00) != 0xDC00; }));
}

}  // namespace

std::string jsonOf(const std::vector<zex_cmd::CompilerRecord>& records) {
  const fl::i18n::codecvt_ustring_to_string utf8("UTF-8");
  boost::json::array list;
  for (const auto& record : records) {
    boost::json::object object;
    for (const auto& [key, value] : record) object[utf8(key)] = utf8(value);
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
  fl::ustring table;
  for (const Row& row : rows) {
    for (std::size_t index = 0; index + 1 < row.size(); ++index) {
      table += row[index] + fl::ustring(widths[index] - width(row[index]) + 2, u' ');
    }
    table += row.back() + u"\n";
  }
  return fl::i18n::to_string(table);
}

}  // namespace tool
