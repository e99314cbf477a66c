// Super-sampling: the mean over the area of the source that a destination pixel covers.  Overlaps are whole numbers in
// units of one over the reduced destination size.  Sums of columns come first; of small areas of bytes in 16 bits, else
// in double, which holds those of integers exactly.
#include "geometry/gather.h"
#include "geometry/resize.h"
#include "geometry/resizeaxis.h"
#include "kernels/rounding.h"
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

// Areas of few columns, in vectors: the line of sums is looked up as rows of pixels are.
template <class T, class Line>
class AreaTile {
    static constexpr bool bytes = sizeof(Line) == 2;  // areas of bytes whose sums are that small
    using U = std::conditional_t<bytes, uint32_t, uint64_t>;
    using Weight = std::conditional_t<bytes, uint32_t, double>;  // of two columns, or of one
    using Sum = std::conditional_t<bytes, int32_t, double>;
    using Lanes = Gather<Line, U>;
    static constexpr Len mostColumns = 16;

  public:
    AreaTile(const ResizeTile& tile, Image<const T> src, Image<T> dst)
        : tile_(tile),
          src_(src),
          dst_(dst),
          n_(tile.channels),
          columns_(tile.header.horizontal),
          rows_(tile.header.vertical) {
        const Len area = columns_.whole() * rows_.whole();
        area_ = double(area);
        // A factor where it gives the quotient's bits: exactly, or of bytes near enough to tell halves, which an odd
        // area does not have.
        factor_ = (area & (area - 1)) == 0 || (bytes && area % 2 && area <= 4096) ? 1 / area_ : 0;
        groups_ = (columns_.most() + Lanes::q - 1) / Lanes::q;
    }
    // Up to this size a quotient in float is nearer to its integer than to the next one, and exact at a half.
    static bool fits(const SuperAxis& columns, const SuperAxis& rows) {
        if (columns.most() > mostColumns) return false;
        return !bytes || (rows.whole() <= 128 && columns.whole() <= 128 && columns.whole() * rows.whole() <= 1 << 14);
    }
    void run() {
        constexpr Len near = 32768;  // bytes
        inBands<Band>(*this, tile_, near, [&](Band& band) { work(band); });
    }

  private:
    // Columns whose sums stay near, and their memory.
    struct Band {
        Len from, elements, first, count, vectors;  // the sums' first column and their number; vectors of results
        Lanes gather;
        Run run;
        Len lineBytes;
        Line* line;
        Weight* weights;

