// The walker of warps: from the points of a destination row to pixels.  Where kernels lie inside the region it fetches
// and weighs, without a test; elsewhere it looks at one point after the other.
#pragma once

#include "geometry/pointwriter.h"
#include "geometry/positions.h"
#include "geometry/warpmove.h"
#include "kernels/simd_whole.h"

namespace zmv {

template <Layout layout, class Kernel, class T>
class Warper {
    using W = Formed<T>;
    using V = Vec<W>;
    using Mask = Bits<W>;
    using Reals = Vec<double>;
    using Pixels = Sampler<Kernel, T, layout.channels>;
    using Writer = PointWriter<layout, T, Kernel::between>;
    static constexpr int n = layout.channels, pixel = n * int(sizeof(T)), taps = Kernel::taps, before = Kernel::before;
    static constexpr int most = Pixels::most, mostChecked = std::min(most, 64),
                         doubles = int(sizeof(double) / sizeof(float)), group = lanes<int32_t>;
    static constexpr double mostDistance = 4503599627370496.0;  // what a double counts, and more
    static_assert(most % group == 0 && 2 * (most + 64 + group) <= 2 * WarpMemory::points);

  public:
    Warper(const WarpJob<T>& job, const Kernel& kernel)
        : job_(job),
          origin_(reinterpret_cast<const uint8_t*>(job.src.row(job.header.top)) + job.header.left * pixel),
          step_(job.src.step),
          columns_(job.header.left, job.header.width, job.word, reach),
          rows_(job.header.top, job.header.height, job.word, reach),
          reach_(job.header, job.word, reach, Pixels::readsBehind || quick > pixel, fills(job.header), isNear(job)),
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
        xs_ = memory.x, ys_ = memory.y;
        const bool moves = job_.header.moves;
        eachTileRow(job_.size, moves ? Roi(job_.size.width, 1) : Roi(64, 64), [&](Len y, Len left, Len end) {
            const WarpRow& row = memory.rows[y];
            const Span piece{x0 + left, x0 + end}, looked = clipped(row.looked, piece),
                                                   inner = clipped(row.inner, looked);
            T* const dst = job_.dst.row(y);
            if (constant_) putConstant(dst, {piece.from, looked.from}), putConstant(dst, {looked.to, piece.to});
            look(y0 + y, dst, {looked.from, inner.from});
            if (!moves || inner.empty() || !warpMoved<layout, Kernel>(job_, y0 + y, at(dst, inner.from), inner))
                gather(y0 + y, dst, inner);
            look(y0 + y, dst, {inner.to, looked.to});
        });
        flush();
    }

  private:
    static constexpr int reach = taps == 4 ? 2 : 1;
    // Pixels of three channels are copied with part of the next, which follows.
    static constexpr int quick = taps > 1 || n != 3 ? pixel : pixel / 3 * 4;

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
    // Pixel x of the whole destination in a row of the tile.
    T* at(T* row, Len x) const { return row + (x - job_.offset.x) * n; }
    void putConstant(T* dst, Span span) const {
        for (Len x = span.from; x < span.to; ++x) copyPixel<pixel>(at(dst, x), value_);
    }
    // A part of a row, at most a tile's width, looked at point by point.
    void look(Len y, T* dst, Span span) {
        double *const xs = xs_ + most, *const ys = ys_ + most;  // behind what is gathered
        for (Len x = span.from; x < span.to; x += mostChecked) {
            const int count = int(std::min<Len>(mostChecked, span.to - x));
            job_.map.points(job_.header, x, y, count, xs, ys);
            checked(xs, ys, at(dst, x), count);
        }
    }
    // A part where kernels lie inside: worked together with others, as many as a block has room for.
    void gather(Len y, T* dst, Span span) {
        for (Len x = span.from; x < span.to;) {
            const int count = int(std::min<Len>(most, span.to - x)), room = count + (-count & (group - 1));
            if (gathered_ + room > most || pieces_ == mostPieces) flush();
            double *const xs = xs_ + gathered_, *const ys = ys_ + gathered_;
            job_.map.points(job_.header, x, y, count, xs, ys);
            if (!job_.header.exact && !allInner(xs, ys, count)) {
                look(y, dst, {x, x + count});
            } else if constexpr (taps == 1) {
                copied(at(dst, x), count);
            } else {
                for (int i = count; i < room; ++i) xs[i] = xs[count - 1], ys[i] = ys[count - 1];
                piece_[pieces_++] = {at(dst, x), gathered_, count}, gathered_ += room;
            }
            x += count;
        }
    }
    void flush() {
        if constexpr (taps > 1)
            if (pieces_ > 0) fetched();
        gathered_ = pieces_ = 0;
    }
    // Of points that are near each other the ends may be looked at twice.
    bool allInner(const double* xs, const double* ys, int count) const {
        const Box& box = reach_.inner;
        if (count < lanes<double>) return false;
        Vec<uint64_t> all = ~Vec<uint64_t>{};
        for (int i = 0; i < count; i += lanes<double>) {
            const int at = std::min(i, count - lanes<double>);
            const Reals x = load(xs + at), y = load(ys + at);
            all &= (Vec<uint64_t>)(x >= box.left) & (Vec<uint64_t>)(x <= box.right);
            all &= (Vec<uint64_t>)(y >= box.top) & (Vec<uint64_t>)(y <= box.bottom);
        }
        return allZero(~all);
    }

