// Super-sampling: the mean over the area of the source that a destination pixel covers.  Overlaps are whole numbers in
// units of one over the reduced destination size.  Of small areas of bytes they are the weights of a filter; else sums
// of columns come first, in double, which holds those of integers exactly.
#include "geometry/resizetile.h"
#include "kernels/rounding.h"
#include "kernels/rows.h"
#include "kernels/simd_convert.h"

namespace zmv {
namespace {

// A mean from its sum and the size of the area.  Up to this size the quotient in double is the exact one, rounded in a
// way that leaves the integer next to it the same; beyond, sums of integers take 128 bits.
constexpr Len mostInDouble = Len(1) << 37;
template <class T>
T meanOf(double sum, Len area) {
    const double mean = sum / double(area);
    if constexpr (std::is_integral_v<T>)
        return T(toWhole(mean));
    else
        return T(mean);
}
// Bit by bit: the mean has 16, and the processor would need the compiler's library to divide 128.
template <class T>
T meanOf(__int128 sum, Len area) {
    int whole = std::numeric_limits<T>::min();
    __int128 rest = sum - __int128(area) * whole;
    for (int bit = 15; bit >= 0; --bit)
        if (const __int128 part = __int128(area) << bit; rest >= part) rest -= part, whole += 1 << bit;
    return T(whole + (2 * rest > area || (2 * rest == area && whole % 2 != 0)));
}

template <class T, class Sum>
struct SuperTile {
    const ResizeTile& tile;
    Image<const T> src;  // at column and row 0 of the source
    Image<T> dst;
    const SuperAxis columns{tile.header.horizontal}, rows{tile.header.vertical};
    const Len n = tile.channels, area = columns.whole() * rows.whole();
    static constexpr Len room = 1024;

    void sumColumns(double* sums, Len y, Len first, Len end) const {
        for (Len r = rows.first(y); r < rows.end(y); ++r) {
            const T* const row = src.row(r) + first * n;
            const auto weight = fill(double(rows.overlap(y, r)));
            for (Len e = 0; e < (end - first) * n; e += lanes<double>) {
                const auto terms = mulInOrder(
                    loadWidenUpTo<double>(row + e, int(std::min<Len>((end - first) * n - e, lanes<double>))), weight);
                store(sums + e, r == rows.first(y) ? terms : addInOrder(load(sums + e), terms));
            }
        }
    }
    void run() const {
        double sums[room + lanes<double>];
        const Len left = tile.offset.x, right = left + tile.size.width;
        for (Len y = 0; y < tile.size.height; ++y) {
            T* to = dst.row(y);
            Len x = left, next = 0;
            Sum sum[4];
            for (Len j = columns.first(left); x < right; j = next) {
                next = std::min(j + room / n, columns.end(right - 1));
                sumColumns(sums, tile.offset.y + y, j, next);
                for (; x < right && columns.first(x) < next; ++x, to += n) {
                    for (Len k = std::max(columns.first(x), j); k < std::min(columns.end(x), next); ++k)
                        for (Len c = 0; c < n; ++c) {
                            const auto column =
                                std::conditional_t<std::is_same_v<Sum, double>, double, Len>(sums[(k - j) * n + c]);
                            const Sum term = Sum(columns.overlap(x, k)) * Sum(column);
                            sum[c] = k == columns.first(x) ? term : added(sum[c], term);
                        }
                    if (columns.end(x) > next) break;
                    for (Len c = 0; c < n; ++c) put(to + c, meanOf<T>(sum[c], area));
                }
            }
        }
    }
    static Sum added(Sum a, Sum b) {
        if constexpr (std::is_same_v<Sum, double>)
            return addInOrder(Vec<double, 16>{a}, Vec<double, 16>{b})[0];
        else
            return a + b;
    }
};

}  // namespace

template <class T>
void ownpi_ResizeSuperTile(const ResizeTile& tile, Image<const T> src, Image<T> dst) {
    const At first = sourceOffset(tile.header, tile.offset);
    const auto whole = src.at(-first.x * tile.channels, -first.y);
    const Len area = SuperAxis(tile.header.horizontal).whole() * SuperAxis(tile.header.vertical).whole();
    toNearestIf<std::is_integral_v<T>>([&] {
        if constexpr (sizeof(T) == 1)
            if (const SuperAxis columns(tile.header.horizontal), rows(tile.header.vertical); Areas::fit(columns, rows))
                return TileFilter<BytesWeighted<SuperAxis, Areas>, SuperAxis>(tile, columns, rows, src, dst).run();
        if constexpr (std::is_integral_v<T>)
            if (area >= mostInDouble) return SuperTile<T, __int128>{tile, whole, dst}.run();
        SuperTile<T, double>{tile, whole, dst}.run();
    });
}
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const uint8_t>, Image<uint8_t>);
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const uint16_t>, Image<uint16_t>);
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const int16_t>, Image<int16_t>);
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const float>, Image<float>);

}  // namespace zmv
