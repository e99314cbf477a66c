// Bits of memory and lanes: eight pixels a byte, the leftmost in the highest bit.  64 of them are handed over as the
// eight bytes that memory holds.
#pragma once

#include "kernels/simd_order.h"

namespace zmv {

// The top bit of each byte of a vector, as the bytes of memory that hold so many bits.
template <class V>
struct OppositeInEights {
    static constexpr int at(int i) { return i ^ 7; }
};
template <class V>
ZMV_INLINE uint64_t topBits(V v) {
    static_assert(sizeof(Element<V>) == 1);
    if constexpr (hasByteShuffle) {
        v = permute<OppositeInEights<V>>(v, v);
    } else {
        auto pairs = (Vec<uint16_t, sizeof(V)>)v;
        pairs = pairs << 8 | pairs >> 8;
        pairs = __builtin_shufflevector(pairs, pairs, 3, 2, 1, 0, 4, 5, 6, 7);
        v = (V)__builtin_shufflevector(pairs, pairs, 0, 1, 2, 3, 7, 6, 5, 4);
    }
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return _mm512_movepi8_mask((__m512i)v);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return uint32_t(_mm256_movemask_epi8((__m256i)v));
#endif
    if constexpr (sizeof(V) == 16) return uint32_t(_mm_movemask_epi8((__m128i)v));
}

// The other way: all ones in the lanes whose bit is set, of lanes part * lanesOf<V> and on.
template <class V, int part>
struct ByteOfBit {  // i counts bytes; each lane of 16 has all eight
    static constexpr int at(int i) { return i / 16 * 16 + (part * int(sizeof(V)) + i) / int(8 * sizeof(Element<V>)); }
};
template <class V, int part, int... i>
ZMV_INLINE V bitOfLane(std::integer_sequence<int, i...>) {
    return V{Element<V>(0x80 >> (part * lanesOf<V> + i) % 8)...};
}
template <class V, int part>
ZMV_INLINE V lanesWhere(uint64_t bits) {
    using Bytes = Vec<uint8_t, sizeof(V)>;
    constexpr int first = part * lanesOf<V> / 8;  // the byte that has the first bit
    const V bit = bitOfLane<V, part>(std::make_integer_sequence<int, lanesOf<V>>{});
    V spread;
    if constexpr (hasByteShuffle) {
        const auto bytes = (Bytes)fill<uint64_t, sizeof(V)>(bits);
        spread = (V)permute<ByteOfBit<V, part>>(bytes, bytes);
    } else if constexpr (sizeof(Element<V>) == 1) {
        auto bytes = (Bytes)fill<uint64_t, sizeof(V)>(bits >> 8 * first);
        for (int doubled = 0; doubled < 3; ++doubled) bytes = interleaveLow(bytes, bytes);
        spread = (V)bytes;
    } else {
        spread = fill<Element<V>, sizeof(V)>(Element<V>(bits >> 8 * first));
    }
    return (V)((spread & bit) == bit);
}

}  // namespace zmv
