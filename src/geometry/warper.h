// The walker of warps: from the points of a destination row to pixels.  Where kernels lie inside the region it fetches
// and weighs, without a test; elsewhere it looks at one point after the other.
#pragma once

#include "geometry/pointwriter.h"
#include "geometry/positions.h"
#include "geometry/warp.h"
#include "kernels/simd_whole.h"

namespace zmv {

template <Layout layout, class Kernel, class T>
class Warper {
    using W = Formed<T>;
    using V = Vec<W>;
    using Mask = Bits<W>;
    using Reals = Vec<double>;
    using Pixels = Sampler<Kernel, T, layout.channels>;
    using Writer = PointWriter<layout, T>;
    static constexpr int n = layout.channels, pixel = n * int(sizeof(T)), taps = Kernel::taps, before = Kernel::before;
    static constexpr int most = Pixels::most, mostChecked = std::min(most, 64),
                         doubles = int(sizeof(double) / sizeof(float));
    static constexpr double mostDistance = 4503599627370496.0;  // what a double counts, and more
    static constexpr Len tileWidth = std::max(64, most);

  public:
    Warper(const WarpJob<T>& job, const Kernel& kernel)
        : job_(job),
          origin_(reinterpret_cast<const uint8_t*>(job.src.row(job.header.top)) + job.header.left * pixel),
          step_(job.src.step),
          columns_(job.header.left, job.header.width, job.word, reach),
          rows_(job.header.top, job.header.height, job.word, reach),
          reach_(job.header, job.word, reach, fills(job.header), isNear(job)),
          transparent_(job.word == BORDER_TRANSPARENT),
          constant_(job.word == BORDER_CONST),
          smooth_(job.header.smoothEdge),
          pixels_(kernel) {
        for (int c = 0; constant_ && c < n; ++c) value_[c] = get(bits(job.borderValue) + c);
    }

    void run() {
        Scratch scratch(job_.buffer);
        const WarpMemory memory(scratch, job_.size.height);
        const Len x0 = job_.offset.x, y0 = job_.offset.y;
        for (Len y = 0; y < job_.size.height; ++y)
            memory.rows[y] = reach_.row(job_.header, job_.map, y0 + y, {x0, x0 + job_.size.width});
        eachTileRow(job_.size, tileWidth, [&](Len y, Len left, Len end) {
            const WarpRow& row = memory.rows[y];
            const Span piece{x0 + left, x0 + end}, looked = clipped(row.looked, piece),
                                                   inner = clipped(row.inner, looked);
            T* const dst = job_.dst.row(y) - x0 * n;
            if (constant_) putConstant(dst, {piece.from, looked.from}), putConstant(dst, {looked.to, piece.to});
            work(memory, y0 + y, dst, {looked.from, inner.from}, false);
            work(memory, y0 + y, dst, inner, true);
            work(memory, y0 + y, dst, {inner.to, looked.to}, false);
        });
    }

  private:
    static constexpr int reach = taps == 4 ? 2 : 1;

    // Whether the constant comes out where all that is no constant counts nothing, which is how points beyond the
    // region's left and upper edge are looked at.  Real pixels may be infinite, and wild weights have no exact sum.
    static bool fills(const WarpHeader& h) {
        bool tame = magnitude(h.weights[0][3]) <= 0.25;
        for (const double w : h.weights[0]) tame = tame && magnitude(w) <= 1;
        return taps == 1 || (std::is_integral_v<T> && (taps == 2 || tame));
    }

