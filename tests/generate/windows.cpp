// Windows: weights in long double, rounded to floats; products in single precision.
#include <numbers>

#include "arith/arith.h"

namespace {

using namespace test;

// Sides of one, two and three pixels, and some beyond the strips.
void arrangeWindow(Case& c) {
    if (c.mode == Mode::usual && c.rng.oneIn(12)) c.width = c.rng.between(2030, 4300), c.height = c.rng.between(1, 3);
    if (c.mode == Mode::usual && c.rng.oneIn(12)) c.width = c.rng.between(1, 5), c.height = c.rng.between(1010, 2200);
    arrangeByRoles(c);
}

long double bartlett(int64_t j, int64_t last) { return double(2 * j) / double(last); }
long double hamming(int64_t j, int64_t last) {
    return 0.54L - 0.46L * cosl(2 * std::numbers::pi_v<long double> * j / last);
}
template <auto shape>
void fade(Case& c) {
    const auto weights = [](int64_t n) {
        std::vector<float> w(size_t(n), 1);
        for (int64_t i = 0; i < n && n > 1; ++i) w[size_t(i)] = float(shape(std::min(i, n - 1 - i), n - 1));
        return w;
    };
    const std::vector<float> across = weights(c.width), down = weights(c.height);
    oneByOne(c, [&]<class T>(T pixel, int64_t x, int64_t y, int) -> T {
        const float product = across[size_t(x)] * down[size_t(y)] * pixel;
        if constexpr (std::is_floating_point_v<T>)
            return nanOr<T>(product, pixel);
        else
            return nearest<T>(product);
    });
}

}  // namespace

extern const Family test_zmviWinBartlett = {.arrange = arrangeWindow, .oracle = fade<bartlett>};
extern const Family test_zmviWinHamming = {.arrange = arrangeWindow, .oracle = fade<hamming>};
