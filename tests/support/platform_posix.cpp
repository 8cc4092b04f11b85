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
    .quotedInCommands = u" ()&'|<>*?[]{}#~!\\\t",
    .refusesShellSigns = true,
};

std::optional<std::string> variable(const std::string& name) {
  const char* const value = std::getenv(name.c_str());
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

void setVariable(const std::string& name, const char* value) {
  static_cast<void>(value == nullptr ? unsetenv(name.c_str()) : setenv(name.c_str(), value, 1));
}

}  // namespace zex_test
