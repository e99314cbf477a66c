// zmviMalloc, zmviFree: images whose rows start at multiples of 64 bytes, in memory of the core library.
#include "core/frame.h"
#include "zmvcore.h"

namespace zmv {
namespace {

// The two forms differ on purpose in how they guard against overflow, and callers rely on what each leaves in stepOut.

void* allocate(int width, int height, uint32_t pixelBytes, int* stepOut) {
    if (!stepOut) return nullptr;
    put(stepOut, 0);
    if (width <= 0 || height <= 0 || uint32_t(width) > INT32_MAX / pixelBytes) return nullptr;
    const uint32_t step = (uint32_t(width) * pixelBytes + 63) & ~63u;
    // Wrapped; the comparison is with the width in pixels, not with the bytes of the row.
    if (step < uint32_t(width)) return nullptr;
    put(stepOut, int(step));
    // From here on the step stays with the caller, also when the image is refused.  A step whose top bit is set counts
    // as negative and makes a total that the allocator refuses.
    const int64_t total = int64_t(int(step)) * int64_t(uint32_t(height));
    if (total > INT32_MAX) return nullptr;
    return zmvMalloc(int(total));
}

void* allocate(int64_t width, int64_t height, uint64_t pixelBytes, int64_t* stepOut) {
    if (!stepOut) return nullptr;
    put(stepOut, 0);
    if (width <= 0 || height <= 0 || uint64_t(width) > UINT64_MAX / pixelBytes) return nullptr;
    const uint64_t rowBytes = uint64_t(width) * pixelBytes;
    const uint64_t step = (rowBytes + 63) & ~uint64_t(63) & INT64_MAX;
    if (step < rowBytes) return nullptr;
    put(stepOut, int64_t(step));
    // Refused when the product could pass 64 bits, judged by the halves of its operands.
    const uint64_t stepHigh = step >> 32, stepLow = uint32_t(step);
    const uint64_t heightHigh = uint64_t(height) >> 32, heightLow = uint32_t(height);
    constexpr uint64_t limit = UINT32_MAX;
    if (stepHigh * heightHigh > limit || stepHigh * heightLow > limit || heightHigh * stepLow > limit) return nullptr;
    // Halves of 2^32 times a little more pass that test, and wrap.
    if (__int128(step) * height > INT64_MAX) return nullptr;
    return zmvMalloc_L(int64_t(step * uint64_t(height)));
}

template <class T, class Step>
T* ownpi_Malloc(Step width, Step height, int channels, Step* stepOut) {
    return static_cast<T*>(allocate(width, height, unsigned(sizeof(T)) * unsigned(channels), stepOut));
}

constexpr Layout C2{2};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "core/services.def"
MALLOC_FAMILY
FREE_FAMILY
