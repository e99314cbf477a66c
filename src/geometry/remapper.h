// The walker of maps: from a vector of coordinates to pixels.
#pragma once

#include "geometry/pointwriter.h"
#include "geometry/remap.h"
#include "kernels/rounding.h"

namespace zmv {

// Where the pixels under a kernel are at a block of points, in what may be read.
template <class Kernel, class T, int n>
class MapSampler : public Sampler<Kernel, T, n> {
    using Base = Sampler<Kernel, T, n>;
    using W = typename Base::W;
    using V = typename Base::V;
    using Places = zmv::Places<W>;
    static constexpr int taps = Kernel::taps, pixel = n * int(sizeof(T));
    static constexpr int across = taps + Base::readsBehind;  // pixels of a row that are read

  public:
    using Mask = Vec<Bits<W>>;
    using Base::most;

    explicit MapSampler(const Readable<T>& from)
        : Base(Kernel{}),
          from_(from),
          roomy_(from.right - from.left >= across - 1 && from.bottom - from.top >= taps - 1),
          near_(from.image.step <= mostNear && from.bottom < mostCounted && from.right < mostCounted &&
                (from.bottom + 1) * from.image.step + (from.right + 1) * Len(pixel) <= mostNear),
          step_(near_ ? int32_t(from.image.step) : 0),
          left_(Places{} + from.left),
          top_(Places{} + from.top),
          right_(Places{} + (from.right - (across - 1))),
          bottom_(Places{} + (from.bottom - (taps - 1))),
          innerLeft_(realOf<W>(left_ + Kernel::before)),
          innerTop_(realOf<W>(top_ + Kernel::before)),
          innerRight_(roomy_ && near_ ? realOf<W>(right_ + behindLast) : innerLeft_),
          innerBottom_(realOf<W>(bottom_ + behindLast)) {}

    // Whether the kernels of all points lie inside, as far as it pays to know.
    ZMV_INLINE bool areInner(V x, V y) const {
        return allZero(
            ~((Mask)(x >= innerLeft_) & (Mask)(x < innerRight_) & (Mask)(y >= innerTop_) & (Mask)(y < innerBottom_)));
    }
    // The points of a block from `first` on, inside of what may be read wherever `chosen`, or with all of their
    // kernels; `halves` says where those of the nearest pixel go up.
    template <bool inner>
    ZMV_INLINE void set(int first, V x, V y, Mask chosen, Mask halves) {
        V fx, fy;
        Places bx = whole<inner>(x, fx), by = whole<inner>(y, fy);
        if constexpr (taps == 1) {
            bx -= places((Mask)(fx >= W(0.5)) & halves), by -= places((Mask)(fy >= W(0.5)) & halves);
            if constexpr (!inner) bx = bx < right_ ? bx : right_, by = by < bottom_ ? by : bottom_;
            place(first, bx, by);
        } else {
            this->setFractions(first, fx, fy);
            bx -= Kernel::before, by -= Kernel::before;
            if constexpr (inner) {
                store(cut_ + first, Places{});
                return place(first, bx, by);
            }
            const Places inside = (bx >= left_) & (bx <= right_) & (by >= top_) & (by <= bottom_),
                         cut = places(chosen) & ~inside;
            place(first, inside ? bx : left_, inside ? by : top_);
            store(cut_ + first, cut), store(cutX_ + first, bx), store(cutY_ + first, by);
            anyCut_ = anyCut_ | cut;
        }
    }
    // The pixel of a point, or the first under its kernel.
    ZMV_INLINE const uint8_t* pixelOf(int point) const {
        const auto data = reinterpret_cast<const uint8_t*>(from_.image.data);
        return near_ ? data + x_[point] : data + y_[point] * from_.image.step + Len(x_[point]) * pixel;
    }
    // What has been set, up to `count` points.
    void fetch(int count) {
        constexpr int some = std::min(4, lanes<W>);
        const auto rows = this->rowsFrom(reinterpret_cast<uint64_t>(from_.image.data), from_.image.step);
        if (roomy_ && near_)
            for (Len i = 0; i < count; i += some)
                unrolled<some>([&](auto k)
                                   __attribute__((always_inline)) { this->take(i + k, rows, uint64_t(x_[i + k])); });
        else if (roomy_)
            for (int i = 0; i < count; ++i) this->take(i, this->rowsFrom(pixelOf(i), from_.image.step), 0);
        if (!anyOf(anyCut_)) return;
        for (int i = 0; i < count; ++i)
            if (cut_[i]) takeCut(i);
        anyCut_ = Places{};
    }

