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

}  // namespace zmv
