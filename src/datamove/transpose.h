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
        if constexpr (inThrees) {
            constexpr Len many = 3 * line / pixel, few = 48 / pixel;  // rows
            if (roi.width >= reach && roi.height >= many) return threes<vectorBytes, many>(src, dst, roi);
            if (roi.width >= reach && roi.height >= few) return threes<16, few>(src, dst, roi);
        }
        pixels(src, dst, roi);
    }

  private:
    static constexpr bool inVectors = 16 % pixel == 0;
    static constexpr bool inThrees = pixel % 3 == 0 && (hasByteShuffle || pixel == 12);
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

    // Pixels of three channels are made four while they change places: a lane has as many as fit then, and reaches over
    // the last of them.
    static constexpr int padded = pixel / 3 * 4, atOnce = 16 / padded, reach = (16 + pixel - 1) / pixel;
    struct Padding {
        alignas(16) uint8_t add[16], drop[16];
        constexpr Padding() : add(), drop() {
            for (int i = 0; i < 16; ++i) {
                add[i] = uint8_t(i % padded < pixel ? i / padded * pixel + i % padded : 128);
                drop[i] = uint8_t(i < atOnce * pixel ? i / pixel * padded + i % pixel : 128);
            }
        }
    };
    template <int size, int down>
    static void threes(ConstBytes src, Bytes dst, Roi roi) {
        using V = Vec<uint8_t, size>;
        using T = typename UnsignedOf<std::min(padded, 8)>::type;
        static constexpr Padding padding;
        const V add = loadLanes<uint8_t, size>(padding.add, 0), drop = loadLanes<uint8_t, size>(padding.drop, 0);
        constexpr Len runBytes = down * pixel, columns = 48 / pixel;
        constexpr int tileRows = size / padded;
        // Of the destination's rows; a lane is written over the end of the one before it.
        uint8_t runs[atOnce][runBytes + 16];
        const Len inLanes = (roi.width - reach) / atOnce * atOnce + atOnce;
        for (Len x0 = 0; x0 < inLanes; x0 += columns)
            for (Len y = 0; y < roi.height; y += down) {
                const Len row = std::min(y, roi.height - down);
                for (Len x = x0; x < std::min(x0 + columns, inLanes); x += atOnce) {
                    for (int part = 0; part < down; part += tileRows) {
                        Block<Vec<T, size>, atOnce> rows;
                        const uint8_t* const from = src.row(row + part) + x * pixel;
                        for (int i = 0; i < atOnce; ++i) {
                            V v = loadLanes<uint8_t, size>(from + i * src.step, atOnce * src.step);
                            if constexpr (atOnce > 1) v = shuffleBytes(v, add);
                            rows[i] = (Vec<T, size>)v;
                        }
                        rows = transposed<atOnce, Vec<T, size>>(rows);
                        for (int i = 0; i < atOnce; ++i) {
                            V v = (V)rows[i];
                            if constexpr (atOnce > 1) v = shuffleBytes(v, drop);
                            storeLanes(runs[i] + part * pixel, v, 12);
                        }
                    }
                    for (int i = 0; i < atOnce; ++i) copyRow(dst.row(x + i) + row * pixel, runs[i], runBytes);
                }
            }
        if (inLanes < roi.width)
            pixels(src.at(inLanes * pixel, 0), dst.at(0, inLanes), {roi.width - inLanes, roi.height});
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
