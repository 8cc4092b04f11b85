#pragma once

#include <unordered_set>

#include "Array.hpp"

namespace zx {

/// One call of an extension: frees at its end what the extension made and did not return. Calls of one thread
/// nest.
class Call {
 public:
  Call(int inputCount, const zxArray* const* inputs);
  ~Call();
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;

  /// The innermost call of this thread, or null.
  static Call* current();

  void add(zxArray* array);
  void drop(zxArray* array) { made_.erase(array); }
  bool isInput(const zxArray* array) const;

  /// Makes outputs the caller's. Fails where one is no array that was made in this call, or comes twice.
  void handOver(int placeCount, zxArray* const* outputs);

 private:
  Call* outer_;
  int inputCount_;
  const zxArray* const* inputs_;
  std::unordered_set<zxArray*> made_;
};

}  // namespace zx
