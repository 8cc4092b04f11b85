#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "build/ZexBuildCommand.hpp"

namespace zex_cmd {

struct CommandMarkers;

/// What a command is, and the file that it must leave behind.
struct CommandClass {
  ZexCommandKind kind = ZexCommandKind::Other;
  ustring output;
};

/// Tells what the commands of one resolved document are. Made once for all of them: a document of 10,000 sources
/// has as many objects to look up.
class CommandClassifier {
 public:
  explicit CommandClassifier(const ZexOpt& option);
  CommandClassifier(const CommandClassifier&) = delete;
  CommandClassifier& operator=(const CommandClassifier&) = delete;

  CommandClass classifyCommand(const ustring& text) const;

 private:
  ustring objectAt(std::u16string_view rest) const;
  ustring productAt(std::u16string_view rest) const;

  const CommandMarkers& markers_;
  std::vector<ustring> objects_;                                     ///< entries of OBJ
  std::unordered_map<std::u16string_view, std::size_t> firstIndex_;  ///< from an entry to where it first stands
  std::set<std::size_t> lengths_;                                    ///< lengths that occur among the entries
  std::optional<ustring> product_;                                   ///< EXE
};

}  // namespace zex_cmd
