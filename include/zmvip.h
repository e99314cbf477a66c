/* zmvIP: image-processing primitives.  Every function, under the banner of its family.

   An image is a pointer to the first pixel of the region and a step, the distance from row to row in bytes.
   Sizes are in pixels.  Names end in the element types (8u 16u 16s 32s 32f 64f), the layout (C1 C3 C4:
   channels; AC4: four, of which the last is left alone; P3 P4: planes) and letters: I in place, M masked,
   R region of interest, _L 64-bit sizes.  Functions return STATUS_OK, a negative error (the first check that
   failed; nothing was written) or a positive warning.  Any of them may run in any number of threads that do
   not write the same memory.

   Printed by tools/header.cpp from src/families.def; change those.
   SPDX-License-Identifier: Apache-2.0 */
#ifndef ZMVIP_H
#define ZMVIP_H

#include "zmvip_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* zmviMalloc: Memory for a width x height image whose rows start at multiples of 64 bytes.
   Writes the step in bytes to stepOut and returns the first pixel, or null: when stepOut is null, a size is not
   positive, the row or the image does not fit the argument types, or memory runs out.  stepOut is then 0, or the step
   if that was known before the whole image turned out too large.  Contents are not initialised.
   src/core/pialloc.cpp */
ZMV_API uint8_t* zmviMalloc_8u_C1(int width, int height, int* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_C1_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_C2(int width, int height, int* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_C2_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_C3(int width, int height, int* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_C3_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_C4(int width, int height, int* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_C4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_AC4(int width, int height, int* stepOut);
ZMV_API uint8_t* zmviMalloc_8u_AC4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C1(int width, int height, int* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C1_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C2(int width, int height, int* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C2_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C3(int width, int height, int* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C3_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C4(int width, int height, int* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_C4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_AC4(int width, int height, int* stepOut);
ZMV_API uint16_t* zmviMalloc_16u_AC4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C1(int width, int height, int* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C1_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C2(int width, int height, int* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C2_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C3(int width, int height, int* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C3_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C4(int width, int height, int* stepOut);
ZMV_API int16_t* zmviMalloc_16s_C4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int16_t* zmviMalloc_16s_AC4(int width, int height, int* stepOut);
ZMV_API int16_t* zmviMalloc_16s_AC4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C1(int width, int height, int* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C1_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C2(int width, int height, int* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C2_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C3(int width, int height, int* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C3_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C4(int width, int height, int* stepOut);
ZMV_API int32_t* zmviMalloc_32s_C4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API int32_t* zmviMalloc_32s_AC4(int width, int height, int* stepOut);
ZMV_API int32_t* zmviMalloc_32s_AC4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API float* zmviMalloc_32f_C1(int width, int height, int* stepOut);
ZMV_API float* zmviMalloc_32f_C1_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API float* zmviMalloc_32f_C2(int width, int height, int* stepOut);
ZMV_API float* zmviMalloc_32f_C2_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API float* zmviMalloc_32f_C3(int width, int height, int* stepOut);
ZMV_API float* zmviMalloc_32f_C3_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API float* zmviMalloc_32f_C4(int width, int height, int* stepOut);
ZMV_API float* zmviMalloc_32f_C4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API float* zmviMalloc_32f_AC4(int width, int height, int* stepOut);
ZMV_API float* zmviMalloc_32f_AC4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C1(int width, int height, int* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C1_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C2(int width, int height, int* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C2_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C3(int width, int height, int* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C3_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C4(int width, int height, int* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_C4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_AC4(int width, int height, int* stepOut);
ZMV_API Complex32s* zmviMalloc_32sc_AC4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C1(int width, int height, int* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C1_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C2(int width, int height, int* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C2_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C3(int width, int height, int* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C3_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C4(int width, int height, int* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_C4_L(int64_t width, int64_t height, int64_t* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_AC4(int width, int height, int* stepOut);
ZMV_API Complex32f* zmviMalloc_32fc_AC4_L(int64_t width, int64_t height, int64_t* stepOut);

/* zmviFree: Releases an image of zmviMalloc; null is accepted and does nothing.
   src/core/pialloc.cpp */
ZMV_API void zmviFree(void* ptr);

/* zmviGetLibVersion: The version record of the loaded build; the same pointer on every call, never freed.
   cpuTag names it: the loader picks the best one where the library is opened by its name, libzmvip.so.1; a full path
   opens what lies there, in lib the build for SSE3.
   Beside it: the NaN and the infinity that relative norms give for a zero denominator.
   src/core/piver.cpp */
ZMV_API const LibraryVersion* zmviGetLibVersion(void);
extern ZMV_API const double zmvConstantOfNAN_64f;
extern ZMV_API const double zmvConstantOfINF_64f;

/* zmviCopy: dst = src, all bits kept, in every layout that needs no arithmetic.
     C1R C3R C4R       whole pixels
     AC4R              channels 1 to 3; the fourth of dst stays as it was
     C1MR .. AC4MR     only pixels whose byte in mask, a one-channel 8-bit image, is not zero
     C3CR C4CR         one channel to one channel: src and dst point at the channel inside the first pixel
     C3C1R C4C1R       one channel out of each pixel: src points at it
     C1C3R C1C4R       into one channel of each pixel: dst points at it
     C3AC4R AC4C3R     three channels into or out of four-channel pixels; the fourth of dst stays as it was
     C3P3R .. P4C4R    between pixels and an array of three or four planes that share one step
   In place: src == dst is allowed where both have one layout (it changes nothing).  Where src and dst otherwise
   overlap, the result of whole-pixel and masked copies is undefined; all other copies and AC4R then work pixel by
   pixel, top to bottom and left to right, each reading what the ones before it wrote.
   Whole copies of more than 1 MiB, and planar ones (of 8u only P4C4R) that read and write more than the largest cache
   holds, are written past the caches.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane or mask is null.  STATUS_BAD_SIZE: width or height
   below 1.
   src/datamove/picopyca.cpp */
ZMV_API StatusCode zmviCopy_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_AC4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_8u_C1MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_8u_C3MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_8u_C4MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_8u_AC4MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_8u_C3CR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C4CR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C3C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C4C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C1C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C1C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C3AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_AC4C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C3P3R(const uint8_t* src, int srcStep, uint8_t* const dst[3], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_C4P4R(const uint8_t* src, int srcStep, uint8_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_P3C3R(const uint8_t* const src[3], int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_8u_P4C4R(const uint8_t* const src[4], int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C1R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C3R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_AC4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16s_C1MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16s_C3MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16s_C4MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16s_AC4MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16s_C3CR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C4CR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C3C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C4C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C1C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C1C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C3AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_AC4C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C3P3R(const int16_t* src, int srcStep, int16_t* const dst[3], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_C4P4R(const int16_t* src, int srcStep, int16_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_P3C3R(const int16_t* const src[3], int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16s_P4C4R(const int16_t* const src[4], int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_AC4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_16u_C1MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16u_C3MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16u_C4MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16u_AC4MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_16u_C3CR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C4CR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C3C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C4C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C1C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C1C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C3AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_AC4C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C3P3R(const uint16_t* src, int srcStep, uint16_t* const dst[3], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_C4P4R(const uint16_t* src, int srcStep, uint16_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_P3C3R(const uint16_t* const src[3], int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_16u_P4C4R(const uint16_t* const src[4], int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C1R_L(const int32_t* src, int64_t srcStep, int32_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C3R_L(const int32_t* src, int64_t srcStep, int32_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C4R_L(const int32_t* src, int64_t srcStep, int32_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32s_AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_AC4R_L(const int32_t* src, int64_t srcStep, int32_t* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32s_C1MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32s_C3MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32s_C4MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32s_AC4MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32s_C3CR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C4CR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C3C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C4C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C1C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C1C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C3AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_AC4C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C3P3R(const int32_t* src, int srcStep, int32_t* const dst[3], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_C4P4R(const int32_t* src, int srcStep, int32_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_P3C3R(const int32_t* const src[3], int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32s_P4C4R(const int32_t* const src[4], int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_AC4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviCopy_32f_C1MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32f_C3MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32f_C4MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32f_AC4MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviCopy_32f_C3CR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C4CR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C3C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C4C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C1C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C1C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C3AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_AC4C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C3P3R(const float* src, int srcStep, float* const dst[3], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_C4P4R(const float* src, int srcStep, float* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_P3C3R(const float* const src[3], int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviCopy_32f_P4C4R(const float* const src[4], int srcStep, float* dst, int dstStep, ImageSize roiSize);

/* zmviCopyManaged: dst = src with a say in the caches: bit 0 of flags set writes past them, no other bit matters.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   src/datamove/picopymng.cpp */
ZMV_API StatusCode zmviCopyManaged_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int flags);

/* zmviDup: Every channel of dst = src, a one-channel image.
   Overlapping images are worked pixel by pixel, top to bottom and left to right.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   src/datamove/picopyca.cpp */
ZMV_API StatusCode zmviDup_8u_C1C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDup_8u_C1C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);

/* zmviSet: dst = value in every pixel: one value, or a pointer to one value a channel (three for C3 and AC4, four for
   C4).
   AC4 leaves the fourth channel as it was; C3CR and C4CR set the one channel that dst points at; the M forms set only
   pixels whose byte in mask, a one-channel 8-bit image, is not zero.
   C1R, C3R and C4R regions larger than the cache are written past it.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: dst, value or mask is null.  STATUS_BAD_SIZE: width or height below 1.
   src/datamove/piset.cpp */
ZMV_API StatusCode zmviSet_8u_C1R(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_8u_C3R(const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_8u_C4R(const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_8u_AC4R(const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_8u_C1MR(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_8u_C3MR(const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_8u_C4MR(const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_8u_AC4MR(const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_8u_C3CR(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_8u_C4CR(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16s_C1R(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16s_C3R(const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16s_C4R(const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16s_AC4R(const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16s_C1MR(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16s_C3MR(const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16s_C4MR(const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16s_AC4MR(const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16s_C3CR(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16s_C4CR(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16u_C1R(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16u_C3R(const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16u_C4R(const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16u_AC4R(const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16u_C1MR(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16u_C3MR(const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16u_C4MR(const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16u_AC4MR(const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_16u_C3CR(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_16u_C4CR(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32s_C1R(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32s_C3R(const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32s_C4R(const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32s_AC4R(const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32s_C1MR(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32s_C3MR(const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32s_C4MR(const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32s_AC4MR(const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32s_C3CR(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32s_C4CR(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32f_C1R(float value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32f_C3R(const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32f_C4R(const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32f_AC4R(const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32f_C1MR(float value, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32f_C3MR(const float* value, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32f_C4MR(const float* value, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32f_AC4MR(const float* value, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
ZMV_API StatusCode zmviSet_32f_C3CR(float value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSet_32f_C4CR(float value, float* dst, int dstStep, ImageSize roiSize);

/* zmviCopyConstBorder: srcRoiSize pixels of src go to dst at column left, row top; the frame round them up to
   dstRoiSize is filled.
   In place (IR): srcDst points at the source region inside the larger image; only the frame is written.
   The frame takes value: one value, or a pointer to one value a channel (three for C3 and AC4).
   AC4 leaves the fourth channel as it was, inside and in the frame.  src and dst must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: a size below 1, then top or left is negative, then the source does not fit into dstRoiSize.
   STATUS_NULL_POINTER: value is null.
   src/datamove/piconstlbordca.cpp */
ZMV_API StatusCode zmviCopyConstBorder_8u_C1R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, uint8_t value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C1R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, uint8_t value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, uint8_t value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C1IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, uint8_t value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C3R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C3R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C3IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C4R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C4R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_C4IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_AC4R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_AC4R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_8u_AC4IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint8_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C1R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, int16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C1R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, int16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, int16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C1IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, int16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C3R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C3R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C3IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C4R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C4R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_C4IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_AC4R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_AC4R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16s_AC4IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C1R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, uint16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C1R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, uint16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, uint16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C1IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, uint16_t value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C3R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C3R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C3IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C4R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C4R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_C4IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_AC4R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_AC4R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_16u_AC4IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const uint16_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, int32_t value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C1R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, int32_t value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, int32_t value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C1IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, int32_t value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C3R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C3R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C3IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C4R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C4R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_C4IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_AC4R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_AC4R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_AC4IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32s_AC4IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const int32_t* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C1R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left, float value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C1R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, float value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C1IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, float value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C1IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, float value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C3R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C3R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C3IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C3IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C4R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C4R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C4IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_C4IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_AC4R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_AC4R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left, const float* value);
ZMV_API StatusCode zmviCopyConstBorder_32f_AC4IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left, const float* value);

/* zmviCopyReplicateBorder: srcRoiSize pixels of src go to dst at column left, row top; the frame round them up to
   dstRoiSize is filled.
   In place (IR): srcDst points at the source region inside the larger image; only the frame is written.
   The frame repeats the nearest pixel of the source: a a|a b c d|d d.
   AC4 leaves the fourth channel as it was, inside and in the frame.  With src == dst the call is the in-place form with
   the step of dst; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: a size below 1, then top or left is negative, then the source does not fit into dstRoiSize.
   src/datamove/pireplbordca.cpp */
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C1R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C1R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C1IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C3R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C3R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C3IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C4R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C4R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_C4IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_AC4R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_AC4R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_8u_AC4IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C1R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C1R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C1IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C3R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C3R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C3IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C4R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C4R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_C4IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_AC4R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_AC4R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16s_AC4IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C1R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C1R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C1IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C3R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C3R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C3IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C4R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C4R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_C4IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_AC4R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_AC4R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_16u_AC4IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C1R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C1IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C3R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C3R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C3IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C4R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C4R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_C4IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_AC4R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_AC4R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_AC4IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32s_AC4IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C1R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C1R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C1IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C1IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C3R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C3R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C3IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C3IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C4R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C4R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C4IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_C4IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_AC4R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_AC4R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyReplicateBorder_32f_AC4IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);

/* zmviCopyMirrorBorder: srcRoiSize pixels of src go to dst at column left, row top; the frame round them up to
   dstRoiSize is filled.
   In place (IR): srcDst points at the source region inside the larger image; only the frame is written.
   The frame mirrors the source about its edge pixels, which are not repeated: c b|a b c d|c b.
   Borders may be wider than the source: the mirror images go on with period 2 * width - 2.  With src == dst the call is
   the in-place form with the step of dst; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: a size below 1, then top or left is negative, then the source does not fit into dstRoiSize.
   src/datamove/pimirrorborder.cpp */
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C1R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C1R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C1IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C3R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C3R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C3IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C4R(const uint8_t* src, int srcStep, ImageSize srcRoiSize, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C4R_L(const uint8_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint8_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_8u_C4IR_L(uint8_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C1R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C1R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C1IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C3R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C3R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C3IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C4R(const int16_t* src, int srcStep, ImageSize srcRoiSize, int16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C4R_L(const int16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16s_C4IR_L(int16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C1R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C1R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C1IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C3R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C3R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C3IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C4R(const uint16_t* src, int srcStep, ImageSize srcRoiSize, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C4R_L(const uint16_t* src, int64_t srcStep, ImageSizeL srcRoiSize, uint16_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_16u_C4IR_L(uint16_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C1R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C1IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C3R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C3R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C3IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C4R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C4R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32s_C4IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C1R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C1R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C1IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C1IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C3R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C3R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C3IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C3IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C4R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C4R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C4IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyMirrorBorder_32f_C4IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);

/* zmviCopyWrapBorder: srcRoiSize pixels of src go to dst at column left, row top; the frame round them up to dstRoiSize
   is filled.
   In place (IR): srcDst points at the source region inside the larger image; only the frame is written.
   The frame repeats the source periodically: c d|a b c d|a b, as often as needed.
   src and dst must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: a size below 1, then top or left is negative, then the source does not fit into dstRoiSize.
   src/datamove/piwrapbordca.cpp */
ZMV_API StatusCode zmviCopyWrapBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcRoiSize, int32_t* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyWrapBorder_32s_C1R_L(const int32_t* src, int64_t srcStep, ImageSizeL srcRoiSize, int32_t* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyWrapBorder_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyWrapBorder_32s_C1IR_L(int32_t* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyWrapBorder_32f_C1R(const float* src, int srcStep, ImageSize srcRoiSize, float* dst, int dstStep, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyWrapBorder_32f_C1R_L(const float* src, int64_t srcStep, ImageSizeL srcRoiSize, float* dst, int64_t dstStep, ImageSizeL dstRoiSize, int64_t top, int64_t left);
ZMV_API StatusCode zmviCopyWrapBorder_32f_C1IR(float* srcDst, int srcDstStep, ImageSize srcRoiSize, ImageSize dstRoiSize, int top, int left);
ZMV_API StatusCode zmviCopyWrapBorder_32f_C1IR_L(float* srcDst, int64_t srcDstStep, ImageSizeL srcRoiSize, ImageSizeL dstRoiSize, int64_t top, int64_t left);

/* zmviFilterBoxBorderGetBufferSize: For zmviFilterBoxBorder.
   The size in bytes of the work buffer, for a region, a mask, an element type (DATATYPE_8U, _16U, _16S or _32F) and a
   channel count (1, 3, or 4 for C4 and AC4).  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U,
   _16S or _32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piblurn.cpp */
ZMV_API StatusCode zmviFilterBoxBorderGetBufferSize(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, int* pBufferSize);

/* zmviFilterBoxBorder: The mean of the window round each pixel (box filter).
   The window of (x, y) is columns x - (maskSize.width - 1) / 2 .. + maskSize.width - 1 and rows likewise.  Pixels
   outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST (borderValue: one value a
   channel, three for AC4), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   AC4 leaves the fourth channel as it was.
   16u, 16s: the exact mean, rounded to nearest, halves upward.  8u: the exact sum times 1 / area plus 0.5, each step
   rounded to single precision, then cut down to an integer.  32f: the sum of the window, formed in one order for every
   window of that mask size, times 1 / area, under the caller's rounding mode; tiles agree with the whole to the bit,
   and a NaN reaches only windows that contain it.
   In place: src == dst with equal steps; other overlap is undefined.
   buffer has the size that zmviFilterBoxBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.
   STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   src/filter/piblurn.cpp */
ZMV_API StatusCode zmviFilterBoxBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBoxBorder_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);

/* zmviFilterBox: The mean of the window that covers columns x - anchor.x .. + maskSize.width - 1 and rows likewise, all
   read from
   the caller's memory: those round the region must be readable.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_ANCHOR: anchor lies outside the mask.
   STATUS_BAD_STEP: a step is not positive.
   src/filter/piblurn.cpp */
ZMV_API StatusCode zmviFilterBox_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, ImagePoint anchor);

/* zmviSumWindowGetBufferSize: For zmviSumWindow.
   The size in bytes of the work buffer, for a region, a mask, an element type (DATATYPE_8U, _16U, _16S or _32F) and a
   channel count (1, 3, or 4 for C4 and AC4).  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U,
   _16S or _32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/pisumwindow.cpp */
ZMV_API StatusCode zmviSumWindowGetBufferSize(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, int* pBufferSize);

/* zmviSumWindow: The sum of the window round each pixel.
   The window of (x, y) is columns x - (maskSize.width - 1) / 2 .. + maskSize.width - 1 and rows likewise.  Pixels
   outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST (borderValue: one value a
   channel, three for AC4), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   AC4 leaves the fourth channel as it was.
   8u32s: the exact sum, saturated.  16u32f, 16s32f: the exact sum, rounded once to nearest even.  32f: the sum formed
   in one order for every window of that mask size, as in zmviFilterBoxBorder.
   In place: src == dst with equal steps is allowed (a row of dst then takes the place of its row of src), but not with
   BORDER_IN_MEM_RIGHT where the elements of dst are wider: they would overwrite those columns.  Other overlap is
   undefined.
   buffer has the size that zmviSumWindowGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.
   STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   src/filter/pisumwindow.cpp */
ZMV_API StatusCode zmviSumWindow_8u32s_C1R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_8u32s_C3R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_8u32s_C4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_8u32s_AC4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16u32f_C1R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16u32f_C3R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16u32f_C4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16u32f_AC4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16s32f_C1R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16s32f_C3R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16s32f_C4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_16s32f_AC4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviSumWindow_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);

/* zmviSumWindowRow: dst(x, y) = sum of src(x - anchor + k, y) over
   pixels of memory, with k = 0 .. maskSize - 1; the exact sum, rounded once to nearest even.  The pixels before and
   after the region must be readable.  A region size below 1 is no error: the result is STATUS_OK and nothing is
   written.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_MASK_SIZE: maskSize below 1.
   STATUS_BAD_ANCHOR: anchor lies outside the mask.
   src/filter/pisumwindow.cpp */
ZMV_API StatusCode zmviSumWindowRow_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_16u32f_C1R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_16u32f_C3R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_16u32f_C4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_16s32f_C1R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_16s32f_C3R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowRow_16s32f_C4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);

/* zmviSumWindowColumn: dst(x, y) = sum of src(x, y - anchor + k) over
   pixels of memory, with k = 0 .. maskSize - 1; the exact sum, rounded once to nearest even.  The pixels before and
   after the region must be readable.  A region size below 1 is no error: the result is STATUS_OK and nothing is
   written.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_MASK_SIZE: maskSize below 1.
   STATUS_BAD_ANCHOR: anchor lies outside the mask.
   src/filter/pisumwindow.cpp */
ZMV_API StatusCode zmviSumWindowColumn_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_16u32f_C1R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_16u32f_C3R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_16u32f_C4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_16s32f_C1R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_16s32f_C3R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);
ZMV_API StatusCode zmviSumWindowColumn_16s32f_C4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int maskSize, int anchor);

/* zmviFilterBorderGetSize: The sizes in bytes of the spec object and of the work buffer of zmviFilterBorder.
   For images of dataType and numChannels (1 to 4, two counting as one; DATATYPE_64F: 1) and a kernel of kernelType,
   DATATYPE_16S or _32F (of 64f images DATATYPE_64F).  A block that is large enough for one kernel type is so for the
   others.
   Checked in this order.  STATUS_BAD_SIZE: width or height of dstRoiSize below 1.  STATUS_BAD_DATATYPE: dataType is not
   DATATYPE_8U, _16U, _16S, _32F or _64F, then another kernelType (of 16s images whose kernels stay integers
   DATATYPE_64F passes, though no kernel has it).  STATUS_BAD_NUM_CHANNELS: numChannels is not 1, 2, 3 or 4.
   STATUS_NULL_POINTER: pSpecSize or pBufferSize is null.  STATUS_SIZE_EXCEEDS_INT: a size exceeds 2147483647;
   *pBufferSize is 0 then, *pSpecSize stays as it was.
   src/filter/pifilterb.cpp */
ZMV_API StatusCode zmviFilterBorderGetSize(ImageSize kernelSize, ImageSize dstRoiSize, int dataType, int kernelType, int numChannels, int* pSpecSize, int* pBufferSize);

/* zmviFilterBorderInit: Makes the spec object of zmviFilterBorder.
   pSpec is a block at any alignment: the object starts at its next 64-byte boundary, and may be copied to another block
   as far from one.  The kernel, row by row, is that of a convolution:
   pKernel[kernelSize.height / 2 * width + width / 2] is the tap of the pixel itself.
     _16s  integer taps over divisor, for 8u, 16u and 16s images.  They stay integers for 8u images and for 16s
           ones of one channel and kernels at least 3 wide and 2 high; else they become tap * (1.0 / divisor)
     _32f  for 8u, 16u, 16s and 32f images
     _64f  for 64f images of one channel
   roundMode: ROUND_ZERO, ROUND_NEAR or ROUND_FINANCIAL (one half is added, and the sum rounded down); of 64f images,
   which are not rounded, only ROUND_NEAR.  ROUND_HINT_ACCURATE may be added and changes no result.
   Checked in this order.  STATUS_NULL_POINTER: pKernel or pSpec is null.  STATUS_BAD_DATATYPE: dataType is not
   DATATYPE_8U, _16U, _16S, _32F or _64F.  STATUS_BAD_NUM_CHANNELS: numChannels is not 1, 2, 3 or 4.
   STATUS_BAD_ROUND_MODE: another mode.  STATUS_BAD_DIVISOR: divisor is zero.
   STATUS_WARN_ACCURATE_IGNORED: done; ROUND_HINT_ACCURATE with taps in single precision or two channels.
   src/filter/pifilterb.cpp */
ZMV_API StatusCode zmviFilterBorderInit_16s(const int16_t* pKernel, ImageSize kernelSize, int divisor, int dataType, int numChannels, int roundMode, uint8_t* pSpec);
ZMV_API StatusCode zmviFilterBorderInit_32f(const float* pKernel, ImageSize kernelSize, int dataType, int numChannels, int roundMode, uint8_t* pSpec);
ZMV_API StatusCode zmviFilterBorderInit_64f(const double* pKernel, ImageSize kernelSize, int dataType, int numChannels, int roundMode, uint8_t* pSpec);

/* zmviFilterBorderSetMode: Changes a spec object of zmviFilterBorder.
   offset is added to results of 8u and 16u images; hint, HINT_ACCURATE or any other number, is kept and changes no
   result.
   Checked in this order.  STATUS_NULL_POINTER: pSpec is null.  STATUS_BAD_ARGUMENT: an offset other than zero for 16s,
   32f or 64f images; the object stays as it was.
   src/filter/pifilterb.cpp */
ZMV_API StatusCode zmviFilterBorderSetMode(int hint, int offset, uint8_t* pSpec);

/* zmviFilterBorder: The pixels round each pixel, weighted by the kernel of a spec object and added up.
   With kernel K, w wide and h high,
     dst(x, y) = sum of K[i][j] * src(x + w / 2 - j, y + h / 2 - i)
   Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST (borderValue: one value a
   channel), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   Integer taps: the sum modulo 2^32 over the divisor, exactly, rounded once; ROUND_ZERO rounds toward zero, but down
   where the divisor is a power of two.  Then the offset is added and the result saturated, to 16 signed bits first.
   Single precision: products are rounded one by one and added in one order, the top row of the window first, left to
   right.  Integer results get the offset, are brought into range (NaN is 0) and rounded, whatever the caller's control
   word; 32f and 64f results follow the control word.  Tiles agree with the whole to the bit.
   The object must be one of the image's type and channels, which is not checked; any number of calls may share it.
   The images must not overlap.
   buffer has the size that zmviFilterBorderGetSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, pSpec or buffer is null, then BORDER_CONST without
   borderValue.  STATUS_BAD_SIZE: width or height of dstRoiSize below 1.  STATUS_BAD_STEP: srcStep is not positive, then
   dstStep is less than the bytes of a row.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/pifilterb.cpp */
ZMV_API StatusCode zmviFilterBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const uint8_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const uint8_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const uint8_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const uint16_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const uint16_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const uint16_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const int16_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const int16_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize dstRoiSize, int borderType, const int16_t* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize dstRoiSize, int borderType, const float* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize dstRoiSize, int borderType, const float* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize dstRoiSize, int borderType, const float* borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviFilterBorder_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize dstRoiSize, int borderType, const double* borderValue, const uint8_t* pSpec, uint8_t* buffer);

/* zmviFilterGetBufSize: The size in bytes of the work buffer of zmviFilter: 0.
   STATUS_NULL_POINTER: pSize is null.
   src/filter/pifilterb.cpp */
ZMV_API StatusCode zmviFilterGetBufSize_64f_C1R(ImageSize kernelSize, int roiWidth, int* pSize);

/* zmviFilter: The pixels round each pixel, weighted by a kernel and added up, in double precision.
   dst(x, y) = sum of K[i][j] * src(x + anchor.x - j, y + anchor.y - i), all read from the caller's memory, in the order
   and with the bits of zmviFilterBorder.  Any anchor is taken: the caller answers for what is readable.
   buffer is not used and may be null.
   The images must not overlap.
   buffer has the size that zmviFilterGetBufSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or pKernel is null.  STATUS_BAD_SIZE: width or height of
   dstRoiSize below 1.  STATUS_BAD_STEP: srcStep below the bytes of a row and its neighbours, then dstStep is less than
   the bytes of a row.
   src/filter/pifilterb.cpp */
ZMV_API StatusCode zmviFilter_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize dstRoiSize, const double* pKernel, ImageSize kernelSize, ImagePoint anchor, uint8_t* buffer);

/* zmviConvGetBufferSize: The size in bytes of the work buffer of zmviConv.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U,
   _16S or _32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_BAD_ALGORITHM: another method or shape.
   STATUS_BAD_SIZE: CONV_SHAPE_VALID, and neither image lies in the other.  STATUS_SIZE_EXCEEDS_INT: a size exceeds
   2147483647; nothing is written.
   src/filter/piconvolvefull.cpp */
ZMV_API StatusCode zmviConvGetBufferSize(ImageSize src1Size, ImageSize src2Size, int dataType, int numChannels, int algType, int* pBufferSize);

/* zmviConv: The convolution of two images, channel by channel.
   dst(x, y) = sum of src1(x - j, y - i) * src2(j, i), over divisor.
   algType is a method and a shape; its bits 8 to 15 and 24 to 31 are ignored.
     CONV_SHAPE_FULL   all of it, width1 + width2 - 1 by height1 + height2 - 1; pixels outside are zero and take part
     CONV_SHAPE_VALID  the part in which the smaller image lies inside the larger: the difference of sizes plus 1
   CONV_METHOD_AUTO, _DIRECT and _FFT all sum directly as yet.  Once there are transforms, only 32f results of the last,
   and of the first for large kernels, may change, within the rounding of single precision.
   Integers: the exact sum over the divisor, rounded once to nearest even, saturated.  32f: products are rounded one by
   one and added from the top row of the window on, left to right, under the caller's rounding mode; the smaller image
   is the kernel.
   The images must not overlap.
   buffer has the size that zmviConvGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_NULL_POINTER: buffer is null.  STATUS_BAD_DIVISOR: divisor is zero.  STATUS_BAD_ALGORITHM: another method or
   shape.  STATUS_BAD_SIZE: CONV_SHAPE_VALID, and neither image lies in the other.
   src/filter/piconvolvefull.cpp */
ZMV_API StatusCode zmviConv_8u_C1R(const uint8_t* src1, int src1Step, ImageSize src1Size, const uint8_t* src2, int src2Step, ImageSize src2Size, uint8_t* dst, int dstStep, int divisor, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_8u_C3R(const uint8_t* src1, int src1Step, ImageSize src1Size, const uint8_t* src2, int src2Step, ImageSize src2Size, uint8_t* dst, int dstStep, int divisor, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_8u_C4R(const uint8_t* src1, int src1Step, ImageSize src1Size, const uint8_t* src2, int src2Step, ImageSize src2Size, uint8_t* dst, int dstStep, int divisor, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_16s_C1R(const int16_t* src1, int src1Step, ImageSize src1Size, const int16_t* src2, int src2Step, ImageSize src2Size, int16_t* dst, int dstStep, int divisor, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_16s_C3R(const int16_t* src1, int src1Step, ImageSize src1Size, const int16_t* src2, int src2Step, ImageSize src2Size, int16_t* dst, int dstStep, int divisor, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_16s_C4R(const int16_t* src1, int src1Step, ImageSize src1Size, const int16_t* src2, int src2Step, ImageSize src2Size, int16_t* dst, int dstStep, int divisor, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_32f_C1R(const float* src1, int src1Step, ImageSize src1Size, const float* src2, int src2Step, ImageSize src2Size, float* dst, int dstStep, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_32f_C3R(const float* src1, int src1Step, ImageSize src1Size, const float* src2, int src2Step, ImageSize src2Size, float* dst, int dstStep, int algType, uint8_t* buffer);
ZMV_API StatusCode zmviConv_32f_C4R(const float* src1, int src1Step, ImageSize src1Size, const float* src2, int src2Step, ImageSize src2Size, float* dst, int dstStep, int algType, uint8_t* buffer);

/* zmviFilterMinBorderGetBufferSize: For zmviFilterMinBorder.
   The size in bytes of the work buffer, for a region, a mask, an element type (DATATYPE_8U, _16U, _16S or _32F) and a
   channel count (1, 3, or 4 for C4 and AC4).  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.
   STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U, _16S or _32F.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piextrema.cpp */
ZMV_API StatusCode zmviFilterMinBorderGetBufferSize(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, int* pBufferSize);

/* zmviFilterMinBorder: The minimum of the window round each pixel (erosion).
   The window of (x, y) is columns x - (maskSize.width - 1) / 2 .. + maskSize.width - 1 and rows likewise.  Pixels
   outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST (borderValue: one value a
   channel, three for AC4), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   AC4 leaves the fourth channel as it was.
   32f: along each row of the window, then from its top row down, acc < next ? acc : next, so that the later of equal
   zeros stays.  Small numbers are not taken for zero, whatever the caller's control word.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterMinBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_BORDER: borderType is none of these.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue, unless all four sides are in memory.
   src/filter/piextrema.cpp */
ZMV_API StatusCode zmviFilterMinBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, uint16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, float borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMinBorder_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);

/* zmviFilterMaxBorderGetBufferSize: For zmviFilterMaxBorder.
   The size in bytes of the work buffer, for a region, a mask, an element type (DATATYPE_8U, _16U, _16S or _32F) and a
   channel count (1, 3, or 4 for C4 and AC4).  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.
   STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U, _16S or _32F.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piextrema.cpp */
ZMV_API StatusCode zmviFilterMaxBorderGetBufferSize(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, int* pBufferSize);

/* zmviFilterMaxBorder: The maximum of the window round each pixel (dilation).
   The window of (x, y) is columns x - (maskSize.width - 1) / 2 .. + maskSize.width - 1 and rows likewise.  Pixels
   outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST (borderValue: one value a
   channel, three for AC4), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   AC4 leaves the fourth channel as it was.
   32f: along each row of the window, then from its top row down, acc > next ? acc : next, so that the later of equal
   zeros stays.  Small numbers are not taken for zero, whatever the caller's control word.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterMaxBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_BORDER: borderType is none of these.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue, unless all four sides are in memory.
   src/filter/piextrema.cpp */
ZMV_API StatusCode zmviFilterMaxBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, uint16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, float borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMaxBorder_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const float* borderValue, uint8_t* buffer);

/* zmviDilate3x3: The maximum of each pixel and its eight neighbours.
   The pixels next to the region are read from memory.  The order is that of zmviFilterMaxBorder.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_STEP_TOO_SMALL: srcStep is less than the bytes of a row and two
   pixels more, or dstStep less than a row.
   src/filter/piextrema.cpp */
ZMV_API StatusCode zmviDilate3x3_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize roiSize);

/* zmviErode3x3: The minimum of each pixel and its eight neighbours.
   The pixels next to the region are read from memory.  The order is that of zmviFilterMinBorder.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_STEP_TOO_SMALL: srcStep is less than the bytes of a row and two
   pixels more, or dstStep less than a row.
   src/filter/piextrema.cpp */
ZMV_API StatusCode zmviErode3x3_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize roiSize);

/* zmviFilterSobelHorizBorderGetBufferSize: For zmviFilterSobelHorizBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelHorizBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterSobelHorizBorder: The change from row to row, positive where it gets brighter downward.
   Column weights (-1 0 1) times row weights (1 2 1), or (-1 -2 0 2 1) times (1 4 6 4 1).
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or
   BORDER_CONST (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterSobelHorizBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelHorizBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelHorizBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelHorizBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterSobelVertBorderGetBufferSize: For zmviFilterSobelVertBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelVertBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterSobelVertBorder: The change from column to column, positive where it gets brighter to the left.
   Column weights (1 2 1) times row weights (1 0 -1), or (1 4 6 4 1) times (1 2 0 -2 -1).
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or
   BORDER_CONST (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterSobelVertBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelVertBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelVertBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelVertBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterSobelSecondHorizBorderGetBufferSize: For zmviFilterSobelSecondHorizBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelSecondHorizBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterSobelSecondHorizBorder: The second derivative down the columns.
   Column weights (1 -2 1) times row weights (1 2 1), or (1 0 -2 0 1) times (1 4 6 4 1).
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or
   BORDER_CONST (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterSobelSecondHorizBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelSecondHorizBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelSecondHorizBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelSecondHorizBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterSobelSecondVertBorderGetBufferSize: For zmviFilterSobelSecondVertBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelSecondVertBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterSobelSecondVertBorder: The second derivative along the rows.
   Column weights (1 2 1) times row weights (1 -2 1), or (1 4 6 4 1) times (1 0 -2 0 1).
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or
   BORDER_CONST (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterSobelSecondVertBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelSecondVertBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelSecondVertBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelSecondVertBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterSobelSecondCrossBorderGetBufferSize: For zmviFilterSobelSecondCrossBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelSecondCrossBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterSobelSecondCrossBorder: The derivative along both axes.
   Column weights (-1 0 1) times row weights (1 0 -1), or (-1 -2 0 2 1) times (1 2 0 -2 -1).
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or
   BORDER_CONST (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterSobelSecondCrossBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobelSecondCrossBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelSecondCrossBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSobelSecondCrossBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterScharrHorizBorderGetBufferSize: For zmviFilterScharrHorizBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterScharrHorizBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterScharrHorizBorder: The change from row to row: column weights (-1 0 1) times row weights (3 10 3).
   mask: MASK_3X3.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST
   (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterScharrHorizBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterScharrHorizBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterScharrHorizBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterScharrHorizBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterScharrVertBorderGetBufferSize: For zmviFilterScharrVertBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterScharrVertBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterScharrVertBorder: The change from column to column.
   Column weights (3 10 3) times row weights (1 0 -1).
   mask: MASK_3X3.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST
   (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterScharrVertBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterScharrVertBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterScharrVertBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterScharrVertBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterPrewittHorizBorderGetBufferSize: For zmviFilterPrewittHorizBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterPrewittHorizBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterPrewittHorizBorder: The change from row to row.
   Column weights (-1 0 1) times row weights (1 1 1), or (-2 -1 0 1 2) times (1 1 1 1 1).
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or
   BORDER_CONST (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterPrewittHorizBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterPrewittHorizBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterPrewittHorizBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterPrewittHorizBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterPrewittVertBorderGetBufferSize: For zmviFilterPrewittVertBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterPrewittVertBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterPrewittVertBorder: The change from column to column.
   Column weights (1 1 1) times row weights (1 0 -1), or (1 1 1 1 1) times (2 1 0 -1 -2).
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or
   BORDER_CONST (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterPrewittVertBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterPrewittVertBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterPrewittVertBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterPrewittVertBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterRobertsHorizBorderGetBufferSize: For zmviFilterRobertsHorizBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterRobertsHorizBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterRobertsHorizBorder: src(x + 1, y + 1) - src(x, y).
   mask: MASK_3X3.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST
   (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterRobertsHorizBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterRobertsHorizBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterRobertsHorizBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterRobertsHorizBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterRobertsVertBorderGetBufferSize: For zmviFilterRobertsVertBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not 8U and 16S,
   16S and 16S, or 32F and 32F.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the size exceeds
   2147483647; nothing is written.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterRobertsVertBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterRobertsVertBorder: src(x, y + 1) - src(x + 1, y).
   mask: MASK_3X3.  Pixels outside the region come from borderType: BORDER_REPL, BORDER_MIRROR or BORDER_CONST
   (borderValue), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   16s: saturated.  32f: the column of each pixel first, then along the row: weight * (outer pair) + weight * (next
   pair) + weight * middle, a pair being its sum or difference, every step rounded as the caller's control word says.
   Any step is accepted, zero and negative ones too; srcStep need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterRobertsVertBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP_ALIGNMENT: dstStep is no multiple of the element's size.  STATUS_BAD_MASK_SIZE: mask is none of
   these.  STATUS_BAD_BORDER: borderType is none of these.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterRobertsVertBorder_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterRobertsVertBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterRobertsVertBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterSobel: The magnitude of the gradient: sqrt(H * H + V * V) of zmviFilterSobelHorizBorder and
   zmviFilterSobelVertBorder.
   mask: MASK_3X3 or MASK_5X5; one or two pixels round the region are read from memory.  8u16s: the nearest integer.
   32f: each step rounded as the caller's control word says.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_STEP: a step is not positive.
   src/filter/piderivative.cpp */
ZMV_API StatusCode zmviFilterSobel_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterSobel_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask);

/* zmviFilterLaplaceBorderGetBufferSize: For zmviFilterLaplaceBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not both 8U, 16S
   or 32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_SIZE_EXCEEDS_INT: the size exceeds 2147483647;
   nothing is written.
   src/filter/pilaplace.cpp */
ZMV_API StatusCode zmviFilterLaplaceBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterLaplaceBorder: The Laplacian.  3x3: the four neighbours minus 4 times the middle.  5x5: the results of
   zmviFilterSobelSecondHorizBorder and zmviFilterSobelSecondVertBorder, added, over 64.  32f 3x3: ((top + bottom) +
   (left + right)) - 4 * middle.
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL or BORDER_CONST
   (borderValue: one value a channel, three for AC4), each with any BORDER_IN_MEM_ flags for sides to be read from
   memory, or BORDER_IN_MEM alone.
   8u, 16s: the exact value, rounded to nearest, ties to even, and saturated.  32f: every step rounded as the caller's
   control word says.  AC4 leaves the fourth channel as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterLaplaceBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER:
   BORDER_CONST without borderValue, unless all four sides are in memory.
   src/filter/pilaplace.cpp */
ZMV_API StatusCode zmviFilterLaplaceBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterLaplaceBorder_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);

/* zmviFilterHipassBorderGetBufferSize: For zmviFilterHipassBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not both 8U, 16S
   or 32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_SIZE_EXCEEDS_INT: the size exceeds 2147483647;
   nothing is written.
   src/filter/piblurn.cpp */
ZMV_API StatusCode zmviFilterHipassBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterHipassBorder: High-pass: the pixel minus the mean that zmviFilterBoxBorder gives.
   mask: MASK_3X3 or MASK_5X5.  Pixels outside the region come from borderType: BORDER_REPL or BORDER_CONST
   (borderValue: one value a channel, three for AC4), each with any BORDER_IN_MEM_ flags for sides to be read from
   memory, or BORDER_IN_MEM alone.
   8u, 16s: the exact value, rounded to nearest, ties to even, and saturated.  32f: every step rounded as the caller's
   control word says.  AC4 leaves the fourth channel as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterHipassBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER:
   BORDER_CONST without borderValue, unless all four sides are in memory.
   src/filter/piblurn.cpp */
ZMV_API StatusCode zmviFilterHipassBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterHipassBorder_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);

/* zmviFilterSharpenBorderGetBufferSize: For zmviFilterSharpenBorder.
   The size in bytes of the work buffer, for a region, a mask, the element types of source and destination and a channel
   count.  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_DATATYPE: srcDataType and dstDataType are not both 8U, 16S
   or 32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_SIZE_EXCEEDS_INT: the size exceeds 2147483647;
   nothing is written.
   src/filter/pilaplace.cpp */
ZMV_API StatusCode zmviFilterSharpenBorderGetBufferSize(ImageSize roiSize, int mask, int srcDataType, int dstDataType, int numChannels, int* pBufferSize);

/* zmviFilterSharpenBorder: The pixel minus its 3x3 Laplacian.  32f: 5 * middle - ((top + bottom) + (left + right)).
   mask: MASK_3X3.  Pixels outside the region come from borderType: BORDER_REPL or BORDER_CONST (borderValue: one value
   a channel, three for AC4), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM
   alone.
   8u, 16s: the exact value, rounded to nearest, ties to even, and saturated.  32f: every step rounded as the caller's
   control word says.  AC4 leaves the fourth channel as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterSharpenBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER:
   BORDER_CONST without borderValue, unless all four sides are in memory.
   src/filter/pilaplace.cpp */
ZMV_API StatusCode zmviFilterSharpenBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterSharpenBorder_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask, int borderType, const float* borderValue, uint8_t* buffer);

/* zmviFilterMedianBorderGetBufferSize: The size in bytes of the work buffer of zmviFilterMedianBorder.
   For a region, a mask, an element type (DATATYPE_8U, _16U or _16S, or of one channel _32F) and a channel count (1, 3,
   or 4 for C4 and AC4).  No alignment is asked of the buffer.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1, then width or height of maskSize is even.
   STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U, _16S or
   _32F, then DATATYPE_32F with more than one channel.  STATUS_SIZE_EXCEEDS_INT: the size exceeds 2147483647; 0 is
   written.
   src/filter/pimedian8u.cpp */
ZMV_API StatusCode zmviFilterMedianBorderGetBufferSize(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, int* pBufferSize);

/* zmviFilterMedianBorder: The median of the window round each pixel, channel by channel.
   The window of (x, y) is columns x - maskSize.width / 2 .. x + maskSize.width / 2 and rows likewise, both odd.  Pixels
   outside the region come from borderType: BORDER_REPL or BORDER_CONST (borderValue: one value a channel, three for
   AC4), each with any BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.  AC4 leaves the
   fourth channel as it was.
   32f: -0 comes before 0, every NaN behind infinity; a NaN in the middle gives the positive quiet NaN.  A window of one
   pixel copies its bits, or does nothing where src is dst.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviFilterMedianBorderGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1, then width or height of maskSize is even.
   STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER: BORDER_CONST without borderValue, unless all
   four sides are in memory.
   src/filter/pimedian8u.cpp, pimedian16u.cpp, pimedian16s.cpp, pimedian32f.cpp */
ZMV_API StatusCode zmviFilterMedianBorder_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint8_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, uint16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const uint16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, int16_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, const int16_t* borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedianBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, int borderType, float borderValue, uint8_t* buffer);

/* zmviFilterMedianGetBufferSize: The size in bytes of the work buffer of zmviFilterMedian.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_CHANNELS: numChannels is neither 3 nor 4
   (_64f: not 1).  STATUS_SIZE_EXCEEDS_INT: a size exceeds 2147483647; nothing is written.
   src/filter/pimedian32f.cpp */
ZMV_API StatusCode zmviFilterMedianGetBufferSize_32f(ImageSize roiSize, ImageSize maskSize, int numChannels, int* pBufferSize);
ZMV_API StatusCode zmviFilterMedianGetBufferSize_64f(ImageSize roiSize, ImageSize maskSize, int numChannels, int* pBufferSize);

/* zmviFilterMedian: The median of the window that covers columns x - anchor.x .. + maskSize.width - 1 and rows
   likewise, channel by
   channel, all read from the caller's memory: those round the region must be readable.  Of an even number it is the
   lower of the two in the middle.  Zeros and NaNs are ranked as by zmviFilterMedianBorder.
   The images must not overlap.
   buffer has the size that zmviFilterMedianGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: width or height of maskSize below 1.  STATUS_BAD_ANCHOR: anchor lies outside the mask.
   STATUS_BAD_STEP: a step is not positive.
   src/filter/pimedian32f.cpp */
ZMV_API StatusCode zmviFilterMedian_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, ImagePoint anchor, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedian_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, ImagePoint anchor, uint8_t* buffer);
ZMV_API StatusCode zmviFilterMedian_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, ImagePoint anchor, uint8_t* buffer);

/* zmviFilterMedianCross: The median of a pixel's row and its column within MASK_3X3 (five values) or MASK_5X5 (nine),
   channel by channel.
   One or two pixels round the region are read from memory.  AC4 leaves the fourth channel as it was.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_STEP: a step is not positive.
   src/filter/pimedianfixed.cpp */
ZMV_API StatusCode zmviFilterMedianCross_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianCross_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask);

/* zmviFilterMedianColor: The vector median of colours: the pixel of the window, MASK_3X3 or MASK_5X5, whose distances
   to the others add up to
   least.  Of equals the middle one wins, then the first in the order of rows.
   A distance is the sum of the three channels' absolute differences.  32f: (first + second) + third, added in the order
   of rows, each step rounded to nearest; a sum that is NaN counts as infinite.
   One or two pixels round the region are read from memory.  AC4 leaves the fourth channel as it was.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: mask is none of these.  STATUS_BAD_STEP: a step is not positive.
   src/filter/pimediancolour.cpp */
ZMV_API StatusCode zmviFilterMedianColor_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianColor_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianColor_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianColor_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianColor_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianColor_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianColor_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask);
ZMV_API StatusCode zmviFilterMedianColor_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int mask);

/* zmviFilterMedianWeightedCenter3x3: The median of a pixel and its eight neighbours, where the pixel counts `weight`
   times; of an even number the lower of
   the two in the middle.  From a weight of 9 on a copy.  The pixels next to the region are read from memory.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_OUT_OF_RANGE: weight is below 1.  STATUS_BAD_STEP: a step is not positive.
   src/filter/pimedianfixed.cpp */
ZMV_API StatusCode zmviFilterMedianWeightedCenter3x3_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int weight);

/* zmviMedian: The median of three planes, pixel by pixel.  dst may be one of the planes, with the same step; other
   overlap is
   undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or a plane is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/filter/pimedianfixed.cpp */
ZMV_API StatusCode zmviMedian_8u_P3C1R(const uint8_t* const src[3], int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);

/* zmviAdd: dst = src1 + src2.
   Integers: the exact result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.  32f: the result in single precision, under the caller's rounding mode; where both operands
   are NaN, that of the image that is second, or only, goes on.
   AC4 leaves the fourth channel of the destination as it was.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/piadd.cpp */
ZMV_API StatusCode zmviAdd_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C1RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C1IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C3RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C3IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_C4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_AC4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_8u_AC4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C1RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C1IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C3RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C3IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_C4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_AC4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16u_AC4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C1RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C1IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C3RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C3IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_C4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_AC4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_16s_AC4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAdd_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_C1R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAdd_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_C1IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAdd_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_C3R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAdd_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_C3IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAdd_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_C4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAdd_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_C4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAdd_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_AC4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAdd_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAdd_32f_AC4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);

/* zmviAddC: dst = src + value.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   Integers: the exact result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.  32f: the result in single precision, under the caller's rounding mode; where both operands
   are NaN, that of the image that is second, or only, goes on.
   AC4 leaves the fourth channel of the destination as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/piadd.cpp */
ZMV_API StatusCode zmviAddC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C1RSfs_L(const uint8_t* src, int64_t srcStep, uint8_t value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C1IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, uint8_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C3RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C3IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_C4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_AC4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_AC4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_8u_AC4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C1RSfs_L(const uint16_t* src, int64_t srcStep, uint16_t value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C1IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, uint16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C3RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C3IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_C4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_AC4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_AC4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16u_AC4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C1RSfs_L(const int16_t* src, int64_t srcStep, int16_t value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, int16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C1IRSfs_L(int16_t* srcDst, int64_t srcDstStep, int16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C3RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C3IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_C4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_AC4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_AC4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_16s_AC4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviAddC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_C1R_L(const float* src, int64_t srcStep, float value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAddC_32f_C1IR(float* srcDst, int srcDstStep, float value, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_C1IR_L(float* srcDst, int64_t srcDstStep, float value, ImageSizeL roiSize);
ZMV_API StatusCode zmviAddC_32f_C3R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_C3R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAddC_32f_C3IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_C3IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviAddC_32f_C4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_C4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAddC_32f_C4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_C4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviAddC_32f_AC4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_AC4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviAddC_32f_AC4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviAddC_32f_AC4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);

/* zmviSub: dst = src2 - src1; in place, srcDst = srcDst - src.
   Integers: the exact result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.  32f: the result in single precision, under the caller's rounding mode; where both operands
   are NaN, that of the image that is second, or only, goes on.
   AC4 leaves the fourth channel of the destination as it was.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/pisub.cpp */
ZMV_API StatusCode zmviSub_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C1RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C1IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C3RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C3IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_C4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_AC4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_8u_AC4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C1RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C1IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C3RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C3IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_C4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_AC4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16u_AC4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C1RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C1IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C3RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C3IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_C4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_AC4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_16s_AC4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSub_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_C1R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSub_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_C1IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSub_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_C3R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSub_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_C3IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSub_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_C4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSub_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_C4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSub_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_AC4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSub_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSub_32f_AC4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);

/* zmviSubC: dst = src - value.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   Integers: the exact result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.  32f: the result in single precision, under the caller's rounding mode; where both operands
   are NaN, that of the image that is second, or only, goes on.
   AC4 leaves the fourth channel of the destination as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/pisub.cpp */
ZMV_API StatusCode zmviSubC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C1RSfs_L(const uint8_t* src, int64_t srcStep, uint8_t value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C1IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, uint8_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C3RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C3IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_C4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_AC4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_AC4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_8u_AC4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C1RSfs_L(const uint16_t* src, int64_t srcStep, uint16_t value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C1IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, uint16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C3RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C3IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_C4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_AC4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_AC4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16u_AC4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C1RSfs_L(const int16_t* src, int64_t srcStep, int16_t value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, int16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C1IRSfs_L(int16_t* srcDst, int64_t srcDstStep, int16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C3RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C3IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_C4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_AC4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_AC4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_16s_AC4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviSubC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_C1R_L(const float* src, int64_t srcStep, float value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSubC_32f_C1IR(float* srcDst, int srcDstStep, float value, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_C1IR_L(float* srcDst, int64_t srcDstStep, float value, ImageSizeL roiSize);
ZMV_API StatusCode zmviSubC_32f_C3R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_C3R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSubC_32f_C3IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_C3IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviSubC_32f_C4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_C4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSubC_32f_C4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_C4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviSubC_32f_AC4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_AC4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviSubC_32f_AC4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviSubC_32f_AC4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);

/* zmviMul: dst = src1 * src2.
   Integers: the exact result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.  32f: the result in single precision, under the caller's rounding mode; where both operands
   are NaN, that of the image that is second, or only, goes on.
   AC4 leaves the fourth channel of the destination as it was.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/pimul.cpp */
ZMV_API StatusCode zmviMul_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C1RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C1IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C3RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C3IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_C4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_AC4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_8u_AC4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C1RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C1IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C3RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C3IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_C4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_AC4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16u_AC4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C1RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C1IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C3RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C3IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_C4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_AC4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_16s_AC4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMul_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_C1R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMul_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_C1IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMul_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_C3R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMul_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_C3IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMul_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_C4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMul_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_C4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMul_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_AC4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMul_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMul_32f_AC4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);

/* zmviMulC: dst = src * value.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   Integers: the exact result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.  32f: the result in single precision, under the caller's rounding mode; where both operands
   are NaN, that of the image that is second, or only, goes on.
   AC4 leaves the fourth channel of the destination as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/pimul.cpp */
ZMV_API StatusCode zmviMulC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C1RSfs_L(const uint8_t* src, int64_t srcStep, uint8_t value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C1IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, uint8_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C3RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C3IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_C4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_AC4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_AC4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_8u_AC4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C1RSfs_L(const uint16_t* src, int64_t srcStep, uint16_t value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C1IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, uint16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C3RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C3IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_C4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_AC4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_AC4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16u_AC4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C1RSfs_L(const int16_t* src, int64_t srcStep, int16_t value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, int16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C1IRSfs_L(int16_t* srcDst, int64_t srcDstStep, int16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C3RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C3IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_C4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_AC4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_AC4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_16s_AC4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviMulC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_C1R_L(const float* src, int64_t srcStep, float value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMulC_32f_C1IR(float* srcDst, int srcDstStep, float value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_C1IR_L(float* srcDst, int64_t srcDstStep, float value, ImageSizeL roiSize);
ZMV_API StatusCode zmviMulC_32f_C3R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_C3R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMulC_32f_C3IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_C3IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviMulC_32f_C4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_C4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMulC_32f_C4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_C4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviMulC_32f_AC4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_AC4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviMulC_32f_AC4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC_32f_AC4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);

/* zmviDiv: dst = src2 / src1; in place, srcDst = srcDst / src.
   Integers: the exact quotient times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated;
   any scaleFactor is accepted.  32f: the quotient in single precision, under the caller's rounding mode.
   Where the divisor is zero, integers become the largest of the type for a positive dividend, the smallest for a
   negative one, zero for zero, and floats what division gives.  A fourth channel that is left alone is not looked at.
   AC4 leaves the fourth channel of the destination as it was.
   Regions of 32f that read and write more than the largest cache holds are written past the caches, but not in place.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   STATUS_WARN_DIV_BY_ZERO: a divisor is zero; all results are written.
   src/arith/pidiv.cpp */
ZMV_API StatusCode zmviDiv_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C1RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C1IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C3RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C3IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_C4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_AC4RSfs_L(const uint8_t* src1, int64_t src1Step, const uint8_t* src2, int64_t src2Step, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_8u_AC4IRSfs_L(const uint8_t* src, int64_t srcStep, uint8_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C1RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C1IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C3RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C3IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_C4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_AC4RSfs_L(const uint16_t* src1, int64_t src1Step, const uint16_t* src2, int64_t src2Step, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16u_AC4IRSfs_L(const uint16_t* src, int64_t srcStep, uint16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C1RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C1IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C3RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C3IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_C4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_AC4RSfs_L(const int16_t* src1, int64_t src1Step, const int16_t* src2, int64_t src2Step, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_16s_AC4IRSfs_L(const int16_t* src, int64_t srcStep, int16_t* srcDst, int64_t srcDstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDiv_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_C1R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDiv_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_C1IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDiv_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_C3R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDiv_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_C3IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDiv_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_C4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDiv_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_C4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDiv_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_AC4R_L(const float* src1, int64_t src1Step, const float* src2, int64_t src2Step, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDiv_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDiv_32f_AC4IR_L(const float* src, int64_t srcStep, float* srcDst, int64_t srcDstStep, ImageSizeL roiSize);

/* zmviDivC: dst = src / value, rounded as in zmviDiv.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.  STATUS_DIV_BY_ZERO: a value is zero, of either sign.
   src/arith/pidiv.cpp */
ZMV_API StatusCode zmviDivC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C1RSfs_L(const uint8_t* src, int64_t srcStep, uint8_t value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C1IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, uint8_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C3RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C3IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_C4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_AC4RSfs_L(const uint8_t* src, int64_t srcStep, const uint8_t* value, uint8_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_AC4IRSfs(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_8u_AC4IRSfs_L(uint8_t* srcDst, int64_t srcDstStep, const uint8_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C1RSfs_L(const uint16_t* src, int64_t srcStep, uint16_t value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C1IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, uint16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C3RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C3IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_C4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_AC4RSfs_L(const uint16_t* src, int64_t srcStep, const uint16_t* value, uint16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_AC4IRSfs(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16u_AC4IRSfs_L(uint16_t* srcDst, int64_t srcDstStep, const uint16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C1RSfs_L(const int16_t* src, int64_t srcStep, int16_t value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, int16_t value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C1IRSfs_L(int16_t* srcDst, int64_t srcDstStep, int16_t value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C3RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C3IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_C4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t* value, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_AC4RSfs_L(const int16_t* src, int64_t srcStep, const int16_t* value, int16_t* dst, int64_t dstStep, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_AC4IRSfs(int16_t* srcDst, int srcDstStep, const int16_t* value, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_16s_AC4IRSfs_L(int16_t* srcDst, int64_t srcDstStep, const int16_t* value, ImageSizeL roiSize, int scaleFactor);
ZMV_API StatusCode zmviDivC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_C1R_L(const float* src, int64_t srcStep, float value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDivC_32f_C1IR(float* srcDst, int srcDstStep, float value, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_C1IR_L(float* srcDst, int64_t srcDstStep, float value, ImageSizeL roiSize);
ZMV_API StatusCode zmviDivC_32f_C3R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_C3R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDivC_32f_C3IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_C3IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviDivC_32f_C4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_C4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDivC_32f_C4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_C4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);
ZMV_API StatusCode zmviDivC_32f_AC4R(const float* src, int srcStep, const float* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_AC4R_L(const float* src, int64_t srcStep, const float* value, float* dst, int64_t dstStep, ImageSizeL roiSize);
ZMV_API StatusCode zmviDivC_32f_AC4IR(float* srcDst, int srcDstStep, const float* value, ImageSize roiSize);
ZMV_API StatusCode zmviDivC_32f_AC4IR_L(float* srcDst, int64_t srcDstStep, const float* value, ImageSizeL roiSize);

/* zmviDiv_Round: dst = src2 / src1; in place, srcDst = srcDst / src.
   The exact quotient times 2 to the power of -scaleFactor, rounded once, saturated; any scaleFactor is accepted.
   roundMode: ROUND_ZERO toward zero; ROUND_NEAR to nearest, ties to even; ROUND_FINANCIAL to the largest integer that
   does not exceed the result plus one half.
   Where the divisor is zero, integers become the largest of the type for a positive dividend, the smallest for a
   negative one, zero for zero, and floats what division gives.  A fourth channel that is left alone is not looked at.
   AC4 leaves the fourth channel of the destination as it was.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_ROUND_MODE: roundMode is none of these.
   STATUS_WARN_DIV_BY_ZERO: a divisor is zero; all results are written.
   src/arith/pidiv.cpp */
ZMV_API StatusCode zmviDiv_Round_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviDiv_Round_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);

/* zmviAnd: dst = src1 & src2, bit by bit.
   AC4 leaves the fourth channel of the destination as it was.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pilogic.cpp */
ZMV_API StatusCode zmviAnd_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_C1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_C1IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_C3R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_C3IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_C4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_C4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAnd_32s_AC4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviAndC: dst = src & value, bit by bit.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pilogic.cpp */
ZMV_API StatusCode zmviAndC_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_8u_C1IR(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_8u_C3R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_8u_C3IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_8u_C4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_8u_C4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_8u_AC4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_C1IR(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_C3R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_C3IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_C4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_C4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_16u_AC4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_C1R(const int32_t* src, int srcStep, int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_C1IR(int32_t* srcDst, int srcDstStep, int32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_C3R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_C3IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_C4R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_C4IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_AC4R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAndC_32s_AC4IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);

/* zmviOr: dst = src1 | src2, bit by bit.
   AC4 leaves the fourth channel of the destination as it was.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pilogic.cpp */
ZMV_API StatusCode zmviOr_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_C1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_C1IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_C3R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_C3IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_C4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_C4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOr_32s_AC4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviOrC: dst = src | value, bit by bit.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pilogic.cpp */
ZMV_API StatusCode zmviOrC_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_8u_C1IR(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_8u_C3R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_8u_C3IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_8u_C4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_8u_C4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_8u_AC4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_C1IR(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_C3R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_C3IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_C4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_C4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_16u_AC4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_C1R(const int32_t* src, int srcStep, int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_C1IR(int32_t* srcDst, int srcDstStep, int32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_C3R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_C3IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_C4R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_C4IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_AC4R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviOrC_32s_AC4IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);

/* zmviXor: dst = src1 ^ src2, bit by bit.
   AC4 leaves the fourth channel of the destination as it was.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pilogic.cpp */
ZMV_API StatusCode zmviXor_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_C1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_C1IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_C3R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_C3IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_C4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_C4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXor_32s_AC4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviXorC: dst = src ^ value, bit by bit.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pilogic.cpp */
ZMV_API StatusCode zmviXorC_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_8u_C1IR(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_8u_C3R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_8u_C3IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_8u_C4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_8u_C4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_8u_AC4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_C1IR(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_C3R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_C3IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_C4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_C4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_16u_AC4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_C1R(const int32_t* src, int srcStep, int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_C1IR(int32_t* srcDst, int srcDstStep, int32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_C3R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_C3IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_C4R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_C4IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_AC4R(const int32_t* src, int srcStep, const int32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviXorC_32s_AC4IR(int32_t* srcDst, int srcDstStep, const int32_t* value, ImageSize roiSize);

/* zmviMulScale: dst = src1 * src2 over the largest value of the type, as with numbers between 0 and 1.  8u: rounded
   down over
   255.  16u: over 65535, rounded to nearest (there are no ties).
   AC4 leaves the fourth channel of the destination as it was.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pimul.cpp */
ZMV_API StatusCode zmviMulScale_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulScale_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviMulCScale: dst = src * value over the largest value of the type, rounded as in zmviMulScale.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pimul.cpp */
ZMV_API StatusCode zmviMulCScale_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_8u_C1IR(uint8_t* srcDst, int srcDstStep, uint8_t value, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_8u_C3R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_8u_C3IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_8u_C4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_8u_C4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_8u_AC4IR(uint8_t* srcDst, int srcDstStep, const uint8_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_C1IR(uint16_t* srcDst, int srcDstStep, uint16_t value, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_C3R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_C3IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_C4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_C4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulCScale_16u_AC4IR(uint16_t* srcDst, int srcDstStep, const uint16_t* value, ImageSize roiSize);

/* zmviMulC64f: dst = src * value, the product formed in double precision.
   Integers: rounded to nearest with ties to even, saturated; a NaN gives 0.  32f: rounded to single precision, to
   nearest even whatever the caller's rounding mode.
   value is one number for C1, a pointer to three for C3, to four for C4.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pimul.cpp */
ZMV_API StatusCode zmviMulC64f_8u_C1R(const uint8_t* src, int srcStep, double value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_8u_C1IR(uint8_t* srcDst, int srcDstStep, double value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_8u_C3R(const uint8_t* src, int srcStep, const double* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_8u_C3IR(uint8_t* srcDst, int srcDstStep, const double* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_8u_C4R(const uint8_t* src, int srcStep, const double* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_8u_C4IR(uint8_t* srcDst, int srcDstStep, const double* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16u_C1R(const uint16_t* src, int srcStep, double value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16u_C1IR(uint16_t* srcDst, int srcDstStep, double value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16u_C3R(const uint16_t* src, int srcStep, const double* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16u_C3IR(uint16_t* srcDst, int srcDstStep, const double* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16u_C4R(const uint16_t* src, int srcStep, const double* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16u_C4IR(uint16_t* srcDst, int srcDstStep, const double* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16s_C1R(const int16_t* src, int srcStep, double value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16s_C1IR(int16_t* srcDst, int srcDstStep, double value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16s_C3R(const int16_t* src, int srcStep, const double* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16s_C3IR(int16_t* srcDst, int srcDstStep, const double* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16s_C4R(const int16_t* src, int srcStep, const double* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_16s_C4IR(int16_t* srcDst, int srcDstStep, const double* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_32f_C1R(const float* src, int srcStep, double value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_32f_C1IR(float* srcDst, int srcDstStep, double value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_32f_C3R(const float* src, int srcStep, const double* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_32f_C3IR(float* srcDst, int srcDstStep, const double* value, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_32f_C4R(const float* src, int srcStep, const double* value, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMulC64f_32f_C4IR(float* srcDst, int srcDstStep, const double* value, ImageSize roiSize);

/* zmviLShiftC: dst = src << value.  A value of the element's width in bits or more leaves 0.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pishift.cpp */
ZMV_API StatusCode zmviLShiftC_8u_C1R(const uint8_t* src, int srcStep, uint32_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_8u_C1IR(uint8_t* srcDst, int srcDstStep, uint32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_8u_C3R(const uint8_t* src, int srcStep, const uint32_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_8u_C3IR(uint8_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_8u_C4R(const uint8_t* src, int srcStep, const uint32_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_8u_C4IR(uint8_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_8u_AC4R(const uint8_t* src, int srcStep, const uint32_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_8u_AC4IR(uint8_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_C1R(const uint16_t* src, int srcStep, uint32_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_C1IR(uint16_t* srcDst, int srcDstStep, uint32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_C3R(const uint16_t* src, int srcStep, const uint32_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_C3IR(uint16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_C4R(const uint16_t* src, int srcStep, const uint32_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_C4IR(uint16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_AC4R(const uint16_t* src, int srcStep, const uint32_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_16u_AC4IR(uint16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_C1R(const int32_t* src, int srcStep, uint32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_C1IR(int32_t* srcDst, int srcDstStep, uint32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_C3R(const int32_t* src, int srcStep, const uint32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_C3IR(int32_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_C4R(const int32_t* src, int srcStep, const uint32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_C4IR(int32_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_AC4R(const int32_t* src, int srcStep, const uint32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLShiftC_32s_AC4IR(int32_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);

/* zmviRShiftC: dst = src >> value.  Signed types keep their sign; a value of the element's width in bits or more leaves
   0, or -1
   of negative numbers.
   value is one number for C1, a pointer to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/pishift.cpp */
ZMV_API StatusCode zmviRShiftC_8u_C1R(const uint8_t* src, int srcStep, uint32_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_8u_C1IR(uint8_t* srcDst, int srcDstStep, uint32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_8u_C3R(const uint8_t* src, int srcStep, const uint32_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_8u_C3IR(uint8_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_8u_C4R(const uint8_t* src, int srcStep, const uint32_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_8u_C4IR(uint8_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_8u_AC4R(const uint8_t* src, int srcStep, const uint32_t* value, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_8u_AC4IR(uint8_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_C1R(const uint16_t* src, int srcStep, uint32_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_C1IR(uint16_t* srcDst, int srcDstStep, uint32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_C3R(const uint16_t* src, int srcStep, const uint32_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_C3IR(uint16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_C4R(const uint16_t* src, int srcStep, const uint32_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_C4IR(uint16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_AC4R(const uint16_t* src, int srcStep, const uint32_t* value, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16u_AC4IR(uint16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_C1R(const int16_t* src, int srcStep, uint32_t value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_C1IR(int16_t* srcDst, int srcDstStep, uint32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_C3R(const int16_t* src, int srcStep, const uint32_t* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_C3IR(int16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_C4R(const int16_t* src, int srcStep, const uint32_t* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_C4IR(int16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_AC4R(const int16_t* src, int srcStep, const uint32_t* value, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_16s_AC4IR(int16_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_C1R(const int32_t* src, int srcStep, uint32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_C1IR(int32_t* srcDst, int srcDstStep, uint32_t value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_C3R(const int32_t* src, int srcStep, const uint32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_C3IR(int32_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_C4R(const int32_t* src, int srcStep, const uint32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_C4IR(int32_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_AC4R(const int32_t* src, int srcStep, const uint32_t* value, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviRShiftC_32s_AC4IR(int32_t* srcDst, int srcDstStep, const uint32_t* value, ImageSize roiSize);

/* zmviAbs: dst = |src|; of -32768 it is 32767.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/piunary.cpp */
ZMV_API StatusCode zmviAbs_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAbs_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviSqr: dst = src * src.
   Integers: the exact result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.  32f: the result in single precision, under the caller's rounding mode.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/piunary.cpp */
ZMV_API StatusCode zmviSqr_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_8u_C3RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_8u_C4RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_8u_C4IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_8u_AC4RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_8u_AC4IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_C3RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_C4RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_C4IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_AC4RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16u_AC4IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_C1RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_C3RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_C4RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_C4IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_AC4RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_16s_AC4IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqr_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqr_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqr_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqr_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqr_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqr_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqr_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqr_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviSqrt: dst = the square root of src.
   Integers: the exact root times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.
   Negative numbers give 0.  32f: the root in single precision, under the caller's rounding mode; negative numbers give
   NaN.
   Regions of 32f that read and write more than the largest cache holds are written past the caches, but not in place.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/piunary.cpp */
ZMV_API StatusCode zmviSqrt_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_8u_C3RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_8u_AC4RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_8u_AC4IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16u_C3RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16u_AC4RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16u_AC4IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16s_C1RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16s_C3RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16s_AC4RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_16s_AC4IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviSqrt_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqrt_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqrt_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqrt_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqrt_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqrt_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviSqrt_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviExp: dst = e to the power of src.
   Integers: the result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.
   32f: within one unit in the last place, the same whatever the caller's rounding mode; minus infinity gives 0.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/piexpln.cpp */
ZMV_API StatusCode zmviExp_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_8u_C3RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16u_C3RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16s_C1RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16s_C3RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviExp_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviExp_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviExp_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviExp_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviLn: dst = the natural logarithm of src.
   Integers: the result times 2 to the power of -scaleFactor, rounded to nearest with ties to even, saturated; any
   scaleFactor is accepted.
   Zero and negative numbers give the smallest of the type.  32f: within one unit in the last place, the same whatever
   the caller's rounding mode; zero gives minus infinity, negative numbers NaN.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/piexpln.cpp */
ZMV_API StatusCode zmviLn_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_8u_C1IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_8u_C3RSfs(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_8u_C3IRSfs(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16u_C1IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16u_C3RSfs(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16u_C3IRSfs(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16s_C1RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16s_C1IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16s_C3RSfs(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_16s_C3IRSfs(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
ZMV_API StatusCode zmviLn_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLn_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLn_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviLn_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviComplement: dst = -src in two's complement; the type's minimum stays as it is.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/piunary.cpp */
ZMV_API StatusCode zmviComplement_8s_C1R(const int8_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_8s_C1IR(int8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_8s_C3R(const int8_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_8s_C3IR(int8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_8s_C4R(const int8_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_8s_C4IR(int8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_8s_AC4R(const int8_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_8s_AC4IR(int8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviComplement_32s_AC4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviNot: dst = ~src, bit by bit.
   AC4 leaves the fourth channel of the destination as it was.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/arith/piunary.cpp */
ZMV_API StatusCode zmviNot_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviNot_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviNot_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviNot_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviNot_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviNot_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviNot_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviNot_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviThreshold: cmpOp CMP_GREATER: dst = min(src, threshold).  CMP_LESS: dst = max(src, threshold).
   A pixel equal to a threshold stays as it is, and so does NaN.  Small numbers of 32f are compared as what they are,
   whatever the caller's denormal setting.
   Thresholds and values are numbers for C1, pointers to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or threshold is null.  STATUS_BAD_SIZE: width or height below
   1.  STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_ARGUMENT: cmpOp is neither.
   src/arith/pithresh.cpp */
ZMV_API StatusCode zmviThreshold_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int16_t threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, int cmpOp);
ZMV_API StatusCode zmviThreshold_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, int cmpOp);

/* zmviThreshold_GT: dst = min(src, threshold).
   A pixel equal to a threshold stays as it is, and so does NaN.  Small numbers of 32f are compared as what they are,
   whatever the caller's denormal setting.
   Thresholds and values are numbers for C1, pointers to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or threshold is null.  STATUS_BAD_SIZE: width or height below
   1.  STATUS_BAD_STEP: a step is not positive.
   src/arith/pithresh.cpp */
ZMV_API StatusCode zmviThreshold_GT_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t threshold);
ZMV_API StatusCode zmviThreshold_GT_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold);
ZMV_API StatusCode zmviThreshold_GT_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t threshold);
ZMV_API StatusCode zmviThreshold_GT_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold);
ZMV_API StatusCode zmviThreshold_GT_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int16_t threshold);
ZMV_API StatusCode zmviThreshold_GT_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold);
ZMV_API StatusCode zmviThreshold_GT_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_GT_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float threshold);
ZMV_API StatusCode zmviThreshold_GT_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold);
ZMV_API StatusCode zmviThreshold_GT_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold);
ZMV_API StatusCode zmviThreshold_GT_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold);
ZMV_API StatusCode zmviThreshold_GT_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold);
ZMV_API StatusCode zmviThreshold_GT_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold);

/* zmviThreshold_LT: dst = max(src, threshold).
   A pixel equal to a threshold stays as it is, and so does NaN.  Small numbers of 32f are compared as what they are,
   whatever the caller's denormal setting.
   Thresholds and values are numbers for C1, pointers to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or threshold is null.  STATUS_BAD_SIZE: width or height below
   1.  STATUS_BAD_STEP: a step is not positive.
   src/arith/pithresh.cpp */
ZMV_API StatusCode zmviThreshold_LT_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t threshold);
ZMV_API StatusCode zmviThreshold_LT_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold);
ZMV_API StatusCode zmviThreshold_LT_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t threshold);
ZMV_API StatusCode zmviThreshold_LT_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold);
ZMV_API StatusCode zmviThreshold_LT_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int16_t threshold);
ZMV_API StatusCode zmviThreshold_LT_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold);
ZMV_API StatusCode zmviThreshold_LT_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold);
ZMV_API StatusCode zmviThreshold_LT_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float threshold);
ZMV_API StatusCode zmviThreshold_LT_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold);
ZMV_API StatusCode zmviThreshold_LT_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold);
ZMV_API StatusCode zmviThreshold_LT_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold);
ZMV_API StatusCode zmviThreshold_LT_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold);
ZMV_API StatusCode zmviThreshold_LT_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold);

/* zmviThreshold_Val: dst = value where src > threshold (cmpOp CMP_GREATER) or src < threshold (CMP_LESS), elsewhere
   src.
   A pixel equal to a threshold stays as it is, and so does NaN.  Small numbers of 32f are compared as what they are,
   whatever the caller's denormal setting.
   Thresholds and values are numbers for C1, pointers to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_BAD_ARGUMENT: cmpOp is neither.  STATUS_NULL_POINTER: an image, threshold or value is
   null.  STATUS_BAD_SIZE: width or height below 1.  STATUS_BAD_STEP: a step is not positive.
   src/arith/pithresh.cpp */
ZMV_API StatusCode zmviThreshold_Val_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t threshold, uint8_t value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold, uint8_t value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t threshold, uint16_t value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold, uint16_t value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int16_t threshold, int16_t value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold, int16_t value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float threshold, float value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, float value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value, int cmpOp);
ZMV_API StatusCode zmviThreshold_Val_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value, int cmpOp);

/* zmviThreshold_GTVal: dst = value where src > threshold, elsewhere src.
   A pixel equal to a threshold stays as it is, and so does NaN.  Small numbers of 32f are compared as what they are,
   whatever the caller's denormal setting.
   Thresholds and values are numbers for C1, pointers to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image, threshold or value is null.  STATUS_BAD_SIZE: width or height
   below 1.  STATUS_BAD_STEP: a step is not positive.
   src/arith/pithresh.cpp */
ZMV_API StatusCode zmviThreshold_GTVal_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t threshold, uint8_t value);
ZMV_API StatusCode zmviThreshold_GTVal_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold, uint8_t value);
ZMV_API StatusCode zmviThreshold_GTVal_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t threshold, uint16_t value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold, uint16_t value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int16_t threshold, int16_t value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold, int16_t value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float threshold, float value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, float value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_GTVal_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value);

/* zmviThreshold_LTVal: dst = value where src < threshold, elsewhere src.
   A pixel equal to a threshold stays as it is, and so does NaN.  Small numbers of 32f are compared as what they are,
   whatever the caller's denormal setting.
   Thresholds and values are numbers for C1, pointers to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image, threshold or value is null.  STATUS_BAD_SIZE: width or height
   below 1.  STATUS_BAD_STEP: a step is not positive.
   src/arith/pithresh.cpp */
ZMV_API StatusCode zmviThreshold_LTVal_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t threshold, uint8_t value);
ZMV_API StatusCode zmviThreshold_LTVal_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold, uint8_t value);
ZMV_API StatusCode zmviThreshold_LTVal_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* threshold, const uint8_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t threshold, uint16_t value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold, uint16_t value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* threshold, const uint16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int16_t threshold, int16_t value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold, int16_t value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* threshold, const int16_t* value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float threshold, float value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, float value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* threshold, const float* value);
ZMV_API StatusCode zmviThreshold_LTVal_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* threshold, const float* value);

/* zmviThreshold_LTValGTVal: dst = valueLT where src < thresholdLT, valueGT where src > thresholdGT, elsewhere src.
   Two values and no others: zmviLUTPalette with a table of them; one bit a pixel: zmviGrayToBin.
   A pixel equal to a threshold stays as it is, and so does NaN.  Small numbers of 32f are compared as what they are,
   whatever the caller's denormal setting.
   Thresholds and values are numbers for C1, pointers to three for C3 and AC4, to four for C4.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image, thresholdLT, valueLT, thresholdGT or valueGT is null.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_THRESHOLD: a
   thresholdGT lies below its thresholdLT.
   src/arith/pithresh.cpp */
ZMV_API StatusCode zmviThreshold_LTValGTVal_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t thresholdLT, uint8_t valueLT, uint8_t thresholdGT, uint8_t valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t thresholdLT, uint8_t valueLT, uint8_t thresholdGT, uint8_t valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* thresholdLT, const uint8_t* valueLT, const uint8_t* thresholdGT, const uint8_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* thresholdLT, const uint8_t* valueLT, const uint8_t* thresholdGT, const uint8_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* thresholdLT, const uint8_t* valueLT, const uint8_t* thresholdGT, const uint8_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* thresholdLT, const uint8_t* valueLT, const uint8_t* thresholdGT, const uint8_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t thresholdLT, uint16_t valueLT, uint16_t thresholdGT, uint16_t valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t thresholdLT, uint16_t valueLT, uint16_t thresholdGT, uint16_t valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* thresholdLT, const uint16_t* valueLT, const uint16_t* thresholdGT, const uint16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* thresholdLT, const uint16_t* valueLT, const uint16_t* thresholdGT, const uint16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* thresholdLT, const uint16_t* valueLT, const uint16_t* thresholdGT, const uint16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t* thresholdLT, const uint16_t* valueLT, const uint16_t* thresholdGT, const uint16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int16_t thresholdLT, int16_t valueLT, int16_t thresholdGT, int16_t valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t thresholdLT, int16_t valueLT, int16_t thresholdGT, int16_t valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* thresholdLT, const int16_t* valueLT, const int16_t* thresholdGT, const int16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* thresholdLT, const int16_t* valueLT, const int16_t* thresholdGT, const int16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* thresholdLT, const int16_t* valueLT, const int16_t* thresholdGT, const int16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t* thresholdLT, const int16_t* valueLT, const int16_t* thresholdGT, const int16_t* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float thresholdLT, float valueLT, float thresholdGT, float valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float thresholdLT, float valueLT, float thresholdGT, float valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* thresholdLT, const float* valueLT, const float* thresholdGT, const float* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* thresholdLT, const float* valueLT, const float* thresholdGT, const float* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const float* thresholdLT, const float* valueLT, const float* thresholdGT, const float* valueGT);
ZMV_API StatusCode zmviThreshold_LTValGTVal_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float* thresholdLT, const float* valueLT, const float* thresholdGT, const float* valueGT);

/* zmviComputeThreshold_Otsu: *pThreshold = the level that best parts the pixels into those up to it and those above:
   by Otsu's rule the level of the largest variance between the two classes, of equal ones the smallest.  Classes of
   less than 2^-23 of the pixels are not considered; when there are no others, as in a flat image, the result is 0.
   Evaluated in double precision; the caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: src or pThreshold is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: srcStep is less than the bytes of a row.
   src/arith/pithresholdotsu.cpp */
ZMV_API StatusCode zmviComputeThreshold_Otsu_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pThreshold);

/* zmviThresholdAdaptiveBoxGetBufferSize: The size in bytes of the work buffer of zmviThresholdAdaptiveBox.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: maskSize is not square, not positive, or even.  STATUS_BAD_DATATYPE: dataType is not
   DATATYPE_8U.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: a size exceeds 2147483647; nothing
   is written.
   src/arith/pithresholdadaptive.cpp */
ZMV_API StatusCode zmviThresholdAdaptiveBoxGetBufferSize(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, int* pBufferSize);

/* zmviThresholdAdaptiveBox: dst = valGT where src > mean - delta, elsewhere valLE.  mean is that of the maskSize pixels
   round the pixel,
   which is the middle one: masks are square and odd.  The comparison is exact, whatever delta; if that is NaN nothing
   is above.  A delta above 255 gives valGT, one at or below -255 valLE, and a mask of 1x1 valGT where delta > 0, all
   without reading src.
   Pixels outside the region come from borderType: BORDER_REPL or BORDER_CONST (borderValue), each with any
   BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   buffer has the size that zmviThresholdAdaptiveBoxGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image or buffer is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_MASK_SIZE: maskSize is not square, not positive, or even.
   STATUS_BAD_BORDER: borderType is none of these.
   src/arith/pithresholdadaptive.cpp */
ZMV_API StatusCode zmviThresholdAdaptiveBox_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, float delta, uint8_t valGT, uint8_t valLE, int borderType, uint8_t borderValue, uint8_t* buffer);
ZMV_API StatusCode zmviThresholdAdaptiveBox_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize, float delta, uint8_t valGT, uint8_t valLE, int borderType, uint8_t borderValue, uint8_t* buffer);

/* zmviThresholdAdaptiveGaussGetBufferSize: The sizes in bytes of the spec object and of the work buffer of
   zmviThresholdAdaptiveGauss.
   Checked in this order.  STATUS_NULL_POINTER: pSpecSize or pBufferSize is null.  STATUS_BAD_SIZE: width or height
   below 1.  STATUS_BAD_MASK_SIZE: maskSize is not square, not positive, or even.  STATUS_BAD_DATATYPE: dataType is not
   DATATYPE_8U.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: a size exceeds 2147483647; nothing
   is written.
   src/arith/pithresholdadaptive.cpp */
ZMV_API StatusCode zmviThresholdAdaptiveGaussGetBufferSize(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, int* pSpecSize, int* pBufferSize);

/* zmviThresholdAdaptiveGaussInit: Makes the spec object of zmviThresholdAdaptiveGauss in pSpec, at any alignment; it
   may be copied elsewhere.
   The weights of offsets i from the middle, the same for rows and columns, are exp(-i * i / (2 * sigma * sigma)) over
   the sum of all, as multiples of 2^-22 that differ from it by at most one such unit and add up to 1.  A sigma that is
   not above 0 stands for 0.15 * (maskSize - 1) + 0.5.
   The object starts at the first multiple of 8 behind pSpec, whose first byte is the distance: a 64-bit tag, a mode of
   1 and the mask size in 32 bits, sigma, 4 bytes of 0, the address of the weights, and these as floats.
   Checked in this order.  STATUS_NULL_POINTER: pSpec is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: maskSize is not square, not positive, or even.  STATUS_BAD_DATATYPE: dataType is not
   DATATYPE_8U.  STATUS_BAD_CHANNELS: numChannels is not 1.  STATUS_SIZE_EXCEEDS_INT: the object takes more than
   2147483647 bytes.
   src/arith/pithresholdadaptive.cpp */
ZMV_API StatusCode zmviThresholdAdaptiveGaussInit(ImageSize roiSize, ImageSize maskSize, int dataType, int numChannels, float sigma, uint8_t* pSpec);

/* zmviThresholdAdaptiveGauss: dst = valGT where src > mean - delta, elsewhere valLE.  mean is that of the maskSize
   pixels round the pixel,
   which is the middle one: masks are square and odd.  The comparison is exact, whatever delta; if that is NaN nothing
   is above.  A delta above 255 gives valGT, one at or below -255 valLE, and a mask of 1x1 valGT where delta > 0, all
   without reading src.
   The mean is weighted: a pixel counts with the product of the weights of its column and of its row in pSpec.
   Pixels outside the region come from borderType: BORDER_REPL or BORDER_CONST (borderValue), each with any
   BORDER_IN_MEM_ flags for sides to be read from memory, or BORDER_IN_MEM alone.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   buffer has the size that zmviThresholdAdaptiveGaussGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, pSpec or buffer is null.  STATUS_BAD_SIZE: width or height
   below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_MASK_SIZE: maskSize is not square, not positive, or
   even.  STATUS_CONTEXT_MISMATCH: pSpec holds no object of zmviThresholdAdaptiveGaussInit.  STATUS_BAD_MASK_SIZE: it
   has another mask size.  STATUS_BAD_BORDER: borderType is none of these.
   src/arith/pithresholdadaptive.cpp */
ZMV_API StatusCode zmviThresholdAdaptiveGauss_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImageSize maskSize, float delta, uint8_t valGT, uint8_t valLE, int borderType, uint8_t borderValue, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviThresholdAdaptiveGauss_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize, float delta, uint8_t valGT, uint8_t valLE, int borderType, uint8_t borderValue, const uint8_t* pSpec, uint8_t* buffer);

/* zmviAlphaComp: dst = src1 composited with src2, each pixel by the alphas of both.
   cA, cB: colours of src1 and src2; aA, aB: their alphas; 1: the largest number of the type, 1.0 in 32f.
     alphaType     colour, times its alpha            alpha
     ALPHA_OVER    cA*aA + cB*aB*(1 - aA)             aA + aB*(1 - aA)
     ALPHA_IN      cA*aA*aB                           aA*aB
     ALPHA_OUT     cA*aA*(1 - aB)                     aA*(1 - aB)
     ALPHA_ATOP    cA*aA*aB + cB*aB*(1 - aA)          aB
     ALPHA_XOR     cA*aA*(1 - aB) + cB*aB*(1 - aA)    aA*(1 - aB) + aB*(1 - aA)
     ALPHA_PLUS    cA*aA + cB*aB, at most 1           aA + aB, at most 1
   The operations _PREMUL are the same for colours that come multiplied by their alpha: without the first factor aA or
   aB behind a colour, and at most 1.
   Colours of the result come multiplied by its alpha: composite it further by the operations _PREMUL, to show it over
   an opaque image.
   Integers: the exact result, rounded once to nearest (there are no ties); a negative colour of a signed type stays
   negative, down to the smallest of the type.  32f: in single precision, rounded to nearest even whatever the caller's
   rounding mode, weights too; a colour whose weight is zero has no influence, be it infinite or NaN.
   Alphas below 0 count as 0, of floats those above 1 as 1 and NaN as 0.
   AC1: images of alphas alone.  AC4: the fourth channel is alpha, of dst too.  AP4: the fourth plane is.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or a plane is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_ALPHA_TYPE: alphaType is none of the twelve.
   src/arith/pialpha8u.cpp */
ZMV_API StatusCode zmviAlphaComp_8u_AC1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_8u_AC4IR(const uint8_t* src1, int src1Step, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16u_AC1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16u_AC4IR(const uint16_t* src1, int src1Step, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16s_AC1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16s_AC4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16s_AC4IR(const int16_t* src1, int src1Step, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32s_AC1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32s_AC4IR(const int32_t* src1, int src1Step, int32_t* srcDst, int srcDstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32u_AC1R(const uint32_t* src1, int src1Step, const uint32_t* src2, int src2Step, uint32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32u_AC4R(const uint32_t* src1, int src1Step, const uint32_t* src2, int src2Step, uint32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32u_AC4IR(const uint32_t* src1, int src1Step, uint32_t* srcDst, int srcDstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32f_AC1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_32f_AC4IR(const float* src1, int src1Step, float* srcDst, int srcDstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_8u_AP4R(const uint8_t* const src1[4], int src1Step, const uint8_t* const src2[4], int src2Step, uint8_t* const dst[4], int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_8u_AP4IR(const uint8_t* const src1[4], int src1Step, uint8_t* const srcDst[4], int srcDstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16u_AP4R(const uint16_t* const src1[4], int src1Step, const uint16_t* const src2[4], int src2Step, uint16_t* const dst[4], int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaComp_16u_AP4IR(const uint16_t* const src1[4], int src1Step, uint16_t* const srcDst[4], int srcDstStep, ImageSize roiSize, int alphaType);

/* zmviAlphaCompC: dst = src1 composited with src2, with one alpha for all pixels of each: alpha1, alpha2.
   cA, cB: colours of src1 and src2; aA, aB: their alphas; 1: the largest number of the type, 1.0 in 32f.
     alphaType     colour, times its alpha            alpha
     ALPHA_OVER    cA*aA + cB*aB*(1 - aA)             aA + aB*(1 - aA)
     ALPHA_IN      cA*aA*aB                           aA*aB
     ALPHA_OUT     cA*aA*(1 - aB)                     aA*(1 - aB)
     ALPHA_ATOP    cA*aA*aB + cB*aB*(1 - aA)          aB
     ALPHA_XOR     cA*aA*(1 - aB) + cB*aB*(1 - aA)    aA*(1 - aB) + aB*(1 - aA)
     ALPHA_PLUS    cA*aA + cB*aB, at most 1           aA + aB, at most 1
   The operations _PREMUL are the same for colours that come multiplied by their alpha: without the first factor aA or
   aB behind a colour, and at most 1.
   Colours of the result come multiplied by its alpha: composite it further by the operations _PREMUL, to show it over
   an opaque image.
   Integers: the exact result, rounded once to nearest (there are no ties); a negative colour of a signed type stays
   negative, down to the smallest of the type.  32f: in single precision, rounded to nearest even whatever the caller's
   rounding mode, weights too; a colour whose weight is zero has no influence, be it infinite or NaN.
   Alphas below 0 count as 0, of floats those above 1 as 1 and NaN as 0.
   Only colours are written.  AC4 and AP4 leave the fourth channel or plane of the destination as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or a plane is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_ALPHA_TYPE: alphaType is none of the twelve.
   src/arith/pialpha8u.cpp */
ZMV_API StatusCode zmviAlphaCompC_8u_C1R(const uint8_t* src1, int src1Step, uint8_t alpha1, const uint8_t* src2, int src2Step, uint8_t alpha2, uint8_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_8u_C1IR(const uint8_t* src1, int src1Step, uint8_t alpha1, uint8_t* srcDst, int srcDstStep, uint8_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_8u_AC4R(const uint8_t* src1, int src1Step, uint8_t alpha1, const uint8_t* src2, int src2Step, uint8_t alpha2, uint8_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_8u_AC4IR(const uint8_t* src1, int src1Step, uint8_t alpha1, uint8_t* srcDst, int srcDstStep, uint8_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16u_C1R(const uint16_t* src1, int src1Step, uint16_t alpha1, const uint16_t* src2, int src2Step, uint16_t alpha2, uint16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16u_C1IR(const uint16_t* src1, int src1Step, uint16_t alpha1, uint16_t* srcDst, int srcDstStep, uint16_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16u_AC4R(const uint16_t* src1, int src1Step, uint16_t alpha1, const uint16_t* src2, int src2Step, uint16_t alpha2, uint16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16u_AC4IR(const uint16_t* src1, int src1Step, uint16_t alpha1, uint16_t* srcDst, int srcDstStep, uint16_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16s_C1R(const int16_t* src1, int src1Step, int16_t alpha1, const int16_t* src2, int src2Step, int16_t alpha2, int16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16s_C1IR(const int16_t* src1, int src1Step, int16_t alpha1, int16_t* srcDst, int srcDstStep, int16_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16s_AC4R(const int16_t* src1, int src1Step, int16_t alpha1, const int16_t* src2, int src2Step, int16_t alpha2, int16_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16s_AC4IR(const int16_t* src1, int src1Step, int16_t alpha1, int16_t* srcDst, int srcDstStep, int16_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32s_C1R(const int32_t* src1, int src1Step, int32_t alpha1, const int32_t* src2, int src2Step, int32_t alpha2, int32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32s_C1IR(const int32_t* src1, int src1Step, int32_t alpha1, int32_t* srcDst, int srcDstStep, int32_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32s_AC4R(const int32_t* src1, int src1Step, int32_t alpha1, const int32_t* src2, int src2Step, int32_t alpha2, int32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32s_AC4IR(const int32_t* src1, int src1Step, int32_t alpha1, int32_t* srcDst, int srcDstStep, int32_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32u_C1R(const uint32_t* src1, int src1Step, uint32_t alpha1, const uint32_t* src2, int src2Step, uint32_t alpha2, uint32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32u_C1IR(const uint32_t* src1, int src1Step, uint32_t alpha1, uint32_t* srcDst, int srcDstStep, uint32_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32u_AC4R(const uint32_t* src1, int src1Step, uint32_t alpha1, const uint32_t* src2, int src2Step, uint32_t alpha2, uint32_t* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32u_AC4IR(const uint32_t* src1, int src1Step, uint32_t alpha1, uint32_t* srcDst, int srcDstStep, uint32_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32f_C1R(const float* src1, int src1Step, float alpha1, const float* src2, int src2Step, float alpha2, float* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32f_C1IR(const float* src1, int src1Step, float alpha1, float* srcDst, int srcDstStep, float alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32f_AC4R(const float* src1, int src1Step, float alpha1, const float* src2, int src2Step, float alpha2, float* dst, int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_32f_AC4IR(const float* src1, int src1Step, float alpha1, float* srcDst, int srcDstStep, float alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_8u_AP4R(const uint8_t* const src1[4], int src1Step, uint8_t alpha1, const uint8_t* const src2[4], int src2Step, uint8_t alpha2, uint8_t* const dst[4], int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_8u_AP4IR(const uint8_t* const src1[4], int src1Step, uint8_t alpha1, uint8_t* const srcDst[4], int srcDstStep, uint8_t alpha2, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16u_AP4R(const uint16_t* const src1[4], int src1Step, uint16_t alpha1, const uint16_t* const src2[4], int src2Step, uint16_t alpha2, uint16_t* const dst[4], int dstStep, ImageSize roiSize, int alphaType);
ZMV_API StatusCode zmviAlphaCompC_16u_AP4IR(const uint16_t* const src1[4], int src1Step, uint16_t alpha1, uint16_t* const srcDst[4], int srcDstStep, uint16_t alpha2, ImageSize roiSize, int alphaType);

/* zmviAlphaPremul: dst = src * alpha over the largest number of the type, rounded to nearest (there are no ties).
   AC4: alpha is the fourth channel of src; that of dst stays as it was.  AP4: the same with planes.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or a plane is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/pialpha8u.cpp */
ZMV_API StatusCode zmviAlphaPremul_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremul_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremul_8u_AP4R(const uint8_t* const src[4], int srcStep, uint8_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremul_8u_AP4IR(uint8_t* const srcDst[4], int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremul_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremul_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremul_16u_AP4R(const uint16_t* const src[4], int srcStep, uint16_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremul_16u_AP4IR(uint16_t* const srcDst[4], int srcDstStep, ImageSize roiSize);

/* zmviAlphaPremulC: dst = src * alpha over the largest number of the type, rounded to nearest (there are no ties).
   C4: all four channels.  AC4 and AP4 leave the fourth channel or plane of the destination as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or a plane is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/pialpha8u.cpp */
ZMV_API StatusCode zmviAlphaPremulC_8u_C1R(const uint8_t* src, int srcStep, uint8_t alpha, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_C1IR(uint8_t* srcDst, int srcDstStep, uint8_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_C3R(const uint8_t* src, int srcStep, uint8_t alpha, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_C3IR(uint8_t* srcDst, int srcDstStep, uint8_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_C4R(const uint8_t* src, int srcStep, uint8_t alpha, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_C4IR(uint8_t* srcDst, int srcDstStep, uint8_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_AC4R(const uint8_t* src, int srcStep, uint8_t alpha, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_AC4IR(uint8_t* srcDst, int srcDstStep, uint8_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_AP4R(const uint8_t* const src[4], int srcStep, uint8_t alpha, uint8_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_8u_AP4IR(uint8_t* const srcDst[4], int srcDstStep, uint8_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_C1R(const uint16_t* src, int srcStep, uint16_t alpha, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_C1IR(uint16_t* srcDst, int srcDstStep, uint16_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_C3R(const uint16_t* src, int srcStep, uint16_t alpha, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_C3IR(uint16_t* srcDst, int srcDstStep, uint16_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_C4R(const uint16_t* src, int srcStep, uint16_t alpha, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_C4IR(uint16_t* srcDst, int srcDstStep, uint16_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_AC4R(const uint16_t* src, int srcStep, uint16_t alpha, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_AC4IR(uint16_t* srcDst, int srcDstStep, uint16_t alpha, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_AP4R(const uint16_t* const src[4], int srcStep, uint16_t alpha, uint16_t* const dst[4], int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviAlphaPremulC_16u_AP4IR(uint16_t* const srcDst[4], int srcDstStep, uint16_t alpha, ImageSize roiSize);

/* zmviCompColorKey: dst = src2 where the pixel of src1 equals colorKey in every channel, elsewhere src1.
   colorKey: a number for C1, a pointer to three for C3 and AC4, to four for C4.  AC4 compares and writes three
   channels: the fourth of the destination stays as it was.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or colorKey is null.  STATUS_BAD_SIZE: width or height below 1.
   src/arith/picolorkey.cpp */
ZMV_API StatusCode zmviCompColorKey_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t colorKey);
ZMV_API StatusCode zmviCompColorKey_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t colorKey);
ZMV_API StatusCode zmviCompColorKey_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize, const uint16_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, int16_t colorKey);
ZMV_API StatusCode zmviCompColorKey_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* colorKey);
ZMV_API StatusCode zmviCompColorKey_16s_AC4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst, int dstStep, ImageSize roiSize, const int16_t* colorKey);

/* zmviAlphaCompColorKey: dst = src1 composited with src2, each pixel by the alphas of both, where pixels of src1 whose
   three colours equal
   colorKey count as colour 0 with alpha 0.
   cA, cB: colours of src1 and src2; aA, aB: their alphas; 1: the largest number of the type, 1.0 in 32f.
     alphaType     colour, times its alpha            alpha
     ALPHA_OVER    cA*aA + cB*aB*(1 - aA)             aA + aB*(1 - aA)
     ALPHA_IN      cA*aA*aB                           aA*aB
     ALPHA_OUT     cA*aA*(1 - aB)                     aA*(1 - aB)
     ALPHA_ATOP    cA*aA*aB + cB*aB*(1 - aA)          aB
     ALPHA_XOR     cA*aA*(1 - aB) + cB*aB*(1 - aA)    aA*(1 - aB) + aB*(1 - aA)
     ALPHA_PLUS    cA*aA + cB*aB, at most 1           aA + aB, at most 1
   The operations _PREMUL are the same for colours that come multiplied by their alpha: without the first factor aA or
   aB behind a colour, and at most 1.
   Colours of the result come multiplied by its alpha: composite it further by the operations _PREMUL, to show it over
   an opaque image.
   Integers: the exact result, rounded once to nearest (there are no ties); a negative colour of a signed type stays
   negative, down to the smallest of the type.  32f: in single precision, rounded to nearest even whatever the caller's
   rounding mode, weights too; a colour whose weight is zero has no influence, be it infinite or NaN.
   Alphas below 0 count as 0, of floats those above 1 as 1 and NaN as 0.
   The fourth channel is alpha, of dst too.  colorKey points to three colours.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or colorKey is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_ALPHA_TYPE: alphaType is none of the twelve.
   src/arith/picolorkey.cpp */
ZMV_API StatusCode zmviAlphaCompColorKey_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* colorKey, int alphaType);

/* zmviConvert: dst = src as another element type: the name has the two types, source first.
   Wider types hold every value; 32s32f and 32u32f round to nearest even.  Narrower types saturate.  Rs: negative
   numbers become 0.  With roundMode: a real number becomes an integer by ROUND_ZERO, toward zero; by ROUND_NEAR, to
   nearest with ties to even; by any other value, plus one half and then toward zero.  It saturates; NaN becomes 0.
   RSfs: the value times 2 to the power of -scaleFactor, exactly, before that; any scaleFactor is accepted.  The
   caller's rounding mode has no influence and is not changed.
   AC4 leaves the fourth channel of the destination as it was.
   In place: 32f32u_C1IRSfs, whose srcDst holds uint32_t afterwards; elsewhere src and dst must not overlap, but in Rs,
   which then converts element by element from the first on.
   Except in Rs, RSfs and AC4, regions that read and write more than the largest cache holds are written past the
   caches.
   Grey of colours: planes by zmviCopy, zmviMulC each by its weight of 256 with scaleFactor 8, zmviAdd.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive; Rs accepts any.
   src/datamove/piconvertca.cpp and piconvert_ort.cpp */
ZMV_API StatusCode zmviConvert_8u16u_C1R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u16u_C3R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u16u_C4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u16u_AC4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u16s_C3R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u16s_C4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u16s_AC4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32s_C1R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32s_C3R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32s_C4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32s_AC4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8u32f_AC4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32s_C1R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32s_C3R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32s_C4R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32s_AC4R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32f_C1R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32f_C3R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32f_C4R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32f_AC4R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32s_C1R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32s_C3R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32s_C4R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32s_AC4R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32f_C1R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32f_C3R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32f_C4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32f_AC4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32s_C1R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32s_C3R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32s_C4R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32s_AC4R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32f_C1R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32f_C3R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32f_C4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32f_AC4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s16s_C1R(const int8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s64f_C1R(const int8_t* src, int srcStep, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u32u_C1R(const uint16_t* src, int srcStep, uint32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s32f_C1R(const int32_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32u32f_C1R(const uint32_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s8u_C1R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s8u_C3R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s8u_C4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s8u_AC4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u8u_C1R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u8u_C3R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u8u_C4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16u8u_AC4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8u_C1R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8u_C3R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8u_C4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8u_AC4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8s_C1R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8s_C3R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8s_C4R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s8s_AC4R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s8u_C1Rs(const int8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s16u_C1Rs(const int8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_8s32u_C1Rs(const int8_t* src, int srcStep, uint32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s16u_C1Rs(const int16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_16s32u_C1Rs(const int16_t* src, int srcStep, uint32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32s32u_C1Rs(const int32_t* src, int srcStep, uint32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviConvert_32f8u_C1R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f8u_C3R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f8u_C4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f8u_AC4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f8s_C1R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f8s_C3R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f8s_C4R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f8s_AC4R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16u_C1R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16u_C3R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16u_C4R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16u_AC4R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16s_C1R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16s_C3R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16s_C4R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_32f16s_AC4R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode);
ZMV_API StatusCode zmviConvert_8u8s_C1RSfs(const uint8_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_16s8s_C1RSfs(const int16_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_16u8s_C1RSfs(const uint16_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_16u16s_C1RSfs(const uint16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32s16s_C1RSfs(const int32_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32s16u_C1RSfs(const int32_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32u8u_C1RSfs(const uint32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32u8s_C1RSfs(const uint32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32u16u_C1RSfs(const uint32_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32u16s_C1RSfs(const uint32_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32u32s_C1RSfs(const uint32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32f8u_C1RSfs(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32f8s_C1RSfs(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32f16u_C1RSfs(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32f16s_C1RSfs(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32f32s_C1RSfs(const float* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32f32u_C1RSfs(const float* src, int srcStep, uint32_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_32f32u_C1IRSfs(float* srcDst, int srcDstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_64f8u_C1RSfs(const double* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_64f8s_C1RSfs(const double* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_64f16u_C1RSfs(const double* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);
ZMV_API StatusCode zmviConvert_64f16s_C1RSfs(const double* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int roundMode, int scaleFactor);

/* zmviScale: dst = src, the whole range of one type brought to the whole range of the other: the name has the two
   types.
   8u to wider integers: the smallest, plus src * 257 (16 bits) or src * 16843009 (32 bits).  Back: the exact quotient
   of what src lies above the smallest of its type, to nearest; there are no ties.
   8u32f: 0 .. 255 become vMin .. vMax, by single precision src * s + vMin, each step rounded, but at most vMax, and
   exactly that for 255; s is (vMax - vMin) / 255 in double precision, rounded.  32f8u: (src - vMin) * t in single
   precision, each step rounded, t being 255 / (vMax - vMin) likewise; then to nearest with ties to even, saturated; NaN
   becomes 0.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions that read and write more than the largest cache holds are written past the caches.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_RANGE: vMin is not below vMax, one of them is NaN or infinite,
   or their difference exceeds the largest float.
   src/datamove/piscale.cpp */
ZMV_API StatusCode zmviScale_8u16u_C1R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u16u_C3R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u16u_C4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u16u_AC4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u16s_C3R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u16s_C4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u16s_AC4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u32s_C1R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u32s_C3R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u32s_C4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u32s_AC4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16u8u_C1R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16u8u_C3R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16u8u_C4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16u8u_AC4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16s8u_C1R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16s8u_C3R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16s8u_C4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_16s8u_AC4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_32s8u_C1R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_32s8u_C3R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_32s8u_C4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_32s8u_AC4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScale_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);
ZMV_API StatusCode zmviScale_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);
ZMV_API StatusCode zmviScale_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);
ZMV_API StatusCode zmviScale_8u32f_AC4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);
ZMV_API StatusCode zmviScale_32f8u_C1R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);
ZMV_API StatusCode zmviScale_32f8u_C3R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);
ZMV_API StatusCode zmviScale_32f8u_C4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);
ZMV_API StatusCode zmviScale_32f8u_AC4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin, float vMax);

/* zmviScaleC: dst = src * mVal + aVal: the name has the types of src and dst, or one for both.
   The product in double precision, rounded, plus aVal, rounded again.  To integers: to nearest with ties to even,
   saturated; NaN becomes 0.  To 32f: rounded once more.  Any constants are accepted; of several NaNs that of the pixel
   goes on before that of mVal, and that before aVal's.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   Types of one width may share their memory.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/datamove/piscale.cpp */
ZMV_API StatusCode zmviScaleC_8u_C1R(const uint8_t* src, int srcStep, double mVal, double aVal, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8u_C1IR(uint8_t* srcDst, int srcDstStep, double mVal, double aVal, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8u8s_C1R(const uint8_t* src, int srcStep, double mVal, double aVal, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8u16u_C1R(const uint8_t* src, int srcStep, double mVal, double aVal, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8u16s_C1R(const uint8_t* src, int srcStep, double mVal, double aVal, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8u32s_C1R(const uint8_t* src, int srcStep, double mVal, double aVal, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8u32f_C1R(const uint8_t* src, int srcStep, double mVal, double aVal, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8u64f_C1R(const uint8_t* src, int srcStep, double mVal, double aVal, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s_C1R(const int8_t* src, int srcStep, double mVal, double aVal, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s_C1IR(int8_t* srcDst, int srcDstStep, double mVal, double aVal, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s8u_C1R(const int8_t* src, int srcStep, double mVal, double aVal, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s16u_C1R(const int8_t* src, int srcStep, double mVal, double aVal, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s16s_C1R(const int8_t* src, int srcStep, double mVal, double aVal, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s32s_C1R(const int8_t* src, int srcStep, double mVal, double aVal, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s32f_C1R(const int8_t* src, int srcStep, double mVal, double aVal, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_8s64f_C1R(const int8_t* src, int srcStep, double mVal, double aVal, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u_C1R(const uint16_t* src, int srcStep, double mVal, double aVal, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u_C1IR(uint16_t* srcDst, int srcDstStep, double mVal, double aVal, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u8u_C1R(const uint16_t* src, int srcStep, double mVal, double aVal, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u8s_C1R(const uint16_t* src, int srcStep, double mVal, double aVal, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u16s_C1R(const uint16_t* src, int srcStep, double mVal, double aVal, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u32s_C1R(const uint16_t* src, int srcStep, double mVal, double aVal, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u32f_C1R(const uint16_t* src, int srcStep, double mVal, double aVal, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16u64f_C1R(const uint16_t* src, int srcStep, double mVal, double aVal, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s_C1R(const int16_t* src, int srcStep, double mVal, double aVal, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s_C1IR(int16_t* srcDst, int srcDstStep, double mVal, double aVal, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s8u_C1R(const int16_t* src, int srcStep, double mVal, double aVal, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s8s_C1R(const int16_t* src, int srcStep, double mVal, double aVal, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s16u_C1R(const int16_t* src, int srcStep, double mVal, double aVal, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s32s_C1R(const int16_t* src, int srcStep, double mVal, double aVal, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s32f_C1R(const int16_t* src, int srcStep, double mVal, double aVal, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_16s64f_C1R(const int16_t* src, int srcStep, double mVal, double aVal, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s_C1R(const int32_t* src, int srcStep, double mVal, double aVal, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s_C1IR(int32_t* srcDst, int srcDstStep, double mVal, double aVal, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s8u_C1R(const int32_t* src, int srcStep, double mVal, double aVal, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s8s_C1R(const int32_t* src, int srcStep, double mVal, double aVal, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s16u_C1R(const int32_t* src, int srcStep, double mVal, double aVal, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s16s_C1R(const int32_t* src, int srcStep, double mVal, double aVal, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s32f_C1R(const int32_t* src, int srcStep, double mVal, double aVal, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32s64f_C1R(const int32_t* src, int srcStep, double mVal, double aVal, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f_C1R(const float* src, int srcStep, double mVal, double aVal, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f_C1IR(float* srcDst, int srcDstStep, double mVal, double aVal, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f8u_C1R(const float* src, int srcStep, double mVal, double aVal, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f8s_C1R(const float* src, int srcStep, double mVal, double aVal, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f16u_C1R(const float* src, int srcStep, double mVal, double aVal, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f16s_C1R(const float* src, int srcStep, double mVal, double aVal, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f32s_C1R(const float* src, int srcStep, double mVal, double aVal, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_32f64f_C1R(const float* src, int srcStep, double mVal, double aVal, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f_C1R(const double* src, int srcStep, double mVal, double aVal, double* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f_C1IR(double* srcDst, int srcDstStep, double mVal, double aVal, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f8u_C1R(const double* src, int srcStep, double mVal, double aVal, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f8s_C1R(const double* src, int srcStep, double mVal, double aVal, int8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f16u_C1R(const double* src, int srcStep, double mVal, double aVal, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f16s_C1R(const double* src, int srcStep, double mVal, double aVal, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f32s_C1R(const double* src, int srcStep, double mVal, double aVal, int32_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviScaleC_64f32f_C1R(const double* src, int srcStep, double mVal, double aVal, float* dst, int dstStep, ImageSize roiSize);

/* zmviGrayToBin: dst = 1 where src > threshold, elsewhere 0, in an image of one bit a pixel.
   A row of dst holds eight pixels a byte, the leftmost in the highest bit.  The region starts in the byte at dst, in
   each row dstBitOffset (0 to 7) bits from the highest.
   Bits outside the region stay as they were, and bytes without a bit of it are not touched.  The first and the last
   byte of a row are read and written back: tiles that share a byte must not be written at once.
   32f: 0 where src or threshold is NaN; small numbers are compared as what they are, whatever the caller's denormal
   setting.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_OUT_OF_RANGE: dstBitOffset is none of 0 to 7.  STATUS_BAD_STEP: a step is not positive.
   src/datamove/pibinary.cpp */
ZMV_API StatusCode zmviGrayToBin_8u1u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, int dstBitOffset, ImageSize roiSize, uint8_t threshold);
ZMV_API StatusCode zmviGrayToBin_16u1u_C1R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, int dstBitOffset, ImageSize roiSize, uint16_t threshold);
ZMV_API StatusCode zmviGrayToBin_16s1u_C1R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, int dstBitOffset, ImageSize roiSize, int16_t threshold);
ZMV_API StatusCode zmviGrayToBin_32f1u_C1R(const float* src, int srcStep, uint8_t* dst, int dstStep, int dstBitOffset, ImageSize roiSize, float threshold);

/* zmviBinToGray: dst = loVal where src is 0, hiVal where it is 1, from an image of one bit a pixel.
   A row of src holds eight pixels a byte, the leftmost in the highest bit.  The region starts in the byte at src, in
   each row srcBitOffset (0 to 7) bits from the highest.
   Bytes without a bit of the region are not read.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_OUT_OF_RANGE: srcBitOffset is none of 0 to 7.  STATUS_BAD_STEP: a step is not positive.
   src/datamove/pibinary.cpp */
ZMV_API StatusCode zmviBinToGray_1u8u_C1R(const uint8_t* src, int srcStep, int srcBitOffset, uint8_t* dst, int dstStep, ImageSize roiSize, uint8_t loVal, uint8_t hiVal);
ZMV_API StatusCode zmviBinToGray_1u16u_C1R(const uint8_t* src, int srcStep, int srcBitOffset, uint16_t* dst, int dstStep, ImageSize roiSize, uint16_t loVal, uint16_t hiVal);
ZMV_API StatusCode zmviBinToGray_1u16s_C1R(const uint8_t* src, int srcStep, int srcBitOffset, int16_t* dst, int dstStep, ImageSize roiSize, int16_t loVal, int16_t hiVal);
ZMV_API StatusCode zmviBinToGray_1u32f_C1R(const uint8_t* src, int srcStep, int srcBitOffset, float* dst, int dstStep, ImageSize roiSize, float loVal, float hiVal);

/* zmviNorm_Inf: value = the largest magnitude of src, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: src or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: srcStep is not positive.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNorm_Inf_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_32f_C1R(const float* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_32f_C3R(const float* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_Inf_32f_C4R(const float* src, int srcStep, ImageSize roiSize, double* value);

/* zmviNormDiff_Inf: value = the largest magnitude of src1 - src2, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNormDiff_Inf_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_Inf_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value);

/* zmviNormRel_Inf: value = the largest magnitude of src1 - src2, over that of src2, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Where the norm of src2 is zero, of 32f below the smallest normal double, value is infinite, or NaN if that of the
   difference is zero, too, or NaN.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   STATUS_WARN_DIV_BY_ZERO: a norm of src2 is zero; all results are written.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNormRel_Inf_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_Inf_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value);

/* zmviNorm_L1: value = the sum of the magnitudes of src, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: src or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: srcStep is not positive.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNorm_L1_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L1_32f_C1R(const float* src, int srcStep, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNorm_L1_32f_C3R(const float* src, int srcStep, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNorm_L1_32f_C4R(const float* src, int srcStep, ImageSize roiSize, double* value, int hint);

/* zmviNormDiff_L1: value = the sum of the magnitudes of src1 - src2, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNormDiff_L1_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L1_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormDiff_L1_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormDiff_L1_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);

/* zmviNormRel_L1: value = the sum of the magnitudes of src1 - src2, over that of src2, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Where the norm of src2 is zero, of 32f below the smallest normal double, value is infinite, or NaN if that of the
   difference is zero, too, or NaN.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   STATUS_WARN_DIV_BY_ZERO: a norm of src2 is zero; all results are written.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNormRel_L1_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L1_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormRel_L1_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormRel_L1_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);

/* zmviNorm_L2: value = the square root of the sum of the squares of src, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: src or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: srcStep is not positive.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNorm_L2_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNorm_L2_32f_C1R(const float* src, int srcStep, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNorm_L2_32f_C3R(const float* src, int srcStep, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNorm_L2_32f_C4R(const float* src, int srcStep, ImageSize roiSize, double* value, int hint);

/* zmviNormDiff_L2: value = the square root of the sum of the squares of src1 - src2, for each channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNormDiff_L2_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormDiff_L2_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormDiff_L2_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormDiff_L2_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);

/* zmviNormRel_L2: value = the square root of the sum of the squares of src1 - src2, over that of src2, for each
   channel.
   value: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; the largest
   distance, and with hint HINT_ACCURATE all differences, squares and sums, are formed in double; with any other hint in
   float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   The caller's rounding mode has no influence and is not changed.
   Where the norm of src2 is zero, of 32f below the smallest normal double, value is infinite, or NaN if that of the
   difference is zero, too, or NaN.
   Checked in this order.  STATUS_NULL_POINTER: an image or value is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   STATUS_WARN_DIV_BY_ZERO: a norm of src2 is zero; all results are written.
   src/stats/pinorm8u.cpp, pinorm16u.cpp, pinorm32f.cpp */
ZMV_API StatusCode zmviNormRel_L2_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* value);
ZMV_API StatusCode zmviNormRel_L2_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormRel_L2_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);
ZMV_API StatusCode zmviNormRel_L2_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* value, int hint);

/* zmviSum: sum = the sum of all pixels, for each channel.
   sum: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: with hint HINT_ACCURATE summed in double, with any
   other in float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: src or sum is null.  STATUS_BAD_SIZE: width or height below 1.
   src/stats/pisum.cpp */
ZMV_API StatusCode zmviSum_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, double* sum);
ZMV_API StatusCode zmviSum_32f_C1R(const float* src, int srcStep, ImageSize roiSize, double* sum, int hint);
ZMV_API StatusCode zmviSum_32f_C3R(const float* src, int srcStep, ImageSize roiSize, double* sum, int hint);
ZMV_API StatusCode zmviSum_32f_C4R(const float* src, int srcStep, ImageSize roiSize, double* sum, int hint);

/* zmviMean: mean = the mean of all pixels, for each channel: their sum over their number.
   mean: one double for C1, an array of three for C3 and of four for C4, the fourth channel like the others.
   Integers: exact for a region of any size, and rounded once.  32f: with hint HINT_ACCURATE summed in double, with any
   other in float, in partial sums that are added up in double (docs/sums.md has their order, the same in every build).
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: src or mean is null.  STATUS_BAD_SIZE: width or height below 1.
   src/stats/pisum.cpp */
ZMV_API StatusCode zmviMean_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, double* mean);
ZMV_API StatusCode zmviMean_32f_C1R(const float* src, int srcStep, ImageSize roiSize, double* mean, int hint);
ZMV_API StatusCode zmviMean_32f_C3R(const float* src, int srcStep, ImageSize roiSize, double* mean, int hint);
ZMV_API StatusCode zmviMean_32f_C4R(const float* src, int srcStep, ImageSize roiSize, double* mean, int hint);

/* zmviDotProd: pDp = the sum of src1 * src2 over all pixels, for each channel; src1 and src2 may be one image.
   pDp: one double for C1, an array of three for C3 and AC4 and of four for C4.
   Integers: exact for a region of any size, and rounded once.  32f: NaN where the channel has one; with hint
   HINT_ACCURATE each product and all sums are formed in double, with any other hint in float, in partial sums that are
   added up in double (docs/sums.md has their order, the same in every build).  The caller's rounding mode has no
   influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: an image or pDp is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/stats/pidotprod.cpp */
ZMV_API StatusCode zmviDotProd_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_8s_C1R(const int8_t* src1, int src1Step, const int8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_8s_C3R(const int8_t* src1, int src1Step, const int8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_8s_C4R(const int8_t* src1, int src1Step, const int8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_8s_AC4R(const int8_t* src1, int src1Step, const int8_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_16s_AC4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32u_C1R(const uint32_t* src1, int src1Step, const uint32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32u_C3R(const uint32_t* src1, int src1Step, const uint32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32u_C4R(const uint32_t* src1, int src1Step, const uint32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32u_AC4R(const uint32_t* src1, int src1Step, const uint32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32s_C1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32s_C3R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32s_C4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, ImageSize roiSize, double* pDp);
ZMV_API StatusCode zmviDotProd_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* pDp, int hint);
ZMV_API StatusCode zmviDotProd_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* pDp, int hint);
ZMV_API StatusCode zmviDotProd_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* pDp, int hint);
ZMV_API StatusCode zmviDotProd_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, double* pDp, int hint);

/* zmviMin: pMin = the smallest pixel, for each channel.
   One value for C1, an array of three for C3 and AC4, which leaves the fourth channel out, and of four for C4.
   32f: NaN counts only where a channel has nothing else, and -0 is less than 0.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: src or pMin is null.  STATUS_BAD_SIZE: width or height below 1.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviMin_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin);
ZMV_API StatusCode zmviMin_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin);
ZMV_API StatusCode zmviMin_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin);
ZMV_API StatusCode zmviMin_8u_AC4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin);
ZMV_API StatusCode zmviMin_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin);
ZMV_API StatusCode zmviMin_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin);
ZMV_API StatusCode zmviMin_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin);
ZMV_API StatusCode zmviMin_16u_AC4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin);
ZMV_API StatusCode zmviMin_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin);
ZMV_API StatusCode zmviMin_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin);
ZMV_API StatusCode zmviMin_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin);
ZMV_API StatusCode zmviMin_16s_AC4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin);
ZMV_API StatusCode zmviMin_32f_C1R(const float* src, int srcStep, ImageSize roiSize, float* pMin);
ZMV_API StatusCode zmviMin_32f_C3R(const float* src, int srcStep, ImageSize roiSize, float* pMin);
ZMV_API StatusCode zmviMin_32f_C4R(const float* src, int srcStep, ImageSize roiSize, float* pMin);
ZMV_API StatusCode zmviMin_32f_AC4R(const float* src, int srcStep, ImageSize roiSize, float* pMin);

/* zmviMax: pMax = the largest pixel, for each channel.
   One value for C1, an array of three for C3 and AC4, which leaves the fourth channel out, and of four for C4.
   32f: NaN counts only where a channel has nothing else, and -0 is less than 0.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: src or pMax is null.  STATUS_BAD_SIZE: width or height below 1.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviMax_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax);
ZMV_API StatusCode zmviMax_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax);
ZMV_API StatusCode zmviMax_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax);
ZMV_API StatusCode zmviMax_8u_AC4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax);
ZMV_API StatusCode zmviMax_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax);
ZMV_API StatusCode zmviMax_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax);
ZMV_API StatusCode zmviMax_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax);
ZMV_API StatusCode zmviMax_16u_AC4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax);
ZMV_API StatusCode zmviMax_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax);
ZMV_API StatusCode zmviMax_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax);
ZMV_API StatusCode zmviMax_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax);
ZMV_API StatusCode zmviMax_16s_AC4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax);
ZMV_API StatusCode zmviMax_32f_C1R(const float* src, int srcStep, ImageSize roiSize, float* pMax);
ZMV_API StatusCode zmviMax_32f_C3R(const float* src, int srcStep, ImageSize roiSize, float* pMax);
ZMV_API StatusCode zmviMax_32f_C4R(const float* src, int srcStep, ImageSize roiSize, float* pMax);
ZMV_API StatusCode zmviMax_32f_AC4R(const float* src, int srcStep, ImageSize roiSize, float* pMax);

/* zmviMinMax: pMin = the smallest pixel and pMax = the largest, for each channel.
   One value for C1, an array of three for C3 and AC4, which leaves the fourth channel out, and of four for C4.
   32f: NaN counts only where a channel has nothing else, and -0 is less than 0.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: src, pMin or pMax is null.  STATUS_BAD_SIZE: width or height below 1.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviMinMax_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, uint8_t* pMax);
ZMV_API StatusCode zmviMinMax_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, uint8_t* pMax);
ZMV_API StatusCode zmviMinMax_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, uint8_t* pMax);
ZMV_API StatusCode zmviMinMax_8u_AC4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, uint8_t* pMax);
ZMV_API StatusCode zmviMinMax_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, uint16_t* pMax);
ZMV_API StatusCode zmviMinMax_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, uint16_t* pMax);
ZMV_API StatusCode zmviMinMax_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, uint16_t* pMax);
ZMV_API StatusCode zmviMinMax_16u_AC4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, uint16_t* pMax);
ZMV_API StatusCode zmviMinMax_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int16_t* pMax);
ZMV_API StatusCode zmviMinMax_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int16_t* pMax);
ZMV_API StatusCode zmviMinMax_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int16_t* pMax);
ZMV_API StatusCode zmviMinMax_16s_AC4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int16_t* pMax);
ZMV_API StatusCode zmviMinMax_32f_C1R(const float* src, int srcStep, ImageSize roiSize, float* pMin, float* pMax);
ZMV_API StatusCode zmviMinMax_32f_C3R(const float* src, int srcStep, ImageSize roiSize, float* pMin, float* pMax);
ZMV_API StatusCode zmviMinMax_32f_C4R(const float* src, int srcStep, ImageSize roiSize, float* pMin, float* pMax);
ZMV_API StatusCode zmviMinMax_32f_AC4R(const float* src, int srcStep, ImageSize roiSize, float* pMin, float* pMax);

/* zmviMinIndx: pMin = the smallest pixel, for each channel, and its place.
   One value for C1, an array of three for C3 and AC4, which leaves the fourth channel out, and of four for C4.
   pIndexX, pIndexY: the column and the row where it is found first, going from the top by rows.
   32f: -0 and 0 are equal, and what stands there first is given; a channel of nothing but NaN gives NaN at (0, 0).
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: src, pMin, pIndexX or pIndexY is null.  STATUS_BAD_SIZE: width or height
   below 1.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviMinIndx_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_8u_AC4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16u_AC4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_16s_AC4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_32f_C1R(const float* src, int srcStep, ImageSize roiSize, float* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_32f_C3R(const float* src, int srcStep, ImageSize roiSize, float* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_32f_C4R(const float* src, int srcStep, ImageSize roiSize, float* pMin, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMinIndx_32f_AC4R(const float* src, int srcStep, ImageSize roiSize, float* pMin, int* pIndexX, int* pIndexY);

/* zmviMaxIndx: pMax = the largest pixel, for each channel, and its place.
   One value for C1, an array of three for C3 and AC4, which leaves the fourth channel out, and of four for C4.
   pIndexX, pIndexY: the column and the row where it is found first, going from the top by rows.
   32f: -0 and 0 are equal, and what stands there first is given; a channel of nothing but NaN gives NaN at (0, 0).
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: src, pMax, pIndexX or pIndexY is null.  STATUS_BAD_SIZE: width or height
   below 1.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviMaxIndx_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_8u_AC4R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16u_AC4R(const uint16_t* src, int srcStep, ImageSize roiSize, uint16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_16s_AC4R(const int16_t* src, int srcStep, ImageSize roiSize, int16_t* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_32f_C1R(const float* src, int srcStep, ImageSize roiSize, float* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_32f_C3R(const float* src, int srcStep, ImageSize roiSize, float* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_32f_C4R(const float* src, int srcStep, ImageSize roiSize, float* pMax, int* pIndexX, int* pIndexY);
ZMV_API StatusCode zmviMaxIndx_32f_AC4R(const float* src, int srcStep, ImageSize roiSize, float* pMax, int* pIndexX, int* pIndexY);

/* zmviMinEvery: The smaller of two pixels.
   In place: srcDst = src < srcDst ? src : srcDst; out of place: dst = src1 < src2 ? src1 : src2.
   So a NaN in either image, and zeros of different sign, give the pixel of the second.
   AC4 leaves the fourth channel of srcDst as it was.
   Out of place, regions that read and write more than the largest cache holds are written past the caches.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviMinEvery_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16s_C1IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16s_C3IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16s_C4IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16s_AC4IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMinEvery_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);

/* zmviMaxEvery: The larger of two pixels.
   In place: srcDst = src > srcDst ? src : srcDst; out of place: dst = src1 > src2 ? src1 : src2.
   So a NaN in either image, and zeros of different sign, give the pixel of the second.
   AC4 leaves the fourth channel of srcDst as it was.
   Out of place, regions that read and write more than the largest cache holds are written past the caches.
   In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the sources if it
   has that source's step; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviMaxEvery_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16s_C1IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16s_C3IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16s_C4IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16s_AC4IR(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviMaxEvery_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep, ImageSize roiSize);

/* zmviBlockMinMax: The smallest and the largest pixel of each block of blockSize: of block column i and block row j,
   pixel (i, j) of
   dstMin and of dstMax.  The last blocks of rows and columns may be smaller, so that the results are (width +
   blockSize.width - 1) / blockSize.width wide, and as high by the same rule.
   32f: NaN counts only where a channel has nothing else, and -0 is less than 0.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1, then width
   or height of blockSize below 1.  STATUS_BAD_STEP: a step is not positive.
   src/stats/piminmax.cpp */
ZMV_API StatusCode zmviBlockMinMax_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dstMin, int dstMinStep, uint8_t* dstMax, int dstMaxStep, ImageSize roiSize, ImageSize blockSize);
ZMV_API StatusCode zmviBlockMinMax_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dstMin, int dstMinStep, uint16_t* dstMax, int dstMaxStep, ImageSize roiSize, ImageSize blockSize);
ZMV_API StatusCode zmviBlockMinMax_16s_C1R(const int16_t* src, int srcStep, int16_t* dstMin, int dstMinStep, int16_t* dstMax, int dstMaxStep, ImageSize roiSize, ImageSize blockSize);
ZMV_API StatusCode zmviBlockMinMax_32f_C1R(const float* src, int srcStep, float* dstMin, int dstMinStep, float* dstMax, int dstMaxStep, ImageSize roiSize, ImageSize blockSize);

/* zmviCountInRange: pCounts = the number of pixels from lowerBound to upperBound, both included, for each channel.
   One count for C1, an array of three for C3 and AC4, which leaves the fourth channel out; the bounds likewise.
   NaN is in no range.  A count beyond 2147483647 is given as that.
   Checked in this order.  STATUS_NULL_POINTER: src, pCounts, lowerBound or upperBound is null.  STATUS_BAD_STEP:
   srcStep is not positive.  STATUS_BAD_SIZE: width or height below 1.  STATUS_BAD_RANGE: a lower bound lies above its
   upper bound, or one is NaN.
   src/stats/picount.cpp */
ZMV_API StatusCode zmviCountInRange_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, int* pCounts, uint8_t lowerBound, uint8_t upperBound);
ZMV_API StatusCode zmviCountInRange_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, int* pCounts, const uint8_t* lowerBound, const uint8_t* upperBound);
ZMV_API StatusCode zmviCountInRange_8u_AC4R(const uint8_t* src, int srcStep, ImageSize roiSize, int* pCounts, const uint8_t* lowerBound, const uint8_t* upperBound);
ZMV_API StatusCode zmviCountInRange_32f_C1R(const float* src, int srcStep, ImageSize roiSize, int* pCounts, float lowerBound, float upperBound);
ZMV_API StatusCode zmviCountInRange_32f_C3R(const float* src, int srcStep, ImageSize roiSize, int* pCounts, const float* lowerBound, const float* upperBound);
ZMV_API StatusCode zmviCountInRange_32f_AC4R(const float* src, int srcStep, ImageSize roiSize, int* pCounts, const float* lowerBound, const float* upperBound);

/* zmviMirror: dst = src mirrored, all bits kept.  axis:
     AXIS_HORIZONTAL   the last row comes first
     AXIS_VERTICAL     the last pixel of each row comes first
     AXIS_BOTH         both: turned by 180 degrees
     AXIS_DIAGONAL_A   dst (x, y) = src (y, x); roiSize is that of src, dst is as wide as src is high
     AXIS_DIAGONAL_B   the same about the other diagonal: dst (x, y) = src (width - 1 - y, height - 1 - x)
   AC4 moves the first three channels; the fourth of the destination stays as it was.
   In place: the I forms, or src == dst with equal steps, about axes 0 to 2; other overlap is undefined about these.
   C4R of 8u, 16u and 32s writes regions that read and write more than the largest cache holds past the caches; about
   AXIS_HORIZONTAL the others, but not AC4R and in place, do so from 1 MiB on.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_STEP: a step is not positive.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_BAD_ARGUMENT: about a diagonal, src and dst overlap.
   STATUS_BAD_AXIS: axis is none of these, or in an I form a diagonal.
   src/datamove/pimirror.cpp */
ZMV_API StatusCode zmviMirror_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32s_AC4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, int axis);
ZMV_API StatusCode zmviMirror_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, int axis);

/* zmviTranspose: dst (x, y) = src (y, x), all bits kept; dst is as wide as src is high.
   In place: the I forms, or src == dst with equal steps, of a square region; other overlap is undefined.
   32s_C1R writes regions that read and write more than the largest cache holds past the caches.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: a size below 1, then in place they
   differ.
   src/datamove/pitransp8uca.cpp */
ZMV_API StatusCode zmviTranspose_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_32s_C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize srcRoiSize);
ZMV_API StatusCode zmviTranspose_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviTranspose_32fc_C1R(const Complex32f* src, int srcStep, Complex32f* dst, int dstStep, ImageSize srcRoiSize);

/* zmviSwapChannels: Channel k of dst = channel dstOrder[k] of src, counted from 0, all bits kept.
     C3R C4R      dstOrder has an entry for each channel
     AC4R         three entries from 0 to 2; the fourth channel of dst stays as it was
     C4C3R        three entries from 0 to 3
     C3C4R        four entries; a channel whose entry is 3 or more stays as it was
   In place: the I forms, or src == dst with equal steps where both have one layout; other overlap is undefined.
   Any step but zero is accepted, negative ones too.
   Checked in this order.  STATUS_NULL_POINTER: an image or dstOrder is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is zero.  STATUS_BAD_CHANNEL_ORDER: an entry is negative, or names no channel of src (in
   C3C4R negative only).
   src/datamove/piswapca.cpp */
ZMV_API StatusCode zmviSwapChannels_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_8u_C3C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_8u_C4C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16s_C3C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16s_C4C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16u_C3C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_16u_C4C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32s_AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32s_C3C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32s_C4C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32f_C3C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_32f_C4C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const int* dstOrder);
ZMV_API StatusCode zmviSwapChannels_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const int* dstOrder);

/* zmviHistogramGetBufferSize: The bytes of a histogram's spec object, and of the work buffer for regions of at most
   so many pixels.  nLevels: one count a channel.  uniform makes no difference.
   Checked in this order.  STATUS_NULL_POINTER: nLevels, pSpecSize or pBufferSize is null.  STATUS_BAD_SIZE: width or
   height below 1.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_BAD_LEVEL_COUNT: a channel has fewer than
   two levels.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U, _16S or _32F.  STATUS_SIZE_EXCEEDS_INT: a size
   exceeds 2147483647; nothing is written.
   src/stats/pihistogram.cpp */
ZMV_API StatusCode zmviHistogramGetBufferSize(int dataType, ImageSize roiSize, const int* nLevels, int numChannels, int uniform, int* pSpecSize, int* pBufferSize);

/* zmviHistogramInit: Makes the spec object of a histogram from levels of the caller's, an array a channel.
   A channel with n levels has n - 1 bins; bin k counts the pixels from level k up to, and without, level k + 1.  For
   integer types levels are cut toward zero to 32-bit integers, those that do not fit to the nearest that does; a bin
   whose levels become equal stays empty.
   pSpec has the size that zmviHistogramGetBufferSize reports, at any alignment.  A copy of its bytes is as good as the
   object itself.  The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U, _16S or _32F.  STATUS_NULL_POINTER:
   pLevels, nLevels or pSpec is null.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_NULL_POINTER: an array
   of pLevels is null.  STATUS_BAD_LEVEL_COUNT: a channel has fewer than two levels.  STATUS_BAD_RANGE: levels do not
   strictly increase, or one is NaN.
   src/stats/pihistogram.cpp */
ZMV_API StatusCode zmviHistogramInit(int dataType, const float* const* pLevels, const int* nLevels, int numChannels, uint8_t* pSpec);

/* zmviHistogramUniformInit: Makes the spec object of a histogram with evenly spaced levels.
   lowerLevel, upperLevel: one number a channel.  Level k is lowerLevel + k * (upperLevel - lowerLevel) / (n - 1),
   computed in double precision; 32f: rounded to a float.
   A channel with n levels has n - 1 bins; bin k counts the pixels from level k up to, and without, level k + 1.  For
   integer types levels are cut toward zero to 32-bit integers, those that do not fit to the nearest that does; a bin
   whose levels become equal stays empty.
   pSpec has the size that zmviHistogramGetBufferSize reports, at any alignment.  A copy of its bytes is as good as the
   object itself.  The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U, _16S or _32F.  STATUS_NULL_POINTER:
   lowerLevel, upperLevel, nLevels or pSpec is null.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.
   STATUS_BAD_LEVEL_COUNT: a channel has fewer than two levels.  STATUS_BAD_RANGE: a lowerLevel is not below its
   upperLevel, or one is infinite or NaN.
   STATUS_WARN_SIZE_CLIPPED: levels of an integer type are less than 1 apart; the object is made.
   src/stats/pihistogram.cpp */
ZMV_API StatusCode zmviHistogramUniformInit(int dataType, const float* lowerLevel, const float* upperLevel, const int* nLevels, int numChannels, uint8_t* pSpec);

/* zmviHistogramGetLevels: Copies the levels of a histogram's spec object to arrays of floats, one a channel.
   Integers beyond 2^24 are rounded to nearest even.
   Checked in this order.  STATUS_NULL_POINTER: pSpec or pLevels is null.  STATUS_BAD_SPEC_TAG: pSpec is no spec object
   of a histogram.  STATUS_NULL_POINTER: an array of pLevels is null.
   src/stats/pihistogram.cpp */
ZMV_API StatusCode zmviHistogramGetLevels(const uint8_t* pSpec, float* const* pLevels);

/* zmviHistogram: pHist[k] = the number of pixels in bin k; C3 and C4: in an array for each channel.
   Pixels below the first level, at or above the last one, and NaN are not counted; a count beyond 2147483647 is
   reported as that.  The caller's rounding mode and denormal setting have no influence and are not changed.
   buffer has the size that zmviHistogramGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: src, pHist, one of its arrays, pSpec or buffer is null.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_BAD_STEP: srcStep is less than the bytes of a row.
   STATUS_BAD_SPEC_TAG: pSpec is no spec object of a histogram, or one of another type or channel count.
   src/stats/pihistogram.cpp */
ZMV_API StatusCode zmviHistogram_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, int* pHist, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, int* const pHist[3], const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, int* const pHist[4], const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, int* pHist, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, int* const pHist[3], const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, int* const pHist[4], const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, int* pHist, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, int* const pHist[3], const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, int* const pHist[4], const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_32f_C1R(const float* src, int srcStep, ImageSize roiSize, int* pHist, const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_32f_C3R(const float* src, int srcStep, ImageSize roiSize, int* const pHist[3], const uint8_t* pSpec, uint8_t* buffer);
ZMV_API StatusCode zmviHistogram_32f_C4R(const float* src, int srcStep, ImageSize roiSize, int* const pHist[4], const uint8_t* pSpec, uint8_t* buffer);

/* zmviMomentsGetSize: The bytes of a state object that gathers moments.
   Checked in this order.  STATUS_NULL_POINTER: pStateSize is null.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U,
   _16U, _16S or _32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMomentsGetSize(int dataType, int numChannels, int* pStateSize);

/* zmviMomentsInit: Makes a state object for moments of images of one type and channel count: all moments are zero.
   pState has the size that zmviMomentsGetSize reports, at any alignment.  A copy is as good, at an address that leaves
   the same remainder when divided by 64.
   Checked in this order.  STATUS_NULL_POINTER: pState is null.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U,
   _16S or _32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMomentsInit(int dataType, int numChannels, uint8_t* pState);

/* zmviMoments: Adds the moments of a region to those of pState: for each channel m(p, q) += the sum of X^p Y^q src, p +
   q <= 3,
   with X = roiOffset.x + column and Y = roiOffset.y + row.  So regions of one image add up, each with its offset;
   threads take a state each, and zmviMomentsMerge adds these.
   Integers: exact for any regions at any offsets, so that tiles make what the whole makes to the bit.  32f: in double
   precision, each row by itself, in the order that docs/sums.md has; NaN where the channel has one.
   The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: src or pState is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: srcStep is not positive.  STATUS_CONTEXT_MISMATCH: pState is no state object of moments, or one of
   another type or channel count.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMoments_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_8u_C3R(const uint8_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_8u_C4R(const uint8_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_16u_C1R(const uint16_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_16u_C3R(const uint16_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_16u_C4R(const uint16_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_16s_C1R(const int16_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_16s_C3R(const int16_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_16s_C4R(const int16_t* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_32f_C1R(const float* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_32f_C3R(const float* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);
ZMV_API StatusCode zmviMoments_32f_C4R(const float* src, int srcStep, ImageSize roiSize, ImagePoint roiOffset, uint8_t* pState);

/* zmviMomentsMerge: Adds the moments of pState to those of pSrcDstState.  Given the same object twice, it is doubled.
   Integers: exact, unless states are merged with themselves so often that a moment passes 191 bits.
   Checked in this order.  STATUS_NULL_POINTER: pState or pSrcDstState is null.  STATUS_CONTEXT_MISMATCH: one is no
   state object of moments, or they differ in type or channel count.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMomentsMerge(const uint8_t* pState, uint8_t* pSrcDstState);

/* zmviMomentsGetSpatial: *pValue = m(xOrder, yOrder) of a channel.  Integers: rounded once.
   Checked in this order.  STATUS_NULL_POINTER: pState or pValue is null.  STATUS_CONTEXT_MISMATCH: pState is no state
   object of moments.  STATUS_OUT_OF_RANGE: an order is negative, or their sum exceeds 3, then channel is none of the
   object's.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMomentsGetSpatial(const uint8_t* pState, int xOrder, int yOrder, int channel, double* pValue);

/* zmviMomentsGetCentral: *pValue = mu(xOrder, yOrder) of a channel: the moment about the centroid x = m(1, 0) / m(0,
   0), y = m(0, 1) / m(0, 0).
   mu(0, 0) = m(0, 0), mu(1, 0) = mu(0, 1) = 0, mu(2, 0) = m(2, 0) - x m(1, 0), mu(1, 1) = m(1, 1) - x m(0, 1), mu(3, 0)
   = (m(3, 0) - (3 x) m(2, 0)) + (2 (x x)) m(1, 0), mu(2, 1) = ((m(2, 1) - (2 x) m(1, 1)) - y m(2, 0)) + (2 (x x)) m(0,
   1), and so with x and y exchanged.
   Integers: the exact moments are first moved to the whole number nearest the centroid (the quotients m(1, 0) over m(0,
   0) and m(0, 1) over m(0, 0) in double, to nearest even; not moved where one lies beyond 2^40), then rounded.
   Then in double precision, each operation rounded to nearest.
   Checked in this order.  STATUS_NULL_POINTER: pState or pValue is null.  STATUS_CONTEXT_MISMATCH: pState is no state
   object of moments.  STATUS_OUT_OF_RANGE: an order is negative, or their sum exceeds 3, then channel is none of the
   object's.
   STATUS_WARN_DIV_BY_ZERO: m(0, 0) is zero; the result is NaN.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMomentsGetCentral(const uint8_t* pState, int xOrder, int yOrder, int channel, double* pValue);

/* zmviMomentsGetNormalizedCentral: *pValue = mu(xOrder, yOrder) of a channel, which size does not change: with A = m(0,
   0) over A (order 0), 1 (order
   1), A A (order 2) or (A A) sqrt(A) (order 3, NaN where A is negative).  mu as zmviMomentsGetCentral gives it.
   Checked in this order.  STATUS_NULL_POINTER: pState or pValue is null.  STATUS_CONTEXT_MISMATCH: pState is no state
   object of moments.  STATUS_OUT_OF_RANGE: an order is negative, or their sum exceeds 3, then channel is none of the
   object's.
   STATUS_WARN_DIV_BY_ZERO: m(0, 0) is zero; the result is NaN.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMomentsGetNormalizedCentral(const uint8_t* pState, int xOrder, int yOrder, int channel, double* pValue);

/* zmviMomentsGetHu: pHu: the seven invariants of M.-K. Hu (1962) of a channel, which turning, size and place do not
   change; mirroring
   changes the sign of the seventh.  With e(p, q) as zmviMomentsGetNormalizedCentral gives them, a = e(3, 0) - 3 e(1,
   2), b = 3 e(2, 1) - e(0, 3), c = e(3, 0) + e(1, 2), d = e(2, 1) + e(0, 3), r = e(2, 0) - e(0, 2):
   e(2, 0) + e(0, 2);  r r + 4 (e(1, 1) e(1, 1));  a a + b b;  c c + d d; (a c) (c c - 3 (d d)) + (b d) (3 (c c) - d d);
   r (c c - d d) + (4 e(1, 1)) (c d); (b c) (c c - 3 (d d)) - (a d) (3 (c c) - d d).
   Checked in this order.  STATUS_NULL_POINTER: pState or pHu is null.  STATUS_CONTEXT_MISMATCH: pState is no state
   object of moments.  STATUS_OUT_OF_RANGE: channel is none of the object's.
   STATUS_WARN_DIV_BY_ZERO: m(0, 0) is zero; the result is NaN.
   src/stats/pimoments.cpp */
ZMV_API StatusCode zmviMomentsGetHu(const uint8_t* pState, int channel, double pHu[7]);

/* zmviQualityIndexGetBufferSize: The bytes of the work buffer of zmviQualityIndex, for images of a type and a channel
   count.
   Checked in this order.  STATUS_NULL_POINTER: pBufferSize is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_MASK_SIZE: a side of windowSize is below 1 or exceeds that of the region.  STATUS_BAD_DATATYPE: dataType
   is not DATATYPE_8U, _16U, _16S or _32F.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_SIZE_EXCEEDS_INT:
   a size exceeds 2147483647; nothing is written.
   src/stats/piquality.cpp */
ZMV_API StatusCode zmviQualityIndexGetBufferSize(ImageSize roiSize, ImageSize windowSize, int dataType, int numChannels, int* pBufferSize);

/* zmviQualityIndex: pQuality = the universal image quality index of src1 and src2 (Wang and Bovik, IEEE Signal
   Processing Letters 9(3),
   2002), for each channel: the mean over all positions of the window inside the region.  A window as large as the
   region gives the global index; 8 x 8 is usual.  pQuality: one double for C1, an array of three for C3 and of four for
   C4.
   Of a window of n pixels with the sums Sx, Sy, Sxx, Syy, Sxy, in double precision, each operation rounded to nearest:
   vx = n Sxx - Sx Sx, vy = n Syy - Sy Sy, c = n Sxy - Sx Sy, V = vx + vy, M = Sx Sx + Sy Sy; ((4 c) (Sx Sy)) / (V M),
   where V is 0 (2 (Sx Sy)) / M, where M is 0 (2 c) / V, where both are 0, 1.
   Integers: sums are exact before they become doubles.  32f: sums are formed in double, in one order for every window
   of that size; vx that is at most n Sxx 2^-40 counts as 0, and c with it, and so does vy.  NaN where a window has one.
   The mean of a channel: the windows of a row in 24 partial sums (window x in sum x mod 24), which are added from the
   first one on; then rows from the top.  The same bits in every build; the caller's rounding mode has no influence and
   is not changed.
   buffer has the size that zmviQualityIndexGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, pQuality or buffer is null.  STATUS_BAD_SIZE: width or height
   below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_MASK_SIZE: a side of windowSize is below 1 or exceeds
   that of the region.
   src/stats/piquality.cpp */
ZMV_API StatusCode zmviQualityIndex_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_16s_C1R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_16s_C3R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_16s_C4R(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);
ZMV_API StatusCode zmviQualityIndex_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, ImageSize roiSize, ImageSize windowSize, double* pQuality, uint8_t* buffer);

/* zmviLUT_GetSize: The bytes of the spec object of a look-up table, at any address.
   interpolation: INTERP_NEAREST, INTERP_LINEAR or INTERP_CUBIC.  nLevels: one count a channel, from 2 on.
   Checked in this order.  STATUS_NULL_POINTER: nLevels or pSpecSize is null.  STATUS_BAD_INTERPOLATION: interpolation
   is none of these.  STATUS_BAD_DATATYPE: dataType is not DATATYPE_8U, _16U, _16S or _32F.  STATUS_BAD_CHANNELS:
   numChannels is not 1, 3 or 4.  STATUS_BAD_LEVEL_COUNT: a channel has fewer than two levels.  STATUS_SIZE_EXCEEDS_INT:
   a size exceeds 2147483647; nothing is written.
   src/stats/pilut.cpp */
ZMV_API StatusCode zmviLUT_GetSize(int interpolation, int dataType, int numChannels, const int* nLevels, int* pSpecSize);

/* zmviLUT_Init: Makes the spec object of a look-up table: pLevels and pValues have an array a channel, each with that
   channel's
   count of numbers.
   interpolation: INTERP_NEAREST, INTERP_LINEAR or INTERP_CUBIC.  nLevels: one count a channel, from 2 on.
   What becomes of a value v, between the levels l and l' with values y and y' for which l <= v < l':
     nearest  y' above the middle of l and l', else y
     linear   y + (v - l) * (y' - y) / (l' - l)
     cubic    the Hermite cubic whose slope at a level is that of the parabola through it and its neighbours, and at
              the first and the last that of the next one's parabola; of two levels only, the straight line
   Below the first level it is the first value, from the last level on the last one.  Integers: saturated; linear is the
   exact number, cubic that of double precision, rounded to nearest with ties to even.  Levels and values may lie
   outside the type.  32f: in double precision, rounded once at the end; NaN stays as it is, bit for bit.
   pSpec has the size that zmviLUT_GetSize reports, at any alignment.  A copy of its bytes is as good if it lies as far
   from a multiple of 64.  The caller's rounding mode has no influence and is not changed.
   Checked in this order.  STATUS_NULL_POINTER: pLevels, pValues, nLevels or pSpec is null.  STATUS_BAD_INTERPOLATION:
   interpolation is none of these.  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_NULL_POINTER: an array of
   pLevels is null, then an array of pValues is null.  STATUS_BAD_LEVEL_COUNT: a channel has fewer than two levels.
   STATUS_BAD_RANGE: levels do not strictly increase, or a level or value is NaN or infinite.
   src/stats/pilut.cpp */
ZMV_API StatusCode zmviLUT_Init_8u(int interpolation, const int32_t* const* pLevels, const int32_t* const* pValues, const int* nLevels, int numChannels, uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_Init_16u(int interpolation, const int32_t* const* pLevels, const int32_t* const* pValues, const int* nLevels, int numChannels, uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_Init_16s(int interpolation, const int32_t* const* pLevels, const int32_t* const* pValues, const int* nLevels, int numChannels, uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_Init_32f(int interpolation, const float* const* pLevels, const float* const* pValues, const int* nLevels, int numChannels, uint8_t* pSpec);

/* zmviLUT: dst = what the table makes of src, in each channel; zmviLUT_Init has the rules.
   AC4 has a table of three channels, and leaves the fourth channel of the destination as it was.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image or pSpec is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: pSpec is no spec object of a look-up table, or one
   of another type or channel count.
   src/stats/pilut.cpp */
ZMV_API StatusCode zmviLUT_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, const uint8_t* pSpec);
ZMV_API StatusCode zmviLUT_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t* pSpec);

/* zmviLUTPalette: dst = table[src], of which only the lowest nBitSize bits count: a table has 2 to the power of
   nBitSize entries.
   C1: one table.  C3, C4, AC4: an array of tables, three for AC4, which leaves the fourth channel of dst as it was.
   8u24u: entries and pixels are three bytes, in memory's order.  Tables may lie at any address, and must not overlap
   dst; where the types differ, nor may src.
   In place: src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image, pTable, pTables or one of its arrays is null.
   STATUS_BAD_SIZE: width or height below 1.  STATUS_OUT_OF_RANGE: nBitSize is not in 1 .. 8.  STATUS_BAD_STEP: srcStep
   or dstStep is less than the bytes of a row.
   src/stats/pilutpalette.cpp */
ZMV_API StatusCode zmviLUTPalette_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pTable, int nBitSize);
ZMV_API StatusCode zmviLUTPalette_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* const pTables[3], int nBitSize);
ZMV_API StatusCode zmviLUTPalette_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* const pTables[4], int nBitSize);
ZMV_API StatusCode zmviLUTPalette_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* const pTables[3], int nBitSize);
ZMV_API StatusCode zmviLUTPalette_8u24u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* pTable, int nBitSize);
ZMV_API StatusCode zmviLUTPalette_8u32u_C1R(const uint8_t* src, int srcStep, uint32_t* dst, int dstStep, ImageSize roiSize, const uint32_t* pTable, int nBitSize);

/* zmviGetRotateTransform: The matrix of a rotation: [[cos, sin, xShift], [-sin, cos, yShift]].
   The angle is in degrees, any number of turns; multiples of 90 give exact results, others sine and cosine within one
   unit in the last place, the same on every processor.  The caller's control word has no influence.
   Checked in this order.  STATUS_OUT_OF_RANGE: the angle is infinite or NaN.  STATUS_NULL_POINTER: coeffs is null.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetRotateTransform(double angle, double xShift, double yShift, double coeffs[2][3]);
ZMV_API StatusCode zmviGetRotateTransform_L(double angle, double xShift, double yShift, double coeffs[2][3]);

/* zmviGetRotateShift: The shift by which zmviGetRotateTransform turns about (xCenter, yCenter).
   The angle is in degrees, any number of turns; multiples of 90 give exact results, others sine and cosine within one
   unit in the last place, the same on every processor.  The caller's control word has no influence.
   An angle that is infinite or NaN gives NaN.
   STATUS_NULL_POINTER: xShift or yShift is null.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetRotateShift(double xCenter, double yCenter, double angle, double* xShift, double* yShift);
ZMV_API StatusCode zmviGetRotateShift_L(double xCenter, double yCenter, double angle, double* xShift, double* yShift);

/* zmviGetAffineTransform: The matrix that takes the corners of srcRoi to those of a quadrangle.
   Where the fourth does not make a parallelogram, it is that of the first three.
   coeffs: [[c00, c01, c02], [c10, c11, c12]] takes (x, y) to (c00 x + c01 y + c02, c10 x + c11 y + c12).
   The corners of srcRoi are the centres of its outermost pixels, from the top left one clockwise: the right ones at x +
   width - 1, the lower ones at y + height - 1.  A quadrangle has their images in this order.
   quad and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: quad or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_QUAD: a corner is not finite, or the corners do not all turn
   the same way.  STATUS_BAD_RECT: width or height below 2.
   STATUS_WARN_NOT_PARALLELOGRAM: the quadrangle is no parallelogram.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetAffineTransform(ImageRect srcRoi, const double quad[4][2], double coeffs[2][3]);
ZMV_API StatusCode zmviGetAffineTransform_L(ImageRectL srcRoi, const double quad[4][2], double coeffs[2][3]);

/* zmviGetAffineQuad: The quadrangle that a matrix makes of srcRoi.
   coeffs: [[c00, c01, c02], [c10, c11, c12]] takes (x, y) to (c00 x + c01 y + c02, c10 x + c11 y + c12).
   The corners of srcRoi are the centres of its outermost pixels, from the top left one clockwise: the right ones at x +
   width - 1, the lower ones at y + height - 1.  A quadrangle has their images in this order.
   quad and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: quad or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner is not finite, or the corners do not all
   turn the same way; the quadrangle is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetAffineQuad(ImageRect srcRoi, double quad[4][2], const double coeffs[2][3]);
ZMV_API StatusCode zmviGetAffineQuad_L(ImageRectL srcRoi, double quad[4][2], const double coeffs[2][3]);

/* zmviGetAffineBound: The smallest upright rectangle round the quadrangle of zmviGetAffineQuad.
   bound: [[least x, least y], [greatest x, greatest y]].  A corner that is NaN makes its axis NaN.
   coeffs: [[c00, c01, c02], [c10, c11, c12]] takes (x, y) to (c00 x + c01 y + c02, c10 x + c11 y + c12).
   bound and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: bound or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner is not finite, or the corners do not all
   turn the same way; the bound is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetAffineBound(ImageRect srcRoi, double bound[2][2], const double coeffs[2][3]);
ZMV_API StatusCode zmviGetAffineBound_L(ImageRectL srcRoi, double bound[2][2], const double coeffs[2][3]);

/* zmviGetRotateQuad: The quadrangle that the rotation of zmviGetRotateTransform makes of srcRoi.
   The corners of srcRoi are the centres of its outermost pixels, from the top left one clockwise: the right ones at x +
   width - 1, the lower ones at y + height - 1.  A quadrangle has their images in this order.
   Checked in this order.  STATUS_OUT_OF_RANGE: the angle is infinite or NaN.  STATUS_NULL_POINTER: quad is null.
   STATUS_BAD_SIZE: width or height of srcRoi below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner
   is not finite, or the corners do not all turn the same way; the quadrangle is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetRotateQuad(ImageRect srcRoi, double quad[4][2], double angle, double xShift, double yShift);
ZMV_API StatusCode zmviGetRotateQuad_L(ImageRectL srcRoi, double quad[4][2], double angle, double xShift, double yShift);

/* zmviGetRotateBound: The smallest upright rectangle round the quadrangle of zmviGetRotateQuad.
   bound: [[least x, least y], [greatest x, greatest y]].
   Checked in this order.  STATUS_OUT_OF_RANGE: the angle is infinite or NaN.  STATUS_NULL_POINTER: bound is null.
   STATUS_BAD_SIZE: width or height of srcRoi below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner
   is not finite, or the corners do not all turn the same way; the bound is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetRotateBound(ImageRect srcRoi, double bound[2][2], double angle, double xShift, double yShift);
ZMV_API StatusCode zmviGetRotateBound_L(ImageRectL srcRoi, double bound[2][2], double angle, double xShift, double yShift);

/* zmviGetAffineSrcRoi: The smallest rectangle of source pixels that holds what a matrix takes to pixel centres of
   dstRoi.
   It is what warping dstRoi reads for nearest and linear values; wider kernels add their radius.
   coeffs: [[c00, c01, c02], [c10, c11, c12]] takes (x, y) to (c00 x + c01 y + c02, c10 x + c11 y + c12).
   Checked in this order.  STATUS_NULL_POINTER: coeffs or srcRoi is null.  STATUS_BAD_SIZE: width or height of srcSize
   below 1, then width or height of dstRoi below 1.  STATUS_BAD_COEFFS: a coefficient is not finite, or the determinant
   is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: dstRoi comes from nowhere in the source; nothing is written.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetAffineSrcRoi(ImageSize srcSize, const double coeffs[2][3], ImageRect dstRoi, ImageRect* srcRoi);
ZMV_API StatusCode zmviGetAffineSrcRoi_L(ImageSizeL srcSize, const double coeffs[2][3], ImageRectL dstRoi, ImageRectL* srcRoi);

/* zmviGetPerspectiveTransform: The perspective map that takes the corners of srcRoi to those of a quadrangle, any that
   is convex.
   To straighten a page, take the upright rectangle and the page's corners in the photograph, and warp with
   WARP_BACKWARD; to hang a picture into a frame, the picture's rectangle and the frame's corners, and warp with
   WARP_FORWARD.
   coeffs: three rows [a, b, c], each at (x, y) a x + b y + c; (x, y) goes to the first over the third and the second
   over the third.
   The corners of srcRoi are the centres of its outermost pixels, from the top left one clockwise: the right ones at x +
   width - 1, the lower ones at y + height - 1.  A quadrangle has their images in this order.
   quad and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: quad or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_QUAD: a corner is not finite, or the corners do not all turn
   the same way.  STATUS_BAD_RECT: width or height below 2.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetPerspectiveTransform(ImageRect srcRoi, const double quad[4][2], double coeffs[3][3]);
ZMV_API StatusCode zmviGetPerspectiveTransform_L(ImageRectL srcRoi, const double quad[4][2], double coeffs[3][3]);

/* zmviGetPerspectiveQuad: The quadrangle that a perspective map makes of srcRoi.
   coeffs: three rows [a, b, c], each at (x, y) a x + b y + c; (x, y) goes to the first over the third and the second
   over the third.
   The corners of srcRoi are the centres of its outermost pixels, from the top left one clockwise: the right ones at x +
   width - 1, the lower ones at y + height - 1.  A quadrangle has their images in this order.
   quad and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: quad or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner is not finite, or the corners do not all
   turn the same way, or srcRoi reaches over the line that goes to infinity; the quadrangle is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetPerspectiveQuad(ImageRect srcRoi, double quad[4][2], const double coeffs[3][3]);
ZMV_API StatusCode zmviGetPerspectiveQuad_L(ImageRectL srcRoi, double quad[4][2], const double coeffs[3][3]);

/* zmviGetPerspectiveBound: The smallest upright rectangle round the quadrangle of zmviGetPerspectiveQuad.
   bound: [[least x, least y], [greatest x, greatest y]].  A corner that is NaN makes its axis NaN.
   coeffs: three rows [a, b, c], each at (x, y) a x + b y + c; (x, y) goes to the first over the third and the second
   over the third.
   bound and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: bound or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner is not finite, or the corners do not all
   turn the same way, or srcRoi reaches over the line that goes to infinity; the bound is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetPerspectiveBound(ImageRect srcRoi, double bound[2][2], const double coeffs[3][3]);
ZMV_API StatusCode zmviGetPerspectiveBound_L(ImageRectL srcRoi, double bound[2][2], const double coeffs[3][3]);

/* zmviGetPerspectiveSrcRoi: The smallest rectangle of source pixels that holds what a perspective map takes to pixel
   centres of dstRoi; the
   whole source where dstRoi reaches over the line that comes from infinity.
   It is what warping dstRoi reads for nearest and linear values; wider kernels add their radius.
   coeffs: three rows [a, b, c], each at (x, y) a x + b y + c; (x, y) goes to the first over the third and the second
   over the third.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or srcRoi is null.  STATUS_BAD_SIZE: width or height of srcSize
   below 1, then width or height of dstRoi below 1.  STATUS_BAD_COEFFS: a coefficient is not finite, or the determinant
   is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: dstRoi comes from nowhere in the source; nothing is written.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetPerspectiveSrcRoi(ImageSize srcSize, const double coeffs[3][3], ImageRect dstRoi, ImageRect* srcRoi);
ZMV_API StatusCode zmviGetPerspectiveSrcRoi_L(ImageSizeL srcSize, const double coeffs[3][3], ImageRectL dstRoi, ImageRectL* srcRoi);

/* zmviGetBilinearTransform: The bilinear map that takes the corners of srcRoi to those of a quadrangle, any that is
   convex, and its edges
   evenly to the edges.
   coeffs: [[c00, c01, c02, c03], [c10, c11, c12, c13]] takes (x, y) to (c00 x y + c01 x + c02 y + c03, c10 x y + c11 x
   + c12 y + c13).
   The corners of srcRoi are the centres of its outermost pixels, from the top left one clockwise: the right ones at x +
   width - 1, the lower ones at y + height - 1.  A quadrangle has their images in this order.
   quad and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: quad or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_QUAD: a corner is not finite, or the corners do not all turn
   the same way.  STATUS_BAD_RECT: width or height below 2.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetBilinearTransform(ImageRect srcRoi, const double quad[4][2], double coeffs[2][4]);
ZMV_API StatusCode zmviGetBilinearTransform_L(ImageRectL srcRoi, const double quad[4][2], double coeffs[2][4]);

/* zmviGetBilinearQuad: The quadrangle that a bilinear map makes of srcRoi.
   coeffs: [[c00, c01, c02, c03], [c10, c11, c12, c13]] takes (x, y) to (c00 x y + c01 x + c02 y + c03, c10 x y + c11 x
   + c12 y + c13).
   The corners of srcRoi are the centres of its outermost pixels, from the top left one clockwise: the right ones at x +
   width - 1, the lower ones at y + height - 1.  A quadrangle has their images in this order.
   quad and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: quad or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner is not finite, or the corners do not all
   turn the same way; the quadrangle is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetBilinearQuad(ImageRect srcRoi, double quad[4][2], const double coeffs[2][4]);
ZMV_API StatusCode zmviGetBilinearQuad_L(ImageRectL srcRoi, double quad[4][2], const double coeffs[2][4]);

/* zmviGetBilinearBound: The smallest upright rectangle round the quadrangle of zmviGetBilinearQuad.
   bound: [[least x, least y], [greatest x, greatest y]].  A corner that is NaN makes its axis NaN.
   coeffs: [[c00, c01, c02, c03], [c10, c11, c12, c13]] takes (x, y) to (c00 x y + c01 x + c02 y + c03, c10 x y + c11 x
   + c12 y + c13).
   bound and coeffs may share memory.
   Checked in this order.  STATUS_NULL_POINTER: bound or coeffs is null.  STATUS_BAD_SIZE: width or height of srcRoi
   below 1, then x or y of srcRoi is negative.  STATUS_BAD_COEFFS: a corner is not finite, or the corners do not all
   turn the same way; the bound is written all the same.
   src/geometry/piwarp.cpp */
ZMV_API StatusCode zmviGetBilinearBound(ImageRect srcRoi, double bound[2][2], const double coeffs[2][4]);
ZMV_API StatusCode zmviGetBilinearBound_L(ImageRectL srcRoi, double bound[2][2], const double coeffs[2][4]);

/* zmviRemap: dst(i, j) = src(pxMap(i, j), pyMap(i, j)): two maps say where pixels come from.
   Maps hold floats, double for 64f, of the size of dst; coordinates count from the origin of the whole image of
   srcSize.  srcRoi is the part of it that is looked at: pixels beyond it count as the nearest one in it, and points
   beyond its outermost pixel centres, NaN and infinity leave dst as it was.
   interpolation: INTERP_NEAREST (halves go up), INTERP_LINEAR, INTERP_CUBIC (Catmull and Rom), INTERP_CUBIC_ALT (the
   polynomial through four pixels, Lagrange), INTERP_LANCZOS (three lobes); of an image narrower or lower than 6 pixels
   Lanczos becomes INTERP_CUBIC_ALT, than 4 every other but nearest becomes linear, of one pixel all become nearest.
   With INTERP_SMOOTH_EDGE added, points up to one pixel outside blend the value at the edge with that of dst, by their
   distance.
   Values are formed in the maps' type, rows first, every operation rounded once; integers are then rounded to nearest,
   ties to even, saturated, whatever the caller's control word; 32f and 64f follow it.  A NaN reaches every result of
   whose kernel it is a pixel.  AC4 leaves the fourth channel as it was.
   Steps need not be multiples of the element size.  dst must not overlap the maps either.
   The images must not overlap.
   Checked in this order.  STATUS_NULL_POINTER: an image, pxMap or pyMap is null.  STATUS_BAD_SIZE: a size below 1, then
   width or height of srcRoi below 1, then x or y of srcRoi is negative.  STATUS_BAD_INTERPOLATION: no such
   interpolation.  STATUS_BAD_STEP: a step is not positive.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the image; nothing is written.
   src/geometry/piremap.cpp */
ZMV_API StatusCode zmviRemap_8u_C1R(const uint8_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_8u_C3R(const uint8_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_8u_C4R(const uint8_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_8u_AC4R(const uint8_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint8_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16u_C1R(const uint16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16u_C3R(const uint16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16u_C4R(const uint16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16u_AC4R(const uint16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, uint16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16s_C1R(const int16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, int16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16s_C3R(const int16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, int16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16s_C4R(const int16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, int16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_16s_AC4R(const int16_t* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, int16_t* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_32f_C1R(const float* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, float* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_32f_C3R(const float* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, float* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_32f_C4R(const float* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, float* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_32f_AC4R(const float* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const float* pxMap, int xMapStep, const float* pyMap, int yMapStep, float* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_64f_C1R(const double* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const double* pxMap, int xMapStep, const double* pyMap, int yMapStep, double* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_64f_C3R(const double* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const double* pxMap, int xMapStep, const double* pyMap, int yMapStep, double* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_64f_C4R(const double* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const double* pxMap, int xMapStep, const double* pyMap, int yMapStep, double* dst, int dstStep, ImageSize dstRoiSize, int interpolation);
ZMV_API StatusCode zmviRemap_64f_AC4R(const double* src, ImageSize srcSize, int srcStep, ImageRect srcRoi, const double* pxMap, int xMapStep, const double* pyMap, int yMapStep, double* dst, int dstStep, ImageSize dstRoiSize, int interpolation);

/* zmviResizeGetSize: The bytes of a spec object, and of the buffer of its initialisation, for source and
   destination of these sizes.  64f: INTERP_LINEAR, or with antialiasing INTERP_CUBIC and INTERP_LANCZOS too.  To _L
   objects are those of the other types; those of 64f come from the functions of 64f.
   Checked in this order.  STATUS_NULL_POINTER: specSize or initBufSize is null.  STATUS_NO_OPERATION: a width or height
   is zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds
   2147483647.  STATUS_BAD_INTERPOLATION: interpolation is none of these.  STATUS_BAD_ARGUMENT: interpolation is 0, or
   one that 64f does not have.  STATUS_BAD_SIZE: the source is lower or narrower than 2 pixels (linear), 4 (cubic,
   Lanczos), or than the destination (super-sampling).  STATUS_SIZE_EXCEEDS_INT: a size exceeds 2147483646 (not in _L).
   STATUS_WARN_ANTIALIAS_IGNORED: antialiasing is asked for with INTERP_NEAREST or INTERP_SUPER.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeGetSize_8u(ImageSize srcSize, ImageSize dstSize, int interpolation, int antialiasing, int* specSize, int* initBufSize);
ZMV_API StatusCode zmviResizeGetSize_16u(ImageSize srcSize, ImageSize dstSize, int interpolation, int antialiasing, int* specSize, int* initBufSize);
ZMV_API StatusCode zmviResizeGetSize_16s(ImageSize srcSize, ImageSize dstSize, int interpolation, int antialiasing, int* specSize, int* initBufSize);
ZMV_API StatusCode zmviResizeGetSize_32f(ImageSize srcSize, ImageSize dstSize, int interpolation, int antialiasing, int* specSize, int* initBufSize);
ZMV_API StatusCode zmviResizeGetSize_64f(ImageSize srcSize, ImageSize dstSize, int interpolation, int antialiasing, int* specSize, int* initBufSize);
ZMV_API StatusCode zmviResizeGetSize_L(ImageSizeL srcSize, ImageSizeL dstSize, int interpolation, int antialiasing, int64_t* specSize, int64_t* initBufSize);

/* zmviResizeNearestInit: Makes an object for zmviResizeNearest.  Destination pixel i takes source pixel
   (i + 0.5) * srcSize / dstSize - 1e-10, cut toward zero.  spec has the size that zmviResizeGetSize reports, at any
   alignment: the object starts at the first multiple of 64 bytes in it.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec is null.  STATUS_NO_OPERATION: a width or height is zero: nothing
   is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds 2147483647.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeNearestInit_8u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeNearestInit_16u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeNearestInit_16s(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeNearestInit_32f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeNearestInit_L(ImageSizeL srcSize, ImageSizeL dstSize, ResizeSpec* spec);

/* zmviResizeLinearInit: Makes an object for zmviResizeLinear.  spec has the size that zmviResizeGetSize reports, at any
   alignment: the object starts at the first multiple of
   64 bytes in it.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec is null.  STATUS_NO_OPERATION: a width or height is zero: nothing
   is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds 2147483647.
   STATUS_BAD_SIZE: the source is lower or narrower than 2 pixels.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeLinearInit_8u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeLinearInit_16u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeLinearInit_16s(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeLinearInit_32f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeLinearInit_64f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeLinearInit_L(ImageSizeL srcSize, ImageSizeL dstSize, ResizeSpec* spec);

/* zmviResizeCubicInit: Makes an object for zmviResizeCubic, with the cubic kernel of the parameters B and C: 0, 0.5 for
   the
   usual one through the pixels, 1, 0 for the B-spline, 1/3, 1/3 in between.  spec has the size that zmviResizeGetSize
   reports, at any alignment: the object starts at the first multiple of 64 bytes in it.  The caller's control word has
   no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds
   2147483647.  STATUS_BAD_SIZE: the source is lower or narrower than 4 pixels.  STATUS_BAD_ARGUMENT: B or C is not
   finite.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeCubicInit_8u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeCubicInit_16u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeCubicInit_16s(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeCubicInit_32f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeCubicInit_L(ImageSizeL srcSize, ImageSizeL dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);

/* zmviResizeLanczosInit: Makes an object for zmviResizeLanczos.  Two checks come after the header and the tables of
   positions are
   written: STATUS_BAD_ARGUMENT, numLobes is not 2 or 3, and STATUS_BAD_SIZE, the source is lower or narrower than 4
   pixels (2 lobes) or 6 (3).  They leave such an object, and the processor in the mode of this computation, rounding to
   nearest and flushing small results to zero.  spec has the size that zmviResizeGetSize reports, at any alignment: the
   object starts at the first multiple of 64 bytes in it.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds
   2147483647.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeLanczosInit_8u(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeLanczosInit_16u(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeLanczosInit_16s(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeLanczosInit_32f(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeLanczosInit_L(ImageSizeL srcSize, ImageSizeL dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);

/* zmviResizeSuperInit: Makes an object for zmviResizeSuper.  spec has the size that zmviResizeGetSize reports, at any
   alignment: the object starts at the first multiple of
   64 bytes in it.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec is null.  STATUS_NO_OPERATION: a width or height is zero: nothing
   is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds 2147483647.
   STATUS_BAD_SIZE: the source is lower or narrower than the destination.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeSuperInit_8u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeSuperInit_16u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeSuperInit_16s(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeSuperInit_32f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec);
ZMV_API StatusCode zmviResizeSuperInit_L(ImageSizeL srcSize, ImageSizeL dstSize, ResizeSpec* spec);

/* zmviResizeAntialiasingLinearInit: Makes an object for zmviResizeAntialiasing with the linear kernel.  spec has the
   size that zmviResizeGetSize reports, at any alignment: the object starts at the first multiple of
   64 bytes in it.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds
   2147483647.  STATUS_BAD_SIZE: the source is lower or narrower than 2 pixels.  STATUS_SIZE_EXCEEDS_INT: so many taps a
   pixel that no int holds their number.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeAntialiasingLinearInit_8u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLinearInit_16u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLinearInit_16s(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLinearInit_32f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLinearInit_64f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLinearInit_L(ImageSizeL srcSize, ImageSizeL dstSize, ResizeSpec* spec, uint8_t* initBuf);

/* zmviResizeAntialiasingCubicInit: Makes an object for zmviResizeAntialiasing with a cubic kernel; B and C as in
   zmviResizeCubicInit.  spec has the size that zmviResizeGetSize reports, at any alignment: the object starts at the
   first multiple of 64 bytes in it.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds
   2147483647.  STATUS_BAD_SIZE: the source is lower or narrower than 4 pixels.  STATUS_SIZE_EXCEEDS_INT: so many taps a
   pixel that no int holds their number.  STATUS_BAD_ARGUMENT: B or C is not finite.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeAntialiasingCubicInit_8u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeAntialiasingCubicInit_16u(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeAntialiasingCubicInit_16s(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeAntialiasingCubicInit_32f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeAntialiasingCubicInit_64f(ImageSize srcSize, ImageSize dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);
ZMV_API StatusCode zmviResizeAntialiasingCubicInit_L(ImageSizeL srcSize, ImageSizeL dstSize, ResizeSpec* spec, uint8_t* initBuf, float B, float C);

/* zmviResizeAntialiasingLanczosInit: Makes an object for zmviResizeAntialiasing with a Lanczos kernel.  spec has the
   size that zmviResizeGetSize reports, at any alignment: the object starts at the first multiple of
   64 bytes in it.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_SIZE_EXCEEDS_INT: _L: a width or height exceeds
   2147483647.  STATUS_BAD_ARGUMENT: numLobes is not 2 or 3.  STATUS_BAD_SIZE: the source is lower or narrower than 4
   pixels (2 lobes) or 6 (3).  STATUS_SIZE_EXCEEDS_INT: so many taps a pixel that no int holds their number.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeAntialiasingLanczosInit_8u(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLanczosInit_16u(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLanczosInit_16s(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLanczosInit_32f(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLanczosInit_64f(ImageSize srcSize, ImageSize dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);
ZMV_API StatusCode zmviResizeAntialiasingLanczosInit_L(ImageSizeL srcSize, ImageSizeL dstSize, uint32_t numLobes, ResizeSpec* spec, uint8_t* initBuf);

/* zmviResizeGetBufferSize: The bytes of the work buffer for tiles of this size and so many channels.  Sizes beyond
   2147483646, in _L beyond 64 bits, are STATUS_SIZE_EXCEEDS_INT.
   Checked in this order.  STATUS_NULL_POINTER: spec or bufSize is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of resizing, or not of this type (64f has its own;
   _L services take all).  STATUS_BAD_CHANNELS: numChannels is not 1, 3 or 4.  STATUS_BAD_SIZE: one is negative.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeGetBufferSize_8u(const ResizeSpec* spec, ImageSize dstTileSize, int numChannels, int* bufSize);
ZMV_API StatusCode zmviResizeGetBufferSize_16u(const ResizeSpec* spec, ImageSize dstTileSize, int numChannels, int* bufSize);
ZMV_API StatusCode zmviResizeGetBufferSize_16s(const ResizeSpec* spec, ImageSize dstTileSize, int numChannels, int* bufSize);
ZMV_API StatusCode zmviResizeGetBufferSize_32f(const ResizeSpec* spec, ImageSize dstTileSize, int numChannels, int* bufSize);
ZMV_API StatusCode zmviResizeGetBufferSize_64f(const ResizeSpec* spec, ImageSize dstTileSize, int numChannels, int* bufSize);
ZMV_API StatusCode zmviResizeGetBufferSize_L(const ResizeSpec* spec, ImageSizeL dstTileSize, int numChannels, int64_t* bufSize);

/* zmviResizeGetBorderSize: How many pixels beyond the source's left, top, right and bottom side are taken into
   account, in this order: so many have to be in memory where a border word says that they are.
   Checked in this order.  STATUS_NULL_POINTER: spec or borderSize is null.  STATUS_CONTEXT_MISMATCH: spec is no object
   of resizing, or not of this type (64f has its own; _L services take all).
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeGetBorderSize_8u(const ResizeSpec* spec, int* borderSize);
ZMV_API StatusCode zmviResizeGetBorderSize_16u(const ResizeSpec* spec, int* borderSize);
ZMV_API StatusCode zmviResizeGetBorderSize_16s(const ResizeSpec* spec, int* borderSize);
ZMV_API StatusCode zmviResizeGetBorderSize_32f(const ResizeSpec* spec, int* borderSize);
ZMV_API StatusCode zmviResizeGetBorderSize_64f(const ResizeSpec* spec, int* borderSize);
ZMV_API StatusCode zmviResizeGetBorderSize_L(const ResizeSpec* spec, int* borderSize);

/* zmviResizeGetSrcOffset: The source pixel that src has to point at for a tile that starts at dstOffset:
   dstOffset * srcSize / dstSize, rounded down, in every method.
   Checked in this order.  STATUS_NULL_POINTER: spec or srcOffset is null.  STATUS_CONTEXT_MISMATCH: spec is no object
   of resizing, or not of this type (64f has its own; _L services take all).  STATUS_OUT_OF_RANGE: dstOffset lies
   outside the destination.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeGetSrcOffset_8u(const ResizeSpec* spec, ImagePoint dstOffset, ImagePoint* srcOffset);
ZMV_API StatusCode zmviResizeGetSrcOffset_16u(const ResizeSpec* spec, ImagePoint dstOffset, ImagePoint* srcOffset);
ZMV_API StatusCode zmviResizeGetSrcOffset_16s(const ResizeSpec* spec, ImagePoint dstOffset, ImagePoint* srcOffset);
ZMV_API StatusCode zmviResizeGetSrcOffset_32f(const ResizeSpec* spec, ImagePoint dstOffset, ImagePoint* srcOffset);
ZMV_API StatusCode zmviResizeGetSrcOffset_64f(const ResizeSpec* spec, ImagePoint dstOffset, ImagePoint* srcOffset);
ZMV_API StatusCode zmviResizeGetSrcOffset_L(const ResizeSpec* spec, ImagePointL dstOffset, ImagePointL* srcOffset);

/* zmviResizeGetSrcRoi: The rectangle of source pixels, inside the source, that a tile may read under any border word;
   nothing else has to be there, but on sides in memory what lies beyond them.
   Checked in this order.  STATUS_NULL_POINTER: spec or srcRoi is null.  STATUS_NO_OPERATION: a width or height is zero:
   nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of resizing, or not of this type (64f has its own; _L
   services take all).  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeGetSrcRoi_8u(const ResizeSpec* spec, ImagePoint dstOffset, ImageSize dstTileSize, ImageRect* srcRoi);
ZMV_API StatusCode zmviResizeGetSrcRoi_16u(const ResizeSpec* spec, ImagePoint dstOffset, ImageSize dstTileSize, ImageRect* srcRoi);
ZMV_API StatusCode zmviResizeGetSrcRoi_16s(const ResizeSpec* spec, ImagePoint dstOffset, ImageSize dstTileSize, ImageRect* srcRoi);
ZMV_API StatusCode zmviResizeGetSrcRoi_32f(const ResizeSpec* spec, ImagePoint dstOffset, ImageSize dstTileSize, ImageRect* srcRoi);
ZMV_API StatusCode zmviResizeGetSrcRoi_64f(const ResizeSpec* spec, ImagePoint dstOffset, ImageSize dstTileSize, ImageRect* srcRoi);
ZMV_API StatusCode zmviResizeGetSrcRoi_L(const ResizeSpec* spec, ImagePointL dstOffset, ImageSizeL dstTileSize, ImageRectL* srcRoi);

/* zmviResizeSetMode: Moves the places that destination pixels take in the source by up to half a source pixel, as
   chroma planes want it: x = (i + 0.5) * srcSize / dstSize - 0.5 + shiftX.  Forms the object anew, from its header.
   Checked in this order.  STATUS_NULL_POINTER: spec is null.  STATUS_CONTEXT_MISMATCH: spec is no object of resizing,
   or not of this type (64f has its own; _L services take all).  STATUS_OUT_OF_RANGE: a shift is NaN or beyond 0.5 in
   magnitude.  STATUS_BAD_ARGUMENT: the object is one for super-sampling.
   src/geometry/piresizen64x.cpp */
ZMV_API StatusCode zmviResizeSetMode(double shiftX, double shiftY, ResizeSpec* spec);

/* zmviResizeNearest: Resizes by the nearest pixel.
   A tile of the destination starts at dstOffset; dst is its first pixel, src the source pixel that
   zmviResizeGetSrcOffset names.  What overhangs the destination is left out.  Tiles of any size give the bits of the
   whole.  buffer has the size that zmviResizeGetBufferSize reports for the tile, at any alignment, and is used by one
   call at a time; spec may serve many.  Any step is accepted.  src and dst must not overlap.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_NO_OPERATION: a width or
   height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of resizing, or not of this type (64f
   has its own; _L services take all).  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside
   the destination.  STATUS_BAD_ARGUMENT: the object is for antialiasing.  Then again STATUS_CONTEXT_MISMATCH: it is for
   another method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen.cpp */
ZMV_API StatusCode zmviResizeNearest_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16s_C1R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16s_C3R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_16s_C4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeNearest_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);

/* zmviResizeLinear: Resizes by linear interpolation, a + (b - a) * f, along rows and then along columns.  8u: with
   fractions of 14 bits, between its neighbours and within 0.55 of the exact value.
   Pixel i is taken from x = (i + 0.5) * srcSize / dstSize - 0.5, rows first.  What lies outside the whole source comes
   from borderType: BORDER_REPL or 4, the nearest pixel; BORDER_MIRROR (not for Lanczos); each with any BORDER_IN_MEM_
   flags for sides whose pixels are in memory, as many as zmviResizeGetBorderSize says, or BORDER_IN_MEM alone.
   borderValue is not looked at.  An axis of equal lengths takes the pixel itself.  16u, 16s: in floats, rounded once at
   the end, to nearest even; 32f, 64f: in their type, under the caller's rounding mode.
   A tile of the destination starts at dstOffset; dst is its first pixel, src the source pixel that
   zmviResizeGetSrcOffset names.  What overhangs the destination is left out.  Tiles of any size give the bits of the
   whole.  buffer has the size that zmviResizeGetBufferSize reports for the tile, at any alignment, and is used by one
   call at a time; spec may serve many.  Any step is accepted.  src and dst must not overlap.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER: an image, spec or
   buffer is null.  STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is
   no object of resizing, or not of this type (64f has its own; _L services take all).  STATUS_BAD_SIZE: one is
   negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.  STATUS_BAD_ARGUMENT: the object is for
   antialiasing.  Then again STATUS_CONTEXT_MISMATCH: it is for another method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen.cpp */
ZMV_API StatusCode zmviResizeLinear_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16s_C1R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16s_C3R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_16s_C4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_64f_C1R_L(const double* src, int64_t srcStep, double* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_64f_C3R_L(const double* src, int64_t srcStep, double* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLinear_64f_C4R_L(const double* src, int64_t srcStep, double* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);

/* zmviResizeCubic: Resizes with 4 x 4 pixels and the weights of a cubic kernel.  8u: with weights of 14 bits, within
   0.6
   of the exact value.
   Pixel i is taken from x = (i + 0.5) * srcSize / dstSize - 0.5, rows first.  What lies outside the whole source comes
   from borderType: BORDER_REPL or 4, the nearest pixel; BORDER_MIRROR (not for Lanczos); each with any BORDER_IN_MEM_
   flags for sides whose pixels are in memory, as many as zmviResizeGetBorderSize says, or BORDER_IN_MEM alone.
   borderValue is not looked at.  An axis of equal lengths takes the pixel itself.  16u, 16s: in floats, rounded once at
   the end, to nearest even; 32f, 64f: in their type, under the caller's rounding mode.
   A tile of the destination starts at dstOffset; dst is its first pixel, src the source pixel that
   zmviResizeGetSrcOffset names.  What overhangs the destination is left out.  Tiles of any size give the bits of the
   whole.  buffer has the size that zmviResizeGetBufferSize reports for the tile, at any alignment, and is used by one
   call at a time; spec may serve many.  Any step is accepted.  src and dst must not overlap.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER: an image, spec or
   buffer is null.  STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is
   no object of resizing, or not of this type (64f has its own; _L services take all).  STATUS_BAD_SIZE: one is
   negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.  STATUS_BAD_ARGUMENT: the object is for
   antialiasing.  Then again STATUS_CONTEXT_MISMATCH: it is for another method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen.cpp */
ZMV_API StatusCode zmviResizeCubic_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16s_C1R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16s_C3R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_16s_C4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeCubic_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);

/* zmviResizeLanczos: Resizes with 4 x 4 or 6 x 6 pixels and the weights of a Lanczos kernel of 2 or 3 lobes.  8u: with
   weights of 14 bits, within 0.6 of the exact value.
   Pixel i is taken from x = (i + 0.5) * srcSize / dstSize - 0.5, rows first.  What lies outside the whole source comes
   from borderType: BORDER_REPL or 4, the nearest pixel; BORDER_MIRROR (not for Lanczos); each with any BORDER_IN_MEM_
   flags for sides whose pixels are in memory, as many as zmviResizeGetBorderSize says, or BORDER_IN_MEM alone.
   borderValue is not looked at.  An axis of equal lengths takes the pixel itself.  16u, 16s: in floats, rounded once at
   the end, to nearest even; 32f, 64f: in their type, under the caller's rounding mode.
   A tile of the destination starts at dstOffset; dst is its first pixel, src the source pixel that
   zmviResizeGetSrcOffset names.  What overhangs the destination is left out.  Tiles of any size give the bits of the
   whole.  buffer has the size that zmviResizeGetBufferSize reports for the tile, at any alignment, and is used by one
   call at a time; spec may serve many.  Any step is accepted.  src and dst must not overlap.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER: an image, spec or
   buffer is null.  STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is
   no object of resizing, or not of this type (64f has its own; _L services take all).  STATUS_BAD_SIZE: one is
   negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.  STATUS_BAD_ARGUMENT: the object is for
   antialiasing.  Then again STATUS_CONTEXT_MISMATCH: it is for another method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen.cpp */
ZMV_API StatusCode zmviResizeLanczos_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16s_C1R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16s_C3R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_16s_C4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeLanczos_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);

/* zmviResizeSuper: Reduces by the mean over the area of the source that a pixel covers, parts of pixels in proportion.
   Integers: the exact mean, rounded to nearest even.  32f: in double, columns first, divided and rounded once, under
   the caller's rounding mode.
   A tile of the destination starts at dstOffset; dst is its first pixel, src the source pixel that
   zmviResizeGetSrcOffset names.  What overhangs the destination is left out.  Tiles of any size give the bits of the
   whole.  buffer has the size that zmviResizeGetBufferSize reports for the tile, at any alignment, and is used by one
   call at a time; spec may serve many.  Any step is accepted.  src and dst must not overlap.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_NO_OPERATION: a width or
   height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of resizing, or not of this type (64f
   has its own; _L services take all).  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside
   the destination.  STATUS_BAD_ARGUMENT: the object is for antialiasing.  Then again STATUS_CONTEXT_MISMATCH: it is for
   another method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen.cpp */
ZMV_API StatusCode zmviResizeSuper_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16s_C1R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16s_C3R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_16s_C4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeSuper_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, const ResizeSpec* spec, uint8_t* buffer);

/* zmviResizeAntialiasing: Resizes with the kernel of the object; along an axis that becomes shorter it is stretched by
   the
   reduction, so that every source pixel counts.  8u: with weights of 14 bits and up to 16 taps, within 0.75 of the
   exact value; else in floats.
   Pixel i is taken from x = (i + 0.5) * srcSize / dstSize - 0.5, rows first.  What lies outside the whole source comes
   from borderType: BORDER_REPL or 4, the nearest pixel; BORDER_MIRROR (not for Lanczos); each with any BORDER_IN_MEM_
   flags for sides whose pixels are in memory, as many as zmviResizeGetBorderSize says, or BORDER_IN_MEM alone.
   borderValue is not looked at.  An axis of equal lengths takes the pixel itself.  16u, 16s: in floats, rounded once at
   the end, to nearest even; 32f, 64f: in their type, under the caller's rounding mode.
   A tile of the destination starts at dstOffset; dst is its first pixel, src the source pixel that
   zmviResizeGetSrcOffset names.  What overhangs the destination is left out.  Tiles of any size give the bits of the
   whole.  buffer has the size that zmviResizeGetBufferSize reports for the tile, at any alignment, and is used by one
   call at a time; spec may serve many.  Any step is accepted.  src and dst must not overlap.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_BAD_BORDER: borderType is none of these.  STATUS_NULL_POINTER: an image, spec or
   buffer is null.  STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is
   no object of resizing, or not of this type (64f has its own; _L services take all).  STATUS_BAD_SIZE: one is
   negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.  STATUS_BAD_ARGUMENT: the object is not for
   antialiasing.  Then again STATUS_CONTEXT_MISMATCH: it is for a method without weights.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizen.cpp */
ZMV_API StatusCode zmviResizeAntialiasing_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16s_C1R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16s_C3R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_16s_C4R_L(const int16_t* src, int64_t srcStep, int16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const int16_t* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_64f_C1R_L(const double* src, int64_t srcStep, double* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_64f_C3R_L(const double* src, int64_t srcStep, double* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeAntialiasing_64f_C4R_L(const double* src, int64_t srcStep, double* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const double* borderValue, const ResizeSpec* spec, uint8_t* buffer);

/* zmviResizeYUVGetSize: The bytes of a spec object for YUV images of these sizes, in luma pixels, and of the
   buffer of its initialisation.
   Checked in this order.  STATUS_NULL_POINTER: specSize or initBufSize is null.  STATUS_NO_OPERATION: a width or height
   is zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_BAD_ARGUMENT: chromaFormat is none of these.
   STATUS_BAD_INTERPOLATION: interpolation is none of these.  STATUS_BAD_SIZE: luma or a colour plane of the source is
   lower or narrower than 2 pixels (linear), 4 (cubic, Lanczos), 6 (Lanczos of 3 lobes, its initialiser alone), or than
   the destination (super-sampling).  STATUS_SIZE_EXCEEDS_INT: a size exceeds 2147483646.
   STATUS_WARN_ANTIALIAS_IGNORED: antialiasing is asked for with INTERP_SUPER.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUVGetSize(ImageSize srcSize, ImageSize dstSize, int chromaFormat, int interpolation, int antialiasing, int* specSize, int* initBufSize);

/* zmviResizeYUVLinearInit: Makes an object for zmviResizeYUV420Linear or zmviResizeYUV422Linear.
   chromaFormat: in CHROMA_420 colour planes have (width + 1) / 2 x (height + 1) / 2 pixels, in CHROMA_422 (width + 1) /
   2 x height.  chromaSite: colour samples lie in the middle of their luma samples (CHROMA_CENTER), in the column of the
   even ones (CHROMA_LEFT, as usual in video), or in their column and in 4:2:0 their row too (CHROMA_TOP_LEFT).
   antialiasing: with a kernel that is stretched by a reduction.
   spec has the size that zmviResizeYUVGetSize reports, at any alignment.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_BAD_ARGUMENT: chromaFormat is none of these, then
   chromaSite is none of these.  STATUS_BAD_SIZE: luma or a colour plane of the source is lower or narrower than 2
   pixels (linear), 4 (cubic, Lanczos), 6 (Lanczos of 3 lobes, its initialiser alone), or than the destination
   (super-sampling).
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUVLinearInit(ImageSize srcSize, ImageSize dstSize, int chromaFormat, int chromaSite, int antialiasing, ResizeYUVSpec* spec, uint8_t* initBuf);

/* zmviResizeYUVCubicInit: The same for zmviResizeYUV420Cubic or zmviResizeYUV422Cubic, with the cubic kernel of B and
   C.
   spec has the size that zmviResizeYUVGetSize reports, at any alignment.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_BAD_ARGUMENT: chromaFormat is none of these, then
   chromaSite is none of these, then B or C is not finite.  STATUS_BAD_SIZE: luma or a colour plane of the source is
   lower or narrower than 2 pixels (linear), 4 (cubic, Lanczos), 6 (Lanczos of 3 lobes, its initialiser alone), or than
   the destination (super-sampling).
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUVCubicInit(ImageSize srcSize, ImageSize dstSize, int chromaFormat, int chromaSite, int antialiasing, ResizeYUVSpec* spec, uint8_t* initBuf, float B, float C);

/* zmviResizeYUVLanczosInit: The same for zmviResizeYUV420Lanczos or zmviResizeYUV422Lanczos.
   spec has the size that zmviResizeYUVGetSize reports, at any alignment.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec or initBuf is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_BAD_SIZE: one is negative.  STATUS_BAD_ARGUMENT: chromaFormat is none of these, then
   chromaSite is none of these, then numLobes is not 2 or 3.  STATUS_BAD_SIZE: luma or a colour plane of the source is
   lower or narrower than 2 pixels (linear), 4 (cubic, Lanczos), 6 (Lanczos of 3 lobes, its initialiser alone), or than
   the destination (super-sampling).
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUVLanczosInit(ImageSize srcSize, ImageSize dstSize, int chromaFormat, int chromaSite, int antialiasing, uint32_t numLobes, ResizeYUVSpec* spec, uint8_t* initBuf);

/* zmviResizeYUVSuperInit: The same for zmviResizeYUV420Super or zmviResizeYUV422Super; colour is centred.
   spec has the size that zmviResizeYUVGetSize reports, at any alignment.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: spec is null.  STATUS_NO_OPERATION: a width or height is zero: nothing
   is done.  STATUS_BAD_SIZE: one is negative.  STATUS_BAD_ARGUMENT: chromaFormat is none of these.  STATUS_BAD_SIZE:
   the source is lower or narrower than the destination.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUVSuperInit(ImageSize srcSize, ImageSize dstSize, int chromaFormat, ResizeYUVSpec* spec);

/* zmviResizeYUVGetBufferSize: The bytes of the work buffer for tiles of this size in luma pixels, whether colours are
   in
   two planes or in one.  A size beyond 2147483646 is STATUS_SIZE_EXCEEDS_INT.
   Checked in this order.  STATUS_NULL_POINTER: spec or bufSize is null.  STATUS_NO_OPERATION: a width or height is
   zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV resizing.  STATUS_BAD_SIZE: one is
   negative.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUVGetBufferSize(const ResizeYUVSpec* spec, ImageSize dstTileSize, int* bufSize);

/* zmviResizeYUV420Linear: Resizes a 4:2:0 image by linear interpolation.
   Every plane is an image of its own, resized with its edge replicated, and with the object's siting of colours.
   P3: luma, then two colour planes; P2: luma, then one plane of colour pairs; in the caller's order.  src: the first
   pixels of the whole planes; dst: those of the tile, which starts at dstOffset, in colour planes at half of it, and
   whose odd last column or row has colours of its own.  What overhangs the destination is left out; tiles of any size
   give the bits of the whole.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV420Linear_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV420Linear_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviResizeYUV420Cubic: The same with 4 x 4 pixels and the weights of a cubic kernel.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV420Cubic_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV420Cubic_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviResizeYUV420Lanczos: The same with the weights of a Lanczos kernel.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV420Lanczos_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV420Lanczos_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviResizeYUV420Super: Reduces by the mean over the area that a pixel covers; else the same.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV420Super_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV420Super_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviResizeYUV422Linear: Resizes a 4:2:2 image by linear interpolation.
   Every plane is an image of its own, resized with its edge replicated, and with the object's siting of colours.
   P3: luma, then two colour planes; P2: luma, then one plane of colour pairs; in the caller's order.  src: the first
   pixels of the whole planes; dst: those of the tile, which starts at dstOffset, in colour planes at half of it, and
   whose odd last column or row has colours of its own.  What overhangs the destination is left out; tiles of any size
   give the bits of the whole.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV422Linear_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV422Linear_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviResizeYUV422Cubic: The same with 4 x 4 pixels and the weights of a cubic kernel.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV422Cubic_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV422Cubic_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviResizeYUV422Lanczos: The same with the weights of a Lanczos kernel.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV422Lanczos_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV422Lanczos_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviResizeYUV422Super: Reduces by the mean over the area that a pixel covers; else the same.
   Any step is accepted, zero and negative ones too, and need not be a multiple of the element size.
   The images must not overlap.
   buffer has the size that zmviResizeYUVGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, a plane, srcStep, dstStep, spec or buffer is null.
   STATUS_NO_OPERATION: a width or height is zero: nothing is done.  STATUS_CONTEXT_MISMATCH: spec is no object of YUV
   resizing.  STATUS_BAD_SIZE: one is negative.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination, or is odd
   where colour planes have half of it.  STATUS_BAD_SIZE: the tile is odd there and ends before the destination does.
   Then again STATUS_CONTEXT_MISMATCH: the object is for another format or method.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piresizeyuv.cpp */
ZMV_API StatusCode zmviResizeYUV422Super_8u_P3R(const uint8_t* const src[3], const int srcStep[3], uint8_t* const dst[3], const int dstStep[3], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviResizeYUV422Super_8u_P2R(const uint8_t* const src[2], const int srcStep[2], uint8_t* const dst[2], const int dstStep[2], ImagePoint dstOffset, ImageSize dstTileSize, const ResizeYUVSpec* spec, uint8_t* buffer);

/* zmviWarpGetSize: The bytes of a warp's spec object, the same for every map and every type.
   Checked in this order.  STATUS_NULL_POINTER: specSize is null.  STATUS_BAD_SIZE: a size below 1, then _L: a side is
   beyond 2^53.  STATUS_BAD_INTERPOLATION: interpolation is none of these.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpGetSize(ImageSize srcSize, ImageSize dstSize, int interpolation, int* specSize);
ZMV_API StatusCode zmviWarpGetSize_L(ImageSizeL srcSize, ImageSizeL dstSize, int interpolation, int64_t* specSize);

/* zmviWarpGetBufferSize: The bytes of the work buffer of a warp for tiles of this size: it grows with their height
   alone.
   Any map, any interpolation, and all types.
   Checked in this order.  STATUS_NULL_POINTER: spec or bufSize is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp.  STATUS_BAD_CHANNELS: numChannels is not
   1, 3 or 4.  STATUS_SIZE_EXCEEDS_INT: the size exceeds 2147483647 (not in _L); nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpGetBufferSize(const WarpSpec* spec, ImageSize dstTileSize, int numChannels, int* bufSize);
ZMV_API StatusCode zmviWarpGetBufferSize_L(const WarpSpec* spec, ImageSizeL dstTileSize, int numChannels, int64_t* bufSize);

/* zmviWarpAffineNearestInit: Makes an object for zmviWarpAffineNearest.
   (x, y) goes to (c00 x + c01 y + c02, c10 x + c11 y + c12).
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative, then _L: a side or a place is beyond 2^53.  STATUS_BAD_ARGUMENT: direction is none of these, then
   smoothEdge is none of these.  STATUS_BAD_COEFFS: a coefficient is not finite, or the determinant or a coefficient of
   the inverse is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpAffineNearestInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[2][3], int direction, int smoothEdge, WarpSpec* spec);
ZMV_API StatusCode zmviWarpAffineNearestInit_L(ImageSizeL srcSize, ImageRectL srcRoi, ImageSizeL dstSize, const double coeffs[2][3], int direction, int smoothEdge, WarpSpec* spec);

/* zmviWarpAffineLinearInit: Makes an object for zmviWarpAffineLinear.
   (x, y) goes to (c00 x + c01 y + c02, c10 x + c11 y + c12).
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative, then _L: a side or a place is beyond 2^53.  STATUS_BAD_ARGUMENT: direction is none of these, then
   smoothEdge is none of these.  STATUS_BAD_COEFFS: a coefficient is not finite, or the determinant or a coefficient of
   the inverse is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpAffineLinearInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[2][3], int direction, int smoothEdge, WarpSpec* spec);
ZMV_API StatusCode zmviWarpAffineLinearInit_L(ImageSizeL srcSize, ImageRectL srcRoi, ImageSizeL dstSize, const double coeffs[2][3], int direction, int smoothEdge, WarpSpec* spec);

/* zmviWarpAffineCubicInit: Makes an object for zmviWarpAffineCubic.
   (x, y) goes to (c00 x + c01 y + c02, c10 x + c11 y + c12).
   B and C choose the cubic kernel: 0, 0.5 for the usual one through the pixels, 1, 0 for the B-spline, 1/3, 1/3 in
   between.
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative, then _L: a side or a place is beyond 2^53.  STATUS_BAD_ARGUMENT: direction is none of these, then
   smoothEdge is none of these, then B or C is not finite.  STATUS_BAD_COEFFS: a coefficient is not finite, or the
   determinant or a coefficient of the inverse is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpAffineCubicInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[2][3], int direction, int smoothEdge, float B, float C, WarpSpec* spec);
ZMV_API StatusCode zmviWarpAffineCubicInit_L(ImageSizeL srcSize, ImageRectL srcRoi, ImageSizeL dstSize, const double coeffs[2][3], int direction, int smoothEdge, float B, float C, WarpSpec* spec);

/* zmviWarpAffineNearest: dst(x, y) = the source pixel nearest to where the map says (x, y) comes from, halves going up.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpAffineNearest_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineNearest_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpAffineLinear: dst(x, y) = the source where the map says (x, y) comes from, linear between four pixels.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpAffineLinear_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineLinear_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpAffineCubic: dst(x, y) = the source where the map says (x, y) comes from, by the cubic kernel of the object
   over 16 pixels.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpaffine.cpp */
ZMV_API StatusCode zmviWarpAffineCubic_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpAffineCubic_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpPerspectiveNearestInit: Makes an object for zmviWarpPerspectiveNearest.
   Each row [a, b, c] of coeffs is a x + b y + c at (x, y), which goes to the first over the third and the second over
   the third.  The sign of the third is not looked at.
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative, then _L: a side or a place is beyond 2^53.  STATUS_BAD_ARGUMENT: direction is none of these, then
   smoothEdge is none of these.  STATUS_BAD_COEFFS: a coefficient is not finite, nor (forward) one of the map back, or
   the determinant is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpperspective.cpp */
ZMV_API StatusCode zmviWarpPerspectiveNearestInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[3][3], int direction, int smoothEdge, WarpSpec* spec);
ZMV_API StatusCode zmviWarpPerspectiveNearestInit_L(ImageSizeL srcSize, ImageRectL srcRoi, ImageSizeL dstSize, const double coeffs[3][3], int direction, int smoothEdge, WarpSpec* spec);

/* zmviWarpPerspectiveLinearInit: Makes an object for zmviWarpPerspectiveLinear.
   Each row [a, b, c] of coeffs is a x + b y + c at (x, y), which goes to the first over the third and the second over
   the third.  The sign of the third is not looked at.
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative, then _L: a side or a place is beyond 2^53.  STATUS_BAD_ARGUMENT: direction is none of these, then
   smoothEdge is none of these.  STATUS_BAD_COEFFS: a coefficient is not finite, nor (forward) one of the map back, or
   the determinant is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpperspective.cpp */
ZMV_API StatusCode zmviWarpPerspectiveLinearInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[3][3], int direction, int smoothEdge, WarpSpec* spec);
ZMV_API StatusCode zmviWarpPerspectiveLinearInit_L(ImageSizeL srcSize, ImageRectL srcRoi, ImageSizeL dstSize, const double coeffs[3][3], int direction, int smoothEdge, WarpSpec* spec);

/* zmviWarpPerspectiveCubicInit: Makes an object for zmviWarpPerspectiveCubic.
   Each row [a, b, c] of coeffs is a x + b y + c at (x, y), which goes to the first over the third and the second over
   the third.  The sign of the third is not looked at.
   B and C choose the cubic kernel: 0, 0.5 for the usual one through the pixels, 1, 0 for the B-spline, 1/3, 1/3 in
   between.
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative, then _L: a side or a place is beyond 2^53.  STATUS_BAD_ARGUMENT: direction is none of these, then
   smoothEdge is none of these, then B or C is not finite.  STATUS_BAD_COEFFS: a coefficient is not finite, nor
   (forward) one of the map back, or the determinant is zero or not finite.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpperspective.cpp */
ZMV_API StatusCode zmviWarpPerspectiveCubicInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[3][3], int direction, int smoothEdge, float B, float C, WarpSpec* spec);
ZMV_API StatusCode zmviWarpPerspectiveCubicInit_L(ImageSizeL srcSize, ImageRectL srcRoi, ImageSizeL dstSize, const double coeffs[3][3], int direction, int smoothEdge, float B, float C, WarpSpec* spec);

/* zmviWarpPerspectiveNearest: dst(x, y) = the source pixel nearest to where the map says (x, y) comes from, halves
   going up.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpperspective.cpp */
ZMV_API StatusCode zmviWarpPerspectiveNearest_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveNearest_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpPerspectiveLinear: dst(x, y) = the source where the map says (x, y) comes from, linear between four pixels.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpperspective.cpp */
ZMV_API StatusCode zmviWarpPerspectiveLinear_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveLinear_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpPerspectiveCubic: dst(x, y) = the source where the map says (x, y) comes from, by the cubic kernel of the
   object over 16 pixels.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpperspective.cpp */
ZMV_API StatusCode zmviWarpPerspectiveCubic_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_8u_C1R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_8u_C3R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_8u_C4R_L(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16u_C1R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16u_C3R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16u_C4R_L(const uint16_t* src, int64_t srcStep, uint16_t* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_32f_C1R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_32f_C3R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_32f_C4R_L(const float* src, int64_t srcStep, float* dst, int64_t dstStep, ImagePointL dstOffset, ImageSizeL dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_64f_C3R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpPerspectiveCubic_64f_C4R(const double* src, int srcStep, double* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const double* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpBilinearNearestInit: Makes an object for zmviWarpBilinearNearest.
   (x, y) goes to (c00 x y + c01 x + c02 y + c03, c10 x y + c11 x + c12 y + c13).  Forward, a destination pixel comes
   from the point on srcRoi's side of the fold, and some come from nowhere.
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative.  STATUS_BAD_ARGUMENT: direction is none of these, then smoothEdge is none of these.
   STATUS_BAD_COEFFS: a coefficient is not finite; the map folds the plane onto a line; forward, it folds srcRoi.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpbilinear.cpp */
ZMV_API StatusCode zmviWarpBilinearNearestInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[2][4], int direction, int smoothEdge, WarpSpec* spec);

/* zmviWarpBilinearLinearInit: Makes an object for zmviWarpBilinearLinear.
   (x, y) goes to (c00 x y + c01 x + c02 y + c03, c10 x y + c11 x + c12 y + c13).  Forward, a destination pixel comes
   from the point on srcRoi's side of the fold, and some come from nowhere.
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative.  STATUS_BAD_ARGUMENT: direction is none of these, then smoothEdge is none of these.
   STATUS_BAD_COEFFS: a coefficient is not finite; the map folds the plane onto a line; forward, it folds srcRoi.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpbilinear.cpp */
ZMV_API StatusCode zmviWarpBilinearLinearInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[2][4], int direction, int smoothEdge, WarpSpec* spec);

/* zmviWarpBilinearCubicInit: Makes an object for zmviWarpBilinearCubic.
   (x, y) goes to (c00 x y + c01 x + c02 y + c03, c10 x y + c11 x + c12 y + c13).  Forward, a destination pixel comes
   from the point on srcRoi's side of the fold, and some come from nowhere.
   B and C choose the cubic kernel: 0, 0.5 for the usual one through the pixels, 1, 0 for the B-spline, 1/3, 1/3 in
   between.
   Coordinates count from the first pixel's centre of the whole source and of the whole destination.  srcRoi is the part
   of the source that is looked at, as far as it lies inside; nothing beyond it is ever read.
   WARP_FORWARD: coeffs take source points to the destination.  WARP_BACKWARD: destination points to the source.
   smoothEdge: 1 for edges that fade, with BORDER_TRANSPARENT only, 0 for others.  spec has the size that
   zmviWarpGetSize reports, at any alignment; the object serves every type, and the _L forms of executions as well as
   the others.  The caller's control word has no influence.
   Checked in this order.  STATUS_NULL_POINTER: coeffs or spec is null.  STATUS_BAD_SIZE: a size below 1, then x or y of
   srcRoi is negative.  STATUS_BAD_ARGUMENT: direction is none of these, then smoothEdge is none of these, then B or C
   is not finite.  STATUS_BAD_COEFFS: a coefficient is not finite; the map folds the plane onto a line; forward, it
   folds srcRoi.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; the object is made, and its executions write nothing.
   src/geometry/piwarpbilinear.cpp */
ZMV_API StatusCode zmviWarpBilinearCubicInit(ImageSize srcSize, ImageRect srcRoi, ImageSize dstSize, const double coeffs[2][4], int direction, int smoothEdge, float B, float C, WarpSpec* spec);

/* zmviWarpBilinearNearest: dst(x, y) = the source pixel nearest to where the map says (x, y) comes from, halves going
   up.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpbilinear.cpp */
ZMV_API StatusCode zmviWarpBilinearNearest_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearNearest_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpBilinearLinear: dst(x, y) = the source where the map says (x, y) comes from, linear between four pixels.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpbilinear.cpp */
ZMV_API StatusCode zmviWarpBilinearLinear_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearLinear_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviWarpBilinearCubic: dst(x, y) = the source where the map says (x, y) comes from, by the cubic kernel of the object
   over 16 pixels.
   borderType: BORDER_TRANSPARENT leaves pixels from outside srcRoi as they were; with smooth edges points up to one
   pixel outside blend the value at the edge with the old one.  BORDER_REPL and BORDER_MIRROR continue srcRoi in all
   directions, BORDER_CONST with borderValue, one number a channel; no flags are taken.
   src is the first pixel of the whole source in every call, dst that of the tile at dstOffset: tiles give the bits of
   the whole.  Points are formed in double, values in float (64f: double), rows first, every operation rounded once to
   nearest; integers are then rounded to nearest, ties to even, saturated.  Nothing follows the caller's control word.
   Steps need not be multiples of the element size.
   The images must not overlap.
   buffer has the size that zmviWarpGetBufferSize reports, at any alignment.
   Checked in this order.  STATUS_NULL_POINTER: an image, spec or buffer is null.  STATUS_BAD_SIZE: width or height of
   dstTileSize below 1.  STATUS_BAD_STEP: a step is not positive.  STATUS_CONTEXT_MISMATCH: spec is no object of a warp,
   or not one of this map and interpolation.  STATUS_OUT_OF_RANGE: dstOffset lies outside the destination.
   STATUS_BAD_BORDER: borderType is none of these, then smooth edges with another word than BORDER_TRANSPARENT.
   STATUS_NULL_POINTER: BORDER_CONST without borderValue.
   STATUS_WARN_NO_INTERSECTION: srcRoi begins outside the source; nothing is written.
   STATUS_WARN_SIZE_CLIPPED: the tile is wider or higher than the whole destination; done for the part inside.
   src/geometry/piwarpbilinear.cpp */
ZMV_API StatusCode zmviWarpBilinearCubic_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint8_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const uint16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const int16_t* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);
ZMV_API StatusCode zmviWarpBilinearCubic_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImagePoint dstOffset, ImageSize dstTileSize, uint32_t borderType, const float* borderValue, const WarpSpec* spec, uint8_t* buffer);

/* zmviImageJaehne: Rings round the middle of the region whose frequency grows with the radius, up to one period in two
   pixels at the
   nearer edge: a test image of zone plate kind, after B. Jaehne, on which filters show what they do to each frequency.
   With w x h pixels, L the smaller of both, and N = (2x - w + 1)^2 + (2y - h + 1)^2 in 64 bits, z is cos(pi N / (4L))
   within 1e-15, whatever the size.  dst = (1 + z) / 2, in 8u and 16u times the largest of the type; in 16s it is z
   times 32767.  Each step in double precision, then rounded once: to nearest with ties to even.  All channels are
   alike.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   AC4 leaves the fourth channel of the destination as it was.
   Checked in this order.  STATUS_NULL_POINTER: dst is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: dstStep is not positive.
   src/generate/piimage.cpp */
ZMV_API StatusCode zmviImageJaehne_8u_C1R(uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_8u_C3R(uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_8u_C4R(uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_8u_AC4R(uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16u_C1R(uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16u_C3R(uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16u_C4R(uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16u_AC4R(uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16s_C1R(int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16s_C3R(int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16s_C4R(int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_16s_AC4R(int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_32f_C1R(float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_32f_C3R(float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_32f_C4R(float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviImageJaehne_32f_AC4R(float* dst, int dstStep, ImageSize roiSize);

/* zmviImageRamp: dst = offset + slope * i: i is x for AXIS_HORIZONTAL, y for AXIS_VERTICAL, x + y for AXIS_BOTH.  All
   channels alike.
   In double precision, the product rounded and the sum rounded again, so that far pixels are as precise as near ones.
   To integers: to nearest with ties to even, saturated; NaN becomes 0.  To 32f: rounded once more.  Any offset and
   slope are accepted, infinite ones too; a NaN offset goes on before that of the product.
   A tile of a larger ramp passes the offset of its first pixel.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   AC4 leaves the fourth channel of the destination as it was.
   Except in AC4, regions larger than the largest cache are written past the caches.
   Checked in this order.  STATUS_NULL_POINTER: dst is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: dstStep is not positive.  STATUS_BAD_AXIS: axis is none of these.
   src/generate/piimage.cpp */
ZMV_API StatusCode zmviImageRamp_8u_C1R(uint8_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_8u_C3R(uint8_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_8u_C4R(uint8_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_8u_AC4R(uint8_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16u_C1R(uint16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16u_C3R(uint16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16u_C4R(uint16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16u_AC4R(uint16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16s_C1R(int16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16s_C3R(int16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16s_C4R(int16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_16s_AC4R(int16_t* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_32f_C1R(float* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_32f_C3R(float* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_32f_C4R(float* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);
ZMV_API StatusCode zmviImageRamp_32f_AC4R(float* dst, int dstStep, ImageSize roiSize, double offset, double slope, int axis);

/* zmviWinBartlett: dst = src * w(x) * w(y) over the region: a Bartlett window, a roof that is 0 at the edges.
   Of n pixels along an axis, with j = min(i, n - 1 - i), w is 2j / (n - 1); of one pixel it is 1.
   In both, each w is computed in double precision and rounded to single; w(x) * w(y), times src, in single precision,
   each step rounded.  Integers: to nearest with ties to even.  32f: infinite times 0 is NaN.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/generate/piwindow.cpp */
ZMV_API StatusCode zmviWinBartlett_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinBartlett_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinBartlett_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinBartlett_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinBartlett_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinBartlett_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinBartlett_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinBartlett_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviWinHamming: dst = src * w(x) * w(y) over the region: a Hamming window, a wave that is 0.08 at the edges.
   Of n pixels along an axis, with j = min(i, n - 1 - i), w is 0.54 - 0.46 cos(2 pi j / (n - 1)); of one pixel it is 1.
   In both, each w is computed in double precision and rounded to single; w(x) * w(y), times src, in single precision,
   each step rounded.  Integers: to nearest with ties to even.  32f: infinite times 0 is NaN.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   Regions that read and write more than the largest cache holds are written past the caches, but not in place.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.
   src/generate/piwindow.cpp */
ZMV_API StatusCode zmviWinHamming_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinHamming_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinHamming_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinHamming_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinHamming_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinHamming_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinHamming_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
ZMV_API StatusCode zmviWinHamming_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize);

/* zmviAddNoiseUniform: dst = src + noise, evenly spread from low to high; equal bounds add a constant.
   The generator, Philox4x32-10, is a function of place and seed: roiOffset is where the region's first pixel lies in
   the whole image, so that tiles that say so give the whole's noise to the bit, in any order and on any thread; equal
   seeds give equal noise, and a sequence of images puts its number into the seed.  With n channels, 4 for AC4, and e =
   (roiOffset.x + x) * n + channel in 64 bits, the element takes word e & 3 of the counter whose words are the low and
   the high half of e >> 2, roiOffset.y + y, and 0; the key is the low and the high half of the seed.
   The sum is in single precision.  To integers: to nearest with ties to even, saturated; NaN and infinite pixels of 32f
   stay.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   AC4 leaves the fourth channel of the destination as it was.
   In single precision, each step rounded, noise = low + u * d, but at most high: u is the upper 24 bits of the word, d
   is (high - low) / 2^24, formed in double precision and rounded once.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.  STATUS_BAD_RANGE: low is above high, one of them is NaN or infinite, or
   their difference exceeds the largest float.
   src/generate/pinoise.cpp */
ZMV_API StatusCode zmviAddNoiseUniform_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseUniform_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float low, float high, uint64_t seed);

/* zmviAddNoiseGauss: dst = src + noise, normally distributed round mean with a standard deviation of stdDev.
   The generator, Philox4x32-10, is a function of place and seed: roiOffset is where the region's first pixel lies in
   the whole image, so that tiles that say so give the whole's noise to the bit, in any order and on any thread; equal
   seeds give equal noise, and a sequence of images puts its number into the seed.  With n channels, 4 for AC4, and e =
   (roiOffset.x + x) * n + channel in 64 bits, the element takes word e & 3 of the counter whose words are the low and
   the high half of e >> 2, roiOffset.y + y, and 1; the key is the low and the high half of the seed.
   The sum is in single precision.  To integers: to nearest with ties to even, saturated; NaN and infinite pixels of 32f
   stay.
   The caller's rounding mode and denormal setting have no influence and are not changed.
   AC4 leaves the fourth channel of the destination as it was.
   By Box and Muller: words 0 and 1 of a counter serve elements 0 and 1, words 2 and 3 the others.  u1 is the upper 24
   bits of the first, plus 1, over 2^24, u2 those of the second over 2^24; with r = sqrt(-2 ln u1), the first element
   has z = r cos(2 pi u2), the second z = r sin(2 pi u2).  noise = mean + z * stdDev, in single precision, each step
   rounded.  ln, cos and sin are the library's own: z is within 1e-6 * (1 + |z|) of the exact one, the same bits in
   every build.  No z is beyond 5.77.
   In place: the I forms, or src == dst with equal steps; other overlap is undefined.
   Checked in this order.  STATUS_NULL_POINTER: an image is null.  STATUS_BAD_SIZE: width or height below 1.
   STATUS_BAD_STEP: a step is not positive.  STATUS_OUT_OF_RANGE: mean is NaN or infinite, or stdDev is negative, NaN or
   infinite.
   src/generate/pinoise.cpp */
ZMV_API StatusCode zmviAddNoiseGauss_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);
ZMV_API StatusCode zmviAddNoiseGauss_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImagePoint roiOffset, float mean, float stdDev, uint64_t seed);

#ifdef __cplusplus
}
#endif

#endif
