#include "args/ZexArgs.hpp"

#include <array>
#include <cstdlib>
#include <string_view>

#include "platform/architecture.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

namespace {

/// Asked once for a process: a later change of the variable is not seen. An empty value counts as set.
bool zexCheckByDefault() {
  static const bool check = std::getenv("TESSEL_ZEXCHECK_OFF") == nullptr;
  return check;
}

/// ".fortran" and ".cuda" are there so that a language's name can be looked up as if it were an extension.
std::vector<std::vector<std::string>> languagesAndExtensions() {
  return {
      {"C", ".c"},
      {"C++", ".cpp", ".cxx", ".cc", ".c++", ".mm"},
      {"FORTRAN", ".f", ".fortran", ".f90"},
      {"CUDA", ".cu", ".cuda"},
  };
}

struct OptionText {
  std::string_view name;
  ustring ZexArgs::*text;
};

constexpr std::array<OptionText, 5> optionTexts{{
    {"INCLUDE", &ZexArgs::includes},
    {"DEFINES", &ZexArgs::defines},
    {"LIBPATH", &ZexArgs::libraryPaths},
    {"LIBRARIES", &ZexArgs::libraries},
    {"EXLIBRARIES", &ZexArgs::exLibraries},
}};

ustring quotedList(const std::vector<ustring>& entries, char16_t separator) {
  ustring result;
  for (const ustring& entry : entries) {
    if (!result.empty()) result += separator;
    result += quoteAlways(entry);
  }
  return result;
}

}  // namespace

ZexArgs::ZexArgs()
    : arch(architectureName()), languageTable(languagesAndExtensions()), zexCheck(zexCheckByDefault()) {}

ustring ZexArgs::variableByName(const std::string& name) const {
  for (const OptionText& row : optionTexts) {
    if (row.name == name) return this->*row.text;
  }
  return {};
}

ustring ZexArgs::sourcesText() const {
  return quotedList(sources, u';');
}

ustring ZexArgs::objectsText() const {
  return quotedList(objects, u' ');
}

}  // namespace zex_cmd
