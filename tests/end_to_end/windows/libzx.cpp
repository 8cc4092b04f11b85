// Stands in for the run-time library of Windows: enough of it to end a call by an error.
#include <zex.h>

void zexFail(const char* identifier, const char*, ...) {
  throw identifier;
}

extern "C" ZX_API void zex_fail_() {
  throw "from Fortran";
}
