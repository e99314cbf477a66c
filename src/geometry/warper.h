// The walker of warps: from the points of a destination row to pixels.  Where kernels lie inside the region it fetches
// and weighs, without a test; elsewhere it looks at one point after the other.
#pragma once

#include "geometry/pointwriter.h"
#include "geometry/positions.h"
#include "geometry/warpmove.h"
#include "geometry/warppoints.h"

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
    static constexpr int most = Pixels::most, mostChecked = std::min(most, 64), group = WarpPoints::group,
                         part = std::min(most, WarpPoints::part);
    static constexpr double mostDistance = 4503599627370496.0;  // what a double counts, and more

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
        xs_ = memory.x + WarpMemory::points / 2, ys_ = memory.y + WarpMemory::points / 2;
        WarpPoints points(job_.header, job_.map, x0, memory);
        points_ = &points;
        const bool moves = job_.header.moves;
        eachTileRow(job_.size, moves ? Roi(job_.size.width, 1) : Roi(WarpPoints::part, 64),
                    [&](Len y, Len left, Len end) {
                        const WarpRow& row = memory.rows[y];
                        const Span piece{x0 + left, x0 + end};
                        T* const dst = job_.dst.row(y);
                        if (row.inner.from <= piece.from && piece.to <= row.inner.to && !moves)
                            gather(y0 + y, dst, piece);
                        else
                            walk(y0 + y, dst, piece, row);
                    });
        flush();
    }

  private:
    // A row's part in a tile of the destination.
    __attribute__((noinline)) void walk(Len y, T* dst, Span piece, const WarpRow& row) {
        const Span looked = clipped(row.looked, piece), inner = clipped(row.inner, looked);
        if (constant_) putConstant(dst, {piece.from, looked.from}), putConstant(dst, {looked.to, piece.to});
        look(y, dst, {looked.from, inner.from});
        if (!job_.header.moves || inner.empty() || !warpMoved<layout, Kernel>(job_, y, at(dst, inner.from), inner))
            gather(y, dst, inner);
        look(y, dst, {inner.to, looked.to});
    }
    static constexpr int reach = taps == 4 ? 2 : 1;
    // Pixels of three channels are copied with part of the next, which follows.
    static constexpr int quick = taps > 1 || n != 3 ? pixel : pixel / 3 * 4;

    struct Piece {
        T* dst;            // the tile's row
        Len x, y;          // the first pixel
        int first, count;  // points among those that are gathered
        bool inside;
    };

    // Whether the constant comes out where all that is no constant counts nothing, which is how points beyond the
    // region's left and upper edge are looked at.  Real pixels may be infinite, and wild weights have no exact sum.
    static bool fills(const WarpHeader& h) {
        bool tame = magnitude(h.weights[0][3]) <= 0.25;
        for (const double w : h.weights[0]) tame = tame && magnitude(w) <= 1;
        return taps == 1 || (std::is_integral_v<T> && (taps == 2 || tame));
    }

    // Whether doubles count the bytes from the source's first pixel to the region's last, and 32 bits its sides.
    static bool isNear(const WarpJob<T>& job) {
        const WarpHeader& h = job.header;
        return double(h.top + h.height) * double(job.src.step) + double(h.left + h.width) * pixel < mostDistance / 2 &&
               std::max(h.top + h.height, h.left + h.width) <= Len(1) << 31;
    }
    // Pixel x of the whole destination in a row of the tile.
    T* at(T* row, Len x) const { return row + (x - job_.offset.x) * n; }
    void putConstant(T* dst, Span span) const {
        for (Len x = span.from; x < span.to; ++x) copyPixel<pixel>(at(dst, x), value_);
    }
    // A part of a row, at most a tile's width, looked at point by point.
    void look(Len y, T* dst, Span span) {
        for (Len x = span.from; x < span.to; x += mostChecked) {
            const int count = int(std::min<Len>(mostChecked, span.to - x));
            pointsOf(job_.header, job_.map, x, y, count, xs_, ys_);
            checked(xs_, ys_, at(dst, x), count);
        }
    }
    // A part where kernels lie inside, as far as the map is exact: worked together with others, as many as a block has
    // room for.
    void gather(Len y, T* dst, Span span) {
        for (Len x = span.from; x < span.to;) {
            const Len end = std::min(span.to, x + part - (x - job_.offset.x) % part);
            const int count = int(end - x), room = std::max(count, group);
            if (gathered_ + room > most || pieces_ == mostPieces) flush();
            piece_[pieces_++] = {dst, x, y, gathered_, count, true}, gathered_ += room;
            x = end;
        }
    }
    void flush() {
        if (pieces_ > 0) fetched();
        gathered_ = pieces_ = 0;
    }

    // Where a piece's kernels start, and the fractions, group by group, the last one moved back to end with the piece:
    // each(i) behind every group.  Says whether all kernels lie inside; those that do not are moved there.
    template <WarpPoints::Way way, class Each>
    ZMV_INLINE bool locate(const Piece& piece, const Each& each) {
        const Box box = reach_.inner;
        const auto points = points_->row(piece.x, piece.y, piece.count);
        const Reals step = fill(double(step_));
        const Len first = piece.first, last = std::max(piece.count - group, 0);
        Vec<uint64_t> all = ~Vec<uint64_t>{};
        for (Len i = 0;; i = std::min(i + group, last)) {
            unrolled<group / lanes<double>>([&](auto k) __attribute__((always_inline)) {
                Reals x, y;
                points.template points<way>(i + k * lanes<double>, x, y);
                if constexpr (way == WarpPoints::Way::any) {
                    const Reals inX = larger(smaller(x, fill(box.right)), fill(box.left)),
                                inY = larger(smaller(y, fill(box.bottom)), fill(box.top));
                    all &= (Vec<uint64_t>)(x == inX) & (Vec<uint64_t>)(y == inY);
                    x = inX, y = inY;
                }
                // Halves go up: of numbers below one half no sum reaches one, of others each does.
                if constexpr (taps == 1) x += fill(0x1.fffffffffffffp-2), y += fill(0x1.fffffffffffffp-2);
                const Reals column = wholePart(x), row = wholePart(y);
                const Len at = first + i + k * lanes<double>;
                store(at_ + at, row * step + (column * double(pixel) + mostDistance));
                if constexpr (taps > 1) pixels_.setFractions(at, x - column, y - row);
            });
            each(first + i);
            if (i == last) break;
        }
        return allZero(~all);
    }
    // The pixels of what has been gathered are fetched a group behind where they are located, so that both are worked
    // on at a time.  Apart from what weighs them, which would lose its registers beside it.
    template <WarpPoints::Way way>
    __attribute__((noinline)) void fetch(const typename Pixels::Rows& rows) {
        const auto take = [&](Len first) __attribute__((always_inline)) {
            if constexpr (taps > 1)
                for (Len i = first; i < first + group; i += 4)
                    unrolled<4>([&](auto k) __attribute__((always_inline)) {
                        pixels_.take(i + k, rows, std::bit_cast<uint64_t>(at_[i + k]));
                    });
        };
        Len behind = piece_[0].first;
        const auto takeBehind = [&](Len i) __attribute__((always_inline)) {
            if (i != behind) take(behind);
            behind = i;
        };
        for (int p = 0; p < pieces_; ++p) piece_[p].inside = locate<way>(piece_[p], takeBehind);
        take(behind);
    }
    void fetched() {
        // A number of bytes beside 2^52 has its bits in the last places.
        const auto rows =
            Pixels::rowsFrom(reinterpret_cast<uint64_t>(job_.src.data) - std::bit_cast<uint64_t>(mostDistance) -
                                 uint64_t(before * (step_ + pixel)),
                             step_);
        using Way = WarpPoints::Way;
        const Way way = points_->way();
        if (way == Way::steady) fetch<Way::steady>(rows);
        if (way == Way::exact) fetch<Way::exact>(rows);
        if (way == Way::any) fetch<Way::any>(rows);
        for (int p = 0; p < pieces_; ++p) {
            const Piece& piece = piece_[p];
            T* const dst = at(piece.dst, piece.x);
            if (!piece.inside)
                look(piece.y, piece.dst, {piece.x, piece.x + piece.count});
            else if constexpr (taps == 1)
                copied(dst, at_ + piece.first, piece.count, rows[0]);
            else
                Writer::write(
                    dst, piece.count, nullptr, [&](int first, const T*, V* to) __attribute__((always_inline)) {
                        pixels_.values(piece.first + first, n, to);
                    });
        }
    }
    static ZMV_INLINE void copied(T* dst, const double* from, int count, uint64_t row) {
        const int last = count - 1;
        const auto copy = [&]<int bytes>(int i) __attribute__((always_inline)) {
            copyPixel<bytes>(dst + i * n, reinterpret_cast<const void*>(row + std::bit_cast<uint64_t>(from[i])));
        };
        int i = 0;
        for (; i + 4 <= last; i += 4)
            unrolled<4>([&](auto k) __attribute__((always_inline)) { copy.template operator()<quick>(i + k); });
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
            pixels_.take(point, Pixels::rowsFrom(origin_ + row * step_ + column * pixel, step_), 0);
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
    static constexpr int mostPieces = 16;
    Piece piece_[mostPieces];
    int pieces_ = 0, gathered_ = 0;
    double *xs_ = nullptr, *ys_ = nullptr;  // of points that are looked at one by one
    WarpPoints* points_ = nullptr;
    alignas(64) double at_[most];
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
