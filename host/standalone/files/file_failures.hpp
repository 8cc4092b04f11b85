#pragma once

#include <system_error>

#include "fl/filesystem/exceptions.hpp"
#include "fl/ustring.hpp"

namespace host::standalone {

/// Throws the member of the exception family that the reason stands for; its text names path and reason.
[[noreturn]] void raiseFileFailure(const fl::ustring& path, const std::error_code& reason);

}  // namespace host::standalone
