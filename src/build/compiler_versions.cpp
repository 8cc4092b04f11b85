#include "build/compiler_versions.hpp"

#include <algorithm>
#include <optional>
#include <vector>

#include "cmd/messages/show.hpp"
#include "cmd/messages/warnings.hpp"
#include "fl/i18n/strings.hpp"
#include "options/ZexOpt.hpp"
#include "platform/ShellCommand.hpp"
#include "platform/architecture.hpp"
#include "platform/letter_case.hpp"
#include "platform/tokens.hpp"
#include "services/io/uout.hpp"

namespace zex_cmd {

namespace {

constexpr double supportedGcc = 6.3;
constexpr char16_t supportedMinGw[] = u"5.3.0";

/// What a program prints; its exit status does not count.
ustring outputOf(const ustring& command, bool calledFromHost) {
  ustring standardOutput;
  ustring standardError;
  runShellCommand(command, standardOutput, standardError, calledFromHost);
  return standardOutput;
}

bool isDigit(const ustring& part) {
  return part.size() == 1 && part[0] >= u'0' && part[0] <= u'9';
}

/// First part and a tenth of the second, for a token such as "6.3.1"; nothing unless both are single digits.
std::optional<double> versionOf(const ustring& token) {
  const std::vector<ustring> parts = splitTokens(token, u".");
  if (parts.size() < 2 || !isDigit(parts[0]) || !isDigit(parts[1])) return std::nullopt;
  return (parts[0][0] - u'0') + (parts[1][0] - u'0') * 0.1;
}

}  // namespace

void checkGccVersion(const ZexOpt& option, bool calledFromHost) {
  if (architectureName() != "glnxa64") return;
  const ustring name = lowered(option.attribute(u"NAME"));
  if (name != u"gcc" && name != u"g++") return;

  const ustring line = outputOf(option.attribute(u"LOCATION") + u" --version | head -n 1", calledFromHost);
  std::vector<ustring> tokens = splitTokens(line, u" ");
  std::reverse(tokens.begin(), tokens.end());
  for (ustring& token : tokens) {
    if (token.ends_with(u'\n')) token.pop_back();
    const std::optional<double> version = versionOf(token);
    if (!version) continue;
    if (*version != supportedGcc) {
      emitWarning(utPrintfIsHot() ? msg::GccVersion_link(token, "6.3.x") : msg::GccVersion(token, "6.3.x"));
    }
    return;
  }
}

void checkMinGwVersion(const ZexOpt& option, bool calledFromHost) {
  if (lowered(option.attribute(u"SHORTNAME")).find(u"mingw") == ustring::npos) return;

  const ustring printed = outputOf(option.attribute(u"LOCATION") + u"\\bin\\gcc.exe -dumpversion", calledFromHost);
  if (fl::i18n::trim(printed, u"\n") != supportedMinGw) {
    emitWarning(utPrintfIsHot() ? msg::MinGWVersion_link() : msg::MinGWVersion());
  } else if (option.attribute(u"VERSION") != supportedMinGw) {
    emitWarning(utPrintfIsHot() ? msg::InvalidMinGWConfig_link() : msg::InvalidMinGWConfig());
  }
}

}  // namespace zex_cmd
