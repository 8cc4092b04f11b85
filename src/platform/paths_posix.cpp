#include <algorithm>

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
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

}  // namespace

ustring fullPath(const ustring& path) {
  const bool isAbsolute = path.starts_with(u'/');
  const ustring result = folded(isAbsolute ? path : fl::filesystem::get_current_path() + u'/' + path);
  if (result.size() >= bufferUnits || !isCarriedByShell(path) || !isCarriedByShell(result)) {
    raiseTyped(msg::Error(u"Invalid path " + path));
  }
  return result;
}

}  // namespace zex_cmd
