// Regions with rows and columns changed, for every width of pixels.
#pragma once

#include "core/streaming.h"
#include "kernels/rows.h"

namespace zmv {

using Bytes = Image<uint8_t>;
using ConstBytes = Image<const uint8_t>;
template <class T>
Bytes bytesOf(Image<T> image) {
    return {reinterpret_cast<uint8_t*>(image.data), image.step};
}
template <class T>
ConstBytes bytesOf(Image<const T> image) {
    return {reinterpret_cast<const uint8_t*>(image.data), image.step};
}

// dst = src transposed; both are images of pixels of so many bytes that do not overlap, roi is that of src.
template <int pixel>
class Transposer {
  public:
    // asks: whether it may be written past the caches.
    template <bool asks = false>
    static void region(ConstBytes src, Bytes dst, Roi roi) {
        const bool pastCache = asks && writesPastCache(2 * roi.width * roi.height * pixel);
        if constexpr (inVectors) {
            if (roi.width >= across && roi.height >= lineRows) {
                const bool aligned = (reinterpret_cast<uintptr_t>(dst.data) | uintptr_t(dst.step)) % line == 0;
                if (!aligned) return tiles<std::min(vectorBytes, line / 2), lineRows>(src, dst, roi);
                if (!pastCache) return tiles<vectorBytes, lineRows>(src, dst, roi);
                tiles<vectorBytes, lineRows, asks>(src, dst, roi);
                return fence();
            }
            if (roi.width >= across && roi.height >= across) return tiles<16, across>(src, dst, roi);
        }
        pixels(src, dst, roi);
    }

  private:
    static constexpr bool inVectors = 16 % pixel == 0;
    static constexpr int across = 16 / pixel;  // pixels of a lane
    static constexpr int line = int(lineBytes),
                         lineRows = line / pixel;  // rows that make a cache line of the destination
    static constexpr int blockLines = 2;           // cache lines of a row of a block of columns
    static constexpr Len block = blockLines * line / pixel;

    // From so many bytes read and written on, what the nearest cache cannot hold is fetched ahead.
    static constexpr Len farFrom = 256 << 10;

    // Rows of the source that make a vector of the destination, and a lane of columns.
    template <int size>
    static ZMV_INLINE void tile(const uint8_t* src, Len srcStep, uint8_t* dst, Len dstStep) {
        using T = typename UnsignedOf<std::min(pixel, 8)>::type;
        Block<Vec<T, size>, across> rows;
        for (int i = 0; i < across; ++i)
            rows[i] = loadLanes<T, size>(reinterpret_cast<const T*>(src + i * srcStep), across * srcStep);
        rows = transposed<across, Vec<T, size>>(rows);
        for (int i = 0; i < across; ++i) store(dst + i * dstStep, rows[i]);
    }
    static ZMV_INLINE void streamLines(const uint8_t* lines, uint8_t* dst, Len dstStep) {
        for (int i = 0; i < across; ++i) {
            const uint8_t* const from = lines + i * line;
            streamLine(dst + i * dstStep, [&](int k) { return loadAs<Vec<uint8_t>>(from + k * vectorBytes); });
        }
    }

    // A tile's share of what the next band of rows reads and writes: rows that start far apart are no sequence that the
    // processor would fetch ahead by itself.  It is a hint, which no memory need stand behind.
    template <int down>
    static ZMV_INLINE void fetchAhead(const uint8_t* src, Len srcStep, uint8_t* dst, Len dstStep, unsigned tile) {
        constexpr unsigned share = down * blockLines * across / block;
        for (unsigned i = tile * share; i < tile * share + share; ++i)
            prefetch(src + Len(i / blockLines) * srcStep + i % blockLines * line);
        for (int i = 0; i < across; ++i) prefetch(dst + i * dstStep);
    }

