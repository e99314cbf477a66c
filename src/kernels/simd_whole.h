// Whole numbers in lanes of double.
#pragma once

#include "kernels/simd_convert.h"

namespace zmv {

// The whole part of numbers from 0 to 2^51 and of -0, to nearest being how the processor rounds; of others something.
template <class V>
ZMV_INLINE V wholePart(V v) {
    static_assert(std::is_same_v<Element<V>, double>);
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_roundscale_pd((__m512d)v, _MM_FROUND_TO_ZERO);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_round_pd((__m256d)v, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
#endif
    using Places = Vec<uint64_t, sizeof(V)>;
    constexpr double lastPlace = 4503599627370496.0;
    const V near = v + lastPlace - lastPlace;
    const auto one = (Places)fill<double, sizeof(V)>(1), sign = (Places)fill<double, sizeof(V)>(-0.0);
    return (V)((Places)(near - (V)((Places)(near > v) & one)) | ((Places)v & sign));
}

}  // namespace zmv
