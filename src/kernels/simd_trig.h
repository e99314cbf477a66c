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
    // Quarters of the circle, to the nearest; what is left, from -2^21 to 2^21, is exact.
    const U quarter = (k + (1u << 21)) >> 22;
    const V x = toFloat(asSigned(k - (quarter << 22))) * float(1.5707963267948966 / (1 << 22));
    const U s = (U)sineOf(x), c = (U)cosineOf(x), odd = -(quarter & 1);
    const auto sign = [](U q) { return (q & 2) << 30; };
    return Turn<V>{(V)(select(odd, s, c) ^ sign(quarter + 1)), (V)(select(odd, c, s) ^ sign(quarter))};
}

}  // namespace zmv
