/*
 * What an extension is written against, in C (from C89) and C++ (from C++98). Fortran: zex_fortran.f90 beside it.
 *
 * An extension is a library with one entry point. A first one, scale.c:
 *
 *     #include <zex.h>
 *
 *     void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
 *       const double* x;
 *       double* y;
 *       zxIndex i;
 *
 *       (void)nlhs;
 *       if (nrhs != 2) zexFail("scale:inputs", "scale needs a matrix and a factor, not %d inputs.", nrhs);
 *       x = zxReadReals(prhs[0]);
 *       plhs[0] = zxMake(ZX_REAL, zxRowsOf(prhs[0]), zxColumnsOf(prhs[0]));
 *       y = zxEditReals(plhs[0]);
 *       for (i = 0; i < zxCountOf(prhs[0]); ++i) y[i] = x[i] * zxNumber(prhs[1]);
 *     }
 *
 *     $ zex scale.c
 *     $ zexrun scale.zexa64 "[1 2; 3 4]" 10
 *
 * Arrays. An array has two dimensions, a kind and its elements, column after column: element (r, c), both counted
 * from 0, is at index r + c * rows.
 *
 * Who owns what. Inputs are the caller's: read them, never change or destroy them. What is put into plhs becomes the
 * caller's. Every array that an extension makes lives until zxDestroyArray or the end of the call, whichever is first,
 * unless it is returned; so nothing leaks when a call ends by an error. Pointers to elements live as long as their
 * array. What a thread of the extension's own makes is freed by zxDestroyArray alone.
 *
 * Errors. zexFail ends the call. So does every function here that is used wrongly: a null array, text or pointer to
 * values, another kind than the one asked for, a size that is no size. Their identifiers begin with "TESSEL:zx:". The
 * call is left by unwinding, so destructors of C++ run; C and Fortran are passed over. For this they need unwind
 * tables: compile with -fexceptions, as the shipped compiler documents do. A C++ exception that leaves the entry point
 * ends the call in the same way.
 *
 * Threads. Several may read one array at once, but take the pointers to its elements before you start them: asking for
 * complex elements in another form ends the pointers that were given before, on every thread. An error in a thread of
 * the extension's own has no call to end: it ends the process.
 *
 * Two switches of zex decide what this header gives:
 *
 *   -compatibleArrayDims (ZX_COMPAT_32)       zxIndex has 32 bits instead of 64
 *   -R2018a (TESSEL_ZEXCMD_RELEASE=R2018a)    complex elements are pairs, instead of two arrays of parts
 *
 * An object tells by a record in it for which choice it was compiled; objects of one product must agree.
 */
#ifndef ZEX_H
#define ZEX_H

#include <stddef.h>
#include <stdint.h>

/* --- What was chosen --------------------------------------------------------------------------------------- */

#if defined(TESSEL_ZEXCMD_RELEASE)
#define ZX_RELEASE TESSEL_ZEXCMD_RELEASE
#elif defined(TESSEL_DEFAULT_RELEASE)
#define ZX_RELEASE TESSEL_DEFAULT_RELEASE
#else
#define ZX_RELEASE R2017b
#endif

/* A release is a bare word, which the preprocessor cannot compare: the names of a table are put together with it. An
   entry goes on from `0 &&`. A word that is not in the table is not evaluated there, so -Wundef has nothing to say. */
#define ZX_JOIN_NOW(left, right) left##right
#define ZX_JOIN(left, right) ZX_JOIN_NOW(left, right)
#define ZX_INTERLEAVED_IN_R2018a 0 || 1

#if 0 && ZX_JOIN(ZX_INTERLEAVED_IN_, ZX_RELEASE)
#define ZX_INTERLEAVED_COMPLEX 1
#else
#define ZX_INTERLEAVED_COMPLEX 0
#endif

#if defined(ZX_COMPAT_32) && !defined(ZX_COMPAT_64)
#define ZX_INDEX_BITS 32
#else
#define ZX_INDEX_BITS 64
#endif

/* --- How functions are declared ---------------------------------------------------------------------------- */

#if defined(_WIN32)
#define ZX_EXPORT __declspec(dllexport)
#if defined(ZX_BUILD)
#define ZX_API __declspec(dllexport)
#else
#define ZX_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define ZX_EXPORT __attribute__((visibility("default")))
#define ZX_API __attribute__((visibility("default")))
#else
#define ZX_EXPORT
#define ZX_API
#endif

