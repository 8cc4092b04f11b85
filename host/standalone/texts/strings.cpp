#include "fl/i18n/strings.hpp"

#include <stdexcept>
#include <utility>

#include "standalone/texts/utf.hpp"

namespace fl::i18n {

namespace {

std::string knownEncoding(std::string name) {
  if (name.empty() || name == "UTF-8") return name;
  throw std::invalid_argument("unknown encoding: " + name);
}

}  // namespace

codecvt_string_to_ustring::codecvt_string_to_ustring(std::string encoding)
    : encoding_(knownEncoding(std::move(encoding))) {}

ustring codecvt_string_to_ustring::operator()(const std::string& text) const {
  return encoding_.empty() ? to_ustring(text) : host::standalone::fromUtf8(text);
}

codecvt_ustring_to_string::codecvt_ustring_to_string(std::string encoding)
    : encoding_(knownEncoding(std::move(encoding))) {}

std::string codecvt_ustring_to_string::operator()(const ustring& text) const {
  return encoding_.empty() ? to_string(text) : host::standalone::toUtf8(text);
}

ustring trim(const ustring& text, const ustring& characters) {
  const auto first = text.find_first_not_of(characters);
  if (first == ustring::npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

int lcctype::compare(const ustring& left, const ustring& right, comparison kind) {
  if (kind == case_sensitive) return left.compare(right);
  return transform(left, to_lower).compare(transform(right, to_lower));
}

}  // namespace fl::i18n
