#include "standalone/usm_Store.hpp"

#include <algorithm>
#include <atomic>

#include "host/Services.hpp"

namespace foundation::usm {

Store::~Store() {
  while (!entries_.empty()) {
    const Entry last = entries_.back();
    // Out of the list first, so that a deleter that looks the store up does not meet a record half gone.
    entries_.pop_back();
    last.deleter(last.record);
  }
}

void* Store::find(Key key) const {
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [key](const Entry& entry) { return entry.key == key; });
  return found == entries_.end() ? nullptr : found->record;
}

void* Store::findOrInsert(Key key, void* record, Deleter deleter) {
  if (void* present = find(key)) {
    deleter(record);
    return present;
  }
  entries_.push_back({key, record, deleter});
  return record;
}

Detail<scope::Tvm>::Key Detail<scope::Tvm>::getNextID() {
  static std::atomic<Key> last = 0;
  return ++last;
}

void* Detail<scope::Tvm>::find(Key key) {
  return host::services().store().find(key);
}

void* Detail<scope::Tvm>::findOrInsert(Key key, void* record, Deleter deleter) {
  return host::services().store().findOrInsert(key, record, deleter);
}

}  // namespace foundation::usm
