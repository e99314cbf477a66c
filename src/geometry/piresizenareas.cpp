// The mean over small areas of bytes: rows are filtered along in whole numbers, and down, all in 16 bits.
#include "geometry/resizetile.h"

namespace zmv {
namespace {

struct BytesArea {
    using T = uint8_t;
    using U = uint16_t;
    using A = int16_t;
    using Weight = int16_t;  // of two taps
    using ColumnCounts = Counts<1, 2, 0>;
    using RowCounts = Counts<2, 3, 0>;
    static constexpr Len mostRows = 16, mostArea = 128;
    const SuperAxis columns, rows;
    int16_t area, rowWeights[mostRows] = {};
    // n / area is the high half of n * factor, shifted, for all n below 2^15.
    uint16_t factor;
    int shift = 0;

    BytesArea(const SuperAxis& c, const SuperAxis& r) : columns(c), rows(r), area(int16_t(c.whole() * r.whole())) {
        while (2 << shift < area) ++shift;
        factor = uint16_t(((65536 << shift) + area - 1) / area);
    }
    // Worth it where lanes are loaded as windows.
    static bool fits(const SuperAxis& columns, const SuperAxis& rows, int channels) {
        const Len size = columns.whole() * rows.whole();
        const Gather<T, U> gather{channels, 1, {}};
        return size > 1 && size <= mostArea && rows.most() <= mostRows && gather.fitsWindows(columns);
    }
    Len groups() const { return (columns.most() + 1) / 2; }
    Len weightRows() const { return groups(); }
    Len columnCount() const { return groups(); }
    Len rowCount() const { return rows.most(); }
    void putWeights(Len x, Weight* to, Len step) const {
        const Len first = columns.first(x), count = columns.count(x);
        const auto overlap = [&](Len k) { return k < count ? columns.overlap(x, first + k) : 0; };
        for (Len g = 0; g < groups(); ++g, to += step) *to = int16_t(overlap(2 * g) | overlap(2 * g + 1) << 8);
    }
    template <class At, class Count>
    ZMV_INLINE Vec<A> along(At at, const Weight* weights, Len step, Count) const {
        const Len count = Count::value ? Count::value : groups();
        Vec<U> sum{};
        for (Len g = 0; g < count; ++g)
            sum += (Vec<U>)bytePairProducts((Vec<T>)at(g, 0), (Vec<int8_t>)load(weights + g * step));
        return (Vec<A>)sum;
    }
    void setRow(Len y) {
        const Len first = rows.first(y), count = rows.count(y);
        for (Len k = 0; k < rows.most(); ++k) rowWeights[k] = int16_t(k < count ? rows.overlap(y, first + k) : 0);
    }
    // Rounded to nearest, ties to even: only an even area has ties.
    template <class Count>
    ZMV_INLINE auto down(const A* const* rowAt, Count) const {
        constexpr size_t most = Count::value ? Count::value : mostRows;
        const size_t count = Count::value ? Count::value : size_t(rows.most());
        std::array<Vec<U>, most> w{};
        std::array<const A*, most> at{};
        for (size_t k = 0; k < count; ++k) w[k] = (Vec<U>)fill(rowWeights[k]), at[k] = rowAt[k];
        const Vec<U> half = fill(U(area / 2)), by = fill(factor), whole = fill(U(area)), even = fill(U(area % 2 == 0));
        return [ =, right = shift ](Len x) __attribute__((always_inline)) {
            const auto mean = [&](Len i) __attribute__((always_inline)) {
                Vec<U> sum = half;
                for (size_t k = 0; k < count; ++k) sum += (Vec<U>)load(at[k] + i) * w[k];
                const Vec<U> quotient = mulHigh(sum, by) >> right;
                return (Vec<A>)(quotient - ((Vec<U>)(quotient * whole == sum) & quotient & even));
            };
            return joined<T>(std::array{mean(x), mean(x + lanes<A>)});
        };
    }
};

// Two by two pixels of one channel lie as sums want them.
bool halves(const ResizeTile& tile) {
    const auto half = [](const SuperAxis& axis) { return axis.whole() == 2 && axis.parts() == 1; };
    return tile.channels == 1 && half(SuperAxis(tile.header.horizontal)) && half(SuperAxis(tile.header.vertical));
}
void halve(Roi size, Image<const uint8_t> src, Image<uint8_t> dst) {
    for (Len y = 0; y < size.height; ++y) {
        const uint8_t *const top = src.row(2 * y), *const bottom = src.row(2 * y + 1);
        const auto means = [&](Len x, auto read) __attribute__((always_inline)) {
            const auto mean = [&](Len i) __attribute__((always_inline)) {
                const auto sum = pairSums(read(top, i)) + pairSums(read(bottom, i));
                return (Vec<int16_t>)((sum + 1 + (sum >> 2 & 1)) >> 2);  // ties to even
            };
            return joined<uint8_t>(std::array{mean(2 * x), mean(2 * x + lanes<uint8_t>)});
        };
        uint8_t* const to = dst.row(y);
        Len x = 0;
        for (; x + lanes<uint8_t> <= size.width; x += lanes<uint8_t>)
            store(to + x, means(x, [](const uint8_t* row, Len i) { return load(row + i); }));
        const auto end = [&](const uint8_t* row, Len i) {
            const Len left = 2 * size.width - i;
            return left > 0 ? loadUpTo(row + i, int(std::min<Len>(left, lanes<uint8_t>))) : Vec<uint8_t>{};
        };
        if (x < size.width) storePart(to + x, means(x, end), int(size.width - x));
    }
}

}  // namespace

bool hasSmallAreas(const ResizeTile& tile) {
    return halves(tile) ||
           BytesArea::fits(SuperAxis(tile.header.horizontal), SuperAxis(tile.header.vertical), tile.channels);
}
void ownpi_ResizeSmallAreas(const ResizeTile& tile, Image<const uint8_t> src, Image<uint8_t> dst) {
    if (halves(tile)) return halve(tile.size, src, dst);
    const SuperAxis columns(tile.header.horizontal), rows(tile.header.vertical);
    TileFilter<BytesArea, SuperAxis>(tile, columns, rows, src, dst).run();
}

}  // namespace zmv
