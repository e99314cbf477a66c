// The driver of all filtering methods: a tile is worked off in bands of columns; in each, every source row is filtered
// along once, into a ring of as many rows as a destination row takes, and destination rows are made from the ring.
#pragma once

#include "geometry/resize.h"
#include "geometry/resizerules.h"
#include "geometry/rowlanes.h"
#include "kernels/rounding.h"

namespace zmv {

template <class Rule, class Axis>
class TileFilter {
    using T = typename Rule::T;
    using A = typename Rule::A;
    using U = typename Rule::U;
    using Weight = typename Rule::Weight;
    static constexpr int vectorsOfTaps = int(sizeof(U) / sizeof(A));
    using Lanes = Gather<T, U, vectorsOfTaps>;
    static constexpr bool hasAcross = requires(const Rule& rule, const A* at) { rule.across(at, 0, 0); };

  public:
    TileFilter(const ResizeTile& tile, const Axis& columns, const Axis& rows, Image<const T> src, Image<T> dst)
        : tile_(tile), n_(tile.channels), columns_(columns), rows_(rows), dst_(dst), rule_{columns, rows} {
        const At first = sourceOffset(tile.header, tile.offset);
        src_ = src.at(-first.x * n_, -first.y);  // the pixel at column 0 of row 0
        readableColumns_ = readable(columns, tile.offset.x, tile.size.width, BORDER_IN_MEM_LEFT, BORDER_IN_MEM_RIGHT);
        readableRows_ = readable(rows, tile.offset.y, tile.size.height, BORDER_IN_MEM_TOP, BORDER_IN_MEM_BOTTOM);
        gather_ = Lanes{n_, rule_.groups(), readableColumns_};
        reading_ = gather_.readingFor(columns, tile.offset.x, tile.offset.x + tile.size.width);
        const Len bottom = tile.offset.y + tile.size.height;
        lastRow_ = rows.end(bottom - 1) - 1;
        const Len all = lastRow_ + 1 - rows.first(tile.offset.y);
        allWanted_ = all <= tile.size.height * rows.shape.most;
        if constexpr (hasAcross) across_ = columns.shape.kind == Taps::counted && allWanted_ && all >= lanes<A>;
        if (across_) {  // where memory has room for more than a pixel
            const Len some = tile.offset.x + std::min<Len>(tile.size.width, 8);
            across_ = scratchBytes<Band>(*this, tile.offset.x, some) <=
                      std::max<WideLen>(localBytes, resizeBufferBytes(tile.header, tile.size, n_));
        }
    }
    void run() {
        inBands<Band>(*this, tile_, INT64_MAX, [&](Band& band) { work(band); });
    }

  private:
    ReadableColumns readable(const Axis& axis, Len from, Len count, int lowFlag, int highFlag) const {
        const Len first = axis.first(from), end = axis.end(from + count - 1);
        return {tile_.word & lowFlag ? first : std::max<Len>(first, 0),
                tile_.word & highFlag ? end : std::min(end, axis.src), end - 1, axis.src, tile_.word};
    }

    // Elements from row to row of the ring.  Vectors may end behind a band where there is room.
    Len strideFor(Len elements) const {
        if (across_) return (elements + lanes<A> - 1) / lanes<A> * lanes<A>;
        if (elements > lanes<A>) return (elements + 2 * lanes<A> - 1) / lanes<A> * lanes<A>;
        return (elements * Len(sizeof(A)) + 31) / 32 * 32 / Len(sizeof(A));
    }
    // Rows of a ring: so many as a destination row takes; of narrow bands all, if none is in vain; where rows are
    // filtered together, those that are still wanted and a vector of new ones, which lie one behind the other.
    Len ringRows(Len stride) const {
        const Len most = rows_.shape.most;
        if (across_) return (most + 2 * lanes<A> - 2) / lanes<A> * lanes<A>;
        const Len all = lastRow_ + 1 - rows_.first(tile_.offset.y);
        return allWanted_ ? std::max(most, std::min(all, 4096 / (stride * Len(sizeof(A))))) : most;
    }

