// Polynomials on numbers and on vectors of them.
#pragma once

#include <array>

#include "kernels/simd.h"

namespace zmv {

// The type of a number, or of those in a vector.
template <class V>
struct NumberOf {
    using type = V;
};
template <class V>
requires requires(V v) { v[0]; }
struct NumberOf<V> {
    using type = Element<V>;
};
template <class V>
using Number = typename NumberOf<V>::type;

// sum of c[k] x^k, the highest power first.
template <size_t n, class T, class V>
ZMV_INLINE V polynomial(const std::array<T, n>& c, V x) {
    V sum = V{} + c[n - 1];
    for (size_t k = n - 1; k-- > 0;) sum = sum * x + c[k];
    return sum;
}

}  // namespace zmv
