#include "standalone/messages/locale_name.hpp"

#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"

namespace host::standalone {

namespace {

/// In the order in which they rule each other out.
constexpr const char* variables[] = {"TESSEL_LOCALE", "LC_ALL", "LC_MESSAGES", "LANG"};

std::string firstSet() {
  for (const char* variable : variables) {
    if (std::string value = fl::i18n::to_string(fl::i18n::getenv(variable)); !value.empty()) return value;
  }
  return {};
}

}  // namespace

std::string localeOfEnvironment() {
  const std::string value = firstSet();
  const std::string name = value.substr(0, value.find_first_of(".@"));
  return name.empty() || name == "C" || name == "POSIX" ? "en" : name;
}

}  // namespace host::standalone
