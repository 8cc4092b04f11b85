#include "texts/utf.hpp"

#include <boost/locale/utf.hpp>
#include <iterator>
#include <utility>

namespace host {

namespace utf = boost::locale::utf;

namespace {

constexpr utf::code_point replacement = 0xFFFD;

/// The text, and whether nothing in it had to be replaced. What is broken becomes what `standIn` gives for it.
template <class To, class From, class StandIn>
std::pair<std::basic_string<To>, bool> convert(std::basic_string_view<From> text, StandIn standIn) {
  std::basic_string<To> result;
  result.reserve(text.size());
  bool exact = true;
  for (auto at = text.begin(); at != text.end();) {
    const auto start = at;
    utf::code_point point = utf::utf_traits<From>::decode(at, text.end());
    if (point == utf::illegal || point == utf::incomplete) {
      exact = false;
      // The decoder may have taken a sound character along with a broken one.
      at = std::next(start);
      if (const std::optional<To> unit = standIn(*start)) {
        result += *unit;
        continue;
      }
      point = replacement;
    }
    utf::utf_traits<To>::encode(point, std::back_inserter(result));
  }
  return {std::move(result), exact};
}

template <class To, class From>
std::pair<std::basic_string<To>, bool> convert(std::basic_string_view<From> text) {
  return convert<To>(text, [](From) { return std::optional<To>(); });
}

/// The half of a pair of units that stands for a byte.
constexpr char16_t firstHalf = 0xDC80, lastHalf = 0xDCFF;

template <class Text>
std::optional<Text> ifExact(std::pair<Text, bool> converted) {
  if (!converted.second) return std::nullopt;
  return std::move(converted.first);
}

}  // namespace

std::string toUtf8(fl::ustring_view text) {
  return convert<char>(text).first;
}

fl::ustring fromUtf8(std::string_view text) {
  return convert<char16_t>(text).first;
}

fl::ustring fromBytes(std::string_view bytes) {
  const auto half = [](char byte) {
    return std::optional(static_cast<char16_t>(firstHalf + (static_cast<unsigned char>(byte) & 0x7FU)));
  };
  return convert<char16_t>(bytes, half).first;
}

std::string toBytes(fl::ustring_view text) {
  const auto byte = [](char16_t unit) {
    return unit >= firstHalf && unit <= lastHalf ? std::optional(static_cast<char>(unit & 0xFFU)) : std::nullopt;
  };
  return convert<char>(text, byte).first;
}

std::optional<std::string> toUtf8Exactly(fl::ustring_view text) {
  return ifExact(convert<char>(text));
}

std::optional<fl::ustring> fromUtf8Exactly(std::string_view text) {
  return ifExact(convert<char16_t>(text));
}

}  // namespace host
