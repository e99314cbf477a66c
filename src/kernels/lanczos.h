// The Lanczos kernels, by tables: without the C library's mathematics, so that they are the same everywhere.
#pragma once

#include <array>
#include <cstddef>

namespace zmv {

// sin(pi * i / n), exactly zero where it is, for i from 0 on.
constexpr double sineOfPi(int i, int n) {
    i %= 2 * n;
    if (i >= n) return -sineOfPi(i - n, n);
    if (2 * i > n) i = n - i;
    const double x = 3.14159265358979323846 * i / n;
    double term = x, sum = 0;
    for (int k = 1; k < 30; k += 2, term *= -x * x / ((k - 1) * k)) sum += term;
    return sum;
}
// lobes * sin(pi x) sin(pi x / lobes) / (pi x)^2 at steps of 1/100, then zeros.
template <int lobes>
constexpr std::array<float, 100 * lobes + 4> lanczosTable() {
    std::array<float, 100 * lobes + 4> table{};
    for (int i = 1; i < 100 * lobes; ++i) {
        const double x = 3.14159265358979323846 * i / 100;
        table[size_t(i)] = float(lobes * sineOfPi(i, 100) * sineOfPi(i, 100 * lobes) / (x * x)) + 0.0f;  // no -0
    }
    table[0] = 1;
    return table;
}
inline constexpr auto tblL2 = lanczosTable<2>();
inline constexpr auto tblL3 = lanczosTable<3>();

}  // namespace zmv
