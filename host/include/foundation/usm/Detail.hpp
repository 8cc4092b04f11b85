#pragma once

#include <cstddef>

#include "host/visibility.hpp"

namespace foundation::usm {

namespace scope {
/// One virtual machine of the host. The stand-alone host has one for each installed `host::Services`.
struct Tvm;
}  // namespace scope

/// The keyed store of a scope: one record for each key, owned by the store.
template <class Scope>
class Detail;

template <>
class ZEXHOST_API Detail<scope::Tvm> {
 public:
  using Key = std::size_t;
  using Deleter = void (*)(void*);

  /// A key that no one else has. Take it once and keep it.
  static Key getNextID();

  /// The record, or null.
  static void* find(Key key);

  /// Hands `record` over, unless the key has one already: then `record` is deleted. Gives the record in the store.
  static void* findOrInsert(Key key, void* record, Deleter deleter);
};

}  // namespace foundation::usm
