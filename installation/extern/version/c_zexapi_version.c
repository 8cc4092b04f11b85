/*
 * Compiled into every product that `zex` links, so that the product tells how it was built. README.md beside this
 * file describes the record. The macros come from the driver; the text must stay readable in any object format, so
 * it is one constant, and exported, so that no optimiser or linker may drop it.
 */

#if defined(_WIN32)
#define ZEXAPI_EXPORT __declspec(dllexport)
#elif defined(__GNUC__)
#define ZEXAPI_EXPORT __attribute__((visibility("default")))
#else
#define ZEXAPI_EXPORT
#endif

#define ZEXAPI_LITERAL(text) #text
#define ZEXAPI_TEXT(macro) ZEXAPI_LITERAL(macro)

#if defined(TESSEL_ZEXCMD_RELEASE)
#define ZEXAPI_RELEASE ZEXAPI_TEXT(TESSEL_ZEXCMD_RELEASE)
#elif defined(TESSEL_DEFAULT_RELEASE)
#define ZEXAPI_RELEASE ZEXAPI_TEXT(TESSEL_DEFAULT_RELEASE)
#else
#define ZEXAPI_RELEASE "none"
#endif

#if defined(ZX_COMPAT_32)
#define ZEXAPI_DIMS "32"
#else
#define ZEXAPI_DIMS "64"
#endif

#if defined(USE_ZEX_CMD)
#define ZEXAPI_CMD "1"
#else
#define ZEXAPI_CMD "0"
#endif

#if defined(__cplusplus)
extern "C" {
#endif

extern ZEXAPI_EXPORT const char zexapi_version_record[];

const char zexapi_version_record[] =
    "@(#)zex-record form=1 kind=driver release=" ZEXAPI_RELEASE " dims=" ZEXAPI_DIMS " cmd=" ZEXAPI_CMD ";";

#if defined(__cplusplus)
}
#endif
