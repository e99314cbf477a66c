// How the tables of an axis are formed: by which kind of taps, from which positions, with which weights.
#pragma once

#include <cmath>

#include "geometry/positions.h"
#include "geometry/resizespec.h"

namespace zmv {

// The kind of an axis follows from the header and the shift; the stride does not depend on the shift.
inline AxisShape shapeOf(const ResizeHeader& h, const ResizeHeader::Axis& axis, double shift) {
    const bool cubic = h.interpolation == INTERP_CUBIC, reduced = h.antialiasing && axis.src > axis.dst;
    const int taps = h.interpolation == INTERP_LANCZOS ? 2 * int(h.lobes) : plainTaps(h.interpolation);
    if (taps == 0) return {Taps::one, 1, 1, 0, 0};
    if (reduced) {
        const auto stride = int32_t(antialiasingTaps(h.interpolation, axis.src, axis.dst));
        return {Taps::counted, 0, 0, stride, 0};
    }
    const int stride = taps == 2 ? 1 : taps;
    if (axis.src == axis.dst && shift == 0 && !(cubic && h.b != 0)) return {Taps::one, 1, 1, stride, 0};
    return {taps == 2 ? Taps::two : Taps::fixed, taps, taps, stride, taps / 2 - 1};
}

inline double toWhole(double x) {  // to nearest even, for numbers below 2^51
    constexpr double unit = 0x1.8p52;
    return (x + unit) - unit;
}
// Weights of n taps as multiples of 2^-14, each rounded with what rounding left over, the last one making the sum
// whole.
template <class Weight, class Put>
void wholeWeights(Weight weight, Len n, Put put) {
    double sum = 0, over = 0;
    for (Len k = 0; k < n - 1; ++k) {
        const double exact = 16384 * double(weight(k)) + over, whole = toWhole(exact);
        over = exact - whole, sum += whole;
        put(k, whole);
    }
    put(n - 1, 16384 - sum);
}
constexpr Len mostWholeWeights = 16;
// A group's weights as integers, of any kind of taps.
template <class W, class Put>
void wholeWeightsOf(const ResizeAxis<W>& axis, Len i, Put put) {
    const W* const group = axis.group(i);
    if (axis.shape.kind == Taps::two)
        return wholeWeights([&](Len k) { return k ? double(group[0]) : 1 - double(group[0]); }, 2, put);
    wholeWeights([&](Len k) { return group[k]; }, axis.count(i), put);
}

template <class W>
struct AxisTables {
    const ResizeHeader& header;
    const ResizeHeader::Axis& axis;
    double shift;
    AxisShape& shape;
    int32_t* index;
    W* weights;

    Len src() const { return axis.src; }
    double position(Len i) const { return sourcePosition(i, axis.src, axis.dst, shift); }
    // Of equal lengths and no shift exactly the pixel itself, whatever rounding makes of long ones.
    BasePixel base(Len i) const { return BasePixel(shape.kind == Taps::one ? double(i) : position(i), axis.src); }

