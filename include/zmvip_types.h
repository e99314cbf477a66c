/* The types, status values and enumerated arguments of zmvIP.  Plain C99; C++11 may include it too.
   SPDX-License-Identifier: Apache-2.0 */
#ifndef ZMVIP_TYPES_H
#define ZMVIP_TYPES_H

#include <stdint.h>

#if defined(__GNUC__)
#define ZMV_API __attribute__((visibility("default")))
#else
#define ZMV_API
#endif

/* Result of every operation: 0 is success, negative values are errors (nothing was written), positive values are
   warnings (the result was written, or there was nothing to do).  zmvip_status.h turns a value into text. */
typedef int32_t StatusCode;

/* Every status of the library, once: value, name, sentence. */
#define ZMV_STATUS_LIST(STATUS)                                                                                \
    STATUS(-232, STATUS_SIZE_EXCEEDS_INT, "a size to be reported exceeds 2147483647")                          \
    STATUS(-228, STATUS_BAD_ALGORITHM, "the algorithm type is not accepted")                                   \
    STATUS(-225, STATUS_BAD_BORDER, "the border type or one of its flags is not supported")                    \
    STATUS(-213, STATUS_BAD_ROUND_MODE, "the rounding mode is not accepted")                                   \
    STATUS(-108, STATUS_BAD_STEP_ALIGNMENT, "a step is not a multiple of the element size")                    \
    STATUS(-107, STATUS_BAD_LEVEL_COUNT, "a histogram channel has fewer than two levels")                      \
    STATUS(-60, STATUS_BAD_CHANNEL_ORDER, "an entry of the channel order is out of range")                     \
    STATUS(-59, STATUS_BAD_DATATYPE, "the data-type code is not accepted")                                     \
    STATUS(-58, STATUS_BAD_QUAD, "the quadrangle is degenerate")                                               \
    STATUS(-57, STATUS_BAD_RECT, "the rectangle is narrower or lower than two pixels")                         \
    STATUS(-56, STATUS_BAD_COEFFS, "the coefficients map the rectangle onto a degenerate quadrangle")          \
    STATUS(-53, STATUS_BAD_CHANNELS, "the channel count is not accepted")                                      \
    STATUS(-51, STATUS_BAD_DIVISOR, "the divisor of the kernel is zero")                                       \
    STATUS(-50, STATUS_BAD_ALPHA_TYPE, "the compositing operation is not accepted")                            \
    STATUS(-47, STATUS_BAD_NUM_CHANNELS, "the channel count of the spec object is not accepted")               \
    STATUS(-37, STATUS_STEP_TOO_SMALL, "a step is shorter than the bytes used of each row")                    \
    STATUS(-34, STATUS_BAD_ANCHOR, "the anchor lies outside the mask")                                         \
    STATUS(-33, STATUS_BAD_MASK_SIZE, "the mask size is not accepted")                                         \
    STATUS(-23, STATUS_BAD_INTERPOLATION, "the interpolation type is not accepted")                            \
    STATUS(-22, STATUS_BAD_AXIS, "the mirror axis is not accepted")                                            \
    STATUS(-19, STATUS_BAD_THRESHOLD, "the lower threshold exceeds the upper one")                             \
    STATUS(-16, STATUS_BAD_STEP, "a step is not positive, or shorter than a row where that is checked")        \
    STATUS(-14, STATUS_BAD_ARGUMENT, "an argument is outside its set of values")                               \
    STATUS(-13, STATUS_CONTEXT_MISMATCH, "a spec object is not of the expected kind")                          \
    STATUS(-11, STATUS_OUT_OF_RANGE, "a numeric argument is outside its range")                                \
    STATUS(-10, STATUS_DIV_BY_ZERO, "a divisor constant is zero")                                              \
    STATUS(-9, STATUS_NO_MEMORY, "there is no usable work memory")                                             \
    STATUS(-8, STATUS_NULL_POINTER, "a required pointer is null")                                              \
    STATUS(-7, STATUS_BAD_RANGE, "a lower bound exceeds its upper bound")                                      \
    STATUS(-6, STATUS_BAD_SIZE, "a width or height is not positive, or a size is otherwise not acceptable")    \
    STATUS(-5, STATUS_BAD_SPEC_TAG, "a spec object lacks its tag")                                             \
    STATUS(0, STATUS_OK, "success")                                                                            \
    STATUS(1, STATUS_NO_OPERATION, "a size is zero: nothing to do")                                            \
    STATUS(2, STATUS_WARN_DIV_BY_ZERO, "a divisor is zero: the documented substitute was written")             \
    STATUS(28, STATUS_WARN_NOT_PARALLELOGRAM, "the quadrangle is not a parallelogram")                         \
    STATUS(29, STATUS_WARN_NO_INTERSECTION, "the region does not intersect the image: nothing to do")          \
    STATUS(46, STATUS_WARN_ANTIALIAS_IGNORED, "antialiasing has no effect here")                               \
    STATUS(48, STATUS_WARN_SIZE_CLIPPED, "a size was clipped, or levels are narrower than one integer")        \
    STATUS(52, STATUS_WARN_ACCURATE_IGNORED, "there is no accurate path for this type and channel count")

#define ZMV_STATUS_ENUM(value, name, sentence) name = value,
enum { ZMV_STATUS_LIST(ZMV_STATUS_ENUM) ZMV_STATUS_END_OF_LIST = 0x7fffffff };
#undef ZMV_STATUS_ENUM

