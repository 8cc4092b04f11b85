#pragma once

#include <filesystem>
#include <optional>

#include "fl/ustring.hpp"

namespace host::standalone {

/// Between the text of a path and the form that the system's calls take. A name that has no exact counterpart on
/// the other side raises FileNameConversionFailure, one with a zero in it InvalidArgument.
std::filesystem::path nativePath(const fl::ustring& path);
fl::ustring pathText(const std::filesystem::path& path);

/// A name as the system gives it, never a failure: one without a counterpart is a text that no operation takes.
fl::ustring foundPath(const std::filesystem::path& path);

/// Nothing in place of a failure, for operations that do not throw.
std::optional<std::filesystem::path> nativePathIfAny(const fl::ustring& path);

}  // namespace host::standalone
