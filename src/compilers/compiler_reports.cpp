#include "compilers/compiler_reports.hpp"

#include "args/ZexArgs.hpp"
#include "cmd/messages/notices.hpp"
#include "cmd/messages/show.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/quoting.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

namespace {

/// The switch that repeats the client of the command, with both blanks; empty for a plain extension.
std::string clientSwitchText(const ZexArgs& args) {
  return args.client.empty() ? std::string() : " -client " + args.client;
}

/// The first language stands in every line, whatever the document's own is.
std::string firstLanguage(const ZexArgs& args) {
  return args.languages.empty() ? std::string() : args.languages.front();
}

}  // namespace

ustring clientOrZex(const ZexArgs& args) {
  return args.client.empty() ? ustring(u"ZEX") : fl::i18n::to_ustring(args.client);
}

void printConfigured(const ZexOpt& chosen, const ZexArgs& args) {
  const ustring client = clientOrZex(args);
  const ustring name = chosen.attribute(u"NAME");
  const ustring language = chosen.upperLanguage();
  printMessage(utPrintfIsHot() ? msg::ConfiguredToUse_bold(client, name, language)
                               : msg::ConfiguredToUse(client, name, language));
  if (!args.client.empty()) return;
  printMessage(utPrintfIsHot() ? msg::LargeArrayDimsSetupWarn_link() : msg::LargeArrayDimsSetupWarn());
}

void printClosingHint(const ZexArgs& args) {
  const std::string client = clientSwitchText(args);
  services::io::uout() << u"\n";
  printMessage(utPrintfIsHot() ? msg::NoLangSelected_link(client, client, client, client)
                               : msg::NoLangSelected(client, client));
}

Alternatives::Alternatives(const ZexArgs& args) : args_(args), hot_(utPrintfIsHot()) {}

void Alternatives::add(const ZexOpt& opt) {
  const ustring name = opt.attribute(u"NAME");
  const ustring path = opt.attribute(u"ZEXOPT");
  const ustring quoted = args_.calledFromHost ? quoteForPosix(path) : quoteWhenNeeded(path);
  const ustring command =
      u"zex -setup:" + quoted + u" " + fl::i18n::to_ustring(firstLanguage(args_) + clientSwitchText(args_));
  if (hot_) {
    lines_ += u"<a href=\"tessel:" + command + u"\">" + name + u"</a> ";
  } else {
    lines_ += u"For " + name + u": ";
  }
  lines_ += u" " + command + u"\n";
}

void Alternatives::print() const {
  services::io::uout() << u"\n";
  const std::string language = firstLanguage(args_);
  printMessage(hot_ ? msg::MultiCompilers_link(language) : msg::MultiCompilers(language));
  services::io::uout() << lines_;
}

}  // namespace zex_cmd
