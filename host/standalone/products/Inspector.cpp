#include "zexfile/Inspector.hpp"

#include <algorithm>
#include <string>

#include "fl/i18n/strings.hpp"
#include "standalone/products/record_search.hpp"

namespace zexfile {

namespace {

using host::standalone::FoundRecords;
using host::standalone::Interface;
using host::standalone::noRelease;

Issue issue(const std::string& heading, const std::string& detail) {
  return {fl::i18n::to_ustring(heading), fl::i18n::to_ustring(detail)};
}

std::string releaseOf(const Interface& builtFor) {
  return builtFor.release == noRelease ? "no release" : "release " + builtFor.release;
}

std::string described(const Interface& builtFor) {
  return releaseOf(builtFor) + " with " + builtFor.dims + "-bit array sizes";
}

Issue contradiction(const Interface& one, const Interface& other) {
  std::string remedy = "Sources of this file that were compiled differently cannot work together.";
  if (one.release != other.release)
    remedy += " Some are for " + releaseOf(one) + ", others for " + releaseOf(other) +
              ": compile all of them with the same release switch, -R2017b or -R2018a.";
  if (one.dims != other.dims)
    remedy +=
        " Some have " + one.dims + "-bit array sizes, others " + other.dims +
        "-bit ones: compile all of them with -compatibleArrayDims, or all without, or include zimstruc.h ahead of "
        "tzwtypes.h.";
  return issue("Contradicting interfaces: " + described(one) + ", and " + described(other) + ".", remedy);
}

Issue olderRecord(const std::string& text) {
  return issue("Record of an older form.",
               "One of the compiled parts says \"" + text +
                   "\". The file works; compile that part again to bring it up to date.");
}

Issue noRecord() {
  return issue("No interface record.",
               "The file was not linked by zex, or cannot be read. Build it again with zex.");
}

/// To stand at the end of a command that may define these macros in any way. Macros are undefined first, since
/// compilers warn of a second, different definition.
std::string flagFrom(const std::vector<Interface>& drivers, const Interface& sources) {
  const auto anyDiffers = [&](std::string Interface::*word) {
    return std::any_of(drivers.begin(), drivers.end(),
                       [&](const Interface& driver) { return driver.*word != sources.*word; });
  };
  std::string flag;
  if (anyDiffers(&Interface::release)) {
    flag += " -UTESSEL_ZEXCMD_RELEASE";
    flag +=
        sources.release == noRelease ? " -UTESSEL_DEFAULT_RELEASE" : " -DTESSEL_ZEXCMD_RELEASE=" + sources.release;
  }
  // The second of the pair for 64 bits only keeps the builder from putting a flag of its own in place of these.
  if (anyDiffers(&Interface::dims))
    flag += sources.dims == "32" ? " -DZX_COMPAT_32" : " -UZX_COMPAT_32 -DZX_COMPAT_64";
  return flag.empty() ? flag : flag.substr(1);
}

}  // namespace

struct Inspector::Findings {
  bool error = false;
  bool older = false;
  fl::ustring flag;
};

Inspector::Inspector(const fl::ustring& path, bool strict) : findings_(std::make_unique<Findings>()) {
  const FoundRecords found = host::standalone::findVersionRecords(path);
  const bool contradictory = found.sources.size() > 1;
  const bool nothing = found.sources.empty() && found.drivers.empty() && found.older.empty();

  findings_->error = contradictory || (strict && nothing);
  findings_->older = !found.older.empty();
  if (found.sources.size() == 1)
    findings_->flag = fl::i18n::to_ustring(flagFrom(found.drivers, found.sources.front()));

  // What is fatal comes first: of a file with an error, only that is shown.
  if (contradictory) issues.push_back(contradiction(found.sources[0], found.sources[1]));
  if (strict && nothing) issues.push_back(noRecord());
  for (const std::string& text : found.older) issues.push_back(olderRecord(text));
}

Inspector::~Inspector() = default;

bool Inspector::has_error() const {
  return findings_->error;
}

bool Inspector::needs_upgrade() const {
  return findings_->older;
}

bool Inspector::needs_consistent_embedded_version() const {
  return !findings_->flag.empty();
}

const char16_t* Inspector::get_embedded_version_compiler_flag() const {
  return findings_->flag.c_str();
}

}  // namespace zexfile