  private:
    // Where 32 bits count the bytes from the source's first pixel, and floats its sides, a point's are one number.
    static constexpr Len mostNear = 0x7fffffff, mostCounted = 1 << 24;
    static constexpr int behindLast = Kernel::before + (taps > 1);
    ZMV_INLINE void place(int first, Places x, Places y) {
        store(x_ + first, near_ ? y * step_ + x * pixel : x);
        if (!near_) store(y_ + first, y);
    }
    static Places places(Mask m) {
        if constexpr (sizeof(W) == 4)
            return (Places)m;
        else
            return __builtin_convertvector((Vec<int64_t>)m, Places);
    }
    static bool anyOf(Places v) {
        if constexpr (sizeof(v) >= 16)
            return !allZero(v);
        else
            return v[0] | v[1];
    }
    // Whole numbers and fractions of numbers from 0 to 2^31, or to less.
    template <bool less>
    static ZMV_INLINE Places whole(V v, V& fraction) {
        Places base = wholeOf(v);
        fraction = v - realOf<W>(base);
        if constexpr (sizeof(W) == 4 && !less) {
            const auto beyond = v >= W(2147483648.0);
            base ^= beyond, fraction = beyond ? V{} : fraction;
        }
        return base;
    }
    // Pixels that may not be read count as the nearest that may.
    void takeCut(int point) {
        this->takeEach(point, [&](int i, int j, uint8_t* to) {
            const auto row = reinterpret_cast<const uint8_t*>(
                from_.image.row(std::clamp(cutY_[point] + j, from_.top, from_.bottom)));
            __builtin_memcpy(to, row + Len(std::clamp(cutX_[point] + i, from_.left, from_.right)) * pixel, pixel);
        });
    }

    const Readable<T> from_;
    const bool roomy_, near_;
    const int32_t step_;
    const Places left_, top_, right_, bottom_;                 // of first pixels whose kernels stay inside
    const V innerLeft_, innerTop_, innerRight_, innerBottom_;  // of their points, those at the ends left out
    Places anyCut_{};
    alignas(64) int32_t x_[most], y_[most], cut_[most], cutX_[most], cutY_[most];
};

template <Layout layout, class Kernel, class T>
class Remapper {
    using W = MapOf<T>;
    using V = Vec<W>;
    using Mask = Vec<Bits<W>>;
    static constexpr int n = layout.channels, used = layout.used();
    using Pixels = MapSampler<Kernel, T, n>;
    using Writer = PointWriter<layout, T, Kernel::between>;

  public:
    static constexpr int most = Pixels::most;

    explicit Remapper(const Remapping<T>& job)
        : pixels_(job.source),
          smooth_(job.smooth),
          left_(fill(W(job.source.left))),
          top_(fill(W(job.source.top))),
          right_(fill(W(job.source.right))),
          bottom_(fill(W(job.source.bottom))) {}

