#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>

#include "environment.hpp"
#include "host/temporary_folders.hpp"

namespace tool {

namespace {

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

void setVariable(const char* name, const std::string& value) {
  if (setenv(name, value.c_str(), 1) != 0)
    throw std::system_error(errno, std::generic_category(), std::string("cannot set ") + name);
}

/// The folder that the library would take, in its own order.
std::string temporaryFolder() {
  for (const char* name : host::temporaryFolderVariables) {
    std::string value = variable(name);
    if (!value.empty()) return value;
  }
  return {};
}

/// A command names the response file below the folder, and without quotes: a blank would cut the name in two, and
/// a character that the shell acts upon would change the command.
bool fitForCommands(const std::string& folder) {
  return folder.find_first_of(" ()&$`\"'\\;|<>*?[]{}#~!\n\t") == std::string::npos;
}

}  // namespace

void prepareEnvironment() {
  // A file that may not grow is a failure of writing like others, with words; tools have the default action.
  std::signal(SIGXFSZ, SIG_IGN);

  const std::string temporary = temporaryFolder();
  if (temporary.empty() || !fitForCommands(temporary)) setVariable("TMPDIR", P_tmpdir);

  std::string preferences = variable("TESSEL_PREFDIR");
  const std::string former = preferences;
  while (preferences.size() > 1 && preferences.back() == '/') preferences.pop_back();
  if (preferences != former) setVariable("TESSEL_PREFDIR", preferences);
}

}  // namespace tool
