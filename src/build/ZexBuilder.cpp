#include "build/ZexBuilder.hpp"

#include <optional>

#include "args/ZexArgs.hpp"
#include "build/ZexEnvironmentGuard.hpp"
#include "build/compiler_versions.hpp"
#include "build/loaded_product.hpp"
#include "build/option_details.hpp"
#include "build/shared_objects.hpp"
#include "build/user_libraries.hpp"
#include "cmd/messages/notices.hpp"
#include "cmd/messages/raise.hpp"
#include "cmd/messages/show.hpp"
#include "compilers/ZexCompilers.hpp"
#include "options/ZexOpt.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {

namespace {

/// The two ZBUILD clients get the opening notice and not the closing one.
bool wantsClosingNotice(const ZexArgs& args) {
  return !args.silent && args.client != "ZBUILD" && args.client != "ZBUILD_COM";
}

}  // namespace

ZexBuilder::ZexBuilder(const boost::shared_ptr<ZexArgs>& args, const boost::shared_ptr<ZexCompilers>& compilers)
    : args_(args), compilers_(compilers) {
  boost::shared_ptr<ZexOpt> option = compilers_->getSelectedOpt();
  if (compilers_->needsUpgrade(*option)) {
    option = inWords([&] { return compilers_->upgradeOpt(option); });
  }

  ZexVarResolver resolver(args_, compilers_);
  resolver.resolve(option);

  const ZexEnvironmentGuard environment(*option);
  resolveLibraries(*option, resolver, *args_);
  if (args_->verbose) printOptionDetails(*option);
  const std::optional<ustring> product = option->variable(u"EXE");
  if (product) releaseLoadedProduct(*product);

  if (!args_->silent) printMessage(msg::Building(option->attribute(u"NAME")));
  checkGccVersion(*option, args_->calledFromHost);
  checkMinGwVersion(*option, args_->calledFromHost);
  warnOfSharedObjects(*option, *args_);
  runCommands(option);
  if (wantsClosingNotice(*args_)) printMessage(msg::Complete());
  if (args_->calledFromHost && !args_->compileOnly) notifyPathManager(product.value_or(ustring()));
}

}  // namespace zex_cmd
