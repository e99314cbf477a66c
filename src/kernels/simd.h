// The vector vocabulary: one register of the build's width, and what the compiler's vector types do not say by
// themselves (a + b, a < b ? a : b, x >> n are operators).  Only this file and simd_order.h name an instruction set.
// Everything is a template over the vector type V, so that a kernel may also ask for a narrower vector.
#pragma once

#include <immintrin.h>

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "core/frame.h"

namespace zmv {

#if defined(__AVX512BW__)
constexpr int vectorBytes = 64;
#elif defined(__AVX2__)
constexpr int vectorBytes = 32;
#else
constexpr int vectorBytes = 16;
#endif

template <class T, int bytes>
struct VecOf {
    typedef T type __attribute__((vector_size(bytes)));
};
template <class T, int bytes = vectorBytes>
using Vec = typename VecOf<T, bytes>::type;
template <class V>
using Element = std::remove_cv_t<std::remove_reference_t<decltype(std::declval<V&>()[0])>>;
template <class V>
constexpr int lanesOf = int(sizeof(V) / sizeof(Element<V>));
template <class T, int bytes = vectorBytes>
constexpr int lanes = bytes / int(sizeof(T));

// step(0) .. step(n - 1), each number a constant: arrays of vectors stay in registers.
template <class Step, int... k>
ZMV_INLINE void unrolled([[maybe_unused]] Step step, std::integer_sequence<int, k...>) {
    (..., step(std::integral_constant<int, k>{}));
}
template <int n, class Step>
ZMV_INLINE void unrolled(Step step) {
    unrolled(step, std::make_integer_sequence<int, n>{});
}

// ---- Memory.  No address needs an alignment, except that of a streaming store. ----
// The built-in memcpy is a plain move; the C library's may come with a checked call instead.

template <class V>
ZMV_INLINE V loadAs(const void* p) {
    V v;
    __builtin_memcpy(&v, p, sizeof v);
    return v;
}
template <class T, int bytes = vectorBytes>
ZMV_INLINE Vec<T, bytes> load(const T* p) {
    return loadAs<Vec<T, bytes>>(p);
}
template <class V>
ZMV_INLINE void store(void* p, V v) {
    __builtin_memcpy(p, &v, sizeof v);
}
// Past the caches; p is a multiple of the vector's size.  fence() before returning to the caller.
template <class V>
ZMV_INLINE void stream(void* p, V v) {
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return _mm512_stream_si512(static_cast<__m512i*>(p), (__m512i)v);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return _mm256_stream_si256(static_cast<__m256i*>(p), (__m256i)v);
#endif
    if constexpr (sizeof(V) == 16) _mm_stream_si128(static_cast<__m128i*>(p), (__m128i)v);
}
ZMV_INLINE void fence() { _mm_sfence(); }
// Into the nearest cache, while other work goes on.
ZMV_INLINE void prefetch(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0); }
// Some vectors are complete before anything is done with the first: compilers would store it while they make the
// others.
template <class V, size_t n>
ZMV_INLINE void complete(V (&v)[n]) {
    static_assert(n == 1 || n == 2 || n == 4);
    if constexpr (n == 2) __asm__("" : "+x"(v[0]), "+x"(v[1]));
    if constexpr (n == 4) __asm__("" : "+x"(v[0]), "+x"(v[1]), "+x"(v[2]), "+x"(v[3]));
}

// The first n bytes at p, 0 < n < 16, in the low bytes; the others are zero.  Reads no byte beyond.
ZMV_INLINE Vec<uint64_t, 16> loadFewBytes(const uint8_t* p, int n) {
    const auto u64 = [&](int at) {
        uint64_t x;
        return std::memcpy(&x, p + at, 8), x;
    };
    const auto u32 = [&](int at) {
        uint32_t x;
        return std::memcpy(&x, p + at, 4), uint64_t(x);
    };
    if (n > 8) return Vec<uint64_t, 16>{u64(0), u64(n - 8) >> (8 * (16 - n))};
    if (n == 8) return Vec<uint64_t, 16>{u64(0), 0};
    if (n >= 4) return Vec<uint64_t, 16>{u32(0) | u32(n - 4) << (8 * (n - 4)), 0};
    return Vec<uint64_t, 16>{
        uint64_t(p[0]) | uint64_t(p[n >> 1]) << (8 * (n >> 1)) | uint64_t(p[n - 1]) << (8 * (n - 1)), 0};
}
ZMV_INLINE void storeFewBytes(uint8_t* p, Vec<uint64_t, 16> v, int n) {
    uint64_t x = v[0];
    const auto put = [&](int bytes) {
        std::memcpy(p, &x, size_t(bytes));
        p += bytes;
    };
    if (n & 8) put(8), x = v[1];
    if (n & 4) put(4), x >>= 32;
    if (n & 2) put(2), x >>= 16;
    if (n & 1) put(1);
}

