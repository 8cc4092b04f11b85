#include "environment.hpp"

#include <stdlib.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace tool {

namespace {

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

/// The folder that the library would take, in its own order.
std::string temporaryFolder() {
  for (const char* name : {"TMPDIR", "TMP", "TEMP"}) {
    std::string value = variable(name);
    if (!value.empty()) return value;
  }
  return {};
}

/// Commands name the folder, unquoted where it holds no blank, so a character that the shell acts upon would
/// change them.
bool safeInShell(const std::string& folder) {
  return folder.find_first_of("$`\"'\\;|<>*?[]{}#~!\n\t") == std::string::npos;
}

}  // namespace

void prepareEnvironment() {
  const std::string temporary = temporaryFolder();
  if (temporary.empty() || !safeInShell(temporary)) setenv("TMPDIR", P_tmpdir, 1);

  std::string preferences = variable("TESSEL_PREFDIR");
  const std::string former = preferences;
  while (preferences.size() > 1 && preferences.back() == '/') preferences.pop_back();
  if (preferences != former) setenv("TESSEL_PREFDIR", preferences.c_str(), 1);
}

}  // namespace tool
