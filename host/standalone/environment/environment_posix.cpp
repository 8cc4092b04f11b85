#include <cstdlib>

#include "fl/i18n/environment.hpp"
#include "texts/utf.hpp"

namespace fl::i18n {

ustring getenv(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  return value == nullptr ? ustring() : host::fromBytes(value);
}

bool setenv(const std::string& name, const ustring& value) {
  // The system would take what stands ahead of the zero and call it success.
  if (name.find('\0') != std::string::npos || value.find(u'\0') != ustring::npos) return false;
  return ::setenv(name.c_str(), host::toBytes(value).c_str(), 1) == 0;
}

}  // namespace fl::i18n
