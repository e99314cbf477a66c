// What looking up pixels in a row needs of the instruction set: lanes from anywhere, and a signed rounded product.
#pragma once

#include "kernels/simd.h"

namespace zmv {

// Each 16-byte lane of the vector from an address of its own: lane k at p + offsets[k] bytes.
template <class V>
ZMV_INLINE V loadLanesAt(const uint8_t* p, const Len* offsets) {
    const auto lane = [&](int k) __attribute__((always_inline)) { return loadAs<__m128i>(p + offsets[k]); };
    if constexpr (sizeof(V) == 16) return (V)lane(0);
#if defined(__AVX2__)
    const auto pair = [&](int k) __attribute__((always_inline)) {
        return _mm256_inserti128_si256(_mm256_castsi128_si256(lane(k)), lane(k + 1), 1);
    };
    if constexpr (sizeof(V) == 32) return (V)pair(0);
#endif
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64)
        return (V)_mm512_inserti32x4(_mm512_inserti32x4(_mm512_castsi256_si512(pair(0)), lane(2), 2), lane(3), 3);
#endif
}

// The product of signed 16-bit lanes over 2^15, rounded up at a half; not both are the smallest.
template <class V>
ZMV_INLINE V mulRoundedSigned(V a, V b) {
    static_assert(std::is_same_v<Element<V>, int16_t>);
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_mulhrs_epi16((__m512i)a, (__m512i)b);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_mulhrs_epi16((__m256i)a, (__m256i)b);
#endif
    if constexpr (sizeof(V) == 16) {
        const auto high = (V)_mm_mulhi_epi16((__m128i)a, (__m128i)b);
        const auto low = (Vec<uint16_t, 16>)_mm_mullo_epi16((__m128i)a, (__m128i)b);
        return high + high + (V)(((low >> 14) + 1) >> 1);  // the two highest bits of the low half, rounded
    }
}

}  // namespace zmv