#if defined(__MINGW32__)
/* Formats are those of C99 everywhere, and not those of the system's own library. */
#define ZX_NEVER_RETURNS __attribute__((noreturn))
#define ZX_LIKE_PRINTF(text, first) __attribute__((format(gnu_printf, text, first)))
#elif defined(__GNUC__)
#define ZX_NEVER_RETURNS __attribute__((noreturn))
#define ZX_LIKE_PRINTF(text, first) __attribute__((format(printf, text, first)))
#elif defined(_MSC_VER)
#define ZX_NEVER_RETURNS __declspec(noreturn)
#define ZX_LIKE_PRINTF(text, first)
#else
#define ZX_NEVER_RETURNS
#define ZX_LIKE_PRINTF(text, first)
#endif

/* Functions with sizes exist for both widths of zxIndex, so that products of both kinds can be loaded at once. */
#if ZX_INDEX_BITS == 32
#define zxMake zxMake_32
#define zxRowsOf zxRowsOf_32
#define zxColumnsOf zxColumnsOf_32
#define zxCountOf zxCountOf_32
#define zxSetImagData zxSetImagData_32
#endif

/* --- Names that are gone ----------------------------------------------------------------------------------- */

/* Nothing declares or defines the marked names, so their use fails, and the failure tells zex which name it was. */
#if !defined(ZEX_DOUBLE_HANDLE)
#define zexGet zexGetIsDeprecated
#define zexSet zexSetIsDeprecated
#endif
#define zexSetTrapFlag zexSetTrapFlagIsDeprecated
#define zxCreateSharedDataCopy zxCreateSharedDataCopyIsDeprecated
#define zxCreateUninitDoubleMatrix zxCreateUninitDoubleMatrixIsDeprecated
#define zxFastZeros zxFastZerosIsDeprecated
#define zxGetPropertyShared zxGetPropertySharedIsDeprecated
#define zxSetPropertyShared zxSetPropertySharedIsDeprecated
#define zxUnreference zxUnreferenceIsDeprecated
#define zxUnshareArray zxUnshareArrayIsDeprecated

#if ZX_INTERLEAVED_COMPLEX
#undef zxSetImagData
#define zxGetPi zxGetPiIsDeprecated
#define zxSetPi zxSetPiIsDeprecated
#define zxGetImagData zxGetImagDataIsDeprecated
#define zxSetImagData zxSetImagDataIsDeprecated
#define zxReadRealPart zxReadRealPart_needs_R2017b
#define zxEditRealPart zxEditRealPart_needs_R2017b
#else
#define zxReadComplexes zxReadComplexes_needs_R2018a
#define zxEditComplexes zxEditComplexes_needs_R2018a
#endif

