#include "vars/ZexVarResolver.hpp"

#include <algorithm>
#include <optional>

#include "args/ZexArgs.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

ZexVarResolver::ZexVarResolver(const boost::shared_ptr<ZexArgs>& args,
                               const boost::shared_ptr<ZexCompilers>& compilers)
    : args_(args),
      compilers_(compilers),
      table_{
          {"INCLUDE", "IncludeFlags", ""},
          {"DEFINES", "CompilerDefines", "CompilerDefineFormatter"},
          {"LIBPATH", "LinkerLibraries", "LinkerPathFormatter"},
          {"LIBRARIES", "LinkerLibraries", "LinkerLibrarySwitchFormatter"},
          {"EXLIBRARIES", "LinkerLibraries", ""},
      } {}

void ZexVarResolver::resolve(const boost::shared_ptr<ZexOpt>& opt) {
  opt->setVariable(u"TESSELROOT", fl::filesystem::get_install_path());
  opt->setVariable(u"ARCH", fl::i18n::to_ustring(args_->arch));
  if (!args_->setup && !args_->client.empty()) applyClientOverrides(*opt);
  deriveFileVariables(*opt);
  applyArgumentVariables(*opt);
  applyUserVariables(*opt);
  applyOptimizationVariables(*opt);
  opt->resolved = true;
  expandAllVariables(*opt);
  if (!args_->setup) keepObjectInRemoveCommands(*opt);
}

void ZexVarResolver::applyClientOverrides(ZexOpt& opt) const {
  // Only the document's side is folded: a client name in lower case matches nothing.
  const std::optional<ustring> element = opt.clientElement(fl::i18n::to_ustring(args_->client));
  if (!element) raiseTyped(msg::UnknownClient(args_->client));
  for (const ustring& path : opt.attributePaths(*element)) {
    ustring value = opt.requiredValue(path);
    const ustring name = shortName(path);
    const std::optional<ustring> old = opt.variable(name);
    if (old && value.find(u"$" + name) != ustring::npos) {
      value = replacedAll(value, u"$" + name, *old);
      opt.setValue(path, value);
    }
    opt.setVariable(name, value);
  }
}

void ZexVarResolver::keepObjectInRemoveCommands(ZexOpt& opt) const {
  if (args_->arch != "maci64" || !args_->debug) return;
  // With several sources this is a list, which occurs in no command: nothing changes then, deliberately.
  const ustring object = opt.variable(u"OBJ").value_or(ustring());
  if (object.empty()) return;
  std::vector<ustring> paths = opt.commandLinePaths();
  std::reverse(paths.begin(), paths.end());
  for (const ustring& path : paths) {
    ustring command = trimmed(opt.value(path).value_or(ustring()));
    if (command.size() < 4 || !command.starts_with(u"rm ")) continue;
    const std::size_t position = command.find(object);
    if (position == ustring::npos) continue;
    opt.setValue(path, command.erase(position, object.size()));
  }
}

}  // namespace zex_cmd