/* Sizes, points and rectangles, in pixels.  The L types belong to the functions whose names end in _L. */
typedef struct ImageSize {
    int width, height;
} ImageSize;
typedef struct ImageSizeL {
    int64_t width, height;
} ImageSizeL;
typedef struct ImagePoint {
    int x, y;
} ImagePoint;
typedef struct ImagePointL {
    int64_t x, y;
} ImagePointL;
typedef struct ImageRect {
    int x, y, width, height;
} ImageRect;
typedef struct ImageRectL {
    int64_t x, y, width, height;
} ImageRectL;

/* Complex elements (16sc, 32sc, 32fc). */
typedef struct Complex16s {
    int16_t re, im;
} Complex16s;
typedef struct Complex32s {
    int32_t re, im;
} Complex32s;
typedef struct Complex32f {
    float re, im;
} Complex32f;

/* Element types as arguments of size queries. */
enum { DATATYPE_8U = 1, DATATYPE_16U = 5, DATATYPE_16S = 7, DATATYPE_32F = 13, DATATYPE_64F = 19 };

/* The masks of filters that have one shape: columns, then rows. */
enum { MASK_3X3 = 33, MASK_5X5 = 55 };

/* How a real number becomes an integer.  The financial mode adds one half, then cuts down: zmviDiv_Round to the integer
   below, zmviConvert toward zero. */
enum { ROUND_ZERO = 0, ROUND_NEAR = 1, ROUND_FINANCIAL = 2, ROUND_HINT_ACCURATE = 16 };

/* How zmviConv works, and which part of the result it gives: all of it, or where the smaller image lies inside. */
enum {
    CONV_METHOD_AUTO = 0,
    CONV_METHOD_DIRECT = 1,
    CONV_METHOD_FFT = 2,
    CONV_SHAPE_FULL = 0,
    CONV_SHAPE_VALID = 0x10000
};

/* The hint of sums and norms of floats: add up in double.  Any other number: in float, where that is faster. */
enum { HINT_ACCURATE = 2 };

/* Which pixels a threshold changes: those below it, or those above. */
enum { CMP_LESS = 0, CMP_GREATER = 4 };

/* How a value between pixels, or between the levels of a table, is made.  Resizing also takes the mean of an area;
   remap the second cubic, and the flag that lets edges fade in. */
enum {
    INTERP_NEAREST = 1,
    INTERP_LINEAR = 2,
    INTERP_CUBIC_ALT = 4,
    INTERP_CUBIC = 6,
    INTERP_SUPER = 8,
    INTERP_LANCZOS = 16,
    INTERP_SMOOTH_EDGE = -2147483647 - 1 /* the top bit */
};

/* What compositing shows of image A and of image B, each with its alpha: A over B; A inside of B; A outside of B; A
   inside of B, over B; each outside of the other; the sum of both.
   _PREMUL: colours come multiplied by their alphas. */
enum {
    ALPHA_OVER = 0,
    ALPHA_IN = 1,
    ALPHA_OUT = 2,
    ALPHA_ATOP = 3,
    ALPHA_XOR = 4,
    ALPHA_PLUS = 5,
    ALPHA_OVER_PREMUL = 6,
    ALPHA_IN_PREMUL = 7,
    ALPHA_OUT_PREMUL = 8,
    ALPHA_ATOP_PREMUL = 9,
    ALPHA_XOR_PREMUL = 10,
    ALPHA_PLUS_PREMUL = 11
};

/* The axis of a mirror: which way pixels change places. */
enum { AXIS_HORIZONTAL = 0, AXIS_VERTICAL = 1, AXIS_BOTH = 2, AXIS_DIAGONAL_A = 3, AXIS_DIAGONAL_B = 4 };

/* The border word: a rule, plus one flag for every side whose outside pixels are readable in memory and to be used
   as they are.  BORDER_IN_MEM alone means that the whole frame is readable. */
enum {
    BORDER_REPL = 1,        /* outside pixels repeat the nearest edge pixel:        a a|a b c d|d d */
    BORDER_MIRROR = 3,      /* the image mirrored about its edge pixel:             c b|a b c d|c b */
    BORDER_CONST = 6,       /* outside pixels take the value passed by the caller:  v v|a b c d|v v */
    BORDER_TRANSPARENT = 8, /* for warps: what comes from outside the source leaves the destination as it is */
    BORDER_IN_MEM_TOP = 16,
    BORDER_IN_MEM_BOTTOM = 32,
    BORDER_IN_MEM_LEFT = 64,
    BORDER_IN_MEM_RIGHT = 128,
    BORDER_IN_MEM = 240
};

/* What an initialisation of the resize families makes, in a block of the caller's: any alignment will do.  A copy is as
   good, at an address that leaves the same remainder when divided by 64. */
typedef struct ResizeSpec ResizeSpec;

/* The same for an image of luma and colour planes: how many rows and columns the colour planes have (CHROMA_420: half
   of both, CHROMA_422: half the columns), and where their samples lie among those of luma. */
typedef struct ResizeYUVSpec ResizeYUVSpec;
enum { CHROMA_420 = 0, CHROMA_422 = 1 };
enum { CHROMA_CENTER = 0, CHROMA_LEFT = 1, CHROMA_TOP_LEFT = 2 };

/* The same for a warp by coefficients, which say where a source pixel goes (forward) or where a destination pixel comes
   from (backward). */
typedef struct WarpSpec WarpSpec;
enum { WARP_FORWARD = 0, WARP_BACKWARD = 1 };

/* What zmviGetLibVersion points to.  The record and its texts are constant and never freed. */
typedef struct LibraryVersion {
    int32_t versionMajor;
    int32_t versionMinor;
    int32_t versionPatch;
    int32_t buildNumber;
    char cpuTag[4]; /* "s3", "v3" or "v4": the build that the loader picked */
    const char* libraryName;
    const char* versionText;
    const char* buildDateText;
} LibraryVersion;

#endif
