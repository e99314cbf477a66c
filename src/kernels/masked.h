// Writing some pixels of a block and leaving the others.
#pragma once

#include "kernels/rows.h"
#include "kernels/simd_convert.h"

namespace zmv {

// The masks of several vectors as that of one of T.
template <class T, class V, size_t n>
ZMV_INLINE Vec<T> joinedMasks(const std::array<V, n>& masks) {
    if constexpr (n == 1) {
        return (Vec<T>)masks[0];
    } else {
        std::array<decltype(asSigned(masks[0])), n> signs;
        for (size_t i = 0; i < n; ++i) signs[i] = asSigned(masks[i]);
        return asUnsigned(joined<std::make_signed_t<T>>(signs));
    }
}

// A block of lanes<T> pixels, each written where its lane of chosen is all ones; source() gives their new values, asked
// for only when the block has a pixel to write.
template <Layout layout, class T, class Source>
ZMV_INLINE void writeChosen(T* dst, Vec<T> chosen, const Source& source) {
    using V = Vec<T>;
    constexpr int n = layout.channels;
    if (allZero(chosen)) return;
    if (!layout.alpha && allZero(~chosen)) return storePixels<n>(dst, source());
    Block<V, n> write;
    write.fill(chosen);
    if (layout.alpha) write[n - 1] = V{};
    write = pixelsOf(write);
    auto pixels = source();
    const auto old = loadPixels<n>(dst);
    for (int i = 0; i < n; ++i) pixels[i] = select(write[i], pixels[i], old[i]);
    storePixels<n>(dst, pixels);
}
template <Layout layout, class T, class Source>
ZMV_INLINE void writeMaskedBlock(T* dst, const uint8_t* mask, const Source& source) {
    writeChosen<layout>(dst, (Vec<T>)(loadWiden<T>(mask) != 0), source);
}

// Rows of masked writes; rowSource(y) gives source(x), the block of pixels at x, and source(x, count), a block
// whose first `count` pixels are those at x.
template <Layout layout, class T, class RowSource>
void writeMasked(Image<T> dst, Roi roi, Image<const uint8_t> mask, const RowSource& rowSource) {
    constexpr int n = layout.channels, block = lanes<T>;
    for (Len y = 0; y < roi.height; ++y) {
        T* const d = dst.row(y);
        const uint8_t* const m = mask.row(y);
        const auto source = rowSource(y);
        const auto blockAt = [&](Len x) { writeMaskedBlock<layout>(d + x * n, m + x, [&] { return source(x); }); };
        Len x = 0;
        for (; x + block <= roi.width; x += block) blockAt(x);
        const int rest = int(roi.width - x);
        if (rest == 0) continue;
        if (x > 0) {  // writing some pixels a second time changes nothing
            blockAt(roi.width - block);
            continue;
        }
        T pixels[block * n];
        uint8_t chosen[block] = {};  // nothing beyond the row
        std::memcpy(pixels, d, size_t(rest) * n * sizeof(T));
        std::memcpy(chosen, m, size_t(rest));
        writeMaskedBlock<layout>(pixels, chosen, [&] { return source(0, rest); });
        std::memcpy(d, pixels, size_t(rest) * n * sizeof(T));
    }
}

}  // namespace zmv
