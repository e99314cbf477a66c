// Test images: rings in long double, ramps step by step.
#include <bit>
#include <numbers>

#include "arith/arith.h"

namespace {

using namespace test;

// Long rows, where phases of large angles lose their places, and long columns.
void arrangeImage(Case& c) {
    if (c.mode == Mode::usual && c.rng.oneIn(40)) c.width = c.rng.between(33000, 50000), c.height = c.rng.between(1, 3);
    if (c.mode == Mode::usual && c.rng.oneIn(16)) c.width = c.rng.between(1, 3), c.height = c.rng.between(1, 4500);
    arrangeByRoles(c);
}

// Rounded, either way where the exact value is next to a tie.
template <class T>
T rounded(T given, long double exact) {
    const T due = std::is_integral_v<T> ? nearest<T>(exact) : T(exact);
    const long double tie = ((long double)given + due) / 2, unit = std::is_integral_v<T> ? 1 : 1.0L / (1 << 23);
    return fabsl(exact - tie) < 1e-9L * unit ? given : due;
}
void drawRings(Case& c) {
    const Image& dst = c.image("dst");
    const int64_t least = std::min(c.width, c.height);
    const auto square = [](int64_t a) { return a * a; };
    withElement(c.member.destination, [&](auto zero) {
        using T = decltype(zero);
        const long double most = std::is_integral_v<T> ? std::numeric_limits<T>::max() : 1;
        long double z = 0;  // the same in all channels
        eachElement(c, [&](int64_t x, int64_t y, int k) {
            const int64_t n = square(2 * x - c.width + 1) + square(2 * y - c.height + 1);
            if (k == 0) z = cosl(std::numbers::pi_v<long double> * (n % (8 * least)) / (4 * least));
            const long double exact = std::is_same_v<T, int16_t> ? z * most : (1 + z) / 2 * most;
            c.set(dst, x, y, k, rounded(c.result<T>(dst, x, y, k), exact));
        });
    });
}

// Numbers whose ramps cross the range, end beyond it, or have no number in them.
void arrangeRamp(Case& c) {
    arrangeImage(c);
    static const double numbers[] = {0, -0.0, 0.5, -0.5, 255, -1, 1e300, -1e300, INFINITY, -INFINITY, 1e-40, 1.0 / 3};
    for (const char* name : {"offset", "slope"}) {
        double value = c.rng.oneIn(3) ? numbers[c.rng.below(int(std::size(numbers)))] : c.rng.between(-70000, 70000);
        if (name[0] == 's' && c.rng.oneIn(2)) value /= 128;
        if (c.rng.oneIn(12)) value = std::bit_cast<double>(0xfff0000000000001 | c.rng.next() >> 20);
        c.arg(name) = std::bit_cast<int64_t>(value);
    }
}
void drawRamp(Case& c) {
    const Image& dst = c.image("dst");
    const auto offset = std::bit_cast<double>(c.arg("offset").a), slope = std::bit_cast<double>(c.arg("slope").a);
    const int64_t axis = c.arg("axis").a;
    withElement(c.member.destination, [&](auto zero) {
        using T = decltype(zero);
        eachElement(c, [&](int64_t x, int64_t y, int k) {
            const auto i = double(axis == AXIS_HORIZONTAL ? x : axis == AXIS_VERTICAL ? y : x + y);
            const double product = nanOr(slope * i, slope), sum = nanOr(offset + product, offset, product);
            c.set(dst, x, y, k, std::is_integral_v<T> ? nearest<T>(sum) : T(sum));
        });
    });
}

}  // namespace

extern const Family test_zmviImageJaehne = {.arrange = arrangeImage, .oracle = drawRings};
extern const Family test_zmviImageRamp = {.arrange = arrangeRamp, .oracle = drawRamp};
