#include "standalone/files/remove_tree.hpp"

namespace host::standalone {

std::uintmax_t removeTree(const std::filesystem::path& path, std::error_code& reason) {
  return std::filesystem::remove_all(path, reason);
}

}  // namespace host::standalone
