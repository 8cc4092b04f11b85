#pragma once

/// Marks what libzx shows to hosts of extensions.
#if defined(_WIN32)
#if defined(ZX_BUILD)
#define ZX_HOST_API __declspec(dllexport)
#else
#define ZX_HOST_API __declspec(dllimport)
#endif
#else
#define ZX_HOST_API __attribute__((visibility("default")))
#endif

/// A value of the host, owned by whoever made or received it until `zxDestroyArray`.
struct zxArray;

extern "C" {
ZX_HOST_API zxArray* zxCreateString(const char* text);  ///< UTF-8
ZX_HOST_API zxArray* zxCreateString_UTF16(const char16_t* text);
ZX_HOST_API void zxDestroyArray(zxArray* array);  ///< null is allowed
}