    void writePositions(float* fractions) {
        for (Len i = 0; i < axis.dst; ++i) {
            if (header.interpolation == INTERP_NEAREST)
                index[i] = nearest(i);
            else if (shape.kind == Taps::counted)
                index[i] = int32_t(firstTap(position(i)));
            else
                index[i] = int32_t(base(i).base);
            if (fractions) fractions[i] = float(base(i).fraction);
        }
    }
    void writeWeights() {
        if (shape.stride == 0) return;
        const CubicKernel cubic(header.b, header.c);
        if (shape.kind == Taps::counted) shape.fewest = INT32_MAX;
        for (Len i = 0; i < axis.dst; ++i) {
            W* const group = weights + i * shape.stride;
            if (shape.kind == Taps::counted) {
                const auto kernel = [&](double u) {
                    if (header.interpolation == INTERP_LINEAR) return 1 - u;
                    return header.interpolation == INTERP_CUBIC ? cubic(u) : lanczosKernel(int(header.lobes), u);
                };
                const int32_t count = countedGroup(position(i), group, kernel);
                shape.most = std::max(shape.most, count), shape.fewest = std::min(shape.fewest, count);
                continue;
            }
            const W f = W(base(i).fraction);
            if (header.interpolation == INTERP_LINEAR) {
                group[0] = f;
            } else if (header.interpolation == INTERP_CUBIC) {
                const double fraction = f,
                             distances[] = {1 + fraction, fraction, std::fabs(1 - fraction), 2 - fraction};
                for (int k = 0; k < 4; ++k) group[k] = W(cubic(distances[k]));
            } else {
                float single[6];
                lanczosWeights(int(header.lobes), float(f), single);
                std::copy(single, single + shape.stride, group);
            }
        }
    }
    // Whether integers can stand for the weights of every group.
    bool fitIntegers() const {
        if (shape.kind == Taps::two) return true;
        if (shape.most > mostWholeWeights) return false;
        const ResizeAxis<W> made{axis.src, axis.dst, shape, index, weights};
        for (Len i = 0; i < axis.dst && shape.kind != Taps::one; ++i) {
            double magnitude = 0;
            wholeWeightsOf(made, i, [&](Len, double w) { magnitude += std::fabs(w); });
            if (!(magnitude <= 32767)) return false;
        }
        return true;
    }

  private:
    int32_t nearest(Len i) const {
        const double x = (double(i) + 0.5) * (double(axis.src) * (1 / double(axis.dst))) - 1e-10 + shift;
        return int32_t(std::min(std::max<Len>(Len(x), 0), Len(axis.src) - 1));
    }
    // Of a reduction all pixels count that lie nearer than the radius in units of destination pixels.
    double radius() const {
        return header.interpolation == INTERP_LINEAR ? 1 : header.interpolation == INTERP_CUBIC ? 2 : int(header.lobes);
    }
    double distance(Len j, double x) const { return ((double(j) - x) * double(axis.dst)) / double(axis.src); }
    Len firstTap(double x) const {
        Len j = floorOf(x - radius() * double(axis.src) / double(axis.dst)) - 1;
        while (!(distance(j, x) > -radius())) ++j;
        return j;
    }
    template <class Kernel>
    int32_t countedGroup(double x, W* group, Kernel kernel) {
        const Len first = firstTap(x);
        double sum = 0;
        int32_t n = 0;
        // Twice, so that the weights are divided in double before they are rounded.
        for (double u; (u = distance(first + n, x)) < radius(); ++n) sum += kernel(std::fabs(u));
        for (int32_t k = 0; k < n; ++k) group[k] = W(kernel(std::fabs(distance(first + k, x))) / sum);
        std::memcpy(group + shape.stride - 1, &n, sizeof n);
        return n;
    }
};

// Super-sampling: destination pixel i covers the source from i * s to (i + 1) * s in units of 1 / d, both reduced.
class SuperAxis {
  public:
    explicit SuperAxis(const ResizeHeader::Axis& axis) : src(axis.src), s_(axis.srcReduced), d_(axis.dstReduced) {
        shape = {Taps::counted, int32_t(most()), int32_t(fewest()), 0, 0};
    }
    Len src;
    AxisShape shape;
    Len first(Len i) const { return i * s_ / d_; }
    Len end(Len i) const { return ((i + 1) * s_ + d_ - 1) / d_; }
    Len count(Len i) const { return end(i) - first(i); }
    Len most() const { return s_ / d_ + std::min<Len>(s_ % d_, 2); }
    Len fewest() const { return (s_ + d_ - 1) / d_; }
    // How much of pixel j lies in the area of pixel i.
    Len overlap(Len i, Len j) const { return std::min((i + 1) * s_, (j + 1) * d_) - std::max(i * s_, j * d_); }
    // How far apart the areas of pixels begin that are n apart, at most.
    Len mostApart(Len n) const { return (n * s_ + d_ - 1) / d_; }
    Len whole() const { return s_; }  // of an area
    Len parts() const { return d_; }  // of a pixel

  private:
    Len s_, d_;
};

}  // namespace zmv
