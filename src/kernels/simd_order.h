// The order of elements: interleaving, de-interleaving and packing, inside the 16-byte lanes of a vector.
//
// Pixels of n channels and planes meet lane by lane: n vectors hold, in each 16-byte lane, 16 bytes of every plane, or
// the n * 16 bytes of the same pixels.  loadLanes and storeLanes bring either from and to memory.
#pragma once

#include <array>

#include "kernels/simd.h"

namespace zmv {

// Element i of the result is element Order::at(i) of a, or of b from lanesOf<V> on.  The order is a constant.
template <class Order, class V, int... i>
ZMV_INLINE V permute(V a, V b, std::integer_sequence<int, i...>) {
    return __builtin_shufflevector(a, b, Order::at(i)...);
}
template <class Order, class V>
ZMV_INLINE V permute(V a, V b) {
    return permute<Order>(a, b, std::make_integer_sequence<int, lanesOf<V>>{});
}

// Whether a permutation of bytes is an instruction.
constexpr bool hasByteShuffle =
#if defined(__SSSE3__)
    true;
#else
    false;
#endif

// A constant mask: all ones where Test::at(i) holds.
template <class Test, class V, int... i>
ZMV_INLINE V maskWhere(std::integer_sequence<int, i...>) {
    return V{Element<V>(Test::at(i) ? ~Element<V>(0) : Element<V>(0))...};
}
template <class Test, class V>
ZMV_INLINE V maskWhere() {
    return maskWhere<Test, V>(std::make_integer_sequence<int, lanesOf<V>>{});
}

// Orders inside lanes.
template <class V>
struct InLanes {
    static constexpr int perLane = 16 / int(sizeof(Element<V>));
    static constexpr int inLane(int i) { return i % perLane; }
    // Element k of the two lanes a and b laid end to end.
    static constexpr int of(int i, int k) { return i - inLane(i) + (k < perLane ? k : lanesOf<V> + k - perLane); }

    struct Low {  // a0 b0 a1 b1 ..
        static constexpr int at(int i) { return of(i, inLane(i) / 2 + (i % 2) * perLane); }
    };
    struct High {  // the same for the upper halves of the lanes
        static constexpr int at(int i) { return of(i, inLane(i) / 2 + (i % 2) * perLane + perLane / 2); }
    };
    struct LowHigh {  // the lower half of a with the upper half of b
        static constexpr int at(int i) { return of(i, inLane(i) / 2 + (i % 2) * (perLane + perLane / 2)); }
    };
    struct HighLow {
        static constexpr int at(int i) { return of(i, inLane(i) / 2 + (i % 2 ? perLane : perLane / 2)); }
    };
    struct Even {  // a0 a2 .. b0 b2 ..
        static constexpr int at(int i) { return of(i, 2 * inLane(i)); }
    };

    // Pixels of three channels: element j of vector v (0, 1, 2) of a lane is channel (v * perLane + j) % 3.
    template <int v, int channel>
    struct OfChannel {
        static constexpr bool at(int i) { return (v * perLane + inLane(i)) % 3 == channel; }
    };
    // The three vectors hold a channel in different places, each element of it in the place that this order undoes.
    template <int channel>
    struct FromPixels {
        static constexpr int at(int i) { return of(i, (3 * inLane(i) + channel) % perLane); }
    };
    template <int channel>
    struct ToPixels {
        static constexpr int at(int i) {
            for (int k = 0; k < perLane; ++k)
                if ((3 * k + channel) % perLane == inLane(i)) return of(i, k);
            return -1;
        }
    };
};

template <class V>
ZMV_INLINE V interleaveLow(V a, V b) {
    return permute<typename InLanes<V>::Low>(a, b);
}
template <class V>
ZMV_INLINE V interleaveHigh(V a, V b) {
    return permute<typename InLanes<V>::High>(a, b);
}
template <class V>
ZMV_INLINE V even(V a, V b) {  // the even elements of a, then those of b
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64 && sizeof(Element<V>) == 1)
        return (V)_mm512_packus_epi16((__m512i)a & _mm512_set1_epi16(255), (__m512i)b & _mm512_set1_epi16(255));
    if constexpr (sizeof(V) == 64 && sizeof(Element<V>) == 2)
        return (V)_mm512_packus_epi32((__m512i)a & _mm512_set1_epi32(65535), (__m512i)b & _mm512_set1_epi32(65535));
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32 && sizeof(Element<V>) == 1)
        return (V)_mm256_packus_epi16((__m256i)a & _mm256_set1_epi16(255), (__m256i)b & _mm256_set1_epi16(255));
    if constexpr (sizeof(V) == 32 && sizeof(Element<V>) == 2)
        return (V)_mm256_packus_epi32((__m256i)a & _mm256_set1_epi32(65535), (__m256i)b & _mm256_set1_epi32(65535));
