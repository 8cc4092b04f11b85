#pragma once

#include "host/visibility.hpp"
#include "zx/zxArray.hpp"

/// Calls a function of the host by name. The inputs stay the caller's; `outputs` receives `outputCount` values,
/// null where the function gave none, which become the caller's. Gives 0, or a failure's number.
ZEXHOST_API int zexCallTESSEL_800(int outputCount, zxArray* outputs[], int inputCount, zxArray* inputs[],
                                  const char* functionName);

/// The same, but a failure comes back as the host's exception object, which becomes the caller's; null where all
/// went well.
ZEXHOST_API zxArray* zexCallTESSELWithTrap_800(int outputCount, zxArray* outputs[], int inputCount,
                                               zxArray* inputs[], const char* functionName);
