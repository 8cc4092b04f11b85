#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "fl/i18n/strings.hpp"
#include "standalone/ada/TemporaryFolder.hpp"

namespace host::standalone {

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "zex_ada_XXXXXX").native();
  if (mkdtemp(pattern.data()) == nullptr)
    throw std::system_error(errno, std::generic_category(), "cannot make a folder " + pattern);
  path_ = fl::i18n::to_ustring(pattern);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code stays;
  std::filesystem::remove_all(fl::i18n::to_string(path_), stays);
}

}  // namespace host::standalone
