#pragma once

#include <memory>
#include <optional>
#include <variant>

#include "dispatcher/Tdispatcher.hpp"
#include "zx/runtime.hpp"

namespace host::standalone {

class SharedLibrary;
struct FileIdentity;

/// One extension, loaded or to be loaded again. Failures are of the type Korvane::TException::HostError: those of
/// the extension carry its identifier, those of this class begin with "TESSEL:host:".
class ZEXHOST_API LoadedProduct : public LoadedFunctionSet {
 public:
  /// `path` is absolute. Nothing is loaded yet.
  explicit LoadedProduct(fl::ustring path);
  ~LoadedProduct() override;

  const fl::ustring& path() const { return path_; }
  bool isLoaded() const { return library_ != nullptr; }

  /// Loads the file if it is not. Fails where there is no such file, where it is no library for this process or
  /// has no entry point, where it was built for an interface that libzx does not have, and where code that an
  /// earlier file left under this path cannot be got rid of.
  void load();

  /// Calls the entry point. `plhs` has max(nlhs, 1) places; what is there afterwards is the caller's. For the
  /// length of the call the product counts as locked.
  void call(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]);

  /// Locks count; a locked product is not unloaded.
  void lock() { ++locks_; }
  void unlock();

  int kindQuery() const override { return kind; }
  int lockCount() const override { return locks_; }
  /// The next `load` takes the file as it is then.
  void unload() override;

 private:
  using Entry = std::variant<zxEntry, zxFortranEntry>;

  /// The extension as a function of the environment.
  class Function : public Tfh_TESSEL_fn {
   public:
    explicit Function(fl::ustring completeName) : completeName_(std::move(completeName)) {}
    fl::ustring get_complete_name() const override { return completeName_; }

   private:
    fl::ustring completeName_;
  };

  std::optional<Entry> entryPoint() const;

  fl::ustring path_;
  Function function_;
  std::unique_ptr<SharedLibrary> library_;
  std::unique_ptr<FileIdentity> loadedFile_;  ///< what was loaded last; stays after `unload`
  Entry entry_;
  int locks_ = 0;
};

}  // namespace host::standalone