    // Columns in blocks, so that the destination's lines stay in the nearest cache until the next band of rows goes on
    // with them.  The last band and the last columns go over pixels that are done already; past the caches the last
    // band leaves whole lines alone.
    template <int size, int down, bool streaming = false>
    static void tiles(ConstBytes src, Bytes dst, Roi roi) {
        constexpr int tileRows = size / pixel;
        const bool far = 2 * roi.width * roi.height * pixel >= farFrom;
        alignas(line) uint8_t lines[streaming ? across * line : 1];
        for (Len x0 = 0; x0 < roi.width; x0 += block)
            for (Len y = 0; y < roi.height; y += down) {
                const Len row = std::min(y, roi.height - down), next = std::min(y + down, roi.height - down);
                for (Len x = x0; x < std::min(x0 + block, roi.width); x += across) {
                    const Len column = std::min(x, roi.width - across);
                    uint8_t* const to = dst.row(column) + row * pixel;
                    if (far && !streaming)
                        fetchAhead<down>(src.row(next) + x0 * pixel, src.step, dst.row(column) + next * pixel, dst.step,
                                         unsigned(x - x0) / across);
                    for (int part = 0; part < down; part += tileRows)
                        tile<size>(src.row(row + part) + column * pixel, src.step,
                                   (streaming ? lines : to) + part * pixel, streaming ? line : dst.step);
                    if (!streaming) continue;
                    if (row == y) streamLines(lines, to, dst.step);
                    const Len done = (y - row) * pixel;
                    for (int i = 0; done > 0 && i < across; ++i)
                        copyRow(dst.row(column + i) + y * pixel, lines + i * line + done, line - done);
                }
            }
    }

    static void pixels(ConstBytes src, Bytes dst, Roi roi) {
        constexpr Len side = 16;
        for (Len y0 = 0; y0 < roi.height; y0 += side)
            for (Len x0 = 0; x0 < roi.width; x0 += side)
                for (Len x = x0; x < std::min(x0 + side, roi.width); ++x)
                    for (Len y = y0; y < std::min(y0 + side, roi.height); ++y)
                        copyPixel<pixel>(dst.row(x) + y * pixel, src.row(y) + x * pixel);
    }
};

// Squares that fit a block of memory on the way.
template <int pixel>
struct Square {
    static constexpr Len side = pixel <= 2 ? 64 : pixel <= 8 ? 32 : 16;
    alignas(64) uint8_t memory[side * side * pixel];
    Bytes image() { return {memory, side * pixel}; }
};

template <Layout layout, bool asks, class T>
void transpose(Image<const T> src, Image<T> dst, Roi roi) {
    constexpr int pixel = layout.channels * int(sizeof(T));
    if constexpr (!layout.alpha) {
        Transposer<pixel>::template region<asks>(bytesOf(src), bytesOf(dst), roi);
    } else {
        Square<pixel> square;
        const Pattern moved = Pattern::mask<T>(layout.used(), layout.channels);
        for (Len y = 0; y < roi.height; y += square.side)
            for (Len x = 0; x < roi.width; x += square.side) {
                const Roi part(std::min(square.side, roi.width - x), std::min(square.side, roi.height - y));
                Transposer<pixel>::region(bytesOf(src.at(x * layout.channels, y)), square.image(), part);
                for (Len i = 0; i < part.width; ++i)
                    blendRow(dst.row(x + i) + y * layout.channels, fromRow(square.image().row(i)), moved,
                             rowBytes<T>(part.height, layout.used(), layout.channels));
            }
    }
}

// A square region: squares change places across the diagonal.
template <int pixel>
void transposeInPlace(Bytes image, Len side) {
    Square<pixel> square;
    for (Len y = 0; y < side; y += square.side)
        for (Len x = y; x < side; x += square.side) {
            const Roi upper(std::min(square.side, side - x), std::min(square.side, side - y));
            const Bytes above = image.at(x * pixel, y), below = image.at(y * pixel, x);
            Transposer<pixel>::region(above, square.image(), upper);
            if (x > y) Transposer<pixel>::region(below, above, {upper.height, upper.width});
            for (Len i = 0; i < upper.width; ++i) copyRow(below.row(i), square.image().row(i), upper.height * pixel);
        }
}

}  // namespace zmv
