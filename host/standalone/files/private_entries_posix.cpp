#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "standalone/files/private_entries.hpp"

namespace host::standalone {

void makePrivateFile(const std::filesystem::path& path, std::error_code& reason) {
  reason.clear();
  const int descriptor =
      open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) {
    reason.assign(errno, std::generic_category());
  } else {
    close(descriptor);
  }
}

bool makePrivateFolders(const std::filesystem::path& path, std::error_code& reason) {
  reason.clear();
  if (mkdir(path.c_str(), S_IRWXU) == 0) return true;
  reason.assign(errno, std::generic_category());

  const std::filesystem::path parent = path.parent_path();
  if (reason == std::errc::no_such_file_or_directory && !parent.empty() && parent != path) {
    makePrivateFolders(parent, reason);
    // Somebody else may make the same parents at the same moment, but the folder itself is made only once.
    return !reason && makePrivateFolders(path, reason);
  }
  std::error_code ignored;
  if (reason == std::errc::file_exists && std::filesystem::is_directory(path, ignored)) reason.clear();
  return false;
}

}  // namespace host::standalone