// The first n elements of a vector, 0 < n < its lanes; no other byte is read or written, the others load as zero.
template <class T, int bytes = vectorBytes>
ZMV_INLINE Vec<T, bytes> loadPart(const T* p, int n) {
    int left = n * int(sizeof(T));
#if defined(__AVX512BW__)
    if constexpr (bytes == 64) return (Vec<T, 64>)_mm512_maskz_loadu_epi8(~0ull >> (64 - left), p);
    if constexpr (bytes == 32) return (Vec<T, 32>)_mm256_maskz_loadu_epi8(~0u >> (32 - left), p);
    if constexpr (bytes == 16) return (Vec<T, 16>)_mm_maskz_loadu_epi8(__mmask16(0xffffu >> (16 - left)), p);
#endif
    Vec<T, bytes> v{};
    auto from = reinterpret_cast<const uint8_t*>(p);
    auto to = reinterpret_cast<uint8_t*>(&v);
    for (; left >= 16; left -= 16, from += 16, to += 16) store(to, loadAs<Vec<uint8_t, 16>>(from));
    if (left) store(to, loadFewBytes(from, left));
    return v;
}
template <class V>
ZMV_INLINE void storePart(void* p, V v, int n) {
    int left = n * int(sizeof(Element<V>));
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return _mm512_mask_storeu_epi8(p, ~0ull >> (64 - left), (__m512i)v);
    if constexpr (sizeof(V) == 32) return _mm256_mask_storeu_epi8(p, ~0u >> (32 - left), (__m256i)v);
    if constexpr (sizeof(V) == 16) return _mm_mask_storeu_epi8(p, __mmask16(0xffffu >> (16 - left)), (__m128i)v);
#endif
    auto from = reinterpret_cast<const uint8_t*>(&v);
    auto to = static_cast<uint8_t*>(p);
    for (; left >= 16; left -= 16, from += 16, to += 16) store(to, loadAs<Vec<uint8_t, 16>>(from));
    if (left) storeFewBytes(to, loadAs<Vec<uint64_t, 16>>(from), left);
}

// The vector at p, of which only the bytes between begin and end are read, at least a vector apart; the others are
// zero.
ZMV_INLINE Vec<uint8_t> loadWithin(const uint8_t* p, const uint8_t* begin, const uint8_t* end) {
#if defined(__AVX512BW__)
    const Len first = begin > p ? begin - p : 0, last = end - p < vectorBytes ? end - p : vectorBytes;
    return (Vec<uint8_t>)_mm512_maskz_loadu_epi8(~0ull << first & ~0ull >> (64 - last), p);
#else
    const Len away = p < begin ? begin - p : end - p < vectorBytes ? end - p - vectorBytes : 0;
    if (away == 0) return loadAs<Vec<uint8_t>>(p);
    uint8_t around[3 * vectorBytes] = {};
    store(around + vectorBytes + away, loadAs<Vec<uint8_t>>(p + away));
    return loadAs<Vec<uint8_t>>(around + vectorBytes);
#endif
}

// loadPart and storePart where n may be all lanes.
template <class T, int bytes = vectorBytes>
ZMV_INLINE Vec<T, bytes> loadUpTo(const T* p, int n) {
    return n == lanes<T, bytes> ? load<T, bytes>(p) : loadPart<T, bytes>(p, n);
}
template <class V>
ZMV_INLINE void storeUpTo(void* p, V v, int n) {
    if (n == lanesOf<V>)
        store(p, v);
    else
        storePart(p, v, n);
}

