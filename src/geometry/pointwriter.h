// What is made of a block of points: their values as pixels of a destination row, and how the block walks over it.
#pragma once

#include "kernels/masked.h"
#include "kernels/sampler.h"

namespace zmv {

// Destinations are worked in tiles, so that the rows of the source under one stay near whichever way the points turn:
// piece(y, x, end) for the pixels x .. end - 1 of row y.
template <class Piece>
ZMV_INLINE void eachTileRow(Roi roi, Roi tile, const Piece& piece) {
    for (Len top = 0; top < roi.height; top += tile.height)
        for (Len left = 0; left < roi.width; left += tile.width)
            for (Len y = top; y < std::min(top + tile.height, roi.height); ++y)
                piece(y, left, std::min(left + tile.width, roi.width));
}

// between: whether values lie where T has numbers, but for their fractions.
template <Layout layout, class T, bool between>
class PointWriter {
    using W = Formed<T>;
    using V = Vec<W>;
    using Mask = Vec<Bits<W>>;
    static constexpr int n = layout.channels, used = layout.used(), parts = int(sizeof(W) / sizeof(T));

  public:
    // dst: `count` pixels, written where chosen has ones, or all of them.  values(first, old, channels) gives the
    // channels of a vector of points from `first` on, whose pixels are now old.
    template <class Values>
    static ZMV_INLINE void write(T* dst, int count, const Bits<W>* chosen, const Values& values) {
        T last[lanes<T> * n] = {};  // of the last pixels: nothing beyond the row
        for (int first = 0; first < count; first += lanes<T>) {
            T* const to = dst + first * n;
            const bool whole = count - first >= lanes<T>;
            const size_t bytes = size_t(rowBytes<T>(count - first, used, n));
            if (!whole && chosen) std::memcpy(last, to, bytes);
            block(first, whole ? to : last, count, chosen, values);
            if (!whole) std::memcpy(to, last, bytes);
        }
    }
    // Towards the edge of a region what is there fades in: in the band the values give way to the pixels by the
    // distances from the region, of which one is not zero.
    __attribute__((noinline)) static void fade(V ax, V ay, Mask band, const T* old, V* values) {
        const V both = (1 - ax) * (1 - ay);
        const V source = ay > 0 ? (ax > 0 ? both : 1 - ay) : 1 - ax;
        const V rest = ay > 0 ? (ax > 0 ? 1 - both : ay) : ax;
        for (int c = 0; c < used; ++c) {
            V pixels;
            for (int i = 0; i < lanes<W>; ++i) pixels[i] = W(get(old + i * n + c));
            const V blended = sumInOrder<std::is_floating_point_v<T>>(values[c] * source, pixels * rest);
            values[c] = (V)select(band, (Mask)blended, (Mask)values[c]);
        }
    }

    // Of `parts` vectors of values.
    static ZMV_INLINE Vec<T> rounded(const std::array<V, parts>& values) {
        if constexpr (between && std::is_integral_v<T>) {
            std::array<Vec<int32_t>, parts> whole;
            for (size_t i = 0; i < parts; ++i) whole[i] = roundToInt(values[i]);
            return joined<T>(whole);
        } else {
            return joined<T>(values);
        }
    }

  private:
    template <class Values>
    static ZMV_INLINE void block(int first, T* dst, int count, const Bits<W>* chosen, const Values& values) {
        std::array<std::array<V, parts>, n> all;
        std::array<Mask, parts> masks;
        unrolled<parts>([&](auto part) {
            const int at = first + part * lanes<W>;
            masks[part] = Mask{};
            if (at < count) {
                V channels[n];
                if (chosen) masks[part] = load(chosen + at);
                values(at, dst + part * lanes<W> * n, channels);
                for (int c = 0; c < n; ++c) all[size_t(c)][part] = c < used ? channels[c] : V{};
            } else {
                for (int c = 0; c < n; ++c) all[size_t(c)][part] = V{};
            }
        });
        const auto pixels = [&] {
            Block<Vec<Bits<T>>, n> planes;
            for (size_t c = 0; c < n; ++c) planes[c] = (Vec<Bits<T>>)rounded(all[c]);
            return pixelsOf(planes);
        };
        if (chosen)
            writeChosen<layout>(bits(dst), joinedMasks<Bits<T>>(masks), pixels);
        else
            storePixels<n>(bits(dst), pixels());
    }
};

}  // namespace zmv
