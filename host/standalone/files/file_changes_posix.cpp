#include "standalone/files/file_changes.hpp"

namespace host::standalone {

bool removeEntry(const std::filesystem::path& path, std::error_code& reason) {
  return std::filesystem::remove(path, reason);
}

void moveEntry(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& reason) {
  std::filesystem::rename(from, to, reason);
}

bool isInUse(const std::error_code& /*reason*/) {
  return false;
}

}  // namespace host::standalone
