#include "build/built_file.hpp"

#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "zexfile/Inspector.hpp"

namespace zex_cmd {

namespace {

ustring words(const zexfile::Issue& issue) {
  return issue.heading + u" " + issue.detail;
}

}  // namespace

std::optional<ustring> inspectBuiltFile(const ustring& output, bool verbose) {
  const zexfile::Inspector inspector(inWords([&] { return fl::filesystem::absolute(output); }), false);
  if (inspector.has_error()) raiseTyped(msg::Error(words(inspector.issues.front())));
  if (inspector.needs_upgrade() && verbose) {
    for (const zexfile::Issue& issue : inspector.issues) logVerbose(words(issue), true);
  }
  if (!inspector.needs_consistent_embedded_version()) return std::nullopt;
  return inspector.get_embedded_version_compiler_flag();
}

ustring versionFlagFor(const ustring& compileCommand, ustring flag) {
  const bool oldHandles = compileCommand.find(u"DZEX_DOUBLE_HANDLE") != ustring::npos;
  if (oldHandles && flag.find(u"DZX_COMPAT_") == ustring::npos) flag = u"-DZX_COMPAT_64";

  const std::size_t define = compileCommand.find(u"DUSE_ZEX_CMD");
  const bool switchIsKnown = define != ustring::npos && define > 0;
  if (switchIsKnown && !flag.empty()) flag.front() = compileCommand[define - 1];
  return flag;
}

}  // namespace zex_cmd
