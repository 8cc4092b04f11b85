// The record of a C++ product is the one of a C product.
#include "c_zexapi_version.c"
