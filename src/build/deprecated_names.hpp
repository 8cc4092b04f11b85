#pragma once

#include <initializer_list>

#include "build/ZexCommandResult.hpp"

namespace zex_cmd {

/// The first of `names` that the text of a failure marks as deprecated, or the empty text.
ustring findDeprecatedName(const ZexCommandResult& result, std::initializer_list<const char16_t*> names);

/// Raises the message of the first group of deprecated interface names that a failed command's text marks:
/// "TESSEL:zex:ZexDoubleHandle", "TESSEL:zex:ZexSetTrapFlagNotSupported",
/// "TESSEL:zex:ZXSeparateComplexNotSupported" or "TESSEL:zex:UndocumentedNotSupported". Returns where there is
/// none.
void raiseDeprecatedName(const ZexCommandResult& result);

}  // namespace zex_cmd
