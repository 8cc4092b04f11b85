#pragma once

#include <cstddef>

#include "zx/zxArray.hpp"

/// The host's side of the runtime library of extensions, libzx; the extensions' side is extern/include/zex.h.
extern "C" {

using zxEntry = void (*)(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]);
/// The entry point of a Fortran extension: counts have the size of a pointer and come by reference.
using zxFortranEntry = void (*)(const std::ptrdiff_t* nlhs, zxArray* plhs[], const std::ptrdiff_t* nrhs,
                                const zxArray* prhs[]);

/// How a call ended. Texts are UTF-8 and live until the thread's next call.
struct zxFailure {
  const char* identifier;
  const char* message;
};

/// Calls an entry point. `plhs` has max(nlhs, 1) places; what is there afterwards is the caller's. The inputs stay
/// the caller's. What the extension made and did not return is freed. Gives null where all went well; otherwise
/// all places are null.
ZX_API const zxFailure* zxCallEntry(zxEntry entry, int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]);
ZX_API const zxFailure* zxCallFortranEntry(zxFortranEntry entry, int nlhs, zxArray* plhs[], int nrhs,
                                           const zxArray* prhs[]);

/// Receives what extensions print.
using zxWriter = void (*)(const char* text, std::size_t length);
/// Null stands for standard output, which is in force at the start.
ZX_API void zxSetWriter(zxWriter writer);

/// A value that is an object of the host; `destroy` ends it with the array. The two belong together in a process:
/// whoever asks for the object has to know what it is.
ZX_API zxArray* zxWrapObject(void* object, void (*destroy)(void* object));
/// The object; null for any other value.
ZX_API void* zxWrappedObject(const zxArray* array);
}