    // Where the pixels under the kernels of a group of points start, and the fractions.
    struct Distances {
        Reals step;
        Vec<uint64_t> bias;
    };
    Distances distances() const {
        // A number of bytes beside 2^52 has its bits in the last places.
        return {fill(double(step_)), fill(reinterpret_cast<uint64_t>(job_.src.data) -
                                          std::bit_cast<uint64_t>(mostDistance) - uint64_t(before * (step_ + pixel)))};
    }
    ZMV_INLINE void locate(const Distances& d, int i) {
        Reals fx[doubles], fy[doubles];
        unrolled<doubles>([&](auto k) __attribute__((always_inline)) {
            const int at = i + k * lanes<double>;
            const Reals x = load(xs_ + at), y = load(ys_ + at);
            // Halves go up: of numbers below one half no sum reaches one, of others each does.
            const Reals half = fill(taps == 1 ? 0x1.fffffffffffffp-2 : 0.0);
            const Reals column = wholePart(taps == 1 ? x + half : x), row = wholePart(taps == 1 ? y + half : y);
            fx[k] = x - column, fy[k] = y - row;
            store(at_ + at, (Vec<uint64_t>)(row * d.step + (column * double(pixel) + mostDistance)) + d.bias);
        });
        if constexpr (taps > 1 && sizeof(W) == 4)
            pixels_.setFractions(i, roundToFloat(fx[0], fx[1]), roundToFloat(fy[0], fy[1]));
        else if constexpr (taps > 1)
            unrolled<doubles>([&](auto k) __attribute__((always_inline)) {
                pixels_.setFractions(i + k * lanes<double>, fx[k], fy[k]);
            });
    }
    // The points that have been gathered, and those that fill groups, which are others once more.  Pixels are fetched a
    // group behind where they are located, so that both are worked on at a time.
    void fetched() {
        const Distances d = distances();
        const Len rows = step_;
        const auto fetch = [&](int first) __attribute__((always_inline)) {
            for (int i = first; i < first + group; i += 4)
                unrolled<4>([&](auto k) __attribute__((always_inline)) {
                    pixels_.take(i + k, reinterpret_cast<const uint8_t*>(at_[i + k]), rows);
                });
        };
        locate(d, 0);
        for (int i = group; i < gathered_; i += group) locate(d, i), fetch(i - group);
        fetch(gathered_ - group);
        for (int p = 0; p < pieces_; ++p)
            Writer::write(
                piece_[p].dst, piece_[p].count, nullptr,
                [&, start = piece_[p].first ](int first, const T*, V* to)
                    __attribute__((always_inline)) { pixels_.values(start + first, n, to); });
    }
    void copied(T* dst, int count) {
        const Distances d = distances();
        const auto copy = [&]<int bytes>(int i) __attribute__((always_inline)) {
            copyPixel<bytes>(dst + i * n, reinterpret_cast<const void*>(at_[i]));
        };
        const int last = count - 1;
        int i = 0;
        for (locate(d, 0); i + group <= last; i += group) {
            locate(d, i + group);
            unrolled<group>([&](auto k) __attribute__((always_inline)) { copy.template operator()<quick>(i + k); });
        }
        for (; i < last; ++i) copy.template operator()<quick>(i);
        copy.template operator()<pixel>(last);
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
        if (column >= 0 && column + taps + Pixels::readsBehind <= width && row >= 0 && row + taps <= height)
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
    struct Piece {
        T* dst;
        int first, count;  // points among those that are gathered
    };
    static constexpr int mostPieces = 16;
    Piece piece_[mostPieces];
    int pieces_ = 0, gathered_ = 0;
    double *xs_ = nullptr, *ys_ = nullptr;
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
