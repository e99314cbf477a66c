// Whole numbers in lanes of double.
#pragma once

#include "kernels/simd_convert.h"

namespace zmv {

// The whole part of numbers from 0 to below 2^31; of -0 a zero.
template <class V>
ZMV_INLINE V wholePart(V v) {
    static_assert(std::is_same_v<Element<V>, double>);
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_roundscale_pd((__m512d)v, _MM_FROUND_TO_ZERO);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_round_pd((__m256d)v, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
#endif
    if constexpr (sizeof(V) == 16) return (V)_mm_cvtepi32_pd(_mm_cvttpd_epi32((__m128d)v));
}

// Lanes of double as numbers of their own type, or as float.
template <class To, class V>
ZMV_INLINE void storeAs(To* p, V v) {
    if constexpr (std::is_same_v<To, Element<V>>) {
        store(p, v);
    } else {
        static_assert(std::is_same_v<To, float> && std::is_same_v<Element<V>, double>);
#if defined(__AVX512BW__)
        if constexpr (sizeof(V) == 64) store(p, _mm512_cvtpd_ps((__m512d)v));
#endif
#if defined(__AVX2__)
        if constexpr (sizeof(V) == 32) store(p, _mm256_cvtpd_ps((__m256d)v));
#endif
        if constexpr (sizeof(V) == 16) _mm_storeu_si64(p, (__m128i)_mm_cvtpd_ps((__m128d)v));
    }
}

}  // namespace zmv
