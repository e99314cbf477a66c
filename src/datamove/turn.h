// Rows in another order: of channels inside the pixels, of pixels inside the row, or both.
#pragma once

#include "kernels/rows.h"

namespace zmv {

// The first `used` of n channels in another order.  Each channel is read at its distance from where it goes, and masks
// put the channels together: the same few operations for every order, and no byte shuffle needed.
template <class T, int n, int used = n>
class ChannelOrder {
  public:
    using V = Vec<uint8_t>;
    static constexpr Len reach = (n - 1) * Len(sizeof(T));  // how far beyond a vector its channels may lie

    explicit ChannelOrder(const int* order) {
        for (int c = 0; c < used; ++c) distances_.of[c] = (order[c] - c) * Len(sizeof(T));
        const Pattern numbers(channelNumbers, Layout{n});
        for (int phase = 0; phase < phases; ++phase)
            for (int c = 0; c < n; ++c) masks_[phase].of[c] = (V)((Vec<T>)numbers.at(phase * Len(sizeof(T))) == T(c));
    }
    struct Distances {
        Len of[used];
    };
    struct Masks {
        V of[n];
    };
    const Distances& distances() const { return distances_; }
    // For a vector that starts so many bytes behind, or before, the start of a pixel.
    const Masks& masks(Len offset) const { return masks_[phases == 1 ? 0 : (offset / Len(sizeof(T)) % n + n) % n]; }
    template <bool edge = false>
    static ZMV_INLINE V at(const uint8_t* p, const Distances& distances, const Masks& masks) {
        V merged{};
        for (int c = 0; c < used; ++c)
            merged |= edge ? loadWhere(masks.of[c], p + distances.of[c]) : loadAs<V>(p + distances.of[c]) & masks.of[c];
        return merged;
    }
    // The same for the vector at offset `at` of a row, reading no byte beyond the row's.
    V atEdge(const uint8_t* row, Len bytes, Len at) const {
        if (loadsWhere && bytes >= width) return this->at<true>(row + at, distances_, masks(at));
        constexpr Len margin = 16;
        static_assert(reach <= margin);
        uint8_t around[width + 2 * margin];
        const Len from = std::max<Len>(at - margin, 0), to = std::min(at + width + margin, bytes);
        copyRow(around + margin + from - at, row + from, to - from);
        return this->at(around + margin, distances_, masks(at));
    }

  private:
    static constexpr T channelNumbers[4] = {0, 1, 2, 3};
    static constexpr int phases = n == 3 ? n : 1;  // places in a pixel where a vector of a row may start
    Distances distances_ = {};
    Masks masks_[phases];
};

// dst = src with its channels in that order, in a row of so many pixels; reversed, the last pixel comes first and the
// channels in the opposite order.  The rows do not overlap.
template <bool reversed, class T, int n, int used>
void reorderRow(const ChannelOrder<T, n, used>& order, T* dst, const T* src, Len pixels) {
    const auto to = reinterpret_cast<uint8_t*>(dst);
    const auto from = reinterpret_cast<const uint8_t*>(src);
    const Len bytes = pixels * n * Len(sizeof(T));
    const auto source = [&](Len at) { return reversed ? bytes - width - at : at; };
    const auto placed = [&](auto v, [[maybe_unused]] auto old, [[maybe_unused]] const auto& masks) {
        if constexpr (used < n) v |= old & masks.of[used];
        if constexpr (reversed) v = opposite<int(sizeof(T))>(v);
        return v;
    };
    if (bytes < width) {
        const auto old = loadPart(to, int(bytes));
        return storePart(to, placed(order.atEdge(from, bytes, source(0)), old, order.masks(0)), int(bytes));
    }
    const auto edge = [&](Len at) {
        store(to + at, placed(order.atEdge(from, bytes, source(at)), load(to + at), order.masks(at)));
    };
    edge(0);
    // Of their own, so that no store can change them.
    const auto distances = order.distances();
    const typename ChannelOrder<T, n, used>::Masks masks[3] = {
        order.masks(source(width)), order.masks(source(2 * width)), order.masks(source(3 * width))};
    Len done = eachVector(width, bytes - order.reach, [&](Len at, auto k) {
        const auto v = order.at(from + source(at), distances, masks[k]);
        store(to + at, placed(v, used < n ? load(to + at) : v, masks[k]));
    });
    for (; bytes - done > width; done += width) edge(done);
    edge(bytes - width);
}

// Rows of pixels of n channels, the last pixel first.  The rows do not overlap.
template <class T, int n>
class RowReverser {
  public:
    void operator()(T* dst, const T* src, Len pixels) const {
        if constexpr (n == 3)
            reorderRow<true>(order_, dst, src, pixels);
        else
            reverse(reinterpret_cast<uint8_t*>(dst), reinterpret_cast<const uint8_t*>(src), pixels * pixel);
    }

  private:
    static constexpr int pixel = n * int(sizeof(T));
    static constexpr int backwards[3] = {2, 1, 0};
    struct None {
        explicit None(const int*) {}
    };
    // Three channels: all elements change order, and so do those of each pixel, which thereby keeps its own.
    std::conditional_t<n == 3, ChannelOrder<T, n == 3 ? n : 1>, None> order_{backwards};

    static void reverse(uint8_t* dst, const uint8_t* src, Len bytes) {
        if (bytes >= width) return vectors<width>(dst, src, bytes);
        if (bytes >= 16) return vectors<16>(dst, src, bytes);
        for (Len at = 0; at < bytes; at += pixel) std::memcpy(dst + at, src + bytes - pixel - at, pixel);
    }
    template <int size>
    static void vectors(uint8_t* dst, const uint8_t* src, Len bytes) {
        using V = Vec<uint8_t, size>;
        const uint8_t* const last = src + bytes - size;
        const auto at = [&](Len offset) { store(dst + offset, opposite<pixel>(loadAs<V>(last - offset))); };
        Len done = 0;
        for (; bytes - done >= 4 * size; done += 4 * size)
            at(done), at(done + size), at(done + 2 * size), at(done + 3 * size);
        for (; bytes - done > size; done += size) at(done);
        at(bytes - size);
    }
};

}  // namespace zmv
