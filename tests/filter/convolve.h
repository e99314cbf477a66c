// What the tests of filters with a kernel and of the convolution of two images share.
#pragma once

#include <climits>

#include "filter/box.h"

namespace test {

inline constexpr int divisors[] = {1,   1,    2,    3,     4,     6,  8,  9,  16,  41,      100,     255,
                                   256, 1000, 4096, 65536, 70001, -1, -3, -4, -41, 1 << 30, INT_MAX, INT_MIN};

// Everyday lengths, and some of every magnitude.
inline int anyLength(Case& c, int bits) {
    const bool everyday = c.mode == Mode::controls || c.rng.oneIn(3);
    return everyday          ? c.rng.between(1, 60)
           : c.rng.oneIn(30) ? INT_MAX
                             : std::max(1, int(c.rng.next() % INT_MAX >> c.rng.below(bits)));
}

// One operation in the order of the contract: the NaN of a goes before that of b.
template <class T, class Operation>
T inOrder(T x, T y, Operation operation) {
    const volatile T a = x, b = y;
    return a != a ? a + a : operation(T(a), T(b));
}
// tap(i, j) and pixel(i, j), the top row of the window first.
template <class T, class Tap, class Pixel>
T realSum(int64_t rows, int64_t columns, Tap tap, Pixel pixel) {
    T sum = 0;
    for (int64_t i = 0; i < rows; ++i)
        for (int64_t j = 0; j < columns; ++j) {
            const T product = inOrder<T>(tap(i, j), pixel(i, j), [](T a, T b) { return a * b; });
            sum = i + j == 0 ? product : inOrder<T>(sum, product, [](T a, T b) { return a + b; });
        }
    return sum;
}
template <class Tap, class Pixel>
int64_t wholeSum(int64_t rows, int64_t columns, Tap tap, Pixel pixel) {
    int64_t sum = 0;
    for (int64_t i = 0; i < rows; ++i)
        for (int64_t j = 0; j < columns; ++j) sum += int64_t(tap(i, j)) * int64_t(pixel(i, j));
    return sum;
}

}  // namespace test
