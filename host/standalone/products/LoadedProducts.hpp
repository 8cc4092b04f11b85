#pragma once

#include <memory>
#include <vector>

#include "standalone/products/LoadedProduct.hpp"

namespace host::standalone {

/// The dispatcher of a host process without an environment: the extensions that it loaded, so that a build in the
/// same process finds them. There is no search path, so nobody has to be told when it changes.
class ZEXHOST_API LoadedProducts : public Tdispatcher {
 public:
  /// The product of a path, relative ones seen from the current folder; loaded, if it was not. It stays valid as
  /// long as this object. Fails as LoadedProduct::load does.
  LoadedProduct& load(const fl::ustring& path);

  const std::vector<LoadedFunctionSet*>& loadedFunctionSets() const override { return sets_; }
  Korvane::EventManager& GetPerTVMEventManager() override { return events_; }
  Korvane::PathManager& GetCurrentPathManager() override { return paths_; }

 private:
  struct NoEvents : Korvane::EventManager {
    void upstreamPathEntriesMayHaveChanged(const fl::ustring&) override {}
  };
  struct NoPaths : Korvane::PathManager {
    void update(int) override {}
  };

  LoadedProduct& known(const fl::ustring& path);

  std::vector<std::unique_ptr<LoadedProduct>> products_;
  std::vector<LoadedFunctionSet*> sets_;
  NoEvents events_;
  NoPaths paths_;
};

}  // namespace host::standalone
