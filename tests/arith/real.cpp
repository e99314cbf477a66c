// zmviDiv, zmviDivC, zmviDiv_Round, exact in integers; zmviSqrt, zmviExp, zmviLn, zmviMulC64f in long double, whose 64
// bits leave no doubt about the nearest integer.
#include <algorithm>
#include <bit>
#include <cmath>

#include "arith/arith.h"

namespace {

using namespace test;

// A third of the cases has no zero divisor, but in the channel that is left alone; and of these half has a single one.
void arrangeDivision(Case& c) {
    arrangeByRoles(c);
    const Image& divisors = c.image(firstSource(c));
    withElement(divisors.element, [&](auto zero) {
        using T = decltype(zero);
        if (!c.has("value") && !c.rng.oneIn(3)) return;
        change(c, divisors, [&](auto v, int64_t, int64_t, int k) {
            const bool used = k < c.member.to.used();
            return !used || v == 0 ? decltype(v)(used) : v;
        });
        if (!c.has("value") && c.rng.oneIn(2))
            c.set(divisors, c.rng.below(int(c.width)), c.rng.below(int(c.height)), c.rng.below(c.member.to.used()),
                  T(-0.0));
    });
    if (c.has("value")) c.bindValue("value");
}
// Whatever the control word makes of small numbers.
template <class T>
bool isZero(T a) {
    if constexpr (std::is_floating_point_v<T>)
        return (std::bit_cast<std::conditional_t<sizeof a == 4, uint32_t, uint64_t>>(a) << 1) == 0;
    else
        return a == 0;
}
void divide(Case& c) {
    const int64_t factor = c.has("scaleFactor") ? c.arg("scaleFactor").a : 0;
    const int mode = c.has("roundMode") ? int(c.arg("roundMode").a) : ROUND_NEAR;
    pairByPair(c, [&]<class T>(T b, T a) {
        if (isZero(a)) c.expected = STATUS_WARN_DIV_BY_ZERO;
        if constexpr (std::is_floating_point_v<T>)
            return nanOr<T>(b / a, b, a);
        else if (a == 0)
            return saturated<T>(b == 0 ? 0 : b > 0 ? INT32_MAX : INT32_MIN);
        else
            return ratio<T>(b, a, factor, mode);
    });
}

// e^x * 2^-factor, the powers of two taken together: either may lie beyond the range.
template <class T>
T nearestExp(long double x, int64_t factor) {
    const long double n = std::nearbyint(x / std::log(2.0L)), r = std::fma(-n, std::log(2.0L), x);
    return nearest<T>(std::exp(r), std::clamp<int64_t>(factor, -400000, 400000) - int64_t(n));
}
// What lies within one unit in the last place of the exact result passes.
float within(Case& c, int64_t x, int64_t y, int k, long double exact) {
    const float result = c.result<float>(c.image(overwritten(c)), x, y, k);
    const float low = std::nextafter(float(exact), -INFINITY), high = std::nextafter(float(exact), INFINITY);
    const bool fits = std::isinf(float(exact)) ? result == float(exact) : low <= result && result <= high;
    return fits ? result : float(exact);
}

void computeSqrt(Case& c) {
    oneByOne(c, [&]<class T>(T a, int64_t, int64_t, int) {
        if constexpr (std::is_floating_point_v<T>)
            return nanOr<T>(std::sqrt(a), a);
        else
            return nearest<T>(a < 0 ? 0 : std::sqrt((long double)a), c.arg("scaleFactor").a);
    });
}
void computeExp(Case& c) {
    oneByOne(c, [&]<class T>(T a, int64_t x, int64_t y, int k) -> T {
        if constexpr (!std::is_floating_point_v<T>)
            return nearestExp<T>(a, c.arg("scaleFactor").a);
        else
            return std::isnan(a) ? nanOr<T>(a, a) : within(c, x, y, k, std::exp((long double)a));
    });
}
void computeLn(Case& c) {
    oneByOne(c, [&]<class T>(T a, int64_t x, int64_t y, int k) -> T {
        if constexpr (!std::is_floating_point_v<T>)
            return nearest<T>(a <= 0 ? -INFINITY : std::log((long double)a), c.arg("scaleFactor").a);
        else
            return std::isnan(a) || a < 0 ? nanOr<T>(NAN, a) : within(c, x, y, k, std::log((long double)a));
    });
}

// Factors whose products are near ties and limits.
void arrangeMulC64f(Case& c) {
    arrangeByRoles(c);
    const Image& value = c.image("value");
    static const double factors[] = {0.5, 1.5, -0.5, 1.0 / 3, 255, 1e-3, 1e300, -INFINITY, NAN, 0x1.fffffffffffffp-2};
    for (int k = 0; k < value.channels; ++k)
        if (c.rng.below(4)) c.set(value, 0, 0, k, factors[c.rng.below(10)]);
    c.bindValue("value");
}
void computeMulC64f(Case& c) {
    oneByOne(c, [&]<class T>(T pixel, int64_t, int64_t, int k) -> T {
        const double a = c.get<double>(c.image("value"), 0, 0, k), b = double(pixel);
        const double product = nanOr<double>(b * a, b, a);
        if constexpr (std::is_floating_point_v<T>)
            return T(product);
        else
            return nearest<T>(product, 0);
    });
}

}  // namespace

extern const Family test_zmviDiv = {.arrange = arrangeDivision, .oracle = divide};
extern const Family test_zmviDivC = {.arrange = arrangeDivision, .oracle = divide};
extern const Family test_zmviDiv_Round = {.arrange = arrangeDivision, .oracle = divide};
extern const Family test_zmviSqrt = {.oracle = computeSqrt};
extern const Family test_zmviExp = {.oracle = computeExp};
extern const Family test_zmviLn = {.oracle = computeLn};
extern const Family test_zmviMulC64f = {.arrange = arrangeMulC64f, .oracle = computeMulC64f};
