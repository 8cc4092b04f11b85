#include "build/deprecated_names.hpp"

#include "cmd/messages/raise.hpp"

namespace zex_cmd {

namespace {

/// The headers turn a deprecated name into one with this ending, which no library defines.
constexpr char16_t mark[] = u"IsDeprecated";

}  // namespace

ustring findDeprecatedName(const ZexCommandResult& result, std::initializer_list<const char16_t*> names) {
  for (const ustring name : names) {
    if (result.errorText.find(name + mark) != ustring::npos) return name;
  }
  return {};
}

void raiseDeprecatedName(const ZexCommandResult& result) {
  if (!findDeprecatedName(result, {u"zexGet", u"zexSet"}).empty()) {
    raiseTyped(msg::ZexDoubleHandle("ZEX_DOUBLE_HANDLE"));
  }
  if (!findDeprecatedName(result, {u"zexSetTrapFlag"}).empty()) raiseTyped(msg::ZexSetTrapFlagNotSupported());

  const ustring separate =
      findDeprecatedName(result, {u"zxGetPi", u"zxSetPi", u"zxGetImagData", u"zxSetImagData"});
  if (!separate.empty()) raiseTyped(msg::ZXSeparateComplexNotSupported(separate));

  const ustring undocumented = findDeprecatedName(
      result, {u"zxCreateSharedDataCopy", u"zxCreateUninitDoubleMatrix", u"zxFastZeros", u"zxGetPropertyShared",
               u"zxSetPropertyShared", u"zxUnreference", u"zxUnshareArray"});
  if (!undocumented.empty()) raiseTyped(msg::UndocumentedNotSupported(undocumented));
}

}  // namespace zex_cmd
