#pragma once

#include <cstddef>

#include "args/ZexArgs.hpp"

namespace zex_cmd {

/// Takes a NAME=value token into the variables. `equals` is the place of the first "="; the name is compared as
/// typed and may be empty.
void takeAssignment(ZexArgs& args, const ustring& token, std::size_t equals);

}  // namespace zex_cmd
