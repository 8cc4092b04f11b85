#include <algorithm>

#include "args/ZexArgs.hpp"
#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "cmd/messages/show.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "cmd/messages/warnings.hpp"
#include "compilers/ZexCompilers.hpp"
#include "compilers/ZexSelectedOptsPerTVM.hpp"
#include "compilers/opt_lists.hpp"
#include "options/ZexOpt.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

namespace {

/// A PRIORITY at or above this text never beats another.
constexpr char16_t priorityCeiling[] = u"zzzzzzzzz";

/// Marks the installed catalogue document of least PRIORITY as `selected`: the first in list order among equals,
/// and the first of all if none lies below the ceiling.
void selectByPriority(const ZexOptList& catalogue) {
  ZexOptList installed = catalogue;
  keepInstalled(installed);
  if (installed.empty()) return;

  const boost::shared_ptr<ZexOpt>* best = &installed.front();
  ustring lowest = priorityCeiling;
  for (const auto& opt : installed) {
    const ustring priority = opt->attribute(u"PRIORITY");
    if (priority >= lowest) continue;
    lowest = priority;
    best = &opt;
  }
  (*best)->selected = true;
}

}  // namespace

bool allLanguagesCOrCpp(const std::vector<std::string>& languages) {
  return !languages.empty() && std::all_of(languages.begin(), languages.end(), [](const std::string& language) {
    return language == "C" || language == "C++";
  });
}

void raiseNoCompiler(bool cOrCpp) {
  const std::string& trace = ZexConfigPerTVM::current().locationTrace;
  if (!trace.empty()) emitWarning(msg::Warn(trace));
  const bool hot = utPrintfIsHot();
  // Despite their names the "_Win64" texts serve C and C++ on every platform.
  if (hot && cOrCpp) raiseTyped(msg::NoCompilerFound_link_Win64());
  if (cOrCpp) raiseTyped(msg::NoCompilerFound_Win64());
  if (hot) raiseTyped(msg::NoCompilerFound_link());
  raiseTyped(msg::NoCompilerFound());
}

boost::shared_ptr<ZexOpt> ZexCompilers::getSelectedOpt() {
  const std::string language = args().languages.empty() ? std::string() : args().languages.front();
  ZexOptList list = findSelectedOpts(language, {});

  auto& implicitSelections = ZexSelectedOptsPerTVM::current().implicitSelections;
  const bool implicitSelection = list.empty();
  if (implicitSelection) {
    const auto remembered = implicitSelections.find(language);
    if (remembered != implicitSelections.end()) return readOpt(remembered->second, {}, {});

    logMessage(msg::LookforImplicitSel(), true);
    list = mergeOptLists(findCatalogueOpts(language, {}, true), {}, {});
  }
  checkOptList(list, allLanguagesCOrCpp(args().languages));
  if (implicitSelection) implicitSelections[language] = list.front()->attribute(u"ZEXOPT");
  return list.front();
}

ZexOptList ZexCompilers::mergeOptLists(const ZexOptList& catalogue, const ZexOptList& selected,
                                       const std::string& kind) {
  ZexOptList merged = catalogue;
  bool anyInstalled = false;
  for (const auto& chosen : selected) {
    if (!chosen->installed) continue;
    anyInstalled = true;
    const auto twin = std::find_if(catalogue.begin(), catalogue.end(), [&](const auto& listed) {
      return listed->attribute(u"NAME") == chosen->attribute(u"NAME");
    });
    if (twin == catalogue.end()) {
      merged.push_back(chosen);
    } else if (kind.empty()) {
      merged[static_cast<std::size_t>(twin - catalogue.begin())] = chosen;
      eraseCachedOpt((*twin)->attribute(u"ZEXOPT"));
    } else if ((*twin)->installed) {
      eraseCachedOpt(chosen->attribute(u"ZEXOPT"));
    }
  }
  if (!anyInstalled) selectByPriority(catalogue);
  return merged;
}

void ZexCompilers::checkOptList(ZexOptList& list, bool cOrCpp) const {
  keepInstalled(list);
  if (list.empty()) raiseNoCompiler(cOrCpp);
  if (list.size() == 1) return;  // also where it is not `selected`
  std::erase_if(list, [](const auto& opt) { return !opt->selected; });
  if (list.size() != 1) raiseTyped(msg::MultipleOrZeroCompiler());
}

}  // namespace zex_cmd