    struct Part {
        Run run;
        Weight* weights;
        Len step;  // from weight to weight of an element
    };
    // Columns that are worked off together, and their memory.
    struct Band {
        Len from, to, stride, ringRows;
        A* ring;
        const A** rowAt;
        A* line = nullptr;  // of rows that are filtered together, the vectors of their columns
        Run runs[3];
        int count = 0;
        Part parts[3];
        Len free = 0;  // where in the ring the next row goes

        Band(Scratch& scratch, const TileFilter& tile, Len begin, Len end)
            : from(begin),
              to(end),
              stride(tile.strideFor((to - from) * tile.n_)),
              ringRows(tile.ringRows(stride)),
              ring(scratch.take<A, 64>(ringRows * stride + lanes<T>)),  // results are made of more than there is
              rowAt(scratch.take<const A*, 8>(tile.rows_.shape.most + 1)) {
            if (tile.across_) {
                const Len columns = tile.columns_.end(to - 1) - tile.columns_.first(from);
                line = scratch.take<A, 64>((columns * tile.n_ + lanes<A>)*lanes<A>);
                return;
            }
            const Lanes& gather = tile.gather_;
            count = gather.cut(tile.columns_, tile.reading_, from, to, runs);
            for (int i = 0; i < count; ++i) {
                Part& part = parts[i];
                part.run = runs[i];
                gather.take(tile.columns_, part.run, scratch);
                const Len elements = (part.run.to - part.run.from) * tile.n_;
                part.step = std::min<Len>(elements, lanes<A>);
                part.weights = scratch.take<Weight, 64>((elements + lanes<A> - 1) / lanes<A> * part.step *
                                                            tile.rule_.weightRows() +
                                                        lanes<A> - part.step);  // read as vectors all the same
            }
        }
    };
    void work(Band& band) {
        for (int i = 0; i < band.count; ++i) form(band.parts[i]);
        // Copies of all that the loop reads: where stores cannot reach them.
        const Axis rows = rows_;
        const Image<T> dst = dst_;
        const Len elements = (band.to - band.from) * n_, left = (band.from - tile_.offset.x) * n_, stride = band.stride,
                  ringRows = band.ringRows, most = rows.shape.most, top = tile_.offset.y,
                  bottom = top + tile_.size.height;
        A* const ring = band.ring;
        const A** const rowAt = band.rowAt;
        Rule rule = rule_;
        Len filtered = INT64_MIN;  // rows before this one have been
        for (Len y = top; y < bottom; ++y) {
            const Len first = rows.first(y), end = rows.end(y);
            while (filtered < end) {
                const Len next = std::max(filtered, first);
                // As many rows as the ring holds; where it holds more than a row of results takes, all are wanted.
                filtered = across_ ? next + lanes<A> : ringRows > most ? std::min(first + ringRows, lastRow_ + 1) : end;
                filterRows(band, next, filtered);
            }
            Len slot = band.free - (filtered - first);
            if (slot < 0) slot += ringRows;
            for (Len k = 0; k < end - first; ++k, slot = slot + 1 < ringRows ? slot + 1 : 0)
                rowAt[k] = ring + slot * stride;
            for (Len k = end - first; k <= most; ++k) rowAt[k] = rowAt[0];
            rule.setRow(y);
            T* const to = dst.row(y - top) + left;
            // Rows of an enlargement may take the same rows again.
            if constexpr (requires { typename Rule::TwiceCounts; })
                if (y + 1 < bottom && Rule::TwiceCounts::has(rule.rowCount()) && rows.first(y + 1) == first &&
                    rows.end(y + 1) == end) {
                    Rule next = rule;
                    next.setRow(++y);
                    T* const second = dst.row(y - top) + left;
                    Rule::TwiceCounts::with(
                        rule.rowCount(), [&](auto count) __attribute__((always_inline)) {
                            write(elements, std::array{to, second}, rule.down(rowAt, count), next.down(rowAt, count));
                        });
                    continue;
                }
            Rule::RowCounts::with(
                rule.rowCount(), [&](auto count) __attribute__((always_inline)) {
                    write(elements, std::array{to}, rule.down(rowAt, count));
                });
        }
    }
    // Rows of results, vector by vector.
    template <size_t n, class... Results>
    ZMV_INLINE static void write(Len elements, std::array<T*, n> to, Results... results) {
        Len e = 0;
        for (; e + lanes<T> <= elements; e += lanes<T>) {
            const std::array values{results(e)...};
            for (size_t i = 0; i < n; ++i) store(to[i] + e, values[i]);
        }
        if (e == elements) return;
        const std::array values{results(e)...};
        for (size_t i = 0; i < n; ++i) storePart(to[i] + e, values[i], int(elements - e));
    }
    void form(const Part& part) const {
        gather_.form(columns_, part.run);
        const Len elements = (part.run.to - part.run.from) * n_, numbers = rule_.weightRows();
        Len x = part.run.from;
        int c = 0;
        const Weight* last = nullptr;  // of an element of the same pixel
        Len e = 0;
        if constexpr (requires { rule_.putVectors(x, part.weights); })
            for (; n_ == 1 && e + lanes<A> <= elements; e += lanes<A>, x += lanes<A>)
                rule_.putVectors(x, part.weights + e * numbers);
        for (Len lane = 0; e < (elements + part.step - 1) / part.step * part.step; ++e) {
            Weight* const to = part.weights + (e - lane) * numbers + lane;
            if (c > 0 || e >= elements)
                for (Len k = 0; k < numbers * part.step; k += part.step) to[k] = last[k];
            else
                rule_.putWeights(x, to, part.step);
            last = to;
            if (++lane == part.step) lane = 0;
            if (++c == n_) c = 0, ++x;
        }
    }

