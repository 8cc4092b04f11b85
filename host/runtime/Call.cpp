#include "Call.hpp"

#include <algorithm>
#include <utility>

namespace zx {

namespace {

thread_local Call* innermost = nullptr;

}  // namespace

Call::Call(int inputCount, const zxArray* const* inputs)
    : outer_(std::exchange(innermost, this)), inputCount_(inputCount), inputs_(inputs) {}

Call::~Call() {
  innermost = outer_;
  for (zxArray* array : made_) delete array;
}

Call* Call::current() {
  return innermost;
}

void Call::add(zxArray* array) {
  made_.insert(array);
  array->call = this;
}

bool Call::isInput(const zxArray* array) const {
  return std::find(inputs_, inputs_ + inputCount_, array) != inputs_ + inputCount_;
}

void Call::handOver(int placeCount, zxArray* const* outputs) {
  // First look, then take: a failure leaves all of them to this call.
  std::unordered_set<zxArray*> returned;
  for (int place = 0; place < placeCount; ++place) {
    zxArray* const array = outputs[place];
    if (array == nullptr) continue;
    if (!made_.contains(array) || !returned.insert(array).second) {
      zexFail("TESSEL:zx:ForeignOutput",
              "Output %d is an input, another output or no array of this call. Return a copy, made by zxCopy.",
              place + 1);
    }
  }
  for (zxArray* array : returned) {
    made_.erase(array);
    array->call = nullptr;
  }
}

}  // namespace zx