// Each 16-byte lane of the vector from, or to, an address of its own: lane k at p + k * laneStep bytes.
template <class T, int bytes = vectorBytes>
ZMV_INLINE Vec<T, bytes> loadLanes(const T* p, Len laneStep) {
    if (__builtin_constant_p(laneStep) && laneStep == 16) return load<T, bytes>(p);
    const auto lane = [&](int k) { return loadAs<__m128i>(reinterpret_cast<const uint8_t*>(p) + k * laneStep); };
    if constexpr (bytes == 16) return (Vec<T, 16>)lane(0);
#if defined(__AVX2__)
    const auto pair = [&](int k) { return _mm256_inserti128_si256(_mm256_castsi128_si256(lane(k)), lane(k + 1), 1); };
    if constexpr (bytes == 32) return (Vec<T, 32>)pair(0);
#endif
#if defined(__AVX512BW__)
    // Lane by lane from memory, which keeps the port of the shuffles free.
    if constexpr (bytes == 64)
        return (Vec<T, 64>)_mm512_inserti32x4(_mm512_inserti32x4(_mm512_castsi256_si512(pair(0)), lane(2), 2), lane(3),
                                              3);
#endif
}
template <class V>
ZMV_INLINE void storeLanes(void* p, V v, Len laneStep) {
    const auto lane = [&](int k, __m128i x) { store(static_cast<uint8_t*>(p) + k * laneStep, x); };
    if constexpr (sizeof(V) == 16) lane(0, (__m128i)v);
#if defined(__AVX2__)
    const auto pair = [&](int k, __m256i x) {
        lane(k, _mm256_castsi256_si128(x));
        lane(k + 1, _mm256_extracti128_si256(x, 1));
    };
    if constexpr (sizeof(V) == 32) pair(0, (__m256i)v);
#endif
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) {
        pair(0, _mm512_castsi512_si256((__m512i)v));
        pair(2, _mm512_extracti64x4_epi64((__m512i)v, 1));
    }
#endif
}

// ---- Values ----

template <class T, int bytes = vectorBytes>
ZMV_INLINE Vec<T, bytes> fill(T x) {
    return x - Vec<T, bytes>{};  // x in every lane; minus zero keeps the sign of a zero
}
template <class V>
ZMV_INLINE V select(V mask, V yes, V no) {
    return (mask & yes) | (~mask & no);
}
// Whether every bit of the vector is zero.
template <class V>
ZMV_INLINE bool allZero(V v) {
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return _mm512_test_epi64_mask((__m512i)v, (__m512i)v) == 0;
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return _mm256_testz_si256((__m256i)v, (__m256i)v);
    if constexpr (sizeof(V) == 16) return _mm_testz_si128((__m128i)v, (__m128i)v);
#endif
    if constexpr (sizeof(V) == 16) return _mm_movemask_epi8(_mm_cmpeq_epi8((__m128i)v, __m128i{})) == 0xffff;
}

// The products of the even of unsigned 32-bit lanes.
template <class V>
ZMV_INLINE auto mulEven(V a, V b) {
    static_assert(std::is_same_v<Element<V>, uint32_t>);
    using Products = Vec<uint64_t, sizeof(V)>;
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (Products)_mm512_mul_epu32((__m512i)a, (__m512i)b);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (Products)_mm256_mul_epu32((__m256i)a, (__m256i)b);
#endif
    if constexpr (sizeof(V) == 16) return (Products)_mm_mul_epu32((__m128i)a, (__m128i)b);
}

// The high half of the product of unsigned 16-bit lanes.
template <class V>
ZMV_INLINE V mulHigh(V a, V b) {
    static_assert(std::is_same_v<Element<V>, uint16_t>);
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_mulhi_epu16((__m512i)a, (__m512i)b);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_mulhi_epu16((__m256i)a, (__m256i)b);
#endif
    if constexpr (sizeof(V) == 16) return (V)_mm_mulhi_epu16((__m128i)a, (__m128i)b);
}

