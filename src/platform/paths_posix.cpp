#include <algorithm>

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/paths.hpp"
#include "platform/shell_conventions.hpp"

namespace zex_cmd {

namespace {

/// Units of the buffer that a full path must fit into together with its end mark.
constexpr std::size_t bufferUnits = 512;

void dropLastFolder(ustring& folded) {
  if (!folded.empty()) folded.erase(folded.rfind(u'/'));
}

/// Folds ".", ".." and doubled separators by the text alone, so links stay what they are.
ustring folded(fl::ustring_view absolute) {
  ustring result;
  while (!absolute.empty()) {
    const fl::ustring_view component = absolute.substr(0, absolute.find(u'/'));
    absolute.remove_prefix(std::min(component.size() + 1, absolute.size()));
    if (component.empty() || component == u".") continue;
    if (component == u"..") {
      dropLastFolder(result);
    } else {
      result.append(u"/").append(component);
    }
  }
  return result.empty() ? u"/" : result;
}

/// The reason why a path that looks good by itself is none may lie in the folder that it starts from.
ustring reasonOf(const ustring& path, const ustring& result) {
  const bool tooLong = result.size() >= bufferUnits;
  const bool ofFolder = !path.starts_with(u'/') && path.size() < bufferUnits && isCarriedByShell(path);
  const ustring what =
      ofFolder ? u"the current folder '" + fl::filesystem::get_current_path() + u"'" : ustring(u"it");
  return what + (tooLong ? u" is too long: with the name behind it, a path has 511 characters at most"
                         : u" holds a character that no command can carry: one of $ ` \" ; or a line feed");
}

}  // namespace

bool isCarried(const ustring& path) {
  return fl::i18n::to_ustring(fl::i18n::to_string(path)) == path;
}

ustring fullPath(const ustring& path) {
  // A name that cannot be told to a tool would reach it as another one.
  if (!isCarried(path)) raiseTyped(withNote(msg::FileNameConversionFailed(), path));
  const bool isAbsolute = path.starts_with(u'/');
  const ustring result = folded(isAbsolute ? path : fl::filesystem::get_current_path() + u'/' + path);
  if (result.size() >= bufferUnits || !isCarriedByShell(path) || !isCarriedByShell(result)) {
    raiseTyped(withNote(msg::Error(u"Invalid path " + path), reasonOf(path, result)));
  }
  return result;
}

}  // namespace zex_cmd
