/*
 * The signals of a block-diagram function. Of the two headers this one comes first; see tzwtypes.h.
 */
#ifndef ZIMSTRUC_H
#define ZIMSTRUC_H

#if defined(ZIM_TYPES_CAME_FIRST)
/* zex looks for this word in what the compiler prints, and compiles once more with ZX_COMPAT_32. Sizes have 32 bits
   then, unless a switch asks for 64: -largeArrayDims, -R2018a. */
#error "tzwtypesbeforezimstrucdetected: include zimstruc.h ahead of tzwtypes.h"
#endif

#include "zex.h"

/* Tells tzwtypes.h that sizes are settled. */
#define ZIM_SIZES_ARE_SETTLED

#include "tzwtypes.h"

/* One port of a block: a signal of `width` elements in the caller's memory. */
typedef struct zimPort {
  zxIndex width;
  real_Z* values;
} zimPort;

/* What a block is called with at each step. */
typedef struct zimBlock {
  real_Z time;
  int32_Z inputCount;
  int32_Z outputCount;
  const zimPort* inputs;
  zimPort* outputs;
  void* state; /* the block's own, kept from step to step */
} zimBlock;

#endif