    // Rows from .. to of the source, into the ring.
    void filterRows(Band& band, Len from, Len to) const {
        if constexpr (hasAcross)
            if (across_) filterAcross(band, from);
        for (int i = 0; i < band.count; ++i) {
            const Part& part = band.parts[i];
            const auto along = [&]<Reading reading>(std::integral_constant<Reading, reading>) {
                filterPart<reading>(band, part, from, to);
            };
            if constexpr (hasByteShuffle) {
                if (part.run.reading == Reading::oneWindow)
                    along(std::integral_constant<Reading, Reading::oneWindow>{});
                if (part.run.reading == Reading::twoWindows)
                    along(std::integral_constant<Reading, Reading::twoWindows>{});
            }
            if (part.run.reading == Reading::elements) along(std::integral_constant<Reading, Reading::elements>{});
            if (part.run.reading == Reading::mapped) along(std::integral_constant<Reading, Reading::mapped>{});
        }
        band.free = (band.free + to - from) % band.ringRows;
    }
    // lanes<A> rows at once: each a lane of vectors that stand for columns.
    void filterAcross(const Band& band, Len from) const {
        constexpr Len rows = lanes<A>;
        const T* at[rows];
        for (Len r = 0; r < rows; ++r) at[r] = src_.row(readableRows_.at(std::min(from + r, lastRow_)));
        const Len first = columns_.first(band.from), end = columns_.end(band.to - 1),
                  inside = std::max(first, readableColumns_.from),
                  outside = std::max(inside, std::min(end, readableColumns_.to));
        intoLanes(at, inside * n_, (outside - inside) * n_, band.line + (inside - first) * n_ * rows);
        const auto mapped = [&](Len j, Len stop) {
            for (; j < stop; ++j)
                for (Len e = 0; e < n_ * rows; ++e)
                    band.line[(j - first) * n_ * rows + e] =
                        A(get(at[e % rows] + readableColumns_.at(j) * n_ + e / rows));
        };
        mapped(first, std::min(inside, end)), mapped(outside, end);
        const Rule rule = rule_;
        const Len elements = (band.to - band.from) * n_;
        A* const to = band.ring + band.free * band.stride;
        alignas(64) A square[rows * rows];
        Len x = band.from, c = 0;
        for (Len e = 0; e < elements; e += rows) {
            for (Len i = 0; i < rows; ++i) {
                const A* const taps = band.line + ((columns_.first(x) - first) * n_ + c) * rows;
                store(square + i * rows, rule.across(taps, n_ * rows, x));
                if (e + i + 1 < elements && ++c == n_) c = 0, ++x;
            }
            turnSquare(square, to + e, band.stride);
        }
    }
    template <Reading reading>
    void filterPart(const Band& band, const Part& part, Len fromRow, Len toRow) const {
        const Len begin = (part.run.from - band.from) * n_, elements = (part.run.to - part.run.from) * n_;
        const Len step = part.step, next = step * rule_.weightRows();
        // Taps looked up one by one are few: one loop will do.
        using Known = std::conditional_t<reading == Reading::mapped, Counts<0>, typename Rule::ColumnCounts>;
        Known::with(rule_.columnCount(), [&](auto count) {
            // Copies of all that the loop reads: where stores cannot reach them.
            const auto rule = rule_;
            const auto gather = gather_;
            const auto run = part.run;
            const Len apart = step, further = next, all = elements;
            const Len whole = std::min(all, band.stride - begin - lanes<A> + 1);  // vectors that may end behind the run
            Len slot = band.free;
            for (Len r = fromRow; r < toRow; ++r, slot = slot + 1 < band.ringRows ? slot + 1 : 0) {
                auto from = reinterpret_cast<const uint8_t*>(src_.row(readableRows_.at(r)));
                if (run.copied) from = gather_.copyOf(columns_, part.run, from);
                const Weight* weights = part.weights;
                A* const to = band.ring + slot * band.stride + begin;
                Len v = 0, e = 0;
                const auto sums = [&](int ahead) __attribute__((always_inline)) {
                    const auto at = [&](Len g, int p) __attribute__((always_inline)) {
                        return gather.template at<reading>(run, from, (v + ahead) * vectorsOfTaps + p, g);
                    };
                    return rule.along(at, weights + ahead * further, apart, count);
                };
                for (; e + lanes<A> < whole; v += 2, e += 2 * lanes<A>, weights += 2 * further)
                    store(to + e, sums(0)), store(to + e + lanes<A>, sums(1));
                for (; e < whole; ++v, e += lanes<A>, weights += further) store(to + e, sums(0));
                if (e < all) storePart(to + e, sums(0), int(all - e));
            }
        });
    }

