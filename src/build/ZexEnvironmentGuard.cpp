#include "build/ZexEnvironmentGuard.hpp"

#include "cmd/messages/ZexConfigPerTVM.hpp"
#include "cmd/messages/raise.hpp"
#include "cmd/messages/show.hpp"
#include "cmd/messages/verbose_lines.hpp"
#include "cmd/messages/warnings.hpp"
#include "fl/i18n/environment.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/shell_conventions.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

namespace {

/// A value of this many characters draws a warning: some tools cut it off.
constexpr std::size_t longValue = 8000;

}  // namespace

ZexEnvironmentGuard::ZexEnvironmentGuard(const ZexOpt& option) {
  try {
    for (const ustring& key : option.attributePaths(u"config.env")) apply(option, key);
  } catch (...) {
    restore();
    throw;
  }
}

ZexEnvironmentGuard::~ZexEnvironmentGuard() {
  restore();
}

void ZexEnvironmentGuard::apply(const ZexOpt& option, const ustring& key) {
  const std::string name = fl::i18n::to_string(shortName(key));
  const ustring former = fl::i18n::getenv(name);
  // A document may name a variable twice; what is restored is the value of the first time.
  former_.emplace(name, former);
  const ustring value = joinedEnvironmentValue(option.requiredValue(key), former);
  logMessage(msg::SetEnv(name, value), true);
  if (value.size() >= longValue) emitWarning(utPrintfIsHot() ? msg::LongEnv_link(name) : msg::LongEnv(name));
  if (!fl::i18n::setenv(name, value)) raiseTyped(msg::FailSetEnv(name));
}

void ZexEnvironmentGuard::restore() const {
  for (const auto& [name, value] : former_) fl::i18n::setenv(name, value);
}

}  // namespace zex_cmd
