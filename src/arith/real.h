// Integer results that are real numbers first: quotients, roots, exponentials and logarithms.
#pragma once

#include "kernels/pointwise_in.h"

namespace zmv {

// 2^-factor, as far as 64 places: beyond, every result that is not zero saturates, or vanishes.
template <class F>
F scaleOf(int factor) {
    return F(powerOfTwo(-std::clamp(factor, -64, 64)));
}

// Calls run(F()) with the type that quotients and roots of T are computed in.  In single precision no result of bytes,
// and none of 16 bits that is not scaled up, is so close to a tie or to an integer that it rounds to it.
template <class T, class Run>
void withPrecision(int factor, Run run) {
    if constexpr (sizeof(T) == 2)
        if (factor < 0) return run(double());
    run(float());
}

}  // namespace zmv
