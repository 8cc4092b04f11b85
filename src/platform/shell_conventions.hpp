#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// Characters in a text of a command that the shell of this platform acts upon outside double quotes, beside those
/// that `quoteWhenNeeded` looks for.
extern const fl::ustring_view quotableSigns;

/// Whether a command brings a path through the shell as it is: commands have paths in double quotes at most.
bool isCarriedByShell(const ustring& path);

/// An environment value with another one put ahead of it, joined as the platform's tools expect.
ustring joinedEnvironmentValue(const ustring& first, const ustring& former);

}  // namespace zex_cmd
