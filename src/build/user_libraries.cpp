#include "build/user_libraries.hpp"

#include <algorithm>
#include <optional>

#include "args/ZexArgs.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/architecture.hpp"
#include "platform/folders.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {

namespace {

std::vector<ustring> nonEmptyTokens(const ustring& text) {
  std::vector<ustring> tokens = splitTokens(text, u" ");
  std::erase_if(tokens, [](const ustring& token) { return token.empty(); });
  return tokens;
}

ustring libraryFileName(const ustring& candidate) {
  const bool switchForm = architectureName() != "glnxa64" && candidate.starts_with(u"-l");
  return switchForm ? candidate.substr(2) + u".lib" : candidate;
}

bool isInSearchPath(const ustring& fileName, const std::vector<ustring>& searchPath) {
  for (const ustring& folder : searchPath) {
    if (!folder.empty() && existsInFolder(fileName, folder)) return true;
  }
  return false;
}

/// The candidate whose file is there, as it stands in the switch text. Nothing where there are no candidates at
/// all.
std::optional<ustring> foundCandidate(const ustring& library, const ustring& switchText,
                                      const std::vector<ustring>& searchPath) {
  std::vector<ustring> tried;
  for (const ustring& candidate : nonEmptyTokens(switchText)) {
    tried.push_back(libraryFileName(candidate));
    if (isInSearchPath(tried.back(), searchPath)) return candidate;
  }
  if (tried.empty()) return std::nullopt;
  // The second tried name comes before the first on purpose.
  const ustring second = tried.size() > 1 ? tried[1] : ustring();
  raiseTyped(msg::LibNotFound(library, second, tried.front()));
}

void append(std::vector<ustring>& list, const std::vector<ustring>& more) {
  list.insert(list.end(), more.begin(), more.end());
}

bool takesLibraries(const ustring& variable) {
  return variable.starts_with(u"CMDLINE") || variable == u"LINKLIBS";
}

}  // namespace

void resolveLibraries(ZexOpt& option, const ZexVarResolver& resolver, const ZexArgs& args) {
  const std::vector<ustring> searchPath = librarySearchPath(option, args);
  if (searchPath.empty()) return;

  const std::vector<ustring> keys = option.attributePaths(u"config.vars");
  for (const ustring& library : nonEmptyTokens(args.libraries)) {
    const ustring switchText = resolver.formatArgument(option, library, "LinkerLibrarySwitchFormatter");
    const std::optional<ustring> found = foundCandidate(library, switchText, searchPath);
    if (!found) continue;
    for (const ustring& key : keys) {
      if (!takesLibraries(shortName(key))) continue;
      if (const auto value = option.value(key))
        option.setValue(key, replacedAll(*value, switchText, quoteInCommand(*found)));
    }
  }
}

std::vector<ustring> librarySearchPath(const ZexOpt& option, const ZexArgs& args) {
  const auto attribute = option.detail(u"LibrarySearchPath");
  if (!attribute || attribute->empty()) return {};

  std::vector<ustring> path = splitTokens(*attribute, u";");
  // By index, so that what a variable adds is visited too; a variable that names itself again adds nothing new.
  std::vector<ustring> visited;
  for (std::size_t index = 0; index < path.size(); ++index) {
    const ustring entry = path[index];
    if (entry.size() < 3 || !entry.starts_with(u"$$")) continue;
    if (std::find(visited.begin(), visited.end(), entry) != visited.end()) continue;
    visited.push_back(entry);
    const ustring value = fl::i18n::getenv(fl::i18n::to_string(entry.substr(2)));
    if (!value.empty()) append(path, splitTokens(value, u";"));
  }
  if (!args.libraryPaths.empty()) append(path, splitTokens(args.libraryPaths, u" "));
  path.push_back(currentFolder());
  return path;
}

}  // namespace zex_cmd
