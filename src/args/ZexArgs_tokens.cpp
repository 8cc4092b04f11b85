#include <set>

#include "args/ZexArgs.hpp"
#include "args/assignments.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "host/Services.hpp"
#include "platform/letter_case.hpp"
#include "platform/paths.hpp"
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

/// Goes through a list of tokens and the response files that they name, each at its place. Such files may name
/// others to any depth, so the walk keeps the lists itself and does not call itself.
class TokenWalk {
 public:
  TokenWalk(ZexArgs& args, const std::vector<ustring>& tokens) : args_(args) { lists_.push_back({{}, tokens}); }

  void toEnd() {
    while (!lists_.empty()) {
      if (lists_.back().index < lists_.back().tokens.size()) {
        takeNext(lists_.back());
      } else {
        open_.erase(lists_.back().responseFile);
        lists_.pop_back();
      }
    }
  }

 private:
  struct List {
    ustring responseFile;  ///< the token that named it; empty for the outermost list
    std::vector<ustring> tokens;
    std::size_t index = 0;
  };

  void takeNext(List& list) {
    // A copy: entering a response file moves the lists.
    const ustring token = list.tokens[list.index];
    try {
      takeToken(list, token);
    } catch (const fl::filesystem::FsysExceptionBase&) {
      translateFilesystemError(token);
    }
  }

  void takeToken(List& list, const ustring& token) {
    const std::string form = caseFolded(token);
    if (isMisplacedHelp(form)) raiseTyped(msg::UnknownSwitch(token));
    if (form.starts_with('-') && form.size() > 1) {
      args_.parseSwitch(list.tokens, list.index);
      ++list.index;
      return;
    }
    ++list.index;
    if (form.empty()) return;
    if (form.front() == '@') {
      return namesFileWithAtSign(token) ? args_.classifyFile(token) : enter(token);
    }
    const std::size_t equals = token.find(u'=');
    return equals == ustring::npos ? args_.classifyFile(token) : takeAssignment(args_, token, equals);
  }

  void enter(const ustring& token) {
    // Two files that name each other twice take as good as forever.
    host::services().stopIfInterrupted();
    // A file that is open already would be read without an end.
    if (!open_.insert(token).second) {
      raiseTyped(withNote(msg::FileCannotOpen(fullPath(withoutQuotes(token.substr(1)))),
                          u"it names itself, directly or through others"));
    }
    lists_.push_back({token, args_.readResponseFile(token)});
  }

  ZexArgs& args_;
  std::vector<List> lists_;
  std::set<ustring> open_;
};

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
  TokenWalk(*this, tokens).toEnd();
}

}  // namespace zex_cmd
