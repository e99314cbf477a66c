// What the tests of all arithmetic share: operands, scale factors, and rounding by exact integers.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "harness/case.h"

namespace test {

using Wide = __int128;

inline Wide floorOver(Wide num, Wide den) { return num / den - (num % den != 0 && (num < 0) != (den < 0)); }

template <class T>
T saturated(Wide x) {
    using Limits = std::numeric_limits<T>;
    return T(x < Limits::min() ? Limits::min() : x > Limits::max() ? Limits::max() : x);
}

// num / den * 2^-factor, rounded by the mode, saturated.  Beyond 70 places nothing changes.
template <class T>
T ratio(Wide num, Wide den, int64_t factor, int mode = ROUND_NEAR) {
    (factor < 0 ? num : den) *= Wide(1) << std::min<int64_t>(std::abs(factor), 70);
    if (den < 0) num = -num, den = -den;
    if (mode == ROUND_ZERO) return saturated<T>(num / den);
    const Wide above = floorOver(2 * num + den, 2 * den);
    const bool tie = 2 * (above * den - num) == den;
    return saturated<T>(above - (mode == ROUND_NEAR && tie && above % 2 != 0));
}

// The nearest integer to x * 2^-factor, saturated.
template <class T>
T nearest(long double x, int64_t factor = 0) {
    using Limits = std::numeric_limits<T>;
    x = std::nearbyint(std::ldexp(x, int(std::clamp<int64_t>(-factor, -40000, 40000))));
    return x != x ? T(0) : x <= Limits::min() ? Limits::min() : x >= Limits::max() ? Limits::max() : T(x);
}

// Calls f(x, y, k) for every element that takes part.
template <class F>
void eachElement(const Case& c, F f) {
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t x = 0; x < c.width; ++x)
            for (int k = 0; k < c.member.to.used(); ++k) f(x, y, k);
}

inline std::string overwritten(const Case& c) { return c.has("dst") ? "dst" : "srcDst"; }
inline std::string onlySource(const Case& c) { return c.has("src") ? "src" : "srcDst"; }
// Of two: what is overwritten in place is the second, and a constant takes the place of the first.
inline std::string firstSource(const Case& c) { return c.has("value") ? "value" : c.has("src1") ? "src1" : "src"; }
inline std::string secondSource(const Case& c) {
    return c.has("value") ? onlySource(c) : c.has("src2") ? "src2" : "srcDst";
}

// Writes f(a, x, y, k) for every element a of the only source; and f(b, a) for every pair of elements of the second and
// the first.
template <class F>
void oneByOne(Case& c, F f) {
    const Image &src = c.image(onlySource(c)), &to = c.image(overwritten(c));
    withElement(to.element, [&](auto zero) {
        using T = decltype(zero);
        eachElement(c, [&](int64_t x, int64_t y, int k) { c.set<T>(to, x, y, k, f(c.get<T>(src, x, y, k), x, y, k)); });
    });
}
// The same where the types differ: f(a, zero, x, y, k), the zero of the type that is due.
template <class F>
void oneByAnother(Case& c, F f) {
    const Image src = c.image(onlySource(c)), to = c.image(overwritten(c));
    withElement(c.member.source, [&]<class S>(S) {
        withElement(c.member.destination, [&]<class D>(D zero) {
            eachElement(c, [&](int64_t x, int64_t y, int k) {
                c.set<D>(to, x, y, k, f(c.get<S>(src, x, y, k), zero, x, y, k));
            });
        });
    });
}
template <class F>
void pairByPair(Case& c, F f) {
    const Image &first = c.image(firstSource(c)), &second = c.image(secondSource(c)), &to = c.image(overwritten(c));
    withElement(to.element, [&](auto zero) {
        using T = decltype(zero);
        eachElement(c, [&](int64_t x, int64_t y, int k) {
            const T a = c.has("value") ? c.get<T>(first, 0, 0, k) : c.get<T>(first, x, y, k);
            c.set<T>(to, x, y, k, f(c.get<T>(second, x, y, k), a));
        });
    });
}

// What the processor makes of an operation whose operands include NaNs, or that has none: the first one's NaN, quieted,
// or the other's, or a NaN of its own.
template <class T, class... Operand>
T nanOr(T result, Operand... operands) {
    using B = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
    constexpr B quiet = B(1) << (sizeof(T) == 4 ? 22 : 51), sign = B(1) << (8 * sizeof(T) - 1);
    const auto bits = [](T x) {
        B b;
        return std::memcpy(&b, &x, sizeof b), b;
    };
    const auto real = [](B b) {
        T x;
        return std::memcpy(&x, &b, sizeof x), x;
    };
    for (const T x : {operands...})
        if (x != x) return real(bits(x) | quiet);
    return result == result ? result : real(~B(0) << (sizeof(T) == 4 ? 22 : 51) | sign);
}

}  // namespace test
