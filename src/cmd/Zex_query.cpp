#include <cstddef>

#include "cmd/Zex.hpp"
#include "cmd/messages/raise.hpp"
#include "compilers/ZexCompilers.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/contains.hpp"
#include "platform/letter_case.hpp"
#include "vars/ZexVarResolver.hpp"

namespace zex_cmd {

namespace {

constexpr const char* languageWords[] = {"c", "cpp", "c++", "fortran", "any"};
constexpr const char* kindWords[] = {"selected", "installed", "supported", "default"};

/// A PRIORITY that begins with this character or a higher one is never the default.
constexpr char16_t neverDefault = 0x7a;

/// The word in lower case, if the list has it.
template <std::size_t Count>
std::string lowerWordOf(const char* const (&words)[Count], const std::string& word) {
  std::string lower = lowered(word);
  if (!contains(words, lower)) raiseTyped(msg::UnknownSwitch(word));
  return lower;
}

/// Only the first character counts here; an empty text is the least of all.
char16_t priorityOf(const ZexOpt& opt) {
  const ustring priority = opt.attribute(u"PRIORITY");
  return priority.empty() ? u'\0' : priority.front();
}

}  // namespace

std::vector<CompilerRecord> Zex::queryCompilers(const std::string& language, const std::string& kind,
                                                const std::string& architecture) {
  std::string word = lowerWordOf(languageWords, language);
  const std::string lowerKind = lowerWordOf(kindWords, kind);
  if (word == "cpp") word = "c++";

  const boost::shared_ptr<ZexCompilers> former = compilers_;
  queryKind_ = lowerKind;
  // No guard: after a failure the kind stays, and the next setup command on this object still sees it. Settled so.
  static_cast<ZexCmdI*>(this)->run({u"-setup", fl::i18n::to_ustring(uppered(word)),
                                    u"-" + fl::i18n::to_ustring(architecture), u"-called_from_tessel"});
  queryKind_.clear();
  // An architecture word such as "help" sends the inner command past the catalogue; an older one is no answer.
  if (compilers_ == former) return {};
  return recordsOf(lowerKind);
}

CompilerRecord Zex::recordOf(const boost::shared_ptr<ZexOpt>& opt) const {
  // A selected file whose namesake of the catalogue is not installed is on no list of the setup command.
  if (!opt->resolved) ZexVarResolver(args_, compilers_).resolve(opt);
  return opt->detailsMap();
}

std::vector<CompilerRecord> Zex::recordsOf(const std::string& kind) const {
  std::vector<CompilerRecord> records;
  boost::shared_ptr<ZexOpt> best;
  char16_t lowest = neverDefault;
  for (const auto& [path, opt] : compilers_->cachedOpts()) {
    if (kind == "default") {
      const char16_t priority = priorityOf(*opt);
      if (priority >= lowest) continue;
      lowest = priority;
      best = opt;
    } else if (kind == "supported" || (kind == "selected" && opt->selected) ||
               (kind == "installed" && opt->installed)) {
      records.push_back(recordOf(opt));
    }
  }
  if (best) records.push_back(recordOf(best));
  return records;
}

}  // namespace zex_cmd
