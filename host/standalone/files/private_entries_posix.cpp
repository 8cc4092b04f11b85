#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "standalone/files/private_entries.hpp"

namespace host::standalone {

namespace {

/// Zero, or the system's error number.
int writeAll(int descriptor, std::string_view rest) {
  while (!rest.empty()) {
    const ssize_t count = write(descriptor, rest.data(), rest.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    rest.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

}  // namespace

void makePrivateFile(const std::filesystem::path& path, std::string_view content, std::error_code& reason) {
  reason.clear();
  const int descriptor =
      open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  int failure = descriptor < 0 ? errno : writeAll(descriptor, content);
  // Some systems tell of a full disk no earlier.
  if (descriptor >= 0 && close(descriptor) != 0 && failure == 0) failure = errno;
  if (descriptor >= 0 && failure != 0) unlink(path.c_str());
  reason.assign(failure, std::generic_category());
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
