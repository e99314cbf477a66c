// A run of pixels whose channels are alike: computed once, written to many rows.
#pragma once

#include "kernels/rows.h"

namespace zmv {

// T: an unsigned integer of the element's width.
template <class T>
class Strip {
    static constexpr Len roomBytes = 4096;

  public:
    // One value a pixel, and what the last vector writes beyond them.
    using Values = T[roomBytes / sizeof(T) + lanes<T>];

    explicit Strip(Layout layout) : layout_(layout), mask_(Pattern::mask<T>(3, 4)) {}
    // The most pixels that there is room for.
    Len most() const { return roomBytes / (layout_.channels * Len(sizeof(T))); }
    // Of one value a pixel, n of them, which stay where they are; then, from any of them on, into a row.
    void spread(const T* values, Len n) {
        pixels_ = values;
        if (layout_.channels > 1) {
            (layout_.channels == 3 ? spreadTo<3> : spreadTo<4>)(room_, values, n);
            pixels_ = room_;
        }
    }
    void write(T* dst, Len first, Len n, bool pastCache) const {
        copy(dst, pixels_ + first * layout_.channels, n, pastCache);
    }
    // The same from pixels that are in memory.
    void copy(T* dst, const T* from, Len n, bool pastCache) const {
        const Len bytes = rowBytes<T>(n, layout_.used(), layout_.channels);
        if (layout_.alpha)
            blendRow(dst, fromRow(from), mask_, bytes);
        else
            (pastCache ? streamRow : copyRow)(dst, from, bytes);
    }

  private:
    template <int channels>
    static void spreadTo(T* to, const T* values, Len n) {
        for (Len x = 0; x < n; x += lanes<T>) {
            Block<Vec<T>, channels> planes;
            planes.fill(load(values + x));
            storePixels<channels>(to + x * channels, pixelsOf(planes));
        }
    }

    const Layout layout_;
    const Pattern mask_;
    const T* pixels_ = nullptr;
    alignas(64) T room_[roomBytes / sizeof(T) + 4 * lanes<T>];
};

}  // namespace zmv