#endif
    return permute<typename InLanes<V>::Even>(a, b);
}
// n vectors packed into one, lane by lane, leave an nth of each in every lane: back to their order.
template <class V, int n>
struct OfVectors {
    static constexpr int at(int i) { return i % (lanesOf<V> / n) * n + i / (lanesOf<V> / n); }
};
template <int n, class V>
ZMV_INLINE V partsInOrder(V packed) {
    using Parts = Vec<std::conditional_t<n == 2, uint64_t, uint32_t>, sizeof(V)>;
    return (V)permute<OfVectors<Parts, n>>((Parts)packed, (Parts)packed);
}
// Odd elements in even places; what is left in odd places is not used.
template <class V>
ZMV_INLINE V oddToEven(V v) {
    if constexpr (sizeof(Element<V>) == 1)
        return (V)((Vec<uint16_t, sizeof(V)>)v >> 8);
    else if constexpr (sizeof(Element<V>) == 2)
        return (V)((Vec<uint32_t, sizeof(V)>)v >> 16);
    else
        return (V)((Vec<uint64_t, sizeof(V)>)v >> 32);
}

// Units of so many bytes in the opposite order.
template <class V>
struct Opposite {
    static constexpr int at(int i) { return lanesOf<V> - 1 - i; }
};
template <class V>
struct OppositeInLanes {
    static constexpr int at(int i) { return i ^ (16 / int(sizeof(Element<V>)) - 1); }
};
template <int halves>
struct LanesOpposite {  // i counts 8-byte halves of lanes
    static constexpr int at(int i) { return (halves - 1 - i) ^ 1; }
};
template <int bytes, class V>
ZMV_INLINE V opposite(V v) {
    using Halves = Vec<uint64_t, sizeof(V)>;
    if constexpr (bytes == 16) {
        return (V)permute<LanesOpposite<lanesOf<Halves>>>((Halves)v, (Halves)v);
    } else {
        using U = Vec<typename UnsignedOf<bytes>::type, sizeof(V)>;
        if constexpr (bytes >= 4) return (V)permute<Opposite<U>>((U)v, (U)v);
#if !defined(__SSSE3__)
        // Bytes of a pair, then the quarters of each half of the vector, then its halves.
        using Pairs = Vec<uint16_t, sizeof(V)>;
        auto pairs = (Pairs)v;
        if constexpr (bytes == 1) pairs = pairs << 8 | pairs >> 8;
        pairs = __builtin_shufflevector(pairs, pairs, 3, 2, 1, 0, 4, 5, 6, 7);
        pairs = __builtin_shufflevector(pairs, pairs, 0, 1, 2, 3, 7, 6, 5, 4);
        return opposite<8>((V)pairs);
#else
        return opposite<16>((V)permute<OppositeInLanes<U>>((U)v, (U)v));
#endif
    }
}

// Byte i of each lane of the result is byte index[i] of that lane of v.
#if defined(__SSSE3__)
template <class V>
ZMV_INLINE V shuffleBytes(V v, V index) {
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_shuffle_epi8((__m512i)v, (__m512i)index);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_shuffle_epi8((__m256i)v, (__m256i)index);
#endif
    if constexpr (sizeof(V) == 16) return (V)_mm_shuffle_epi8((__m128i)v, (__m128i)index);
}
#else
template <class V>
V shuffleBytes(V v, V index);
#endif

