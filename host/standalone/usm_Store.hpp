#pragma once

#include <vector>

#include "foundation/usm/Detail.hpp"

namespace foundation::usm {

/// The records of one virtual machine.
class Store {
 public:
  using Key = Detail<scope::Tvm>::Key;
  using Deleter = Detail<scope::Tvm>::Deleter;

  Store() = default;
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;
  /// Deletes the records in reverse order of insertion, since a later one may lean on an earlier one.
  ~Store();

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
