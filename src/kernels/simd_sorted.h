// Places in a vector whose lanes are in order.
#pragma once

#include <bit>

#include "kernels/simd.h"

namespace zmv {

// How many of the first lanes, which are in order, are at most the limit.
template <class V>
ZMV_INLINE int lanesUpTo(V v, Element<V> limit) {
#if defined(__AVX512BW__)
    const auto before = [](auto above) { return std::countr_zero(uint32_t(above) | 0x10000u); };
    if constexpr (std::is_same_v<V, Vec<uint8_t, 16>>)
        return before(_mm_cmpgt_epu8_mask((__m128i)v, _mm_set1_epi8(char(limit))));
    if constexpr (std::is_same_v<V, Vec<uint16_t, 32>>)
        return before(_mm256_cmpgt_epu16_mask((__m256i)v, _mm256_set1_epi16(short(limit))));
    if constexpr (std::is_same_v<V, Vec<uint32_t, 64>>)
        return before(_mm512_cmpgt_epu32_mask((__m512i)v, _mm512_set1_epi32(int(limit))));
#else
    const auto most = v <= limit;
    uint64_t bytes = 0;
    if constexpr (sizeof(V) == 16) bytes = uint32_t(_mm_movemask_epi8((__m128i)most));
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) bytes = uint32_t(_mm256_movemask_epi8((__m256i)most));
#endif
    return std::countr_one(bytes) / int(sizeof(Element<V>));
#endif
}

}  // namespace zmv
