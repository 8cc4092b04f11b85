#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dispatcher/Tdispatcher.hpp"

namespace zex_test {

/// One loaded file of a recording dispatcher.
class RecordedSet : public LoadedFunctionSet, Tfh_TESSEL_fn {
 public:
  RecordedSet(fl::ustring completeName, int locks) : completeName_(std::move(completeName)), locks_(locks) {
    kind = nativeExtension;
    handles.push_back(this);
  }
  int kindQuery() const override { return query; }
  int lockCount() const override { return locks_; }
  void unload() override { unloaded = true; }

  int query = nativeExtension;
  bool unloaded = false;

 private:
  fl::ustring get_complete_name() const override { return completeName_; }

  fl::ustring completeName_;
  int locks_;
};

/// A dispatcher whose table a test fills, and which records what it is told.
class RecordingDispatcher : public Tdispatcher, Korvane::EventManager, Korvane::PathManager {
 public:
  std::vector<LoadedFunctionSet*> table;
  std::vector<fl::ustring> notices;  ///< resource names
  std::vector<int> updates;

  const std::vector<LoadedFunctionSet*>& loadedFunctionSets() const override { return table; }
  EventManager& GetPerTVMEventManager() override { return *this; }
  PathManager& GetCurrentPathManager() override { return *this; }

 private:
  void upstreamPathEntriesMayHaveChanged(const fl::ustring& name) override { notices.push_back(name); }
  void update(int mode) override { updates.push_back(mode); }
};

}  // namespace zex_test
