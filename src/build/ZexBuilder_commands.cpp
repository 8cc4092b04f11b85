#include <optional>

#include "args/ZexArgs.hpp"
#include "build/CommandClassifier.hpp"
#include "build/InterruptedProduct.hpp"
#include "build/ZexBuilder.hpp"
#include "build/ZexCommandResult.hpp"
#include "build/built_file.hpp"
#include "build/command_markers.hpp"
#include "build/response_file.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "options/ZexOpt.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

/// Printed by a compile of a block-diagram function that includes `tzwtypes` ahead of `zimstruc`.
constexpr char16_t headerOrderMark[] = u"tzwtypesbeforezimstrucdetected";

/// Part of the name of every API version source.
constexpr char16_t versionSourceMark[] = u"_zexapi_version.";

}  // namespace

void ZexBuilder::runCommands(const boost::shared_ptr<ZexOpt>& option) {
  const InterruptedProduct product(option->variable(u"EXE"));
  const CommandClassifier classifier(*option);
  for (const ustring& key : option->commandLinePaths()) {
    if (prepareCommand(option->requiredValue(key), option, classifier)) executeCommand();
  }
}

bool ZexBuilder::prepareCommand(const ustring& text, const boost::shared_ptr<ZexOpt>& option,
                                const CommandClassifier& classifier) {
  current_.command = trimmed(text);
  if (current_.command.empty()) return false;

  const CommandClass found = classifier.classifyCommand(current_.command);
  current_.kind = found.kind;
  current_.output = found.output;
  const bool isLink = current_.kind == ZexCommandKind::Link;
  if (args_->compileOnly && current_.kind != ZexCommandKind::Compile) return false;
  // Of objects alone nothing runs ahead of the first link, and everything after it does.
  if (args_->linkOnly && !isLink && !linkSeen_) return false;
  if (isLink) linkSeen_ = true;

  current_.calledFromHost = args_->calledFromHost;
  current_.option = option;
  return true;
}

void ZexBuilder::executeCommand() {
  if (args_->dryRun) {
    printCommand();
    return;
  }
  services::io::uout output;
  const ZexCommandResult result = runBuildCommand(output, current_, args_->tempDir);
  const bool wrongHeaderOrder = !result.succeeded && current_.kind == ZexCommandKind::Compile &&
                                result.errorText.find(headerOrderMark) != ustring::npos;
  if (wrongHeaderOrder) {
    retryHeaderOrder();
    return;
  }
  raiseCommandFailure(current_.command, result);
  if (!args_->zexCheck) return;
  const bool compilesVersion =
      current_.kind == ZexCommandKind::Compile && current_.command.find(versionSourceMark) != ustring::npos;
  const bool linksVersion = current_.kind == ZexCommandKind::Link && !current_.output.empty();
  if (compilesVersion) {
    versionCompile_ = current_;
  } else if (linksVersion && !versionCompile_.command.empty()) {
    checkBuiltFile();
  }
}

void ZexBuilder::checkBuiltFile() {
  const std::optional<ustring> found = inspectBuiltFile(current_.output, args_->verbose);
  if (!found) return;

  const ustring flag = versionFlagFor(versionCompile_.command, *found);
  logMessage(msg::RecompileVer(flag), true);
  versionCompile_.command += u" " + flag;
  services::io::uout output;
  // The new product is not inspected again.
  for (const ZexBuildCommand* command : {&versionCompile_, &current_}) {
    raiseCommandFailure(command->command, runBuildCommand(output, *command, args_->tempDir));
  }
}

void ZexBuilder::printCommand() const {
  services::io::uout output;
  output << current_.command + u"\n";
  if (!needsResponseFile(current_)) return;
  // The response file is really written, dry run or not.
  output << responseFileCommand(current_, args_->tempDir).command + u"\n";
}

void ZexBuilder::retryHeaderOrder() const {
  ZexBuildCommand retry = current_;
  retry.command += ustring(markersFor(*retry.option).defineSwitch) + u"ZX_COMPAT_32";
  logMessage(msg::SFunctionMsg(), true);
  services::io::uout output;
  raiseCommandFailure(retry.command, runBuildCommand(output, retry, args_->tempDir));
}

}  // namespace zex_cmd
