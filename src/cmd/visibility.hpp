#pragma once

/// Marks the few names that libzexcmd shows.
#if defined(_WIN32)
#if defined(ZEXCMD_BUILD)
#define ZEXCMD_API __declspec(dllexport)
#else
#define ZEXCMD_API __declspec(dllimport)
#endif
#else
#define ZEXCMD_API __attribute__((visibility("default")))
#endif
