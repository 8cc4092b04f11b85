#include "args/ZexArgs.hpp"
#include "cmd/messages/raise.hpp"
#include "compilers/ZexCompilers.hpp"
#include "options/ZexOpt.hpp"
#include "platform/folders.hpp"

namespace zex_cmd {

ZexOptList ZexCompilers::listSetupOpts(const std::string& kind) {
  ZexOptList result;
  const auto append = [&result](const ZexOptList& more) { result.insert(result.end(), more.begin(), more.end()); };
  for (const std::string& language : args().languages) {
    if (kind.empty() || kind == "installed") {
      const ZexOptList catalogue = findCatalogueOpts(language, {}, true);
      append(mergeOptLists(catalogue, findSelectedOpts(language, {}), kind));
    } else if (kind == "selected") {
      const ZexOptList selected = findSelectedOpts(language, {});
      ZexOptList chosen = selected;
      if (selected.empty()) {
        chosen = mergeOptLists(findCatalogueOpts(language, {}, true), selected, kind);
        std::erase_if(chosen, [](const auto& opt) { return !opt->selected; });
      }
      append(chosen);
    } else {
      append(findCatalogueOpts(language, {}, true));
    }
  }
  return result;
}

boost::shared_ptr<ZexOpt> ZexCompilers::findOptByShortName(const ustring& shortName) {
  const auto onlyInstalled = [](const ZexOptList& list) { return list.size() == 1 && list.front()->installed; };
  for (const std::string& language : args().languages) {
    const ZexOptList selected = findSelectedOpts(language, shortName);
    if (onlyInstalled(selected)) return selected.front();
    const ZexOptList catalogue = findCatalogueOpts(language, shortName, true);
    if (onlyInstalled(catalogue)) return catalogue.front();
  }
  raiseTyped(msg::SrcNotFound(shortName, shortName));
}

bool ZexCompilers::needsRewrite(const ZexOpt& opt) const {
  const ustring& optionsFile = args().optionsFile;
  if (!args().setupArgument.empty()) {
    const bool inPlace = isInPreferencesFolder(opt.attribute(u"ZEXOPT")) &&
                         (optionsFile.empty() || isInPreferencesFolder(optionsFile));
    return !(inPlace && opt.currentRelease);
  }
  return optionsFile.empty() && !opt.currentRelease;
}

}  // namespace zex_cmd
