#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dispatcher/Tdispatcher.hpp"

namespace zex_test {

/// One loaded file of a recording dispatcher.
struct RecordedSet : LoadedFunctionSet, Tfh_TESSEL_fn {
  RecordedSet(fl::ustring completeName, int locks) : name(std::move(completeName)), lockedTimes(locks) {
    kind = nativeExtension;
    handles.push_back(this);
  }
  int kindQuery() const override { return query; }
  int lockCount() const override { return lockedTimes; }
  void unload() override { unloaded = true; }
  fl::ustring get_complete_name() const override { return name; }

  fl::ustring name;
  int lockedTimes;
  int query = nativeExtension;
  bool unloaded = false;
};

/// A dispatcher whose table a test fills, and which records what it is told.
struct RecordingDispatcher : Tdispatcher, Korvane::EventManager, Korvane::PathManager {
  const std::vector<LoadedFunctionSet*>& loadedFunctionSets() const override { return table; }
  EventManager& GetPerTVMEventManager() override { return *this; }
  PathManager& GetCurrentPathManager() override { return *this; }
  void upstreamPathEntriesMayHaveChanged(const fl::ustring& name) override { notices.push_back(name); }
  void update(int mode) override { updates.push_back(mode); }

  std::vector<LoadedFunctionSet*> table;
  std::vector<fl::ustring> notices;  ///< resource names
  std::vector<int> updates;
};

}  // namespace zex_test
