#include "args/assignments.hpp"

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "platform/paths.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

/// The pieces become commands behind all others; the count starts anew with each assignment.
void storePostlinkCommands(ZexArgs& args, const ustring& value) {
  int count = 0;
  for (const ustring& piece : splitTokens(value, u";")) {
    const ustring command = trimmed(piece);
    if (command.empty() || command == u"$POSTLINK_CMDS") continue;
    args.variables[u"CMDLINE999_" + fl::i18n::to_ustring(std::to_string(count))] = command;
    ++count;
  }
}

void useTempFolder(ZexArgs& args, const ustring& value) {
  if (value.empty()) return;
  try {
    requireUsablePath(value);
    args.tempDir = fl::filesystem::detail::make_native_form(value);
    if (!fl::filesystem::exists(args.tempDir)) fl::filesystem::create_directories(args.tempDir);
  } catch (const fl::filesystem::FsysExceptionBase&) {
    translateFilesystemError(value);
  }
}

/// A variable is extended only by a value that names it.
void storeVariable(ZexArgs& args, const ustring& name, const ustring& value) {
  const auto [entry, isNew] = args.variables.try_emplace(name, value);
  if (!isNew) entry->second = replacedAll(value, u"$" + name, entry->second);
}

}  // namespace

void takeAssignment(ZexArgs& args, const ustring& token, std::size_t equals) {
  const ustring name = token.substr(0, equals);
  const ustring value = token.substr(equals + 1);
  if (name == u"POSTLINK_CMDS") {
    storePostlinkCommands(args, value);
  } else if (name == u"TEMP") {
    // An ordinary variable as well.
    useTempFolder(args, withoutQuotes(value));
    storeVariable(args, name, withoutQuotes(value));
  } else {
    storeVariable(args, name, value);
  }
}

}  // namespace zex_cmd
