#pragma once

#include <optional>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

enum class RegistryRoot { LocalMachine, CurrentUser };

/// Text of a registry value. Nothing where the key or the value is missing, or on a platform without a registry.
std::optional<ustring> readRegistry(RegistryRoot root, const ustring& keyPath, const ustring& valueName);

}  // namespace zex_cmd
