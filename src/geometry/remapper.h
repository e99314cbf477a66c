// The walker of maps: from a vector of coordinates to pixels.
#pragma once

#include "geometry/remap.h"
#include "kernels/masked.h"
#include "kernels/rounding.h"
#include "kernels/sampler.h"

namespace zmv {

template <class T, int n, class Kernel>
class Remapper {
  public:
    using W = MapOf<T>;
    using V = Vec<W>;
    using Mask = Vec<Bits<W>>;

    Remapper(const Readable<T>& readable, bool smooth, int used)
        : readable_(readable),
          smooth_(smooth),
          used_(used),
          left_(W(readable.left)),
          top_(W(readable.top)),
          right_(W(readable.right)),
          bottom_(W(readable.bottom)) {}

    // The values of up to lanes<W> points, and all ones where there is one; dst: the pixels as they are.
    __attribute__((noinline)) Mask at(const W* xs, const W* ys, const T* dst, int count, V* values) const {
        const V x = loadUpTo(xs, count), y = loadUpTo(ys, count);
        const Mask inside = within(x, y, 0);
        const Mask chosen = smooth_ ? within(x, y, 1) : inside;
        if (allZero(chosen)) return chosen;
        const auto place = [&](V v, W first, W last) {
            return larger(fill(first), smaller(fill(last), (V)(chosen & (Mask)v)));
        };
        const V nearX = place(x, left_, right_), nearY = place(y, top_, bottom_);
        V fx, fy;
        BasePixels<W> base{whole(nearX, fx), whole(nearY, fy)};
        if constexpr (Kernel::taps == 1) {
            base.x -= fromMask((Mask)(fx >= W(0.5)) & inside);
            base.y -= fromMask((Mask)(fy >= W(0.5)) & inside);
        }
        sample<Kernel, W, n>(readable_, base, fx, fy, used_, values);
        if (const Mask band = chosen & ~inside; smooth_ && !allZero(band)) blend(x, y, dst, count, band, values);
        return chosen;
    }

  private:
    Mask within(V x, V y, W more) const {
        return (Mask)(x >= left_ - more) & (Mask)(x <= right_ + more) & (Mask)(y >= top_ - more) &
               (Mask)(y <= bottom_ + more);
    }
    // Whole numbers and fractions of numbers from 0 to 2^31.
    static Places<W> whole(V v, V& fraction) {
        if constexpr (sizeof(W) == 4) {
            const auto beyond = v >= W(2147483648.0);
            const Places<W> base = truncate(v) ^ beyond;
            fraction = beyond ? V{} : v - toFloat(base);
            return base;
        } else {
            Places<W> base;
            for (int i = 0; i < lanes<W>; ++i) base[i] = int32_t(v[i]);
            fraction = v;
            for (int i = 0; i < lanes<W>; ++i) fraction[i] -= base[i];
            return base;
        }
    }
    static Places<W> fromMask(Mask m) {
        if constexpr (sizeof(W) == 4)
            return (Places<W>)m;
        else
            return __builtin_convertvector((Vec<int64_t>)m, Places<W>);
    }
    // Towards the edge of the region what is there fades in.
    void blend(V x, V y, const T* dst, int count, Mask band, V* values) const {
        const auto outside = [](V v, W first, W last) { return larger(larger(first - v, v - last), V{}); };
        const V ax = outside(x, left_, right_), ay = outside(y, top_, bottom_);
        const V both = (1 - ax) * (1 - ay);
        const V source = ay > 0 ? (ax > 0 ? both : 1 - ay) : 1 - ax;
        const V old = ay > 0 ? (ax > 0 ? 1 - both : ay) : ax;
        for (int c = 0; c < used_; ++c) {
            W pixels[lanes<W>] = {};
            for (int i = 0; i < count; ++i) pixels[i] = W(get(dst + i * n + c));
            const V blended = sumInOrder<std::is_floating_point_v<T>>(values[c] * source, load(pixels) * old);
            values[c] = (V)select(band, (Mask)blended, (Mask)values[c]);
        }
    }

    Readable<T> readable_;
    bool smooth_;
    int used_;
    W left_, top_, right_, bottom_;
};

// Destinations are worked in tiles, so that the rows of the source under one stay near whichever way the maps turn.
template <Layout layout, class Kernel, class T>
__attribute__((noinline)) void remapBy(const Remapping<T>& job) {
    using W = MapOf<T>;
    constexpr int n = layout.channels, used = layout.used(), parts = int(sizeof(W) / sizeof(T));
    constexpr Len block = lanes<T>, tileWidth = std::max<Len>(64, block), tileHeight = 16;
    const Remapper<T, n, Kernel> remapper(job.source, job.smooth, used);
    const auto run = [&](Len x, Len y, T* to, int count) {
        std::array<std::array<Vec<W>, parts>, n> values;
        std::array<Vec<Bits<W>>, parts> chosen;
        for (int part = 0; part < parts; ++part) {
            const int first = part * lanes<W>, some = std::min(lanes<W>, count - first);
            Vec<W> channels[n] = {};
            chosen[size_t(part)] = some > 0 ? remapper.at(job.xMap.row(y) + x + first, job.yMap.row(y) + x + first,
                                                          to + first * n, some, channels)
                                            : Vec<Bits<W>>{};
            for (int c = 0; c < n; ++c) values[size_t(c)][size_t(part)] = channels[c];
        }
        writeChosen<layout>(bits(to), joinedMasks<Bits<T>>(chosen), [&] {
            Block<Vec<Bits<T>>, n> planes;
            for (size_t c = 0; c < n; ++c) planes[c] = (Vec<Bits<T>>)joined<T>(values[c]);
            return pixelsOf(planes);
        });
    };
    for (Len top = 0; top < job.roi.height; top += tileHeight)
        for (Len left = 0; left < job.roi.width; left += tileWidth)
            for (Len y = top; y < std::min(top + tileHeight, job.roi.height); ++y)
                for (Len x = left; x < std::min(left + tileWidth, job.roi.width); x += block) {
                    T* const to = job.dst.row(y) + x * n;
                    const int count = int(std::min(block, job.roi.width - x));
                    if (count == block) {
                        run(x, y, to, count);
                        continue;
                    }
                    T pixels[block * n] = {};  // nothing beyond the row
                    const size_t bytes = size_t(rowBytes<T>(count, used, n));
                    std::memcpy(pixels, to, bytes);
                    run(x, y, pixels, count);
                    std::memcpy(to, pixels, bytes);
                }
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
