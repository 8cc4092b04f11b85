#include <cstdlib>

#include "support/platform.hpp"

/// The one place where a leak checker is told of what the Ada route deliberately leaves to the host. The checker
/// looks for this function by its name.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:zex_cmd::runAdaRoute\n";
}

namespace zex_test {

const Platform platform = {
    .architecture = "glnxa64",
    .drive = "",
    .listSeparator = ":",
    .joinedToNone = "",
    .program = "",
    .quotedInCommands = u" ()&'|<>*?[]{}#~!\\\t",
    .closedFolder = "/proc/self",
    .refusesShellSigns = true,
};

std::string told(std::string text) {
  return text;
}

std::string toldMessage(std::string text) {
  return text;
}

std::string fromNative(std::string_view bytes) {
  return std::string(bytes);
}

std::optional<std::string> variable(const std::string& name) {
  const char* const value = std::getenv(name.c_str());
  if (value == nullptr) return std::nullopt;
  return value;
}

void setVariable(const std::string& name, const std::optional<std::string>& value) {
  if (value) {
    setenv(name.c_str(), value->c_str(), 1);
  } else {
    unsetenv(name.c_str());
  }
}

}  // namespace zex_test