// The bytes of v moved up by n, behind the first n bytes of `few`; moved down by n, with those at the end.
template <int n, class V>
ZMV_INLINE V movedUp(V v, Vec<uint64_t, 16> few) {
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) {
        const auto lower = _mm512_maskz_shuffle_i64x2(0xfc, (__m512i)v, (__m512i)v, 0x90);
        return (V)_mm512_or_si512(_mm512_alignr_epi8((__m512i)v, lower, 16 - n), _mm512_zextsi128_si512((__m128i)few));
    }
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) {
        const auto lower = _mm256_permute2x128_si256((__m256i)v, (__m256i)v, 8);
        return (V)_mm256_or_si256(_mm256_alignr_epi8((__m256i)v, lower, 16 - n), _mm256_zextsi128_si256((__m128i)few));
    }
#endif
    if constexpr (sizeof(V) == 16) return (V)_mm_or_si128(_mm_slli_si128((__m128i)v, n), (__m128i)few);
}
template <int n, class V>
ZMV_INLINE V movedDown(V v, Vec<uint64_t, 16> few) {
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) {
        const auto upper = _mm512_maskz_shuffle_i64x2(0x3f, (__m512i)v, (__m512i)v, 0x39);
        return (V)_mm512_alignr_epi8(_mm512_inserti64x2(upper, (__m128i)few, 3), (__m512i)v, n);
    }
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) {
        const auto upper = _mm256_permute2x128_si256((__m256i)v, _mm256_castsi128_si256((__m128i)few), 0x21);
        return (V)_mm256_alignr_epi8(upper, (__m256i)v, n);
    }
#endif
    if constexpr (sizeof(V) == 16)
        return (V)_mm_or_si128(_mm_srli_si128((__m128i)v, n), _mm_slli_si128((__m128i)few, 16 - n));
}

// n vectors that are the planes of a block of pixels, or its pixels.
template <class V, int n>
using Block = std::array<V, n>;

// Without a byte shuffle, pixels of three channels and planes change into each other by perfect shuffles: merging the
// first half of a lane's 3 * perLane elements with the second half moves element p to 2p mod (3 * perLane - 1), and
// planes are a multiplication by perLane, a power of two, away.
template <class V>
constexpr bool byPerfectShuffles = !hasByteShuffle && sizeof(Element<V>) < 4;

template <class V>
ZMV_INLINE Block<V, 3> planesOf(const Block<V, 3>& pixels) {
    using In = InLanes<V>;
    V a = pixels[0], b = pixels[1], c = pixels[2];
    if constexpr (byPerfectShuffles<V>) {
        for (int k = 1; k < In::perLane; k *= 2) {
            const V x = permute<typename In::LowHigh>(a, b), y = permute<typename In::HighLow>(a, c);
            c = permute<typename In::LowHigh>(b, c);
            a = x, b = y;
        }
        return {a, b, c};
    } else {
        const auto plane = [&]<int channel>(std::integral_constant<int, channel>) {
            const V ofB = maskWhere<typename In::template OfChannel<1, channel>, V>();
            const V ofC = maskWhere<typename In::template OfChannel<2, channel>, V>();
            const V mixed = select(ofB, b, select(ofC, c, a));
            return permute<typename In::template FromPixels<channel>>(mixed, mixed);
        };
        return {plane(std::integral_constant<int, 0>{}), plane(std::integral_constant<int, 1>{}),
                plane(std::integral_constant<int, 2>{})};
    }
}

template <class V>
ZMV_INLINE Block<V, 3> pixelsOf(const Block<V, 3>& planes) {
    using In = InLanes<V>;
    V a = planes[0], b = planes[1], c = planes[2];
    if constexpr (byPerfectShuffles<V>) {
        for (int k = 1; k < In::perLane; k *= 2) {
            const V x = even(a, b), y = even(c, oddToEven(a));
            c = even(oddToEven(b), oddToEven(c));
            a = x, b = y;
        }
        return {a, b, c};
    } else {
        a = permute<typename In::template ToPixels<0>>(a, a);
        b = permute<typename In::template ToPixels<1>>(b, b);
        c = permute<typename In::template ToPixels<2>>(c, c);
        const auto vector = [&]<int v>(std::integral_constant<int, v>) {
            const V ofB = maskWhere<typename In::template OfChannel<v, 1>, V>();
            const V ofC = maskWhere<typename In::template OfChannel<v, 2>, V>();
            return select(ofB, b, select(ofC, c, a));
        };
        return {vector(std::integral_constant<int, 0>{}), vector(std::integral_constant<int, 1>{}),
                vector(std::integral_constant<int, 2>{})};
    }
}

