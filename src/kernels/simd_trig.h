// Cosines and sines of parts of a circle, on vectors.  Angles are whole numbers of equal parts, reduced exactly to an
// eighth of the circle, so that large ones are as precise as small ones.  All of it rounds to nearest, which the caller
// sees to.
#pragma once

#include "kernels/simd_convert.h"
#include "kernels/sine.h"

namespace zmv {

// cos(pi k / n) of whole numbers k from 0 to 2n in double precision, within 1e-15.
template <class V>
ZMV_INLINE V cosineOfPi(V k, V n) {
    const V half = smaller(k, n + n - k), quarter = smaller(half, n - half);
    const V twice = quarter + quarter, eighth = smaller(twice, n - twice);
    const V x = eighth / n * 1.5707963267948966;
    const V cosine = twice > n - twice ? sineOf(x) : cosineOf(x);
    return half > n - half ? -cosine : cosine;
}

// Cosine and sine of 2 pi k / 2^24, whole k from 0 to 2^24 - 1, in single precision.
template <class V>
struct Turn {
    V cosine, sine;
};
template <class U>
ZMV_INLINE auto turnOf(U k) {
    static_assert(std::is_same_v<Element<U>, uint32_t>);
    using V = Vec<float, sizeof(U)>;
    // The upper two of 24 bits count the quarters of the circle, to the nearest; the others are what is left, 2^21 too
    // much.  As the lowest bits of 2^23 they are a number.
    constexpr uint32_t quarter = 1u << 22;
    const U t = k + quarter / 2;
    const V x =
        ((V)((t & (quarter - 1)) | 0x4b000000) - float((1 << 23) + quarter / 2)) * float(1.5707963267948966 / quarter);
    const U s = (U)sineOf(x), c = (U)cosineOf(x), odd = -(t / quarter & 1);
    const auto sign = [](U turned) { return turned << 8 & 0x80000000; };
    return Turn<V>{(V)(select(odd, s, c) ^ sign(t + quarter)), (V)(select(odd, c, s) ^ sign(t))};
}

}  // namespace zmv
