#include <dlfcn.h>
#include <sys/stat.h>

#include <stdexcept>

#include "fl/i18n/strings.hpp"
#include "standalone/products/SharedLibrary.hpp"

namespace host::standalone {

SharedLibrary::SharedLibrary(const fl::ustring& path)
    : handle_(dlopen(fl::i18n::to_string(path).c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (handle_ == nullptr) throw std::runtime_error(dlerror());
}

SharedLibrary::~SharedLibrary() {
  dlclose(handle_);
}

void* SharedLibrary::symbol(const char* name) const {
  return dlsym(handle_, name);
}

bool SharedLibrary::isResident(const fl::ustring& path) {
  void* const handle = dlopen(fl::i18n::to_string(path).c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (handle != nullptr) dlclose(handle);
  return handle != nullptr;
}

std::optional<FileIdentity> identityOf(const fl::ustring& path) {
  struct stat told {};
  if (stat(fl::i18n::to_string(path).c_str(), &told) != 0 || !S_ISREG(told.st_mode)) return std::nullopt;
  return FileIdentity{told.st_dev, told.st_ino, told.st_ctim.tv_sec, told.st_ctim.tv_nsec};
}

}  // namespace host::standalone
