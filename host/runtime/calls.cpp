#include <algorithm>
#include <new>

#include "Call.hpp"
#include "Failure.hpp"
#include "zx/runtime.hpp"

namespace {

/// The texts of this thread's latest failure.
const zxFailure* noted(std::string identifier, std::string message) {
  thread_local std::string texts[2];
  thread_local zxFailure failure;
  texts[0] = std::move(identifier);
  texts[1] = std::move(message);
  failure = {texts[0].c_str(), texts[1].c_str()};
  return &failure;
}

/// Shows the exception in flight as a failure of the extension.
const zxFailure* caught() {
  try {
    throw;
  } catch (const zx::Failure& failure) {
    return noted(failure.identifier(), failure.message());
  } catch (const std::bad_alloc&) {
    return noted("TESSEL:zx:OutOfMemory", "There is not enough memory.");
  } catch (const std::exception& failure) {
    return noted("TESSEL:zx:UncaughtException",
                 std::string("The extension let an exception out: ") + failure.what());
  } catch (...) {
    return noted("TESSEL:zx:UncaughtException", "The extension let an exception out, of a type of its own.");
  }
}

template <class Enter>
const zxFailure* trapped(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[], Enter enter) {
  const int places = std::max(nlhs, 1);
  std::fill_n(plhs, places, nullptr);
  try {
    zx::Call call(nrhs, prhs);
    enter();
    call.handOver(places, plhs);
    return nullptr;
  } catch (...) {
    std::fill_n(plhs, places, nullptr);
    return caught();
  }
}

}  // namespace

const zxFailure* zxCallEntry(zxEntry entry, int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  return trapped(nlhs, plhs, nrhs, prhs, [=] { entry(nlhs, plhs, nrhs, prhs); });
}

const zxFailure* zxCallFortranEntry(zxFortranEntry entry, int nlhs, zxArray* plhs[], int nrhs,
                                    const zxArray* prhs[]) {
  const std::ptrdiff_t outputs = nlhs;
  const std::ptrdiff_t inputs = nrhs;
  return trapped(nlhs, plhs, nrhs, prhs, [&] { entry(&outputs, plhs, &inputs, prhs); });
}
