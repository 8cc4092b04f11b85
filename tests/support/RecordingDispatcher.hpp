#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dispatcher/Tdispatcher.hpp"

namespace zex_test {

/// One loaded file of a recording dispatcher.
class RecordedSet : public LoadedFunctionSet {
 public:
  RecordedSet(fl::ustring completeName, int locks) : handle_(std::move(completeName)), locks_(locks) {
    kind = nativeExtension;
    handles.push_back(&handle_);
  }
  int kindQuery() const override { return query; }
  int lockCount() const override { return locks_; }
  void unload() override { unloaded = true; }

  int query = nativeExtension;
  bool unloaded = false;

 private:
  struct Handle : Tfh_TESSEL_fn {
    explicit Handle(fl::ustring name) : completeName(std::move(name)) {}
    fl::ustring get_complete_name() const override { return completeName; }
    fl::ustring completeName;
  };
  Handle handle_;
  int locks_;
};

/// A dispatcher whose table a test fills, and which records what it is told.
class RecordingDispatcher : public Tdispatcher {
 public:
  std::vector<LoadedFunctionSet*> table;
  std::vector<fl::ustring> notices;  ///< resource names
  std::vector<int> updates;

  const std::vector<LoadedFunctionSet*>& loadedFunctionSets() const override { return table; }
  Korvane::EventManager& GetPerTVMEventManager() override { return events_; }
  Korvane::PathManager& GetCurrentPathManager() override { return paths_; }

 private:
  struct Events : Korvane::EventManager {
    explicit Events(std::vector<fl::ustring>& list) : names(list) {}
    void upstreamPathEntriesMayHaveChanged(const fl::ustring& name) override { names.push_back(name); }
    std::vector<fl::ustring>& names;
  };
  struct Paths : Korvane::PathManager {
    explicit Paths(std::vector<int>& list) : modes(list) {}
    void update(int mode) override { modes.push_back(mode); }
    std::vector<int>& modes;
  };
  Events events_{notices};
  Paths paths_{updates};
};

}  // namespace zex_test
