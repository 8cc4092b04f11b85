#pragma once

#include <vector>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

/// A handle to one loaded function.
class ZEXHOST_API Tfh_TESSEL_fn {
 public:
  virtual ~Tfh_TESSEL_fn() = default;
  /// Path of the file, ">" and the function's name; without ">" for what came from no file.
  virtual fl::ustring get_complete_name() const = 0;
};

/// The functions that came from one loaded file.
class ZEXHOST_API LoadedFunctionSet {
 public:
  /// Kind number of a native extension.
  static constexpr int nativeExtension = 2;

  virtual ~LoadedFunctionSet() = default;
  virtual int kindQuery() const = 0;
  virtual int lockCount() const = 0;
  virtual void unload() = 0;

  int kind = 0;
  std::vector<Tfh_TESSEL_fn*> handles;
};

namespace Korvane {

/// Tells the environment that folders on its path may have changed.
class ZEXHOST_API PathManager {
 public:
  virtual ~PathManager() = default;
  virtual void update(int mode) = 0;
};

class ZEXHOST_API EventManager {
 public:
  virtual ~EventManager() = default;
  virtual void upstreamPathEntriesMayHaveChanged(const fl::ustring& resourceName) = 0;
};

namespace PathManagement {
ZEXHOST_API void NotifyUpstreamPathEntriesOfPossibleSpecialSubfolderChanges(const fl::ustring& resourceName,
                                                                            EventManager& events);
}

}  // namespace Korvane

/// The host's table of loaded functions.
class ZEXHOST_API Tdispatcher {
 public:
  virtual ~Tdispatcher() = default;

  /// The dispatcher of the host; null where there is none, as in a command-line program.
  static Tdispatcher* getDispatcher();

  /// Entries may be null.
  virtual const std::vector<LoadedFunctionSet*>& loadedFunctionSets() const = 0;
  virtual Korvane::EventManager& GetPerTVMEventManager() = 0;
  virtual Korvane::PathManager& GetCurrentPathManager() = 0;
};
