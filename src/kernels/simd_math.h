// The vocabulary of arithmetic: wider and narrower lanes, saturation, and the roundings that integers need.  Halves of
// a vector are the halves of its 16-byte lanes, so that widening and narrowing again keep the order at every width.
#pragma once

#include <limits>

#include "kernels/simd_order.h"

namespace zmv {

// An instruction of two operands that every build has, at the width of V.
#if defined(__AVX512BW__)
#define ZMV_AT_512(Result, op, a, b)                                                                                   \
    if constexpr (sizeof(a) == 64) return (Result)_mm512_##op((__m512i)a, (__m512i)b);
#else
#define ZMV_AT_512(Result, op, a, b)
#endif
#if defined(__AVX2__)
#define ZMV_AT_256(Result, op, a, b)                                                                                   \
    if constexpr (sizeof(a) == 32) return (Result)_mm256_##op((__m256i)a, (__m256i)b);
#else
#define ZMV_AT_256(Result, op, a, b)
#endif
#define ZMV_ABOVE_128(Result, op, a, b) ZMV_AT_512(Result, op, a, b) ZMV_AT_256(Result, op, a, b)
#define ZMV_AT_ALL(Result, op, a, b)                                                                                   \
    ZMV_ABOVE_128(Result, op, a, b)                                                                                    \
    if constexpr (sizeof(a) == 16) return (Result)_mm_##op((__m128i)a, (__m128i)b);

// The type of twice the width and of the same sign.
template <class T>
struct WiderOf;
template <>
struct WiderOf<uint8_t> {
    using type = uint16_t;
};
template <>
struct WiderOf<int8_t> {
    using type = int16_t;
};
template <>
struct WiderOf<uint16_t> {
    using type = uint32_t;
};
template <>
struct WiderOf<int16_t> {
    using type = int32_t;
};
template <class T>
using Wider = typename WiderOf<T>::type;
// The same vector, its lanes read as signed numbers.
template <class V>
ZMV_INLINE auto asSigned(V v) {
    return (Vec<std::make_signed_t<Element<V>>, sizeof(V)>)v;
}

template <class V>
ZMV_INLINE auto asUnsigned(V v) {
    return (Vec<std::make_unsigned_t<Element<V>>, sizeof(V)>)v;
}

// The lower (0) or upper (1) half of a vector, widened.
template <int half, class V>
ZMV_INLINE V interleaveHalf(V a, V b) {
    return half == 0 ? interleaveLow(a, b) : interleaveHigh(a, b);
}
template <int half, class V>
ZMV_INLINE auto widen(V v) {
    using T = Element<V>;
    using Wide = Vec<Wider<T>, sizeof(V)>;
    // A signed element goes to the upper half of its lane and comes down with its sign.
    if constexpr (std::is_signed_v<T>)
        return (Wide)interleaveHalf<half>(v, v) >> int(8 * sizeof(T));
    else
        return (Wide)interleaveHalf<half>(v, V{});
}

// The sum of each eight bytes.
template <class V>
ZMV_INLINE auto byteSums(V v) {
    static_assert(std::is_same_v<Element<V>, uint8_t>);
    using SumsOfEight = Vec<uint64_t, sizeof(V)>;
    ZMV_AT_ALL(SumsOfEight, sad_epu8, v, V{})
}
// The sum of all lanes.
template <class V>
ZMV_INLINE auto laneSum(V v) {
    Element<V> sum = 0;
    for (int i = 0; i < lanesOf<V>; ++i) sum += v[i];
    return sum;
}
// The products of two pairs of neighbours, added.
template <class V>
ZMV_INLINE auto pairProducts(V a, V b) {
    static_assert(std::is_same_v<Element<V>, int16_t>);
    using Products = Vec<int32_t, sizeof(V)>;
    ZMV_AT_ALL(Products, madd_epi16, a, b)
}

// The same of unsigned bytes and signed ones, in 16 bits, which hold the sums by the caller's care.
template <class A, class B>
ZMV_INLINE auto bytePairProducts(A a, B b) {
    static_assert(std::is_same_v<Element<A>, uint8_t> && std::is_same_v<Element<B>, int8_t>);
    using Products = Vec<int16_t, sizeof(A)>;
    ZMV_ABOVE_128(Products, maddubs_epi16, a, b)
    if constexpr (sizeof(A) == 16)
        return (Products)((Vec<uint16_t, 16>)a & 255) * ((Products)b << 8 >> 8) +
               (Products)((Vec<uint16_t, 16>)a >> 8) * ((Products)b >> 8);
}

template <class V>
ZMV_INLINE V mulHighSigned(V a, V b) {
    static_assert(std::is_same_v<Element<V>, int16_t>);
    ZMV_AT_ALL(V, mulhi_epi16, a, b)
}
// The exact products of 8-bit or 16-bit lanes, half of them.
template <int half, class V>
ZMV_INLINE auto product(V a, V b) {
    using T = Element<V>;
    using Wide = Vec<Wider<T>, sizeof(V)>;
    if constexpr (sizeof(T) == 1)
        return widen<half>(a) * widen<half>(b);
    else if constexpr (std::is_signed_v<T>)
        return (Wide)interleaveHalf<half>((V)(asUnsigned(a) * asUnsigned(b)), mulHighSigned(a, b));
    else
        return (Wide)interleaveHalf<half>(a * b, mulHigh(a, b));
}

template <class V>
ZMV_INLINE V addSaturated(V a, V b) {
    using T = Element<V>;
    if constexpr (std::is_same_v<T, uint8_t>) {
        ZMV_AT_ALL(V, adds_epu8, a, b)
    }
    if constexpr (std::is_same_v<T, uint16_t>) {
        ZMV_AT_ALL(V, adds_epu16, a, b)
    }
    if constexpr (std::is_same_v<T, int16_t>) {
        ZMV_AT_ALL(V, adds_epi16, a, b)
    }
}
template <class V>
ZMV_INLINE V subSaturated(V a, V b) {
    using T = Element<V>;
    if constexpr (std::is_same_v<T, uint8_t>) {
        ZMV_AT_ALL(V, subs_epu8, a, b)
    }
    if constexpr (std::is_same_v<T, uint16_t>) {
        ZMV_AT_ALL(V, subs_epu16, a, b)
    }
    if constexpr (std::is_same_v<T, int16_t>) {
        ZMV_AT_ALL(V, subs_epi16, a, b)
    }
}

// a, which is below 256, times the low byte of b as a signed number.
template <class V>
ZMV_INLINE V timesLow(V a, V b) {
    static_assert(std::is_same_v<Element<V>, uint16_t>);
    ZMV_ABOVE_128(V, maddubs_epi16, a, b)
    if constexpr (sizeof(V) == 16) return a * (V)(asSigned(b << 8) >> 8);
}

// x over L = 2^n - 1, the largest number of T, in lanes of twice the width: to nearest, without ties since L is odd, or
// rounded down.  x lies from 0 to L^2, to nearest also from -(L - 1) / 2 in two's complement; of signed types it lies
// from -L * 2^n.  Every 2^n in x counts one and leaves one over.
template <class T, class W>
ZMV_INLINE W overLargestFrom(W x) {  // x - 1 over L, rounded down
    constexpr int n = std::numeric_limits<T>::digits;
    if constexpr (sizeof(T) == 1)
        return mulHigh(x, fill<Element<W>, sizeof(W)>(257));
    else if constexpr (std::is_signed_v<T>)
        return (x + (x >> n) + ((x - 1) >> 31)) >> n;
    else
        return (x + (x >> n)) >> n;
}
template <class T, class W>
ZMV_INLINE W overLargest(W x) {
    return overLargestFrom<T>(x + (Element<W>(1) << (std::numeric_limits<T>::digits - 1)));
}
template <class T, class W>
ZMV_INLINE W overLargestDown(W x) {
    return overLargestFrom<T>(x + 1);
}

// Half the sum of unsigned numbers, rounded up.
template <class V>
ZMV_INLINE V average(V a, V b) {
    if constexpr (sizeof(Element<V>) == 1) {
        ZMV_AT_ALL(V, avg_epu8, a, b)
    } else {
        ZMV_AT_ALL(V, avg_epu16, a, b)
    }
}

// Unsigned numbers of twice the width of T, those too large replaced by the largest of T.
template <class T, class W>
ZMV_INLINE W atMostMax(W v) {
    constexpr auto most = Element<W>(std::numeric_limits<T>::max());
    if constexpr (sizeof(T) == 1)
        return v - subSaturated(v, fill<Element<W>, sizeof(W)>(most));
    else
        return v | (W)((v >> 16) != 0);  // of too large ones only the low bits, all ones, are looked at
}

// Two vectors of lanes of twice the width as one of T, saturated.
template <class T, class W>
ZMV_INLINE Vec<T, sizeof(W)> narrow(W low, W high) {
    using From = Element<W>;
    using To = Vec<T, sizeof(W)>;
    static_assert(sizeof(From) == 2 * sizeof(T));
    if constexpr (std::is_unsigned_v<From> && sizeof(T) == 2) {
        return even((To)atMostMax<T>(low), (To)atMostMax<T>(high));
    } else if constexpr (std::is_unsigned_v<From>) {
        return narrow<T>(asSigned(atMostMax<T>(low)), asSigned(atMostMax<T>(high)));
    } else if constexpr (std::is_same_v<T, uint8_t>) {
        ZMV_AT_ALL(To, packus_epi16, low, high)
    } else if constexpr (std::is_same_v<T, int8_t>) {
        ZMV_AT_ALL(To, packs_epi16, low, high)
    } else if constexpr (std::is_same_v<T, int16_t>) {
        ZMV_AT_ALL(To, packs_epi32, low, high)
    } else {
        ZMV_ABOVE_128(To, packus_epi32, low, high)
        // The signed pack, on numbers from 0 on, moved down by half the range.
        const auto moved = [](W v) { return (v & ~(v >> 31)) - 32768; };
        if constexpr (sizeof(W) == 16) return (To)(narrow<int16_t>(moved(low), moved(high)) ^ int16_t(-32768));
    }
}

}  // namespace zmv