    // Whether doubles count the bytes from the source's first pixel to the region's last.
    static bool isNear(const WarpJob<T>& job) {
        const WarpHeader& h = job.header;
        return double(h.top + h.height) * double(job.src.step) + double(h.left + h.width) * pixel < mostDistance / 2;
    }
    void putConstant(T* dst, Span span) const {
        for (Len x = span.from; x < span.to; ++x) copyPixel<pixel>(dst + x * n, value_);
    }
    // At most a tile's width.
    void work(const WarpMemory& memory, Len y, T* dst, Span span, bool inside) {
        if (span.empty()) return;
        const int count = int(span.to - span.from);
        job_.map.points(job_.header, span.from, y, count, memory.x, memory.y);
        if (inside && !job_.header.exact) inside = allInner(memory.x, memory.y, count);
        const int block = inside ? most : mostChecked;
        for (int i = 0; i < count; i += block) {
            T* const to = dst + (span.from + i) * n;
            const int some = std::min(block, count - i);
            if (inside)
                fetched(memory.x + i, memory.y + i, to, some);
            else
                checked(memory.x + i, memory.y + i, to, some);
        }
    }
    bool allInner(const double* xs, const double* ys, int count) const {
        const Box& box = reach_.inner;
        bool all = true;
        for (int i = 0; i < count; ++i)
            all = all & (xs[i] >= box.left) & (xs[i] <= box.right) & (ys[i] >= box.top) & (ys[i] <= box.bottom);
        return all;
    }

    // Points whose kernels lie inside.
    void fetched(const double* xs, const double* ys, T* dst, int count) {
        const Reals step = fill(double(step_)), most = fill(mostDistance);
        // A distance beside 2^52 has its bits in the last places.
        const auto bias = fill(reinterpret_cast<uint64_t>(job_.src.data) - std::bit_cast<uint64_t>(mostDistance) -
                               uint64_t(before * (step_ + pixel)));
        for (int i = 0; i < count; i += lanes<float>) {
            Reals fx[doubles], fy[doubles];
            unrolled<doubles>([&](auto k) {
                const int at = i + k * lanes<double>;
                const Reals x = load(xs + at), y = load(ys + at);
                // Halves go up: of numbers below one half no sum reaches one, of others each does.
                const Reals half = fill(taps == 1 ? 0x1.fffffffffffffp-2 : 0.0);
                const Reals column = wholePart(taps == 1 ? x + half : x), row = wholePart(taps == 1 ? y + half : y);
                fx[k] = x - column, fy[k] = y - row;
                store(at_ + at, (Vec<uint64_t>)(row * step + (column * double(pixel) + most)) + bias);
            });
            if constexpr (taps > 1 && sizeof(W) == 4)
                pixels_.setFractions(i, roundToFloat(fx[0], fx[1]), roundToFloat(fy[0], fy[1]));
            else if constexpr (taps > 1)
                unrolled<doubles>([&](auto k) { pixels_.setFractions(i + k * lanes<double>, fx[k], fy[k]); });
        }
        const Len rows = step_;
        const auto each = [&](int i) __attribute__((always_inline)) {
            const auto from = reinterpret_cast<const uint8_t*>(at_[i]);
            if constexpr (taps > 1)
                pixels_.take(i, from, rows);
            else
                copyPixel<pixel>(dst + i * n, from);
        };
        int i = 0;
        for (; i + 4 <= count; i += 4) unrolled<4>([&](auto k) __attribute__((always_inline)) { each(i + k); });
        for (; i < count; ++i) each(i);
        if constexpr (taps > 1)
            Writer::write(
                dst, count, nullptr, [&](int first, const T*, V* to) __attribute__((always_inline)) {
                    pixels_.values(first, n, to);
                });
    }