    const ResizeTile& tile_;
    const int n_;
    const Axis &columns_, &rows_;
    Image<const T> src_{};
    Image<T> dst_;
    Rule rule_;
    ReadableColumns readableColumns_{}, readableRows_{};
    Lanes gather_{};
    Reading reading_;  // of the whole tile
    Len lastRow_;      // that is filtered
    bool allWanted_, across_ = false;
};

// Which rule the bytes of an object are filtered by, and which numbers those of other types.
template <class T>
void ownpi_ResizeTile(const ResizeTile& tile, Image<const T> src, Image<T> dst) {
    using W = std::conditional_t<sizeof(T) == 8, double, float>;
    const auto columns = columnsOf<W>(tile.header, tile.object), rows = rowsOf<W>(tile.header, tile.object);
    const auto run = [&]<class Rule>(std::type_identity<Rule>) {
        toNearestIf<std::is_integral_v<T>>(
            [&] { TileFilter<Rule, ResizeAxis<W>>(tile, columns, rows, src, dst).run(); });
    };
    if constexpr (sizeof(T) == 1) {
        const bool reduced = columns.shape.kind == Taps::counted || rows.shape.kind == Taps::counted;
        if (tile.header.interpolation == INTERP_LINEAR && !reduced) return run(std::type_identity<BytesLinear>{});
        if (tile.header.fixedPoint) return run(std::type_identity<BytesWeighted>{});
    }
    run(std::type_identity<Real<T, W>>{});
}

}  // namespace zmv
