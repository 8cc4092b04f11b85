#pragma once

#include <exception>
#include <string>
#include <unordered_set>

#include "Array.hpp"

namespace zx {

/// What zexFail throws. It is thrown and caught in this library alone, across the frames of the extension.
class Failure : public std::exception {
 public:
  Failure(std::string identifier, std::string message);
  const char* what() const noexcept override { return message_.c_str(); }
  const std::string& identifier() const { return identifier_; }
  const std::string& message() const { return message_; }

 private:
  std::string identifier_;
  std::string message_;
};

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