    // A block of points, up to `most` of them.
    void run(const W* xs, const W* ys, T* dst, int count) {
        Mask any{}, all = ~Mask{};
        int ready = 0;  // whole vectors: points behind the last are somewhere and write nothing
        for (; ready < count; ready += lanes<W>) {
            const int some = std::min(lanes<W>, count - ready);
            const V x = loadUpTo(xs + ready, some), y = loadUpTo(ys + ready, some);
            if (pixels_.areInner(x, y)) {
                pixels_.template set<true>(ready, x, y, ~Mask{}, ~Mask{});
                store(chosen_ + ready, any = ~Mask{});
                continue;
            }
            const Mask inside = within(x, y, 0), chosen = smooth_ ? within(x, y, 1) : inside;
            const auto place = [&](V v, V least, V most) {
                return larger(least, smaller(most, (V)(chosen & (Mask)v)));
            };
            pixels_.template set<false>(ready, place(x, left_, right_), place(y, top_, bottom_), chosen, inside);
            store(chosen_ + ready, chosen);
            any |= chosen, all &= chosen;
        }
        if (allZero(any)) return;
        if (Kernel::taps == 1 && !smooth_) return copy(dst, count, allZero(~all));
        pixels_.fetch(ready);
        const auto values = [&](int first, const T* old, V* channels) __attribute__((always_inline)) {
            pixels_.values(first, used, channels);
            if (!smooth_) return;
            V faded[used];  // what others are told the place of leaves its registers
            for (int c = 0; c < used; ++c) faded[c] = channels[c];
            fade(xs + first, ys + first, std::min(lanes<W>, count - first), load(chosen_ + first), old, faded);
            for (int c = 0; c < used; ++c) channels[c] = faded[c];
        };
        // The values of few pixels stay in registers.
        if constexpr (Kernel::taps <= 2)
            Writer::write(dst, count, chosen_, values);
        else
            Writer::write(dst, count, chosen_,
                          [&](int first, const T* old, V* channels) { values(first, old, channels); });
    }

  private:
    ZMV_INLINE Mask within(V x, V y, W more) const {
        return (Mask)(x >= left_ - more) & (Mask)(x <= right_ + more) & (Mask)(y >= top_ - more) &
               (Mask)(y <= bottom_ + more);
    }
    ZMV_INLINE void copy(T* dst, int count, bool all) const {
        constexpr int bytes = used * int(sizeof(T));
        for (int i = 0; i < count; ++i)
            if (all || chosen_[i]) copyPixel<bytes>(dst + i * n, pixels_.pixelOf(i));
    }
    __attribute__((noinline)) void fade(const W* xs, const W* ys, int some, Mask chosen, const T* old,
                                        V* values) const {
        const V x = loadUpTo(xs, some), y = loadUpTo(ys, some);
        const Mask band = chosen & ~within(x, y, 0);
        if (allZero(band)) return;
        const auto outside = [](V v, V first, V last) { return larger(larger(first - v, v - last), V{}); };
        Writer::fade(outside(x, left_, right_), outside(y, top_, bottom_), band, old, values);
    }

    Pixels pixels_;
    const bool smooth_;
    const V left_, top_, right_, bottom_;
    alignas(64) Bits<W> chosen_[most];
};

template <Layout layout, class Kernel, class T>
__attribute__((noinline)) void remapBy(const Remapping<T>& job) {
    Remapper<layout, Kernel, T> remapper(job);
    constexpr Len block = remapper.most;
    eachTileRow(job.roi, Roi(std::max<Len>(64, block), 16), [&](Len y, Len left, Len end) {
        for (Len x = left; x < end; x += block)
            remapper.run(job.xMap.row(y) + x, job.yMap.row(y) + x, job.dst.row(y) + x * layout.channels,
                         int(std::min(block, end - x)));
    });
}

template <class T>
template <Layout layout>
void Remapping<T>::run() const {
    // Integers do not depend on the caller's control word.
    const auto by = [&](auto kernel) {
        toNearestIf<std::is_integral_v<T>>([&] { remapBy<layout, decltype(kernel)>(*this); });
    };
    switch (kind) {
        case INTERP_NEAREST:
            return by(NearestKernel{});
        case INTERP_LINEAR:
            return by(LinearKernel{});
        case INTERP_CUBIC_ALT:
            return by(LagrangeKernel{});
        case INTERP_CUBIC:
            return by(CatmullRomKernel{});
        default:
            return by(LanczosKernel{});
    }
}

}  // namespace zmv
