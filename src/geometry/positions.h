// Where destination pixels lie in the source, and what the pixels round that place count: the weights of resizing, with
// or without antialiasing.  Without the C library's mathematics, so that they are the same everywhere.
#pragma once

#include <array>
#include <cmath>

#include "core/frame.h"
#include "kernels/lanczos.h"

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
