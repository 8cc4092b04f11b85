#include <new>

#include "cmd/messages/raise.hpp"
#include "fl/filesystem/exceptions.hpp"

namespace zex_cmd {

void translateFilesystemError(const ustring& path) {
  try {
    throw;
  } catch (const fl::filesystem::AccessDenied&) {
    raiseTyped(msg::AccessDenied(path));
  } catch (const fl::filesystem::PathNotFound&) {
    raiseTyped(msg::SrcNotFound(path, path));
  } catch (const fl::filesystem::FileNameTooLarge&) {
    raiseTyped(msg::FileNameTooLarge());
  } catch (const fl::filesystem::NotDirectoryError&) {
    raiseTyped(msg::NotADirectory(path));
  } catch (const fl::filesystem::InvalidArgument&) {
    raiseTyped(msg::SrcNotFound(path, path));
  } catch (const fl::filesystem::SystemError&) {
    raiseTyped(msg::SrcNotFound(path, path));
  } catch (const fl::filesystem::FileNameConversionFailure&) {
    raiseTyped(msg::FileNameConversionFailed());
  } catch (const std::bad_alloc&) {
    // Cannot come out of a clause for file system failures; kept with the other rows.
    raiseTyped(msg::OutOfMemory());
  }
}

}  // namespace zex_cmd
