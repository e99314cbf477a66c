// Sine and cosine, in double precision within one unit in the last place, and in single precision: rules of our own,
// since those of the C library differ from processor to processor.  All of it rounds to nearest, which the caller sees
// to.
#pragma once

#include <bit>

#include "kernels/polynomial.h"

namespace zmv {

// A number and the little that its last place leaves out.
template <class V>
struct Precise {
    V high, low;
};

// The series of an eighth of the circle: the coefficients of x^first, x^(first + 2), and so on.
template <class T, size_t terms>
constexpr std::array<T, terms> circleSeries(int first) {
    std::array<T, terms> c{};
    double factorial = 1, sign = first % 4 < 2 ? 1 : -1;
    for (int k = 2; k <= first; ++k) factorial *= k;
    for (size_t i = 0; i < terms; ++i) {
        c[i] = T(sign / factorial);
        const int k = first + 2 * int(i);
        factorial *= (k + 1) * (k + 2), sign = -sign;
    }
    return c;
}
// Up to where the next term is below half a unit in the last place for |x| <= pi / 4.
template <class V>
constexpr size_t circleTerms = sizeof(Number<V>) == 4 ? 4 : 8;

// The sine and cosine of a number between -pi / 4 and pi / 4, less what its low part takes off.
template <class V>
ZMV_INLINE V sineOf(V x, V less = V{}) {
    constexpr auto series = circleSeries<Number<V>, circleTerms<V>>(3);
    const V square = x * x;
    return x + (x * square * polynomial(series, square) - less);
}
template <class V>
ZMV_INLINE V cosineOf(V x, V less = V{}) {
    constexpr auto series = circleSeries<Number<V>, circleTerms<V>>(4);
    const V square = x * x, half = square * Number<V>(0.5);
    const V beyond = square * square * polynomial(series, square) - less, most = 1 - half;
    if constexpr (sizeof(Number<V>) == 4) return most + beyond;
    const V lost = (1 - most) - half;
    return most + (lost + beyond);
}
template <class V>
ZMV_INLINE V sineOf(Precise<V> x) {
    return sineOf(x.high, x.low * (x.high * x.high * 0.5 - 1));
}
template <class V>
ZMV_INLINE V cosineOf(Precise<V> x) {
    return cosineOf(x.high, x.high * x.low);
}

// Turns x radians by the quarter circle nearest to it, |x| up to some thousands: what is left, and how many quarters.
// pi / 2 is taken off in parts of 33 bits, whose products with the quarters are exact.
struct Quarters {
    Precise<double> rest;
    unsigned count;
    explicit Quarters(double x) {
        constexpr double toInteger = 0x1.8p52;  // added, it leaves whole numbers in the lowest places
        constexpr double first = 0x1.921fb544p0, second = 0x1.0b4611a6p-34, third = 0x1.3198a2e037073p-69;
        const double shifted = x * 0x1.45f306dc9c883p-1 + toInteger, n = shifted - toInteger;
        count = unsigned(std::bit_cast<uint64_t>(shifted));
        const double most = x - n * first, less = n * second, high = most - less;
        const double taken = most - high;  // what the subtraction lost comes back, whichever operand was the larger
        const double lost = (most - (high + taken)) + (taken - less);
        const double little = lost - n * third;
        rest.high = high + little;
        rest.low = (high - rest.high) + little;
    }
};

struct Direction {
    double sine, cosine;
};
inline Direction directionOf(double radians) {
    const Quarters quarters(radians);
    const double s = sineOf(quarters.rest), c = cosineOf(quarters.rest);
    switch (quarters.count & 3) {
        case 0:
            return {s, c};
        case 1:
            return {c, -s};
        case 2:
            return {-s, -c};
        default:
            return {-c, s};
    }
}

}  // namespace zmv