// Four channels: the same perfect shuffle on 4 * perLane elements; pixels are two of them away from planes.  A power of
// two n: as many of them as there are bits in n turn n vectors of n elements a lane into their transpose.
template <int n, class V>
ZMV_INLINE Block<V, n> perfectShuffle(const Block<V, n>& x) {
    Block<V, n> merged;
    for (int i = 0; i < n / 2; ++i) {
        merged[2 * i] = interleaveLow(x[i], x[i + n / 2]);
        merged[2 * i + 1] = interleaveHigh(x[i], x[i + n / 2]);
    }
    return merged;
}
template <class V>
ZMV_INLINE Block<V, 4> pixelsOf(const Block<V, 4>& planes) {
    return perfectShuffle<4, V>(perfectShuffle<4, V>(planes));
}
template <class V>
ZMV_INLINE Block<V, 4> planesOf(Block<V, 4> pixels) {
    for (int k = 1; k < InLanes<V>::perLane; k *= 2) pixels = perfectShuffle<4, V>(pixels);
    return pixels;
}
template <int n, class V>
ZMV_INLINE Block<V, n> transposed(Block<V, n> rows) {
    for (int k = 1; k < n; k *= 2) rows = perfectShuffle<n, V>(rows);
    return rows;
}

// One channel is its own plane.
template <class V>
ZMV_INLINE Block<V, 1> pixelsOf(const Block<V, 1>& planes) {
    return planes;
}
template <class V>
ZMV_INLINE Block<V, 1> planesOf(const Block<V, 1>& pixels) {
    return pixels;
}

// lanes<T> pixels of n channels at p.
template <int n, class T>
ZMV_INLINE Block<Vec<T>, n> loadPixels(const T* p) {
    Block<Vec<T>, n> block;
    for (int i = 0; i < n; ++i) block[i] = loadLanes(p + i * (16 / int(sizeof(T))), 16 * n);
    return block;
}
// In memory's order, lane i of the block is lane i / n of vector i % n: vector v of the result takes its lanes from all
// of them, two by two.
template <class V, int n, int v, int from>
struct LaneOrder {
    static constexpr int at(int i) {  // i counts 8-byte halves of lanes
        const int lane = v * int(sizeof(V)) / 16 + i / 2, source = lane % n;
        if (source == from) return int(sizeof(V)) / 8 + lane / n * 2 + i % 2;
        return source < from ? (from == 1 ? lane / n * 2 + i % 2 : i) : -1;  // what came before stays
    }
};
template <int n, int v, class V>
ZMV_INLINE V inMemoryOrder(const Block<V, n>& block) {
    using Halves = Vec<uint64_t, sizeof(V)>;
    const auto add = [&]<int from>(Halves have, std::integral_constant<int, from>) {
        return permute<LaneOrder<Halves, n, v, from>>(have, (Halves)block[from]);
    };
    auto vector = add((Halves)block[0], std::integral_constant<int, 1>{});
    vector = add(vector, std::integral_constant<int, 2>{});
    if constexpr (n == 4) vector = add(vector, std::integral_constant<int, 3>{});
    return (V)vector;
}
template <int n, class T>
ZMV_INLINE void storePixels(T* p, const Block<Vec<T>, n>& block) {
    const auto put = [&]<int... v>(std::integer_sequence<int, v...>) {
        if constexpr (n == 1 || vectorBytes == 16)
            (..., store(p + v * lanes<T>, block[v]));
        else
            (..., store(p + v * lanes<T>, inMemoryOrder<n, v>(block)));
    };
    put(std::make_integer_sequence<int, n>{});
}

// The first channel of lanes<T> pixels of four at p.
template <class T>
ZMV_INLINE Vec<T> loadFirstOfFour(const T* p) {
    return partsInOrder<4>(
        even(even(load(p), load(p + lanes<T>)), even(load(p + 2 * lanes<T>), load(p + 3 * lanes<T>))));
}

}  // namespace zmv
