#pragma once

/// ZEXCMD_API marks the few names that libzexcmd shows. ZEXCMD_TYPE marks types whose run-time type information
/// every shared object must agree on, so that an exception is caught by its type wherever it comes from.
#if defined(_WIN32)
#if defined(ZEXCMD_BUILD)
#define ZEXCMD_API __declspec(dllexport)
#else
#define ZEXCMD_API __declspec(dllimport)
#endif
#else
#define ZEXCMD_API __attribute__((visibility("default")))
#endif

#if defined(_WIN32)
#define ZEXCMD_TYPE
#else
#define ZEXCMD_TYPE __attribute__((visibility("default")))
#endif
