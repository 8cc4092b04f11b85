#pragma once

#include "cmd/messages/Exception.hpp"
#include "cmd/messages/errors.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "zx/errors.hpp"

namespace zex_cmd {

/// Offers the failure to the host and then throws it. The throw is a copy of what the host saw, with the id
/// stored.
template <class Tag>
[[noreturn]] void raiseTyped(const msg::ErrorRecord<Tag>& record) {
  using Failure = foundation::core::except::Exception<Tag, std::exception, void>;
  const Failure offered(record);
  const std::string errorId = Failure::get_error_id(record);
  matrix::detail::do_legacy_zx_error(offered);
  throw Failure(offered, errorId);
}

/// Throws without telling the host: for failures that come out of the host's own values.
template <class Tag>
[[noreturn]] void throwDirectly(const msg::ErrorRecord<Tag>& record) {
  using Failure = foundation::core::except::Exception<Tag, std::exception, void>;
  throw Failure(Failure(record), Failure::get_error_id(record));
}

/// Turns the file system failure in flight into a message about `path`. Call it inside a catch clause for
/// `fl::filesystem::FsysExceptionBase`; a type that it does not know keeps flying.
/// `hint` is put behind the reason.
[[noreturn]] void translateFilesystemError(const ustring& path, const ustring& hint = {});

/// Raises the file system failure in flight with its own words, as "TESSEL:zex:FileSystemException": where no path
/// was asked for. A name that cannot be converted stays "TESSEL:zex:FileNameConversionFailed".
[[noreturn]] void raiseFilesystemFailure();

/// What an action gives; its file system failures as above.
template <class Action>
auto inWords(Action&& action) {
  try {
    return action();
  } catch (const fl::filesystem::FsysExceptionBase&) {
    raiseFilesystemFailure();
  }
}

}  // namespace zex_cmd
