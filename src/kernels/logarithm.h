// The natural logarithm, in double and in single precision, within one unit in the last place of the former: a rule of
// our own, since that of the C library differs from processor to processor.  All of it rounds to nearest, which the
// caller sees to.
#pragma once

#include <bit>
#include <limits>

#include "kernels/polynomial.h"

namespace zmv {

// ln 2 in two parts: the first has so few bits that its products are exact: with the powers of two of all 16-bit pixels
// in double precision, with those of all numbers in single precision.
template <class T>
constexpr T ln2 = T(sizeof(T) == 8 ? 0x1.62e42fefp-1 : 0x1.62e4p-1);
template <class T>
constexpr T ln2Rest = T(sizeof(T) == 8 ? 0x1.473de6af278edp-34 : 0x1.7f7d1cf79abcap-20);

// 2 / (2k + 1), up to where the next term is below half a unit in the last place for |s| <= 3 - 2 sqrt(2).
template <class T>
constexpr auto logarithmSeries = [] {
    std::array<T, sizeof(T) == 8 ? 12 : 5> c{};
    for (size_t k = 0; k < c.size(); ++k) c[k] = T(2.0 / double(2 * k + 1));
    return c;
}();

// Of a vector of positive numbers that are not denormal.
template <class V>
ZMV_INLINE V logarithm(V x) {
    using T = Element<V>;
    using U = Vec<Bits<T>, sizeof(V)>;
    constexpr int digits = std::numeric_limits<T>::digits - 1, bias = std::numeric_limits<T>::max_exponent - 1;
    constexpr T unit = T(uint64_t(1) << digits);  // added to the bits below, it makes them a number
    constexpr auto one = std::bit_cast<Bits<T>>(T(1)), leastM = std::bit_cast<Bits<T>>(T(0.70710678118654752));
    // x = 2^n m, m from sqrt(1/2) to sqrt(2): ln m = 2 artanh(s), s = (m - 1) / (m + 1).
    const U biased = ((U)x - leastM + one) >> digits;
    const V n = (V)(biased | std::bit_cast<Bits<T>>(unit)) - (unit + bias);
    const V m = (V)((U)x - (biased << digits) + one), s = (m - 1) / (m + 1);
    return n * ln2<T> + (n * ln2Rest<T> + s * polynomial(logarithmSeries<T>, s * s));
}

}  // namespace zmv
