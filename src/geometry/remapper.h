// The walker of maps: from a vector of coordinates to pixels.
#pragma once

#include "geometry/remap.h"
#include "kernels/masked.h"
#include "kernels/rounding.h"
#include "kernels/rows.h"
#include "kernels/sampler.h"

namespace zmv {

template <Layout layout, class Kernel, class T>
class Remapper {
    using W = MapOf<T>;
    using V = Vec<W>;
    using Mask = Vec<Bits<W>>;
    static constexpr int n = layout.channels, used = layout.used(), parts = int(sizeof(W) / sizeof(T));
    using Pixels = Sampler<Kernel, W, T, n>;

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
            const Mask inside = within(x, y, 0), chosen = smooth_ ? within(x, y, 1) : inside;
            const auto place = [&](V v, V least, V most) {
                return larger(least, smaller(most, (V)(chosen & (Mask)v)));
            };
            pixels_.set(ready, place(x, left_, right_), place(y, top_, bottom_), chosen, inside);
            store(chosen_ + ready, chosen);
            any |= chosen, all &= chosen;
        }
        if (allZero(any)) return;
        if (Kernel::taps == 1 && !smooth_) return copy(dst, count, allZero(~all));
        pixels_.fetch(ready);
        for (int first = 0; first < count; first += lanes<T>) {
            T* const to = dst + first * n;
            const int some = std::min(lanes<T>, count - first);
            if (some == lanes<T>) {
                write(first, xs, ys, to, count);
                continue;
            }
            T last[lanes<T> * n] = {};  // nothing beyond the row
            const size_t bytes = size_t(rowBytes<T>(some, used, n));
            std::memcpy(last, to, bytes);
            write(first, xs, ys, last, count);
            std::memcpy(to, last, bytes);
        }
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
    // A vector of pixels; dst: the pixels as they are.
    ZMV_INLINE void write(int first, const W* xs, const W* ys, T* dst, int count) const {
        std::array<std::array<V, parts>, n> values;
        std::array<Mask, parts> chosen;
        unrolled<parts>([&](auto part) {
            const int at = first + part * lanes<W>, some = std::min(lanes<W>, count - at);
            V channels[n] = {};
            if (some > 0) {
                chosen[part] = load(chosen_ + at);
                pixels_.values(at, used, channels);
                if (smooth_)
                    fade(loadUpTo(xs + at, some), loadUpTo(ys + at, some), dst + part * lanes<W> * n, chosen[part],
                         channels);
            } else {
                chosen[part] = Mask{};
            }
            for (int c = 0; c < n; ++c) values[size_t(c)][part] = channels[c];
        });
        writeChosen<layout>(bits(dst), joinedMasks<Bits<T>>(chosen), [&] {
            Block<Vec<Bits<T>>, n> planes;
            for (size_t c = 0; c < n; ++c) planes[c] = (Vec<Bits<T>>)joined<T>(values[c]);
            return pixelsOf(planes);
        });
    }
    // Towards the edge of the region what is there fades in.
    __attribute__((noinline)) void fade(V x, V y, const T* dst, Mask chosen, V* values) const {
        const Mask band = chosen & ~within(x, y, 0);
        if (allZero(band)) return;
        const auto outside = [](V v, V first, V last) { return larger(larger(first - v, v - last), V{}); };
        const V ax = outside(x, left_, right_), ay = outside(y, top_, bottom_);
        const V both = (1 - ax) * (1 - ay);
        const V source = ay > 0 ? (ax > 0 ? both : 1 - ay) : 1 - ax;
        const V old = ay > 0 ? (ax > 0 ? 1 - both : ay) : ax;
        for (int c = 0; c < used; ++c) {
            V pixels;
            for (int i = 0; i < lanes<W>; ++i) pixels[i] = W(get(dst + i * n + c));
            const V blended = sumInOrder<std::is_floating_point_v<T>>(values[c] * source, pixels * old);
            values[c] = (V)select(band, (Mask)blended, (Mask)values[c]);
        }
    }

    Pixels pixels_;
    const bool smooth_;
    const V left_, top_, right_, bottom_;
    alignas(64) Bits<W> chosen_[most];
};

// Destinations are worked in tiles, so that the rows of the source under one stay near whichever way the maps turn.
template <Layout layout, class Kernel, class T>
__attribute__((noinline)) void remapBy(const Remapping<T>& job) {
    Remapper<layout, Kernel, T> remapper(job);
    constexpr Len block = remapper.most, tileWidth = std::max<Len>(64, block), tileHeight = 16;
    for (Len top = 0; top < job.roi.height; top += tileHeight)
        for (Len left = 0; left < job.roi.width; left += tileWidth)
            for (Len y = top; y < std::min(top + tileHeight, job.roi.height); ++y)
                for (Len x = left; x < std::min(left + tileWidth, job.roi.width); x += block)
                    remapper.run(job.xMap.row(y) + x, job.yMap.row(y) + x, job.dst.row(y) + x * layout.channels,
                                 int(std::min(block, job.roi.width - x)));
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
