#pragma once

/// Values of the host: `zxArray`, `zxCreateString`, `zxCreateString_UTF16`, `zxDestroyArray` and the rest of what
/// extensions and hosts share. The macro ZX_HOST, which comes with this contract, keeps the record and the entry
/// point of an extension out.
#include "zex.h"
