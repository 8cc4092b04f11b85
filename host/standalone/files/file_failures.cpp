#include "standalone/files/file_failures.hpp"

#include <algorithm>

#include "fl/i18n/strings.hpp"
#include "standalone/files/file_changes.hpp"

namespace host::standalone {

using namespace fl::filesystem;

void raiseFileFailure(const fl::ustring& path, const std::error_code& reason) {
  std::string text = fl::i18n::to_string(path) + ": " + reason.message();
  // what() would end at a zero and say nothing of the reason.
  std::replace(text.begin(), text.end(), '\0', '?');
  const auto is = [&reason](std::errc condition) { return reason == condition; };

  if (is(std::errc::permission_denied) || is(std::errc::operation_not_permitted) ||
      is(std::errc::read_only_file_system) || isInUse(reason))
    throw AccessDenied(text);
  if (is(std::errc::no_such_file_or_directory)) throw PathNotFound(text);
  if (is(std::errc::filename_too_long)) throw FileNameTooLarge(text);
  if (is(std::errc::not_a_directory)) throw NotDirectoryError(text);
  if (is(std::errc::invalid_argument)) throw InvalidArgument(text);
  if (is(std::errc::illegal_byte_sequence)) throw FileNameConversionFailure(text);
  throw SystemError(text);
}

}  // namespace host::standalone
