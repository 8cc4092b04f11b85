#pragma once

#include <vector>

#include "foundation/usm/Detail.hpp"

namespace foundation::usm {

/// The records of one virtual machine.
class KeyedStore {
 public:
  using Key = Detail<scope::Tvm>::Key;
  using Deleter = Detail<scope::Tvm>::Deleter;

  KeyedStore() = default;
  KeyedStore(const KeyedStore&) = delete;
  KeyedStore& operator=(const KeyedStore&) = delete;
  /// Deletes the records in reverse order of insertion, since a later one may lean on an earlier one.
  ~KeyedStore();

  void* find(Key key) const;
  void* findOrInsert(Key key, void* record, Deleter deleter);

 private:
  struct Entry {
    Key key;
    void* record;
    Deleter deleter;
  };
  std::vector<Entry> entries_;
};

}  // namespace foundation::usm
