#include "standalone/products/LoadedProduct.hpp"

#include <stdexcept>
#include <utility>

#include "fl/filesystem/path_names.hpp"
#include "fl/i18n/strings.hpp"
#include "korvane/TException.hpp"
#include "standalone/products/SharedLibrary.hpp"
#include "standalone/products/interface_check.hpp"
#include "standalone/products/object_image.hpp"
#include "texts/utf.hpp"

namespace host::standalone {

namespace {

[[noreturn]] void refuse(const char* identifier, const fl::ustring& text) {
  throw Korvane::TException::HostError(identifier, text);
}

/// The name before ">" is the file, the one behind it the function.
fl::ustring completeName(const fl::ustring& path) {
  return path + u">" + fl::filesystem::detail::extract_stem(path);
}

bool isCutOff(const fl::ustring& path) {
  FileWindow file(path);
  return isElfCutOff(ObjectImage(file, {0, file.size()}));
}

std::unique_ptr<SharedLibrary> opened(const fl::ustring& path) {
  if (isCutOff(path)) {
    refuse("TESSEL:host:ProductNotLoadable",
           u"'" + path + u"' could not be loaded: the file is cut off. Build it again.");
  }
  try {
    return std::make_unique<SharedLibrary>(path);
  } catch (const std::runtime_error& failure) {
    refuse("TESSEL:host:ProductNotLoadable",
           u"'" + path + u"' could not be loaded: " + fl::i18n::to_ustring(failure.what()));
  }
}

/// Holds a lock for the length of a scope.
class Lock {
 public:
  explicit Lock(LoadedProduct& product) : product_(product) { product_.lock(); }
  ~Lock() { product_.unlock(); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  LoadedProduct& product_;
};

struct Caller {
  int nlhs;
  zxArray** plhs;
  int nrhs;
  const zxArray** prhs;

  const zxFailure* operator()(zxEntry entry) const { return zxCallEntry(entry, nlhs, plhs, nrhs, prhs); }
  const zxFailure* operator()(zxFortranEntry entry) const {
    return zxCallFortranEntry(entry, nlhs, plhs, nrhs, prhs);
  }
};

}  // namespace

LoadedProduct::LoadedProduct(fl::ustring path) : path_(std::move(path)), function_(completeName(path_)) {
  kind = nativeExtension;
}

LoadedProduct::~LoadedProduct() = default;

std::optional<LoadedProduct::Entry> LoadedProduct::entryPoint() const {
  if (void* const entry = library_->symbol("zexFunction")) return reinterpret_cast<zxEntry>(entry);
  // Fortran compilers write the name in lower case, with an underscore behind it.
  if (void* const entry = library_->symbol("zexfunction_")) return reinterpret_cast<zxFortranEntry>(entry);
  return std::nullopt;
}

void LoadedProduct::load() {
  if (isLoaded()) return;
  const std::optional<FileIdentity> file = identityOf(path_);
  if (!file) refuse("TESSEL:host:ProductNotFound", u"'" + path_ + u"' was not found, or it is not a file.");
  const std::optional<fl::ustring> mismatch = interfaceMismatch(path_);
  if (mismatch) {
    refuse("TESSEL:host:InterfaceMismatch",
           u"'" + path_ + u"' was built for another interface version. " + *mismatch);
  }
  if (loadedFile_ && *loadedFile_ != *file && SharedLibrary::isResident(path_)) {
    refuse("TESSEL:host:CodeStays", u"'" + path_ +
                                        u"' was built anew, but the code that was loaded before cannot be removed "
                                        u"from this process. Start the program again.");
  }

  library_ = opened(path_);
  const std::optional<Entry> entry = entryPoint();
  if (!entry) {
    library_.reset();
    refuse("TESSEL:host:NoEntryPoint",
           u"'" + path_ +
               u"' is no extension: it has no entry point zexFunction (in Fortran the subroutine "
               u"zexfunction).");
  }
  entry_ = *entry;
  loadedFile_ = std::make_unique<FileIdentity>(*file);
  handles = {&function_};
}

void LoadedProduct::call(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  if (!isLoaded()) refuse("TESSEL:host:ProductNotLoaded", u"'" + path_ + u"' is not loaded.");
  const Lock lock(*this);
  const zxFailure* const failure = std::visit(Caller{nlhs, plhs, nrhs, prhs}, entry_);
  if (failure != nullptr) refuse(failure->identifier, fromUtf8(failure->message));
}

void LoadedProduct::unlock() {
  if (locks_ > 0) --locks_;
}

void LoadedProduct::unload() {
  if (locks_ > 0) refuse("TESSEL:host:ProductLocked", u"'" + path_ + u"' is locked and stays loaded.");
  handles.clear();
  library_.reset();
}

}  // namespace host::standalone
