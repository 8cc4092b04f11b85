#if __has_include("value.h")
#include "value.h"
#endif
#ifndef VALUE
#define VALUE 42
#endif

void zexFunction(long long* answer) { *answer = VALUE; }