// The product of unsigned 16-bit lanes over 2^15, rounded; both are below 2^15.
template <class V>
ZMV_INLINE V mulRounded(V a, V b) {
    static_assert(std::is_same_v<Element<V>, uint16_t>);
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_mulhrs_epi16((__m512i)a, (__m512i)b);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_mulhrs_epi16((__m256i)a, (__m256i)b);
#endif
    const V twice = a + a;
    if constexpr (sizeof(V) == 16) return mulHigh(twice, b) + (twice * b >> 15);
}
// Each even lane plus the odd one behind it.
template <class V>
requires std::is_same_v<Element<V>, uint32_t> ZMV_INLINE Vec<uint64_t, sizeof(V)> pairSums(V v) {
    const auto pairs = (Vec<uint64_t, sizeof(V)>)v;
    return (pairs & 0xffffffff) + (pairs >> 32);
}
template <class V>
requires std::is_same_v<Element<V>, uint8_t> ZMV_INLINE Vec<uint16_t, sizeof(V)> pairSums(V v) {
    using Sums = Vec<uint16_t, sizeof(V)>;
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (Sums)_mm512_maddubs_epi16((__m512i)v, _mm512_set1_epi8(1));
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (Sums)_mm256_maddubs_epi16((__m256i)v, _mm256_set1_epi8(1));
#endif
    if constexpr (sizeof(V) == 16) return ((Sums)v & 255) + ((Sums)v >> 8);
}

// a + b, a - b and a * b of floating-point lanes with a in the first place, whose NaN goes before that of b: operators
// would let the compiler choose, and not in all builds alike.
#if defined(__AVX__)
#define ZMV_IN_ORDER(op, a, b)                                                                                         \
    V result;                                                                                                          \
    if constexpr (sizeof(Element<V>) == 4)                                                                             \
        __asm__("v" op "ps %2, %1, %0" : "=v"(result) : "v"(a), "v"(b));                                               \
    else                                                                                                               \
        __asm__("v" op "pd %2, %1, %0" : "=v"(result) : "v"(a), "v"(b));                                               \
    return result;
#else
#define ZMV_IN_ORDER(op, a, b)                                                                                         \
    if constexpr (sizeof(Element<V>) == 4)                                                                             \
        __asm__(op "ps %1, %0" : "+x"(a) : "x"(b));                                                                    \
    else                                                                                                               \
        __asm__(op "pd %1, %0" : "+x"(a) : "x"(b));                                                                    \
    return a;
#endif
template <class V>
ZMV_INLINE V addInOrder(V a, V b) {
    static_assert(std::is_floating_point_v<Element<V>>);
    ZMV_IN_ORDER("add", a, b)
}
template <class V>
ZMV_INLINE V subInOrder(V a, V b) {
    static_assert(std::is_floating_point_v<Element<V>>);
    ZMV_IN_ORDER("sub", a, b)
}
template <class V>
ZMV_INLINE V mulInOrder(V a, V b) {
    static_assert(std::is_floating_point_v<Element<V>>);
    ZMV_IN_ORDER("mul", a, b)
}

// Element i is the sum of elements 0 .. i.
template <class V, int... i>
ZMV_INLINE V prefixSum(V v, std::integer_sequence<int, i...>) {
    constexpr int n = lanesOf<V>;
    if constexpr (n > 1) v += __builtin_shufflevector(V{}, v, (i < 1 ? i : n + i - 1)...);
    if constexpr (n > 2) v += __builtin_shufflevector(V{}, v, (i < 2 ? i : n + i - 2)...);
    if constexpr (n > 4) v += __builtin_shufflevector(V{}, v, (i < 4 ? i : n + i - 4)...);
    if constexpr (n > 8) v += __builtin_shufflevector(V{}, v, (i < 8 ? i : n + i - 8)...);
    static_assert(n <= 16);
    return v;
}
template <class V>
ZMV_INLINE V prefixSum(V v) {
    return prefixSum(v, std::make_integer_sequence<int, lanesOf<V>>{});
}
// The last element in every lane.
template <class V, int... i>
ZMV_INLINE V spreadLast(V v, std::integer_sequence<int, i...>) {
    return __builtin_shufflevector(v, v, (i - i + lanesOf<V> - 1)...);
}
template <class V>
ZMV_INLINE V spreadLast(V v) {
    return spreadLast(v, std::make_integer_sequence<int, lanesOf<V>>{});
}

}  // namespace zmv
