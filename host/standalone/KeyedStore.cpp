#include "standalone/KeyedStore.hpp"

#include <algorithm>

namespace foundation::usm {

KeyedStore::~KeyedStore() {
  while (!entries_.empty()) {
    const Entry last = entries_.back();
    // Out of the list first, so that a deleter that looks the store up does not meet a record half gone.
    entries_.pop_back();
    last.deleter(last.record);
  }
}

void* KeyedStore::find(Key key) const {
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [key](const Entry& entry) { return entry.key == key; });
  return found == entries_.end() ? nullptr : found->record;
}

void* KeyedStore::findOrInsert(Key key, void* record, Deleter deleter) {
  if (void* present = find(key)) {
    deleter(record);
    return present;
  }
  entries_.push_back({key, record, deleter});
  return record;
}

}  // namespace foundation::usm
