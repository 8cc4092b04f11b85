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

/// Tokens do not span lines, and there are no comments.
std::vector<ustring> tokensOfFile(const ustring& path) {
  // A missing path has the status of no regular file.
  if (!fl::filesystem::is_regular(fl::filesystem::status(path))) raiseTyped(msg::FileCannotOpen(path));
  fl::filesystem::basic_ifstream stream(path);
  if (!stream.is_open()) raiseTyped(msg::FileCannotOpen(path));

  const fl::i18n::codecvt_string_to_ustring decode;
  std::vector<ustring> result;
  for (std::string line; std::getline(stream, line);) {
    // Files that were written on another system end their lines with one.
    if (line.ends_with('\r')) line.pop_back();
    std::vector<ustring> pieces = splitTokens(decode(line), u" ");
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
