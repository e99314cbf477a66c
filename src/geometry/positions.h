// Where destination pixels lie in the source, and what the pixels round that place count: the weights of resizing, with
// or without antialiasing, and the table of the Lanczos kernels.  Without the C library's mathematics, so that they are
// the same everywhere.
#pragma once

#include <array>
#include <cmath>

#include "core/frame.h"

namespace zmv {

inline Len floorOf(double x) {
    const Len whole = Len(x);
    return whole - (double(whole) > x);
}

// Pixel centres meet pixel centres: the coordinate of destination pixel i of d in a source of s pixels.
inline double sourcePosition(Len i, Len s, Len d, double shift) {
    return ((double(i) + 0.5) * double(s)) / double(d) - 0.5 + shift;
}
// A position as the pixel at or before it, and how far it lies behind that pixel.
struct BasePixel {
    Len base;
    double fraction;
    BasePixel(double x, Len s) : base(std::min(std::max<Len>(floorOf(x), -1), s - 1)), fraction(x - double(base)) {}
};

// The cubic kernels of two parameters, at a distance from the centre.
class CubicKernel {
  public:
    CubicKernel(float b32, float c32) {
        const double b = b32, c = c32;
        near_ = {1 - b / 3, 0, -3 + 2 * b + c, 2 - 1.5 * b - c};
        far_ = {4.0 / 3 * b + 4 * c, -(8 * c + 2 * b), b + 5 * c, -b / 6 - c};
    }
    double operator()(double d) const {
        if (d >= 2) return 0;
        const auto& p = d < 1 ? near_ : far_;
        const double w = ((p[3] * d + p[2]) * d + p[1]) * d + p[0];
        return std::fabs(w) < 0x1p-126 ? 0 : w;
    }

  private:
    std::array<double, 4> near_, far_;
};

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

// The kernel between the table's entries, in the arithmetic of Real.
template <class Real>
Real lanczosKernel(int lobes, Real distance) {
    if (!(distance < Real(lobes))) return 0;
    const float* const table = lobes == 2 ? tblL2.data() : tblL3.data();
    const Real s = Real(100) * distance;
    const int i = int(s);
    return Real(table[i]) + (s - Real(i)) * (Real(table[i + 1]) - Real(table[i]));
}

// The weights of the 2 * lobes pixels round a fraction, the first one lobes - 1 before the base pixel.
inline void lanczosWeights(int lobes, float fraction, float* weights) {
    float sum = 0;
    for (int k = 0; k < 2 * lobes; ++k) {
        const float distance = (float(1 - lobes) - fraction) + float(k);
        weights[k] = lanczosKernel(lobes, std::fabs(distance));
        sum = k ? sum + weights[k] : weights[k];
    }
    for (int k = 0; k < 2 * lobes; ++k) weights[k] /= sum;
}

}  // namespace zmv
