#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "standalone/files/native_path.hpp"

namespace fl::filesystem {

std::optional<temporary_file> tmpfile(const ustring& folder) {
  if (folder.empty()) return std::nullopt;
  const auto native = host::standalone::nativePathIfAny(detail::concatenate_pathname(folder, u"zex_XXXXXX"));
  if (!native) return std::nullopt;

  std::string name = native->native();
  const int descriptor = mkostemp(name.data(), O_CLOEXEC);
  if (descriptor < 0) return std::nullopt;
  std::FILE* stream = fdopen(descriptor, "w+b");
  if (stream == nullptr) {
    close(descriptor);
    unlink(name.c_str());
    return std::nullopt;
  }
  return temporary_file{stream, host::standalone::pathText(name)};
}

}  // namespace fl::filesystem
