#include "fl/filesystem/streams.hpp"

#include "fl/filesystem/operations.hpp"
#include "fl/i18n/strings.hpp"
#include "standalone/files/native_path.hpp"

namespace fl::filesystem {

using host::standalone::nativePathIfAny;
using host::standalone::pathText;

std::string native_access_form(const ustring& path) {
  return i18n::to_string(pathText(host::standalone::nativePath(path)));
}

basic_ifstream::basic_ifstream(const ustring& path, std::ios_base::openmode mode) {
  const auto native = nativePathIfAny(path);
  if (!native || !is_regular(status(path))) {
    setstate(failbit);
    return;
  }
  open(*native, mode);
}

basic_ofstream::basic_ofstream(const ustring& path, std::ios_base::openmode mode) {
  const auto native = nativePathIfAny(path);
  if (!native) {
    setstate(failbit);
    return;
  }
  open(*native, mode | std::ios_base::trunc);
}

}  // namespace fl::filesystem
