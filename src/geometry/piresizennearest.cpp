// Resizing by the nearest pixel: rows are looked up, or copied from the row above where they take the same one.
#include "geometry/gather.h"
#include "geometry/resize.h"

namespace zmv {
namespace {

template <class T>
struct NearestTile {
    using Lanes = Gather<T, T>;
    const ResizeTile& tile;
    const ResizeAxis<float> columns, rows;
    Image<const T> src;
    Image<T> dst;
    const Lanes gather;
    Run runs[3] = {};
    int count = 0;
    uint8_t copies[2][Lanes::mostCopied] = {};

    template <Reading reading>
    void lookUp(const Run& run, const uint8_t* base, T* row, T* end) const {
        for (Len v = 0; v < Lanes::vectors(run, gather.n); ++v, row += lanes<T>)
            storeUpTo(row, gather.template at<reading>(run, base, v, 0), int(std::min<Len>(lanes<T>, end - row)));
    }
    // Pixel by pixel, where they are too far apart for a vector, or shuffles are missing.
    void copyPixels(const T* row, T* to, const Run& run) const {
        const auto copy = [&](auto n) {
            for (Len x = run.from; x < run.to; ++x, to += n)
                __builtin_memcpy(to, row + columns.first(x) * n, size_t(n) * sizeof(T));
        };
        if (gather.n == 1) copy(std::integral_constant<int, 1>{});
        if (gather.n == 3) copy(std::integral_constant<int, 3>{});
        if (gather.n == 4) copy(std::integral_constant<int, 4>{});
    }
    // Runs may write behind themselves what later ones write again.
    void fillBand(const T* from, T* to, Len first, Len end) {
        const auto row = reinterpret_cast<const uint8_t*>(from);
        for (int i = 0; i < count; ++i) {
            const Run& run = runs[i];
            if (run.copy >= 0) gather.copyEnd(columns, run, row, copies[run.copy]);
            const uint8_t* const base = run.copy >= 0 ? copies[run.copy] : row;
            T* const start = to + (run.from - first) * gather.n;
            T* const stop = to + (end - first) * gather.n;
            if constexpr (hasByteShuffle) {
                if (run.reading == Reading::oneWindow) lookUp<Reading::oneWindow>(run, base, start, stop);
                if (run.reading == Reading::twoWindows) lookUp<Reading::twoWindows>(run, base, start, stop);
            }
            if (!gather.isWindow(run)) copyPixels(from, start, run);
        }
    }
    void run() {
        uint8_t tables[tableRoom];
        const Len vectors = tableRoom / (Lanes::tableBytes(Reading::oneWindow) + 8) - 3,
                  width = std::max<Len>(vectors * lanes<T> / gather.n, 1);
        const Len end = tile.offset.x + tile.size.width;
        for (Len x = tile.offset.x; x < end; x += width) {
            const Len to = std::min(x + width, end);
            Scratch scratch(tables);
            count = gather.cut(columns, x, to, runs);
            for (int i = 0; i < count; ++i)
                if (gather.isWindow(runs[i])) gather.form(columns, runs[i], scratch);
            for (Len y = 0; y < tile.size.height; ++y) {
                const Len from = rows.first(tile.offset.y + y);
                T* const row = dst.row(y) + (x - tile.offset.x) * gather.n;
                if (y > 0 && from == rows.first(tile.offset.y + y - 1))
                    copyRow(row, dst.row(y - 1) + (x - tile.offset.x) * gather.n, (to - x) * gather.pixelBytes());
                else
                    fillBand(src.row(from), row, x, to);
            }
        }
    }
    static constexpr Len tableRoom = 8192;
};

}  // namespace

template <class T>
void ownpi_ResizeNearestTile(const ResizeTile& tile, Image<const T> src, Image<T> dst) {
    const auto columns = columnsOf<float>(tile.header, tile.object), rows = rowsOf<float>(tile.header, tile.object);
    const At first = sourceOffset(tile.header, tile.offset);
    const Len from = columns.first(tile.offset.x), end = columns.end(tile.offset.x + tile.size.width - 1);
    NearestTile<T>{tile, columns,
                   rows, src.at(-first.x * tile.channels, -first.y),
                   dst,  {tile.channels, 1, {from, end, end - 1, columns.src, BORDER_REPL}}}
        .run();
}
template void ownpi_ResizeNearestTile(const ResizeTile&, Image<const uint8_t>, Image<uint8_t>);
template void ownpi_ResizeNearestTile(const ResizeTile&, Image<const uint16_t>, Image<uint16_t>);
template void ownpi_ResizeNearestTile(const ResizeTile&, Image<const uint32_t>, Image<uint32_t>);

}  // namespace zmv
