// Lanes of another type: what memory holds, read as wider integers or as real numbers, and results back again, in
// memory's order.
#pragma once

#include <array>

#include "kernels/simd_math.h"

namespace zmv {

// ---- Between integers and real numbers ----

template <class V>
ZMV_INLINE Vec<float, sizeof(V)> toFloat(V v) {          // rounded as the control word says
    if constexpr (std::is_same_v<Element<V>, uint32_t>)  // both halves are exact
        return toFloat(asSigned(v >> 16)) * 65536.0f + toFloat(asSigned(v & 65535u));
    else
        return __builtin_convertvector(v, Vec<float, sizeof(V)>);
}
template <class V>
ZMV_INLINE auto truncate(V v) {  // to int32_t, toward zero; in range by the caller's care
    return __builtin_convertvector(v, Vec<int32_t, sizeof(V)>);
}
template <class V>
ZMV_INLINE auto floorToInt(V v) {
    const auto t = truncate(v);
    return t + (toFloat(t) > v);  // a comparison is -1 where true
}

// To int32_t, rounded as the control word says; NaN and what lies beyond become the smallest.
template <class V>
ZMV_INLINE auto roundToInt(V v) {
    static_assert(std::is_same_v<Element<V>, float>);
    using Ints = Vec<int32_t, sizeof(V)>;
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (Ints)_mm512_cvtps_epi32((__m512)v);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (Ints)_mm256_cvtps_epi32((__m256)v);
#endif
    if constexpr (sizeof(V) == 16) return (Ints)_mm_cvtps_epi32((__m128)v);
}
// The same of two vectors of double, and two of them as one of float.
template <class V>
ZMV_INLINE auto roundToInt(V a, V b) {
    using Ints = Vec<int32_t, sizeof(V)>;
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64)
        return (Ints)_mm512_inserti64x4(_mm512_castsi256_si512(_mm512_cvtpd_epi32((__m512d)a)),
                                        _mm512_cvtpd_epi32((__m512d)b), 1);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32)
        return (Ints)_mm256_set_m128i(_mm256_cvtpd_epi32((__m256d)b), _mm256_cvtpd_epi32((__m256d)a));
#endif
    if constexpr (sizeof(V) == 16)
        return (Ints)_mm_unpacklo_epi64(_mm_cvtpd_epi32((__m128d)a), _mm_cvtpd_epi32((__m128d)b));
}
template <class V>
ZMV_INLINE auto roundToFloat(V a, V b) {
    using Floats = Vec<float, sizeof(V)>;
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64)
        return (Floats)_mm512_insertf64x4(_mm512_castps_pd(_mm512_castps256_ps512(_mm512_cvtpd_ps((__m512d)a))),
                                          _mm256_castps_pd(_mm512_cvtpd_ps((__m512d)b)), 1);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32)
        return (Floats)_mm256_set_m128(_mm256_cvtpd_ps((__m256d)b), _mm256_cvtpd_ps((__m256d)a));
#endif
    if constexpr (sizeof(V) == 16) return (Floats)_mm_movelh_ps(_mm_cvtpd_ps((__m128d)a), _mm_cvtpd_ps((__m128d)b));
}

// The smaller and the larger of two real numbers; b where one is NaN, and of two zeros.  Of the comparison GCC makes a
// mask where masks are registers of their own.
template <class V>
ZMV_INLINE V smaller(V a, V b) {
#if defined(__AVX512BW__)
    if constexpr (std::is_same_v<V, Vec<float, 64>>) return (V)_mm512_min_ps((__m512)a, (__m512)b);
    if constexpr (std::is_same_v<V, Vec<double, 64>>) return (V)_mm512_min_pd((__m512d)a, (__m512d)b);
#endif
    return a < b ? a : b;
}
template <class V>
ZMV_INLINE V larger(V a, V b) {
#if defined(__AVX512BW__)
    if constexpr (std::is_same_v<V, Vec<float, 64>>) return (V)_mm512_max_ps((__m512)a, (__m512)b);
    if constexpr (std::is_same_v<V, Vec<double, 64>>) return (V)_mm512_max_pd((__m512d)a, (__m512d)b);
#endif
    return a > b ? a : b;
}
template <class V>
ZMV_INLINE V squareRoot(V v) {
    constexpr bool single = std::is_same_v<Element<V>, float>;
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64 && single) return (V)_mm512_sqrt_ps((__m512)v);
    if constexpr (sizeof(V) == 64 && !single) return (V)_mm512_sqrt_pd((__m512d)v);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32 && single) return (V)_mm256_sqrt_ps((__m256)v);
    if constexpr (sizeof(V) == 32 && !single) return (V)_mm256_sqrt_pd((__m256d)v);