    // Points anywhere.
    __attribute__((noinline)) void checked(const double* xs, const double* ys, T* dst, int count) {
        bool any = false;
        for (int i = 0; i < count; ++i) {
            const double x = xs[i], y = ys[i];
            const bool inside = columns_.within(x, nearEdge) && rows_.within(y, nearEdge);
            const bool chosen = !transparent_ || inside || (smooth_ && columns_.within(x, 1) && rows_.within(y, 1));
            chosen_[i] = Mask(-int64_t(chosen)), any |= chosen;
            if (!chosen) continue;
            if (smooth_) ax_[i] = W(columns_.outside(x)), ay_[i] = W(rows_.outside(y));
            const double px = columns_.placed(x), py = rows_.placed(y);
            Len column = floorOf(px), row = floorOf(py);
            const double fx = px - double(column), fy = py - double(row);
            column -= job_.header.left + before, row -= job_.header.top + before;
            if constexpr (taps == 1) {
                if (inside || !smooth_) column += fx >= 0.5, row += fy >= 0.5;
                if (!smooth_) {
                    copyPixelOf(column, row, reinterpret_cast<uint8_t*>(dst + i * n));
                    continue;
                }
            }
            take(i, column, row, W(fx), W(fy));
        }
        if (!any || (taps == 1 && !smooth_)) return;
        Writer::write(dst, count, chosen_, [&](int first, const T* old, V* channels) {
            using Masks = Vec<Mask>;
            pixels_.values(first, n, channels);
            for (int c = 0; constant_ && c < n; ++c) {
                const V value = (V)fill(std::bit_cast<Mask>(W(std::bit_cast<T>(value_[c]))));
                channels[c] = (V)select(load(alone_ + first), (Masks)value, (Masks)channels[c]);
            }
            const V ax = load(ax_ + first), ay = load(ay_ + first);
            const Masks band = load(chosen_ + first) & ((Masks)(ax > 0) | (Masks)(ay > 0));
            if (smooth_ && !allZero(band)) Writer::fade(ax, ay, band, old, channels);
        });
    }
    void take(int point, Len column, Len row, W fx, W fy) {
        const Len width = columns_.count, height = rows_.count;
        pixels_.setFraction(point, fx, fy);
        alone_[point] =
            Mask(-int64_t(constant_ && (column + taps <= 0 || column >= width || row + taps <= 0 || row >= height)));
        if (column >= 0 && column + taps <= width && row >= 0 && row + taps <= height)
            pixels_.take(point, origin_ + row * step_ + column * pixel, step_);
        else
            pixels_.takeEach(point, [&](int i, int j, uint8_t* to) { copyPixelOf(column + i, row + j, to); });
    }
    void copyPixelOf(Len column, Len row, uint8_t* to) const {
        const Len x = columns_.pixel(column), y = rows_.pixel(row);
        const void* const constant = value_;
        copyPixel<pixel>(to, x < 0 || y < 0 ? constant : origin_ + y * step_ + x * pixel);
    }

    const WarpJob<T>& job_;
    const uint8_t* const origin_;  // the region's first pixel
    const Len step_;
    const WarpAxis columns_, rows_;
    const WarpReach reach_;
    const bool transparent_, constant_, smooth_;
    Pixels pixels_;
    Bits<T> value_[n] = {};
    alignas(64) uint64_t at_[most];
    alignas(64) W ax_[mostChecked], ay_[mostChecked];
    alignas(64) Mask chosen_[mostChecked], alone_[mostChecked];
};

template <Layout layout, class Kernel, class T>
__attribute__((noinline)) void warpBy(const WarpJob<T>& job, const Kernel& kernel) {
    Warper<layout, Kernel, T>(job, kernel).run();
}
template <Layout layout, class T>
void warpAs(const WarpJob<T>& job) {
    using W = Formed<T>;
    if (job.header.interpolation == INTERP_NEAREST) return warpBy<layout>(job, NearestKernel{});
    if (job.header.interpolation == INTERP_LINEAR) return warpBy<layout>(job, LinearKernel{});
    CubicFamilyKernel<W> kernel;
    for (int i = 0; i < 16; ++i) kernel.p[i / 4][i % 4] = W(job.header.weights[i / 4][i % 4]);
    warpBy<layout>(job, kernel);
}
template <class T>
void WarpJob<T>::run() const {
    if (layout.channels == 1) return warpAs<C1>(*this);
    if (layout.channels == 3) return warpAs<C3>(*this);
    warpAs<C4>(*this);
}

}  // namespace zmv
