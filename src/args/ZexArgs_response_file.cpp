#include <algorithm>
#include <iterator>

#include "args/ZexArgs.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/streams.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/paths.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

/// A path with a replaced byte in it would be another one: with half a character, it is one that is refused.
ustring decoded(const std::string& line) {
  ustring text = fl::i18n::codecvt_string_to_ustring()(line);
  constexpr char16_t halfCharacter = 0xDCFF;
  if (fl::i18n::codecvt_ustring_to_string()(text) != line)
    std::replace(text.begin(), text.end(), u'\uFFFD', halfCharacter);
  return text;
}

/// Tokens do not span lines, and there are no comments.
std::vector<ustring> tokensOfFile(const ustring& path) {
  // A missing path has the status of no regular file.
  if (!fl::filesystem::is_regular(fl::filesystem::status(path))) raiseTyped(msg::FileCannotOpen(path));
  fl::filesystem::basic_ifstream stream(path);
  if (!stream.is_open()) raiseTyped(msg::FileCannotOpen(path));

  std::vector<ustring> result;
  for (std::string line; std::getline(stream, line);) {
    // Files that were written on another system end their lines with one.
    if (line.ends_with('\r')) line.pop_back();
    std::vector<ustring> pieces = splitTokens(decoded(line), u" ");
    std::move(pieces.begin(), pieces.end(), std::back_inserter(result));
  }
  return result;
}

}  // namespace

std::vector<ustring> ZexArgs::readResponseFile(const ustring& token) const {
  const ustring name = token.substr(1);
  try {
    return tokensOfFile(fullPath(withoutQuotes(name)));
  } catch (const fl::filesystem::FsysExceptionBase&) {
    translateFilesystemError(name);
  }
}

}  // namespace zex_cmd
