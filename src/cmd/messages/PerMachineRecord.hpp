#pragma once

#include "foundation/usm/Detail.hpp"

namespace zex_cmd {

/// The one `Record` of the host's present virtual machine, made at the first call. It outlives commands and is
/// released by the host's keyed store when the machine goes away.
template <class Record>
Record& perMachineRecord() {
  using Store = foundation::usm::Detail<foundation::usm::scope::Tvm>;
  static const Store::Key key = Store::getNextID();
  void* record = Store::find(key);
  if (record == nullptr) {
    record = Store::findOrInsert(key, new Record, [](void* old) { delete static_cast<Record*>(old); });
  }
  return *static_cast<Record*>(record);
}

}  // namespace zex_cmd
