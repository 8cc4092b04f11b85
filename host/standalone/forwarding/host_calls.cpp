#include "zx/host_calls.hpp"

#include <algorithm>

#include "host/Services.hpp"

namespace {

constexpr int failed = 1;

}  // namespace

zxArray* zexCallTESSELWithTrap_800(int outputCount, zxArray* outputs[], int inputCount, zxArray* inputs[],
                                   const char* functionName) {
  std::fill_n(outputs, outputCount, nullptr);
  zxArray* const failure = host::services().callFunction(functionName, outputCount, outputs, inputCount, inputs);
  if (failure != nullptr) {
    // A caller who sees a failure does not look for outputs.
    std::for_each(outputs, outputs + outputCount, zxDestroyArray);
    std::fill_n(outputs, outputCount, nullptr);
  }
  return failure;
}

int zexCallTESSEL_800(int outputCount, zxArray* outputs[], int inputCount, zxArray* inputs[],
                      const char* functionName) {
  zxArray* const failure = zexCallTESSELWithTrap_800(outputCount, outputs, inputCount, inputs, functionName);
  zxDestroyArray(failure);
  return failure == nullptr ? 0 : failed;
}
