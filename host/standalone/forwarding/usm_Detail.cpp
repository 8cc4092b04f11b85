#include <atomic>

#include "foundation/usm/Detail.hpp"
#include "host/Services.hpp"
#include "standalone/KeyedStore.hpp"

namespace foundation::usm {

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