        Band(Scratch& scratch, const AreaTile& tile, Len begin, Len end)
            : from(begin),
              elements((end - begin) * tile.n_),
              first(tile.columns_.first(begin)),
              count((tile.columns_.end(end - 1) - first) * tile.n_),
              vectors((elements + lanes<U> - 1) / lanes<U>),
              gather{tile.n_,
                     tile.groups_,
                     {first, first + count / tile.n_ + mostColumns, INT64_MAX, INT64_MAX, BORDER_REPL}},
              run{begin, end, gather.readingFor(tile.columns_, begin, end)},
              lineBytes((count + mostColumns * tile.n_) * Len(sizeof(Line)) + 2 * vectorBytes),
              line(reinterpret_cast<Line*>(scratch.take<uint8_t, 64>(lineBytes))),
              weights(scratch.take<Weight, 64>(vectors * lanes<U> * tile.weightRows())) {
            gather.take(tile.columns_, run, scratch);
            run.copied = true, run.origin = first;  // the line stands for a row
        }
    };
    Len weightRows() const { return bytes ? groups_ : columns_.most() + 1; }
    void work(const Band& band) const {
        std::memset(band.line, 0, size_t(band.lineBytes));
        band.gather.form(columns_, band.run);
        formWeights(band.weights, band.from, band.elements, band.vectors);
        for (Len y = 0; y < tile_.size.height; ++y) {
            sumColumns(band.line, tile_.offset.y + y, band.first * n_, band.count);
            T* const row = dst_.row(y) + (band.from - tile_.offset.x) * n_;
            if constexpr (hasByteShuffle) {
                if (band.run.reading == Reading::oneWindow) along<Reading::oneWindow>(band, row);
                if (band.run.reading == Reading::twoWindows) along<Reading::twoWindows>(band, row);
            }
            if (band.run.reading == Reading::elements) along<Reading::elements>(band, row);
        }
    }
    void formWeights(Weight* weights, Len x, Len elements, Len vectors) const {
        Len c = 0;
        for (Len e = 0; e < vectors * lanes<U>; ++e) {
            Weight* to = weights + e / lanes<U> * lanes<U> * weightRows() + e % lanes<U>;
            const Len first = columns_.first(x), count = columns_.count(x);
            const auto overlap = [&](Len k) { return k < count ? columns_.overlap(x, first + k) : 0; };
            if constexpr (!bytes) *to = double(count), to += lanes<U>;
            for (Len g = 0; g < (bytes ? groups_ : columns_.most()); ++g, to += lanes<U>)
                *to = bytes ? Weight(overlap(2 * g) | overlap(2 * g + 1) << 16) : Weight(overlap(g));
            if (e + 1 < elements && ++c == n_) c = 0, ++x;
        }
    }
    // Of the rows of an area only the first and the last can lie in it in part.
    void sumColumns(Line* line, Len y, Len first, Len count) const {
        const Len top = rows_.first(y), bottom = rows_.end(y) - 1;
        const auto weight = [&](Len row) { return fill(Line(rows_.overlap(y, row))); };
        const auto atTop = weight(top), between = fill(Line(rows_.parts())), atBottom = weight(bottom);
        const T* const row = src_.row(top) + first;
        const auto sums = [&](Len e, auto pixels) __attribute__((always_inline)) {
            Image<const T> at{row + e, src_.step};
            auto sum = times(pixels(at.data), atTop);
            for (Len r = top + 1; r < bottom; ++r)
                at.data = at.row(1), sum = plus(sum, times(pixels(at.data), between));
            if (bottom > top) sum = plus(sum, times(pixels(at.row(1)), atBottom));
            store(line + e, sum);
        };
        Len e = 0;
        for (; e + lanes<Line> <= count; e += lanes<Line>) sums(e, [](const T* p) { return loadWiden<Line>(p); });
        if (e < count) sums(e, [&](const T* p) { return loadWidenPart<Line>(p, int(count - e)); });
    }
    template <class V>
    ZMV_INLINE static V times(V a, V b) {
        if constexpr (bytes)
            return a * b;
        else
            return mulInOrder(a, b);
    }
    template <class V>
    ZMV_INLINE static V plus(V a, V b) {
        if constexpr (bytes)
            return a + b;
        else
            return addInOrder(a, b);
    }
    template <Reading reading>
    void along(const Band& band, T* row) const {
        const auto gather = band.gather;
        const auto run = band.run;
        const auto base = reinterpret_cast<const uint8_t*>(band.line);
        const Weight* const weights = band.weights;
        const Len elements = band.elements;
        const Len next = lanes<U> * weightRows(), fewest = columns_.fewest(), columns = columns_.most(),
                  groups = groups_;
        const auto factor = fill(float(factor_)), area = fill(float(area_));
        const auto factors = fill(factor_), areas = fill(area_);
        const auto meanAt = [&](Len v) __attribute__((always_inline)) {
            const Weight* w = weights + v * next;
            const auto at = [&](Len g) __attribute__((always_inline)) {
                return gather.template at<reading>(run, base, v, g);
            };
            if constexpr (bytes) {
                auto sum = pairProducts((Vec<int16_t>)at(0), (Vec<int16_t>)load(w));
                for (Len g = 1; g < groups; ++g)
                    sum += pairProducts((Vec<int16_t>)at(g), (Vec<int16_t>)load(w + g * lanes<U>));
                return roundToInt(factor_ != 0 ? toFloat(sum) * factor : toFloat(sum) / area);
            } else {
                const auto counts = load(w);
                auto sum = mulInOrder((Vec<double>)at(0), load(w + lanes<U>));
                for (Len k = 1; k < columns; ++k) {
                    const auto sums = addInOrder(sum, mulInOrder((Vec<double>)at(k), load(w + (k + 1) * lanes<U>)));
                    sum = k < fewest
                              ? sums
                              : (Vec<double>)select((Vec<U>)(counts > fill(double(k))), (Vec<U>)sums, (Vec<U>)sum);
                }
                return factor_ != 0 ? sum * factors : sum / areas;
            }
        };
        constexpr int together = int(sizeof(U) / sizeof(T));
        const Len last = band.vectors - 1;
        for (Len e = 0, v = 0; e < elements; e += lanes<T>, v += together) {
            std::array<Vec<Sum>, together> means;
            unrolled<together>([&](auto i)
                                   __attribute__((always_inline)) { means[i] = meanAt(std::min(v + i, last)); });
            storeUpTo(row + e, joined<T>(means), int(std::min<Len>(lanes<T>, elements - e)));
        }
    }

    const ResizeTile& tile_;
    const Image<const T> src_;  // at column and row 0 of the source
    const Image<T> dst_;
    const int n_;
    const SuperAxis columns_, rows_;
    double area_, factor_;
    Len groups_;
};

// Areas of any size, pixel by pixel.
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
    const SuperAxis columns(tile.header.horizontal), rows(tile.header.vertical);
    const Len area = columns.whole() * rows.whole();
    toNearestIf<std::is_integral_v<T>>([&] {
        if constexpr (sizeof(T) == 1)
            if (hasSmallAreas(tile)) return ownpi_ResizeSmallAreas(tile, src, dst);
        if constexpr (sizeof(T) == 1)
            if (AreaTile<T, uint16_t>::fits(columns, rows))
                return apart([&] { AreaTile<T, uint16_t>(tile, whole, dst).run(); });
        if constexpr (std::is_integral_v<T>)
            if (area >= mostInDouble) return SuperTile<T, __int128>{tile, whole, dst}.run();
        if (AreaTile<T, double>::fits(columns, rows))
            return apart([&] { AreaTile<T, double>(tile, whole, dst).run(); });
        SuperTile<T, double>{tile, whole, dst}.run();
    });
}
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const uint8_t>, Image<uint8_t>);
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const uint16_t>, Image<uint16_t>);
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const int16_t>, Image<int16_t>);
template void ownpi_ResizeSuperTile(const ResizeTile&, Image<const float>, Image<float>);

}  // namespace zmv
