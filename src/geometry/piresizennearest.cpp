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

    struct Band {
        Len from, to;
        Run runs[3];
        int count;
        Band(Scratch& scratch, const NearestTile& tile, Len begin, Len end)
            : from(begin),
              to(end),
              count(tile.gather.cut(tile.columns, tile.gather.readingFor(tile.columns, from, to), from, to, runs)) {
            for (int i = 0; i < count; ++i)
                if (Lanes::isWindow(runs[i])) tile.gather.take(tile.columns, runs[i], scratch);
        }
    };
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
    void fillBand(const Band& band, const T* from, T* to) const {
        const auto row = reinterpret_cast<const uint8_t*>(from);
        for (int i = 0; i < band.count; ++i) {
            const Run& run = band.runs[i];
            const uint8_t* const base = run.copied ? gather.copyOf(columns, run, row) : row;
            T* const start = to + (run.from - band.from) * gather.n;
            T* const stop = to + (band.to - band.from) * gather.n;
            if constexpr (hasByteShuffle) {
                if (run.reading == Reading::oneWindow) lookUp<Reading::oneWindow>(run, base, start, stop);
                if (run.reading == Reading::twoWindows) lookUp<Reading::twoWindows>(run, base, start, stop);
            }
            if (!gather.isWindow(run)) copyPixels(from, start, run);
        }
    }
    void work(const Band& band) const {
        for (int i = 0; i < band.count; ++i)
            if (gather.isWindow(band.runs[i])) gather.form(columns, band.runs[i]);
        for (Len y = 0; y < tile.size.height; ++y) {
            const Len from = rows.first(tile.offset.y + y), left = (band.from - tile.offset.x) * gather.n;
            T* const row = dst.row(y) + left;
            if (y > 0 && from == rows.first(tile.offset.y + y - 1))
                copyRow(row, dst.row(y - 1) + left, (band.to - band.from) * gather.pixelBytes());
            else
                fillBand(band, src.row(from), row);
        }
    }
    void run() const {
        inBands<Band>(*this, tile, INT64_MAX, [&](const Band& band) { work(band); });
    }
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
