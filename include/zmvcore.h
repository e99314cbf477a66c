/* libzmvcore, the companion core library: the few services of the system that zmvIP uses.
   All of them may be called from any thread.
   SPDX-License-Identifier: Apache-2.0 */
#ifndef ZMVCORE_H
#define ZMVCORE_H

#include "zmvip_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A block of at least sizeBytes bytes that starts at a multiple of 64; null for a size below 1 or when memory
   runs out.  Released by zmvFree. */
ZMV_API void* zmvMalloc(int sizeBytes);
ZMV_API void* zmvMalloc_L(int64_t sizeBytes);

/* Releases a block of zmvMalloc or zmvMalloc_L; null is accepted and does nothing. */
ZMV_API void zmvFree(void* ptr);

/* Writes the size in bytes of the largest cache that one core reaches, as the processor itself describes it
   (at most 2147483647).  STATUS_NULL_POINTER for a null pointer; STATUS_NO_OPERATION, a non-zero value with 0 written,
   when the processor describes no cache.  The processor is asked once, when the library is loaded. */
ZMV_API StatusCode zmvGetMaxCacheSizeB(int* sizeBytes);

/* Non-zero when the processor, and the operating system where that matters, has every feature of the mask. */
ZMV_API int ownGetFeature(uint64_t mask);

/* The bits of the feature mask. */
#define ZMV_FEATURE_SSE3 0x00000001u
#define ZMV_FEATURE_SSSE3 0x00000002u
#define ZMV_FEATURE_SSE41 0x00000004u
#define ZMV_FEATURE_SSE42 0x00000008u
#define ZMV_FEATURE_AVX 0x00000010u
#define ZMV_FEATURE_AVX2 0x00000020u
#define ZMV_FEATURE_FMA 0x00000040u
#define ZMV_FEATURE_AVX512 0x00000080u      /* F, BW, CD, DQ and VL together */
#define ZMV_FEATURE_WIDE_FILTER 0x08000000u /* 64-byte vectors: the general filter wants a larger work buffer */

#ifdef __cplusplus
}
#endif

#endif
