// Rows of a warp that come from a row of the source, pixel by pixel and the same fraction apart: shifts.
#pragma once

#include "geometry/pointwriter.h"
#include "geometry/warp.h"

namespace zmv {

// `elements` from the first pixel of the upper row on, which lies `step` bytes above the lower.
template <Layout layout, class Kernel, class T>
void moveRow(const uint8_t* from, Len step, T* dst, Len elements, Formed<T> fx, Formed<T> fy) {
    using W = Formed<T>;
    using V = Vec<W>;
    if constexpr (Kernel::taps == 1) {
        copyRow(dst, from, elements * Len(sizeof(T)));
    } else {
        constexpr int parts = int(sizeof(W) / sizeof(T)), n = layout.channels;
        constexpr bool real = std::is_floating_point_v<T>;
        const auto upper = reinterpret_cast<const T*>(from), lower = reinterpret_cast<const T*>(from + step);
        const auto across = Kernel::at(fill(fx)), down = Kernel::at(fill(fy));
        const auto results = [&](Len e, int count) __attribute__((always_inline)) {
            std::array<V, parts> values;
            unrolled<parts>([&](auto part) __attribute__((always_inline)) {
                const int some = count - part * lanes<W>;
                const auto along = [&](const T* row) __attribute__((always_inline)) {
                    row += e + part * lanes<W>;
                    return across.template sum<real>({loadWidenUpTo<W>(row, some), loadWidenUpTo<W>(row + n, some)});
                };
                values[part] = down.template sum<real>({along(upper), along(lower)});
            });
            return PointWriter<layout, T, Kernel::between>::rounded(values);
        };
        Len e = 0;
        for (; e + lanes<T> <= elements; e += lanes<T>) store(dst + e, results(e, lanes<T>));
        if (e < elements) storePart(dst + e, results(e, int(elements - e)), int(elements - e));
    }
}

// Pixels of a row, dst being the first, whose kernels lie inside the region: done if their fractions are sure to be
// one.
template <Layout layout, class Kernel, class T>
bool warpMoved(const WarpJob<T>& job, Len y, T* dst, Span span) {
    using W = Formed<T>;
    constexpr int taps = Kernel::taps, n = layout.channels;
    if constexpr (taps > 2) {
        return false;
    } else {
        const WarpLines lines = job.map.lines(job.header, y);
        const double x = lines.column.at(double(span.from)), row = lines.row.at(double(span.from));
        // What sums with whole numbers may be rounded by, on the way from one end to the other; where they swallow all
        // that is beside a whole number or a half, they go on to do so.
        const double error = 0x1p-51 * (x + lines.column.at(double(span.to - 1))), split = taps == 1 ? 0.5 : 0;
        double column = roundedDown(x), line = roundedDown(row);
        const double fx = x - column, fy = row - line;
        const bool sure = fx == split || magnitude(fx - split) > 2 * error;
        const bool same = taps == 1 || fx == 0 || (fx < 1 - 2 * error && W(fx - error) == W(fx + error));
        if (!sure || !same || !(error < 0x1p-30)) return false;
        if (taps == 1) column += fx >= 0.5, line += fy >= 0.5;
        const auto from = reinterpret_cast<const uint8_t*>(job.src.row(Len(line))) + Len(column) * n * Len(sizeof(T));
        moveRow<layout, Kernel>(from, job.src.step, dst, (span.to - span.from) * n, W(fx), W(fy));
        return true;
    }
}

}  // namespace zmv
