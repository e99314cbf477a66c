// zmviGrayToBin, zmviBinToGray: images of one bit a pixel, eight a byte, the leftmost in the highest bit.
#include <bit>

#include "kernels/masked.h"
#include "kernels/rounding.h"
#include "kernels/simd_bits.h"

namespace zmv {
namespace {

// Where a row of bits starts: in its first byte, so many bits from the highest.
StatusCode bitOffset(int offset) { return refuse(offset < 0 || offset > 7, STATUS_OUT_OF_RANGE); }

constexpr int block = 64;  // pixels, whose bits make eight bytes

// The bits of a block of pixels; of a part of one only the first n are read, and anything is behind their bits.
template <class T, class Load>
ZMV_INLINE uint64_t bitsOf(Vec<T> threshold, const Load& loadAt) {
    uint64_t bits = 0;
    unrolled<block / lanes<uint8_t>>([&](auto k) {
        std::array<Vec<Bits<T>>, sizeof(T)> above;
        unrolled<sizeof(T)>(
            [&](auto i) { above[i] = (Vec<Bits<T>>)(loadAt(k * lanes<uint8_t> + i * lanes<T>) > threshold); });
        bits |= topBits(joinedMasks<uint8_t>(above)) << k * lanes<uint8_t> % 64;
    });
    return bits;
}
template <class T>
ZMV_INLINE uint64_t bitsAbove(Vec<T> threshold, const T* p) {
    return bitsOf<T>(threshold, [&](int at) { return load(p + at); });
}
template <class T>
__attribute__((noinline)) uint64_t firstBitsAbove(Vec<T> threshold, const T* p, int n) {
    return bitsOf<T>(threshold, [&](int at) {
        return n - at >= lanes<T> ? load(p + at) : n > at ? loadPart(p + at, n - at) : Vec<T>{};
    });
}

// Bits without the first n.
uint64_t without(uint64_t bits, Len n) { return __builtin_bswap64(__builtin_bswap64(bits) << n); }

// n bits of a byte from one of its bits on; the others stay.
void putBits(uint8_t* byte, unsigned bits, int from, int n) {
    const unsigned mask = (0xff00u >> n & 0xff) >> from;
    *byte = uint8_t((*byte & ~mask) | (bits >> from & mask));
}

template <class T>
StatusCode ownpi_GrayToBin(Image<const T> src, Image<uint8_t> dst, int offset, Roi roi, T threshold) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), bitOffset(offset), steps(src.step, dst.step)}))
        return bad;
    return toNearestIf<std::is_floating_point_v<T>>([&] {  // where small numbers are what they are
        const Vec<T> level = fill(threshold);
        const bool wide = roi.width >= block;  // a part of a block is read as one, with pixels before it or behind
        for (Len y = 0; y < roi.height; ++y) {
            const T* from = src.row(y);
            uint8_t* to = dst.row(y);
            Len left = roi.width;
            if (offset > 0) {
                const int n = int(std::min<Len>(left, 8 - offset));
                putBits(to++, uint8_t(wide ? bitsAbove(level, from) : firstBitsAbove(level, from, n)), offset, n);
                from += n, left -= n;
            }
            for (; left >= block; left -= block, from += block, to += 8)
                put(reinterpret_cast<uint64_t*>(to), bitsAbove(level, from));
            if (left == 0) continue;
            const uint64_t bits = wide ? without(bitsAbove(level, from + left - block), block - left)
                                       : firstBitsAbove(level, from, int(left));
            const Len whole = left / 8;
            if (whole > 0) storeFewBytes(to, Vec<uint64_t, 16>{bits, 0}, int(whole));
            if (left % 8) putBits(to + whole, uint8_t(bits >> 8 * whole), 0, int(left % 8));
        }
        return StatusCode(STATUS_OK);
    });
}

// The bits of a block that starts somewhere in its first byte, or of one with n pixels, beyond which nothing is read.
uint64_t bitsAt(const uint8_t* p, int offset) {
    const uint64_t bytes = get(reinterpret_cast<const uint64_t*>(p));
    if (offset == 0) return bytes;
    return without(bytes, offset) | uint64_t(p[8] >> (8 - offset)) << 56;
}
uint64_t firstBitsAt(const uint8_t* p, int offset, int n) {
    uint8_t bytes[9] = {};
    std::memcpy(bytes, p, size_t(offset + n + 7) / 8);
    return bitsAt(bytes, offset);
}

template <class T>
StatusCode ownpi_BinToGray(Image<const uint8_t> src, int offset, Image<T> dst, Roi roi, T low, T high) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), bitOffset(offset), steps(src.step, dst.step)}))
        return bad;
    using V = Vec<T>;
    const V ofZeros = fill(low), ofOnes = fill(high);
    const auto eachVector = [&](uint64_t bits, const auto& write) __attribute__((always_inline)) {
        unrolled<block / lanes<T>>(
            [&](auto k) { write(k * lanes<T>, select(lanesWhere<V, k>(bits), ofOnes, ofZeros)); });
    };
    for (Len y = 0; y < roi.height; ++y) {
        const uint8_t* from = src.row(y);
        T* to = dst.row(y);
        Len left = roi.width;
        for (; left >= block; left -= block, from += 8, to += block)
            eachVector(bitsAt(from, offset), [&](int at, V v) { store(to + at, v); });
        if (left > 0 && roi.width >= block) {  // once more what has been written, up to the end
            const Len back = block - left, at = offset + 8 * block - back;
            eachVector(bitsAt(from + at / 8 - block, int(at % 8)), [&](int x, V v) { store(to - back + x, v); });
        } else if (left > 0) {
            eachVector(firstBitsAt(from, offset, int(left)), [&](int at, V v) {
                if (at < left) storeUpTo(to + at, v, int(std::min<Len>(left - at, lanes<T>)));
            });
        }
    }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/binary.def"
GRAY_TO_BIN_FAMILY
BIN_TO_GRAY_FAMILY
