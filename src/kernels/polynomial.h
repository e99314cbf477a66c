// Polynomials on numbers and on vectors of them.
#pragma once

#include <array>

#include "kernels/simd.h"

namespace zmv {

// sum of c[k] x^k, the highest power first.
template <size_t n, class V>
ZMV_INLINE V polynomial(const std::array<double, n>& c, V x) {
    V sum = V{} + c[n - 1];
    for (size_t k = n - 1; k-- > 0;) sum = sum * x + c[k];
    return sum;
}

}  // namespace zmv
