#include <new>

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/exceptions.hpp"
#include "fl/i18n/strings.hpp"

namespace zex_cmd {

namespace {

/// The reason, and the path that the failure is about where it is another one.
ustring reasonOf(const fl::filesystem::FsysExceptionBase& failure, const ustring& path) {
  const ustring words = fl::i18n::to_ustring(failure.what());
  const ustring begin = path + u": ";
  return words.starts_with(begin) ? words.substr(begin.size()) : words;
}

ustring joined(const ustring& reason, const ustring& hint) {
  return hint.empty() ? reason : reason + u"; " + hint;
}

}  // namespace

void translateFilesystemError(const ustring& path, const ustring& hint) {
  try {
    throw;
  } catch (const fl::filesystem::AccessDenied& failure) {
    raiseTyped(withNote(msg::AccessDenied(path), joined(reasonOf(failure, path), hint)));
  } catch (const fl::filesystem::PathNotFound& failure) {
    raiseTyped(withNote(msg::SrcNotFound(path, path), joined(reasonOf(failure, path), hint)));
  } catch (const fl::filesystem::FileNameTooLarge& failure) {
    raiseTyped(withNote(msg::FileNameTooLarge(), joined(reasonOf(failure, path), hint)));
  } catch (const fl::filesystem::NotDirectoryError& failure) {
    raiseTyped(withNote(msg::NotADirectory(path), joined(reasonOf(failure, path), hint)));
  } catch (const fl::filesystem::InvalidArgument& failure) {
    raiseTyped(withNote(msg::SrcNotFound(path, path), joined(reasonOf(failure, path), hint)));
  } catch (const fl::filesystem::SystemError& failure) {
    raiseTyped(withNote(msg::SrcNotFound(path, path), joined(reasonOf(failure, path), hint)));
  } catch (const fl::filesystem::FileNameConversionFailure& failure) {
    raiseTyped(withNote(msg::FileNameConversionFailed(), joined(reasonOf(failure, path), hint)));
  } catch (const std::bad_alloc&) {
    // Cannot come out of a clause for file system failures; kept with the other rows.
    raiseTyped(msg::OutOfMemory());
  }
}

void raiseFilesystemFailure() {
  try {
    throw;
  } catch (const fl::filesystem::FileNameConversionFailure& failure) {
    raiseTyped(withNote(msg::FileNameConversionFailed(), fl::i18n::to_ustring(failure.what())));
  } catch (const fl::filesystem::FsysExceptionBase& failure) {
    raiseTyped(msg::FileSystemException(failure.what()));
  }
}

}  // namespace zex_cmd
