/*
 * The types of generated block code, by size. Of the two headers zimstruc.h comes first: sources that have them the
 * other way round are old ones, which take sizes for 32 bits. ZX_COMPAT_32 admits such sources, so the order is free
 * under it, also where ZX_COMPAT_64 keeps sizes at 64 bits.
 */
#ifndef TZWTYPES_H
#define TZWTYPES_H

#include <stdint.h>

typedef int8_t int8_Z;
typedef int16_t int16_Z;
typedef int32_t int32_Z;
typedef int64_t int64_Z;
typedef uint8_t uint8_Z;
typedef uint16_t uint16_Z;
typedef uint32_t uint32_Z;
typedef uint64_t uint64_Z;
typedef unsigned char boolean_Z;
typedef float real32_Z;
typedef double real_Z;

/* Alone, this header is no mistake: only a later zimstruc.h makes it one. */
#if !defined(ZIM_SIZES_ARE_SETTLED) && !defined(ZX_COMPAT_32)
#define ZIM_TYPES_CAME_FIRST
#endif

#endif
