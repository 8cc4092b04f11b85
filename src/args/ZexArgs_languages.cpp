#include <algorithm>
#include <array>
#include <optional>

#include "args/ZexArgs.hpp"
#include "args/known_names.hpp"
#include "cmd/messages/raise.hpp"
#include "platform/contains.hpp"
#include "platform/letter_case.hpp"

namespace zex_cmd {

namespace {

struct MixingRule {
  std::string_view held;
  std::string_view incoming;
  bool replaces;  ///< the incoming language takes the place of the one held; else it is absorbed
};

/// C, C++, CUDA: the greater absorbs the lesser. FORTRAN mixes with nothing here.
constexpr std::array<MixingRule, 6> mixingRules{{
    {"C++", "C", false},
    {"C", "C++", true},
    {"CUDA", "C", false},
    {"CUDA", "C++", false},
    {"C", "CUDA", true},
    {"C++", "CUDA", true},
}};

std::optional<std::string> languageOf(const std::vector<std::vector<std::string>>& table,
                                      const std::string& extension) {
  for (const std::vector<std::string>& row : table) {
    if (std::find(row.begin() + 1, row.end(), extension) != row.end()) return row.front();
  }
  return std::nullopt;
}

}  // namespace

std::string ZexArgs::languageOfExtension(const std::string& extension) const {
  const auto language = languageOf(languageTable, lowered(extension));
  if (!language) raiseTyped(msg::UnknownExt(extension));
  return *language;
}

std::string ZexArgs::languageFromName(const std::string& word) const {
  const auto language = languageOf(languageTable, lowered("." + word));
  if (!language) raiseTyped(msg::UnknownLanguage(word));
  return *language;
}

void ZexArgs::takeLanguageOf(const std::string& extension) {
  if (!languages.empty()) return mergeLanguage(languages, extension);
  languages.push_back(languageOfExtension(extension));
}

void ZexArgs::mergeLanguage(std::vector<std::string>& list, const std::string& extension) const {
  const std::string language = languageOfExtension(extension);
  if (contains(list, language)) return;
  for (const MixingRule& rule : mixingRules) {
    const auto held = std::find(list.begin(), list.end(), rule.held);
    if (rule.incoming != language || held == list.end()) continue;
    if (rule.replaces) *held = language;
    return;
  }
  raiseTyped(msg::MixLang(list.front(), language));
}

}  // namespace zex_cmd