#if defined(__cplusplus)
extern "C" {
#endif

/* --- Types ------------------------------------------------------------------------------------------------- */

/* A value that is passed between an extension and its caller. */
typedef struct zxArray zxArray;

/* Sizes and positions. Never negative. */
#if ZX_INDEX_BITS == 32
typedef int32_t zxIndex;
#else
typedef int64_t zxIndex;
#endif

/* One UTF-16 code unit. */
#if defined(__cplusplus) && __cplusplus >= 201103L
typedef char16_t zxUnit;
#else
typedef uint16_t zxUnit;
#endif

/* An element of a complex array, laid out like `double _Complex` and std::complex<double>. */
typedef struct zxComplex {
  double re;
  double im;
} zxComplex;

typedef enum zxKind {
  ZX_REAL = 1,    /* double */
  ZX_COMPLEX = 2, /* zxComplex, or two arrays of double */
  ZX_INT8 = 3,    /* int8_t, and so on */
  ZX_INT16 = 4,
  ZX_INT32 = 5,
  ZX_INT64 = 6,
  ZX_UINT8 = 7,
  ZX_UINT16 = 8,
  ZX_UINT32 = 9,
  ZX_UINT64 = 10,
  ZX_LOGICAL = 11, /* unsigned char: 0 or 1 */
  ZX_TEXT = 12,    /* one row of UTF-16 code units */
  ZX_OTHER = 13    /* an object of the host; nothing here reads it */
} zxKind;

/* --- Making and ending arrays ------------------------------------------------------------------------------ */

/* Elements are 0. Any kind but ZX_TEXT and ZX_OTHER. */
ZX_API zxArray* zxMake(zxKind kind, zxIndex rows, zxIndex columns);
/* One real number. */
ZX_API zxArray* zxMakeReal(double value);
/* A text from UTF-8; what is not well formed becomes U+FFFD. Ends at the first 0. */
ZX_API zxArray* zxCreateString(const char* text);
ZX_API zxArray* zxCreateString_UTF16(const zxUnit* text);
/* An array of its own with the same content; not of ZX_OTHER. */
ZX_API zxArray* zxCopy(const zxArray* array);
/* Null is allowed; an input of the call is not. */
ZX_API void zxDestroyArray(zxArray* array);

/* --- Asking ------------------------------------------------------------------------------------------------ */

ZX_API zxKind zxKindOf(const zxArray* array);
ZX_API int zxIsComplex(const zxArray* array);
ZX_API zxIndex zxRowsOf(const zxArray* array);
ZX_API zxIndex zxColumnsOf(const zxArray* array);
/* Rows times columns. */
ZX_API zxIndex zxCountOf(const zxArray* array);

/* --- Elements ---------------------------------------------------------------------------------------------- */

/* Each comes in two: "Read" for any array, "Edit" for those that the extension made. Null for an array without
   elements. */

/* The elements of a ZX_REAL array. */
ZX_API const double* zxReadReals(const zxArray* array);
ZX_API double* zxEditReals(zxArray* array);
/* The elements of an array of the kind told, which is neither ZX_COMPLEX, ZX_TEXT nor ZX_OTHER. */
ZX_API const void* zxReadData(const zxArray* array, zxKind kind);
ZX_API void* zxEditData(zxArray* array, zxKind kind);

/* The one element of a real, integer or logical array, as a double. An integer beyond 2^53 is rounded. */
ZX_API double zxNumber(const zxArray* array);
/* A text, ended by a 0 that is not counted; UTF-8, or UTF-16 with zxCountOf units. */
ZX_API const char* zxReadText(const zxArray* array);
ZX_API const zxUnit* zxReadText_UTF16(const zxArray* array);

/*
 * Complex elements. An array keeps them in one of two forms, pairs or parts. If the other one is asked for than the
 * one that it has, as for an array made by an extension of the other release, they are rearranged: one pass over the
 * elements and, meanwhile, twice the memory. Pointers from before are invalid then. Objects of C and C++ in a product
 * agree on the release, so among them nothing is rearranged twice. Fortran takes pairs always: beside objects of
 * another release than R2018a, an array is rearranged each time that it passes from one language to the other.
 */
#if ZX_INTERLEAVED_COMPLEX
ZX_API const zxComplex* zxReadComplexes(const zxArray* array);
ZX_API zxComplex* zxEditComplexes(zxArray* array);
#else
/* The real parts of a complex array. */
ZX_API const double* zxReadRealPart(const zxArray* array);
ZX_API double* zxEditRealPart(zxArray* array);
/* The imaginary parts, to read; null for a ZX_REAL array. */
ZX_API const double* zxGetPi(const zxArray* array);
/* Copies all imaginary parts in. A ZX_REAL array becomes complex, and pointers to its elements invalid. */
ZX_API void zxSetPi(zxArray* array, const double* values);
/* The imaginary parts, to change in place. A ZX_REAL array becomes complex, with parts of 0, as above. */
ZX_API double* zxGetImagData(zxArray* array);
/* Copies `count` imaginary parts in, from index `first` on. A ZX_REAL array becomes complex, as above. */
ZX_API void zxSetImagData(zxArray* array, zxIndex first, zxIndex count, const double* values);
#endif

/* --- Talking to the user ----------------------------------------------------------------------------------- */

/* Prints where the host prints. */
ZX_API void zexPrintf(const char* format, ...) ZX_LIKE_PRINTF(1, 2);
/* Ends the call with an error. An identifier is words joined by colons, the extension's name first. */
ZX_NEVER_RETURNS ZX_API void zexFail(const char* identifier, const char* format, ...) ZX_LIKE_PRINTF(2, 3);

#if !defined(ZX_HOST) /* A program that calls extensions is none itself. */

/*
 * The entry point, which the extension defines. `nrhs` inputs are in `prhs`; `nlhs` outputs are asked for, and their
 * places in `plhs` are null at the start. There is a place for the first output also where none is asked for; a host
 * may show what is put there.
 */
ZX_EXPORT void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]);

/* --- The record in the object ------------------------------------------------------------------------------ */

#define ZX_QUOTED_NOW(text) #text
#define ZX_QUOTED(text) ZX_QUOTED_NOW(text)

/* Nothing refers to the record: "used" keeps it from the compiler, "retain" from the linker. */
#if defined(__GNUC__) && defined(__has_attribute)
#if defined(__ELF__) && __has_attribute(retain)
#define ZX_KEPT __attribute__((used, retain))
#endif
#endif
#if !defined(ZX_KEPT)
#if defined(__GNUC__)
#define ZX_KEPT __attribute__((used))
#else
#define ZX_KEPT
#endif
#endif

static const char zex_source_record[] ZX_KEPT =
    "@(#)zex-record form=1 kind=source release=" ZX_QUOTED(ZX_RELEASE) " dims=" ZX_QUOTED(ZX_INDEX_BITS) ";";

#endif

#if defined(__cplusplus)
}
#endif

#endif
