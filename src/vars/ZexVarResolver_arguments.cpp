#include "args/ZexArgs.hpp"
#include "cmd/messages/raise.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"
#include "vars/ZexVarResolver.hpp"
#include "vars/formatters.hpp"

namespace zex_cmd {

namespace {

/// True if `env` has an attribute of that name. It takes the text then, and no variable is set.
bool applyToEnvironmentBlock(ZexOpt& opt, const ustring& name, ustring text) {
  bool matched = false;
  for (const ustring& path : opt.attributePaths(u"config.env")) {
    if (shortName(path) != name) continue;
    text = replacedAll(text, u"$" + name, opt.value(path).value_or(ustring()));
    opt.setValue(path, text);
    matched = true;
  }
  return matched;
}

/// Text of the variable that a "Details" attribute names. An empty attribute ends in the string library's
/// position error: deliberate, a document has to name a variable.
ustring detailVariableValue(const ZexOpt& opt, const std::string& attribute) {
  const ustring path = detailPath(fl::i18n::to_ustring(attribute));
  const ustring reference = opt.requiredValue(path);
  if (!reference.empty() && !reference.starts_with(u'$')) {
    raiseTyped(msg::ErrXMLAttr(path, opt.attribute(u"ZEXOPT")));
  }
  return opt.variable(reference.substr(1)).value_or(ustring());
}

ustring flagsForMode(const ZexOpt& opt, const ZexArgs& args, const std::string& debugAttribute,
                     const std::string& optimizeAttribute) {
  if (args.debug) return detailVariableValue(opt, debugAttribute);
  if (args.optimize) return detailVariableValue(opt, optimizeAttribute);
  return {};
}

}  // namespace

ustring ZexVarResolver::formatArgument(const ZexOpt& opt, const ustring& part,
                                       const std::string& formatterAttribute) const {
  // The plain rule would yield a command that the shell breaks.
  if (formatterAttribute.empty()) return quoteInCommand(part);
  // A define brings signs along that are meant for the shell; folders and libraries are names, as those above.
  const bool isName = formatterAttribute != "CompilerDefineFormatter";
  return applyFormatters(part, opt.requiredValue(detailPath(fl::i18n::to_ustring(formatterAttribute))),
                         isName ? quoteInCommand : quoteWhenNeeded);
}

void ZexVarResolver::applyArgumentVariables(ZexOpt& opt) const {
  for (const ArgumentVariableRow& row : table_) {
    const ustring reference = opt.requiredValue(detailPath(fl::i18n::to_ustring(row.targetAttribute)));
    if (reference.size() < 2) continue;
    // The first character is a dollar sign by custom, and not checked.
    const ustring target = reference.substr(1);
    const ustring old = opt.variable(target).value_or(ustring());
    const ustring arguments = args_->variableByName(row.argumentKey);
    if (arguments.empty()) continue;
    ustring accumulated;
    for (const ustring& part : splitTokens(arguments, u" ")) {
      if (!part.empty()) accumulated += formatArgument(opt, part, row.formatterAttribute) + u" ";
    }
    opt.setVariable(target, accumulated.empty() ? old : accumulated + u" " + old);
  }
}

void ZexVarResolver::applyUserVariables(ZexOpt& opt) const {
  for (const auto& [name, value] : args_->variables) {
    const ustring text = withoutQuotes(value);
    if (applyToEnvironmentBlock(opt, name, text)) continue;
    const ustring old = opt.variable(name).value_or(ustring());
    opt.setVariable(name, replacedAll(text, u"$" + name, old));
  }
}

void ZexVarResolver::applyOptimizationVariables(ZexOpt& opt) const {
  opt.setVariable(u"OPTIM", flagsForMode(opt, *args_, "DebugFlags", "OptimizationFlags"));
  opt.setVariable(u"LINKOPTIM", flagsForMode(opt, *args_, "LinkerDebugFlags", "LinkerOptimizationFlags"));
}

}  // namespace zex_cmd
