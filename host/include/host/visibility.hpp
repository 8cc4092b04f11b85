#pragma once

/// Marks what libzexhost shows to the driver and to programs that embed it.
#if defined(_WIN32)
#if defined(ZEXHOST_BUILD)
#define ZEXHOST_API __declspec(dllexport)
#else
#define ZEXHOST_API __declspec(dllimport)
#endif
#else
#define ZEXHOST_API __attribute__((visibility("default")))
#endif
