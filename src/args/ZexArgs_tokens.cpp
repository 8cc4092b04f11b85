#include "args/ZexArgs.hpp"
#include "args/assignments.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "platform/letter_case.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

/// Help is answered before any parsing; what still comes here was spelt differently or stood in a response file.
bool isMisplacedHelp(const std::string& form) {
  return form == "-h" || form == "-help" || form == "-inline";
}

/// "@name" is a file of that very name only where there is no "name" to read tokens from.
bool namesFileWithAtSign(const ustring& token) {
  return !fl::filesystem::exists(token.substr(1)) && fl::filesystem::exists(token);
}

/// A response file may name others, also itself: nothing stops it then.
void takeResponseFile(ZexArgs& args, const ustring& token) {
  const std::vector<ustring> tokens = args.readResponseFile(token);
  if (!tokens.empty()) args.walkTokens(tokens);
}

void takeToken(ZexArgs& args, const std::vector<ustring>& tokens, std::size_t& index) {
  const ustring& token = tokens[index];
  const std::string form = caseFolded(token);
  if (form.empty()) return;
  if (isMisplacedHelp(form)) raiseTyped(msg::UnknownSwitch(token));
  if (form.front() == '@') {
    return namesFileWithAtSign(token) ? args.classifyFile(token) : takeResponseFile(args, token);
  }
  if (form.front() == '-' && form.size() > 1) return args.parseSwitch(tokens, index);

  const std::size_t equals = token.find(u'=');
  return equals == ustring::npos ? args.classifyFile(token) : takeAssignment(args, token, equals);
}

}  // namespace

void ZexArgs::parseArguments(const std::vector<ustring>& raw) {
  if (raw.empty()) raiseTyped(msg::minrhs());
  std::vector<ustring> tokens = rejoinQuoted(raw);
  for (ustring& token : tokens) {
    if (isQuoted(token)) token = trimmed(withoutQuotes(token));
  }
  walkTokens(tokens);
  finishParsing();
}

void ZexArgs::walkTokens(const std::vector<ustring>& tokens) {
  for (std::size_t index = 0; index < tokens.size(); ++index) {
    const ustring& token = tokens[index];
    try {
      takeToken(*this, tokens, index);
    } catch (const fl::filesystem::FsysExceptionBase&) {
      translateFilesystemError(token);
    }
  }
}

}  // namespace zex_cmd
