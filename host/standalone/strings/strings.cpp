#include "fl/i18n/strings.hpp"

#include <stdexcept>
#include <utility>

#include "texts/trimmed.hpp"
#include "texts/utf.hpp"

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
  return encoding_.empty() ? to_ustring(text) : host::fromUtf8(text);
}

codecvt_ustring_to_string::codecvt_ustring_to_string(std::string encoding)
    : encoding_(knownEncoding(std::move(encoding))) {}

std::string codecvt_ustring_to_string::operator()(const ustring& text) const {
  return encoding_.empty() ? to_string(text) : host::toUtf8(text);
}

ustring trim(const ustring& text, const ustring& characters) {
  return ustring(host::trimmed(ustring_view(text), characters));
}

int lcctype::compare(const ustring& left, const ustring& right, comparison kind) {
  if (kind == case_sensitive) return left.compare(right);
  return transform(left, to_lower).compare(transform(right, to_lower));
}

}  // namespace fl::i18n