#endif
    if constexpr (sizeof(V) == 16 && single) return (V)_mm_sqrt_ps((__m128)v);
    if constexpr (sizeof(V) == 16 && !single) return (V)_mm_sqrt_pd((__m128d)v);
}

// From a vector of half the size, exactly.
template <class V>
ZMV_INLINE auto toDouble([[maybe_unused]] V v) {
    [[maybe_unused]] constexpr bool ints = std::is_same_v<Element<V>, int32_t>;
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 32 && ints) return (Vec<double, 64>)_mm512_cvtepi32_pd((__m256i)v);
    if constexpr (sizeof(V) == 32 && !ints) return (Vec<double, 64>)_mm512_cvtps_pd((__m256)v);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 16 && ints) return (Vec<double, 32>)_mm256_cvtepi32_pd((__m128i)v);
    if constexpr (sizeof(V) == 16 && !ints) return (Vec<double, 32>)_mm256_cvtps_pd((__m128)v);
#endif
}

// ---- From memory and back ----

// As many elements at p as To has lanes, each as To.  Only 32-bit integers as float may round.
template <class To, class T, int bytes = vectorBytes>
ZMV_INLINE Vec<To, bytes> loadWiden(const T* p) {
    using Result = Vec<To, bytes>;
    constexpr bool sign = std::is_signed_v<T>, real = std::is_floating_point_v<To>;
    static_assert(sizeof(To) >= sizeof(T));
    if constexpr (sizeof(To) == sizeof(T) && real == std::is_floating_point_v<T>) {
        return (Result)load<T, bytes>(p);
    } else if constexpr (real && sizeof(To) == sizeof(T)) {
        return toFloat(load<T, bytes>(p));
    } else if constexpr (std::is_same_v<To, float>) {
        return toFloat(loadWiden<int32_t, T, bytes>(p));
    } else if constexpr (real && bytes == 16) {
        return Result{double(get(p)), double(get(p + 1))};
    } else if constexpr (std::is_same_v<T, uint32_t>) {  // as signed numbers, 2^31 below
        return toDouble((Vec<int32_t, bytes / 2>)(load<T, bytes / 2>(p) ^ (1u << 31))) + 2147483648.0;
    } else if constexpr (std::is_same_v<T, float>) {
        return toDouble(load<T, bytes / 2>(p));
    } else if constexpr (real) {
        return toDouble(loadWiden<int32_t, T, bytes / 2>(p));
#define ZMV_WIDEN(mm, half, quarter)                                                                                   \
    if constexpr (sizeof(T) == 2) return (Result)(sign ? mm##_cvtepi16_epi32(half) : mm##_cvtepu16_epi32(half));       \
    if constexpr (sizeof(To) == 2) return (Result)(sign ? mm##_cvtepi8_epi16(half) : mm##_cvtepu8_epi16(half));        \
    return (Result)(sign ? mm##_cvtepi8_epi32(quarter) : mm##_cvtepu8_epi32(quarter));
#if defined(__AVX512BW__)
    } else if constexpr (bytes == 64) {
        ZMV_WIDEN(_mm512, loadAs<__m256i>(p), loadAs<__m128i>(p))
#endif
#if defined(__AVX2__)
    } else if constexpr (bytes == 32) {
        ZMV_WIDEN(_mm256, loadAs<__m128i>(p), _mm_cvtsi64_si128(loadAs<long long>(p)))
#endif
    } else {
        // Signed elements go to the upper end of their lanes and come down with their signs.
        using Down = Vec<std::conditional_t<sign, std::make_signed_t<To>, To>, 16>;
        const auto apart = [](auto raw) { return interleaveLow(raw, sign ? raw : decltype(raw){}); };
        if constexpr (sizeof(To) == 4 * sizeof(T)) {
            const auto bytes4 = (Vec<T, 16>)_mm_cvtsi32_si128(loadAs<int>(p));
            return (Result)((Down)apart((Vec<Wider<T>, 16>)apart(bytes4)) >> (sign ? 24 : 0));
        } else {
            const auto raw = (Vec<T, 16>)_mm_cvtsi64_si128(loadAs<long long>(p));
            return (Result)((Down)apart(raw) >> (sign ? 8 * int(sizeof(T)) : 0));
        }
    }
}

// The first n of them, n below the lanes of To and none from 0 down; the others are zero, and nothing beyond is read.
template <class To, class T>
ZMV_INLINE Vec<To> loadWidenPart(const T* p, int n) {
    constexpr int part = vectorBytes * int(sizeof(T)) / int(sizeof(To)), block = part < 16 ? 16 : part;
    if (n <= 0) return Vec<To>{};
    T few[block / sizeof(T)];
    store(few, loadPart<T, block>(p, n));
    return loadWiden<To>(few);
}
// The same where n may be all lanes and more.
template <class To, class T>
ZMV_INLINE Vec<To> loadWidenUpTo(const T* p, int n) {
    return n >= lanes<To> ? loadWiden<To>(p) : loadWidenPart<To>(p, n);
}

// Real numbers between the smallest and the largest of T, where the integers of the processor do not see to it; NaN
// becomes zero.
template <class T, class V>
ZMV_INLINE V inRangeOf(V v) {
    constexpr auto most = Element<V>(std::numeric_limits<T>::max());
    // Of signed types what is too small, of unsigned ones that and NaN, saturate later on from the smallest int32_t.
    if constexpr (std::is_signed_v<T>) v = v == v ? v : V{};
    if constexpr (std::is_same_v<T, uint32_t>) v = larger(v, V{});
    return smaller(fill<Element<V>, sizeof(V)>(most), v);
}

// The numbers of several vectors as one vector of T, saturated; real numbers become integers as the control word says.
template <class T, class V, size_t n>
ZMV_INLINE Vec<T> joined(const std::array<V, n>& v) {
    using From = Element<V>;
    static_assert(n * sizeof(T) == sizeof(From));
    if constexpr (std::is_same_v<From, double> && std::is_same_v<T, uint32_t>) {
        // To whole numbers by the last place of 2^52, then as signed numbers, 2^31 below.
        const auto below = [](V x) { return inRangeOf<T>(x) + 4503599627370496.0 - 4503599627370496.0 - 2147483648.0; };
        return (Vec<T>)roundToInt(below(v[0]), below(v[1])) ^ (1u << 31);
    } else if constexpr (std::is_same_v<From, double> && std::is_integral_v<T>) {
        std::array<Vec<int32_t>, n / 2> ints;
        for (size_t i = 0; i < n / 2; ++i) ints[i] = roundToInt(inRangeOf<T>(v[2 * i]), inRangeOf<T>(v[2 * i + 1]));
        return joined<T>(ints);
    } else if constexpr (std::is_same_v<From, float> && std::is_integral_v<T>) {
        std::array<Vec<int32_t>, n> ints;
        for (size_t i = 0; i < n; ++i) ints[i] = roundToInt(inRangeOf<T>(v[i]));
        return joined<T>(ints);
    } else if constexpr (n == 1) {
        return (Vec<T>)v[0];
    } else if constexpr (std::is_same_v<From, double>) {
        return roundToFloat(v[0], v[1]);
    } else if constexpr (n == 2) {
        return partsInOrder<2>(narrow<T>(v[0], v[1]));
    } else {
        return partsInOrder<4>(narrow<T>(narrow<int16_t>(v[0], v[1]), narrow<int16_t>(v[2], v[3])));
    }
}

// The low parts of a vector's lanes, stored as the narrower type D, in order; the values fit D by the caller's care.
template <class D, class V>
ZMV_INLINE void storeNarrow(D* p, V v) {
    constexpr int ratio = int(sizeof(Element<V>) / sizeof(D));
    static_assert((sizeof(Element<V>) == 4 && sizeof(D) <= 2) || (sizeof(Element<V>) == 8 && sizeof(D) == 4));
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) {
        if constexpr (sizeof(D) == 4)
            return store(p, _mm512_cvtepi64_epi32((__m512i)v));
        else if constexpr (ratio == 4)
            return store(p, _mm512_cvtepi32_epi8((__m512i)v));
        else
            return store(p, _mm512_cvtepi32_epi16((__m512i)v));
    }
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) {
        const auto low = _mm256_castsi256_si128((__m256i)v), high = _mm256_extracti128_si256((__m256i)v, 1);
        if constexpr (sizeof(D) == 4) return store(p, _mm_shuffle_ps((__m128)low, (__m128)high, 0x88));
        const auto words =
            _mm_packus_epi32(_mm_and_si128(low, _mm_set1_epi32(0xffff)), _mm_and_si128(high, _mm_set1_epi32(0xffff)));
        if constexpr (ratio == 4)
            _mm_storeu_si64(p, _mm_packus_epi16(words, words));
        else
            store(p, words);
        return;
    }
#endif
    if constexpr (sizeof(V) == 16) {
        if constexpr (sizeof(D) == 4) return _mm_storeu_si64(p, _mm_shuffle_epi32((__m128i)v, 0x88));
        // Sign-extended, the low halves pass a signed pack unchanged.
        const auto low = _mm_srai_epi32(_mm_slli_epi32((__m128i)v, 16), 16);
        const auto words = _mm_packs_epi32(low, low);
        if constexpr (ratio == 2) return _mm_storeu_si64(p, words);
        const int bytes = _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
        std::memcpy(p, &bytes, sizeof bytes);
    }
}

}  // namespace zmv
