// The driver of all filtering methods: a tile is worked off in bands of columns; in each, every source row is filtered
// along once, into a ring of as many rows as a destination row takes, and destination rows are made from the ring.
#pragma once

#include "geometry/resize.h"
#include "geometry/resizerules.h"
#include "kernels/rounding.h"

namespace zmv {

// Memory for what a narrow tile needs, whose work buffer may not hold the tables of a whole vector.
struct LocalMemory {
    static constexpr Len bytes = 8192;
    alignas(64) uint8_t memory[bytes];
};

template <class Rule, class Axis>
class TileFilter {
    using T = typename Rule::T;
    using A = typename Rule::A;
    using U = typename Rule::U;
    using Weight = typename Rule::Weight;
    static constexpr int vectorsOfTaps = int(sizeof(U) / sizeof(A));
    using Lanes = Gather<T, U, vectorsOfTaps>;

  public:
    TileFilter(const ResizeTile& tile, const Axis& columns, const Axis& rows, Image<const T> src, Image<T> dst)
        : tile_(tile), n_(tile.channels), columns_(columns), rows_(rows), dst_(dst), rule_{columns, rows} {
        const At first = sourceOffset(tile.header, tile.offset);
        src_ = src.at(-first.x * n_, -first.y);  // the pixel at column 0 of row 0
        readableColumns_ = readable(columns, tile.offset.x, tile.size.width, BORDER_IN_MEM_LEFT, BORDER_IN_MEM_RIGHT);
        readableRows_ = readable(rows, tile.offset.y, tile.size.height, BORDER_IN_MEM_TOP, BORDER_IN_MEM_BOTTOM);
        gather_ = Lanes{n_, rule_.groups(), readableColumns_};
        reading_ = gather_.readingFor(columns, tile.offset.x, tile.offset.x + tile.size.width);
    }
    void run() {
        LocalMemory local;
        const Len given = Len(resizeBufferBytes(tile_.header, tile_.size, n_));
        const bool inLocal = given <= LocalMemory::bytes;
        const Len room = inLocal ? LocalMemory::bytes : given;
        Len width = tile_.size.width;
        while (width > 1 && bytesFor(width) > room) width = (width + 1) / 2;
        const Len end = tile_.offset.x + tile_.size.width;
        for (Len x = tile_.offset.x; x < end; x += width)
            band(x, std::min(x + width, end), Scratch(inLocal ? local.memory : tile_.buffer));
    }

  private:
    ReadableColumns readable(const Axis& axis, Len from, Len count, int lowFlag, int highFlag) const {
        const Len first = axis.first(from), end = axis.end(from + count - 1);
        return {tile_.word & lowFlag ? first : std::max<Len>(first, 0),
                tile_.word & highFlag ? end : std::min(end, axis.src), end - 1, axis.src, tile_.word};
    }

    // Elements from row to row of the ring.  Vectors may end behind a band where there is room.
    static Len strideFor(Len elements) {
        if (elements > lanes<A>) return (elements + 2 * lanes<A> - 1) / lanes<A> * lanes<A>;
        return (elements * Len(sizeof(A)) + 31) / 32 * 32 / Len(sizeof(A));
    }
    static constexpr Len slack = 768;  // for alignment, and for vectors read beyond the last row and the last weight
    // What band() takes at most.
    Len bytesFor(Len width) const {
        const Len elements = width * n_, vectors = elements / lanes<A> + 3;
        const Len weighed = elements <= lanes<A> ? elements : vectors * lanes<A>;
        return rows_.shape.most * (strideFor(elements) * Len(sizeof(A)) + Len(sizeof(A*))) +
               weighed * rule_.weightRows() * Len(sizeof(Weight)) +
               vectors * vectorsOfTaps * Lanes::tableBytes(reading_) +
               (gather_.bytesRead(Reading::twoWindows) <= Lanes::mostCopied ? 2 * Lanes::mostCopied : 0) + slack;
    }

    struct Part {
        Run run;
        Weight* weights;
        Len step;  // from weight to weight of an element
    };
    void band(Len from, Len to, Scratch scratch) {
        const Len elements = (to - from) * n_;
        stride_ = strideFor(elements), from_ = from;
        ring_ = scratch.take<A, 64>(rows_.shape.most * stride_);
        scratch.take<uint8_t>(vectorBytes);  // vectors are read beyond the last row
        const A** const rowAt = scratch.take<const A*, 8>(rows_.shape.most + 1);
        Run runs[3];
        parts_ = gather_.cut(columns_, from, to, runs);
        for (int i = 0; i < parts_; ++i) form(part_[i], runs[i], scratch);
        for (uint8_t*& copy : copies_) copy = nullptr;
        for (int i = 0; i < parts_; ++i)
            if (const int copy = part_[i].run.copy; copy >= 0) {
                const Run& run = part_[i].run;
                const Len bytes = gather_.copiedBytes(columns_, run.from, run.to, gather_.bytesRead(run.reading));
                copies_[copy] = scratch.take<uint8_t>(bytes);
                std::memset(copies_[copy], 0, size_t(bytes));
            }

        Len filtered = INT64_MIN, free = 0;  // rows before this one have been; where it goes
        const Len most = rows_.shape.most, bottom = tile_.offset.y + tile_.size.height;
        for (Len y = tile_.offset.y; y < bottom; ++y) {
            const Len first = rows_.first(y), end = rows_.end(y);
            for (filtered = std::max(filtered, first); filtered < end;
                 ++filtered, free = free + 1 < most ? free + 1 : 0)
                filterRow(src_.row(readableRows_.at(filtered)), ring_ + free * stride_);
            Len slot = free - (filtered - first);
            if (slot < 0) slot += most;
            for (Len k = 0; k < end - first; ++k, slot = slot + 1 < most ? slot + 1 : 0)
                rowAt[k] = ring_ + slot * stride_;
            for (Len k = end - first; k <= most; ++k) rowAt[k] = rowAt[0];
            rule_.setRow(y);
            T* const to = dst_.row(y - tile_.offset.y) + (from - tile_.offset.x) * n_;
            // Rows of an enlargement may take the same rows again.
            if constexpr (requires { typename Rule::TwiceCounts; })
                if (y + 1 < bottom && Rule::TwiceCounts::has(rule_.rowCount()) && rows_.first(y + 1) == first &&
                    rows_.end(y + 1) == end) {
                    Rule next = rule_;
                    next.setRow(++y);
                    T* const second = dst_.row(y - tile_.offset.y) + (from - tile_.offset.x) * n_;
                    Rule::TwiceCounts::with(rule_.rowCount(), [&](auto count) {
                        write(elements, std::array{to, second}, rule_.down(rowAt, count), next.down(rowAt, count));
                    });
                    continue;
                }
            Rule::RowCounts::with(rule_.rowCount(),
                                  [&](auto count) { write(elements, std::array{to}, rule_.down(rowAt, count)); });
        }
    }
    // Rows of results, vector by vector.
    template <size_t n, class... Results>
    static void write(Len elements, std::array<T*, n> to, Results... results) {
        Len e = 0;
        for (; e + lanes<T> <= elements; e += lanes<T>) {
            const std::array values{results(e)...};
            for (size_t i = 0; i < n; ++i) store(to[i] + e, values[i]);
        }
        if (e == elements) return;
        const std::array values{results(e)...};
        for (size_t i = 0; i < n; ++i) storePart(to[i] + e, values[i], int(elements - e));
    }
    void form(Part& part, const Run& run, Scratch& scratch) {
        part.run = run;
        gather_.form(columns_, part.run, scratch);
        const Len elements = (run.to - run.from) * n_, vectors = (elements + lanes<A> - 1) / lanes<A>;
        part.step = std::min<Len>(elements, lanes<A>);
        part.weights = scratch.take<Weight, 64>(vectors * part.step * rule_.weightRows());
        Len x = run.from, c = 0, e = 0;
        Weight* to = part.weights;
        for (Len v = 0; v < vectors; ++v, to += part.step * rule_.weightRows())
            for (Len lane = 0; lane < part.step; ++lane) {
                rule_.putWeights(x, to + lane, part.step);
                if (++e < elements && ++c == n_) c = 0, ++x;
            }
    }

    void filterRow(const T* row, A* to) const {
        const auto base = reinterpret_cast<const uint8_t*>(row);
        for (int i = 0; i < parts_; ++i) {
            const Part& part = part_[i];
            const uint8_t* from = base;
            if (part.run.copy >= 0) {
                gather_.copyEnd(columns_, part.run, base, copies_[part.run.copy]);
                from = copies_[part.run.copy];
            }
            const auto along = [&]<Reading reading>(std::integral_constant<Reading, reading>) {
                filterPart<reading>(part, from, to);
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
    }
    template <Reading reading>
    void filterPart(const Part& part, const uint8_t* base, A* row) const {
        const Len begin = (part.run.from - from_) * n_, elements = (part.run.to - part.run.from) * n_;
        const Len step = part.step, next = step * rule_.weightRows();
        // Taps looked up one by one are few: one loop will do.
        using Known = std::conditional_t<reading == Reading::mapped, Counts<0>, typename Rule::ColumnCounts>;
        Known::with(rule_.columnCount(), [&](auto count) {
            // Copies of all that the loop reads: where stores cannot reach them.
            const auto rule = rule_;
            const auto gather = gather_;
            const auto run = part.run;
            const auto from = base;
            const Len apart = step, further = next, all = elements;
            const Weight* weights = part.weights;
            A* const to = row + begin;
            Len v = 0, e = 0;
            const auto sums = [&](int ahead) __attribute__((always_inline)) {
                const auto at = [&](Len g, int p) __attribute__((always_inline)) {
                    return gather.template at<reading>(run, from, (v + ahead) * vectorsOfTaps + p, g);
                };
                return rule.along(at, weights + ahead * further, apart, count);
            };
            const Len whole = std::min(all, stride_ - begin - lanes<A> + 1);  // vectors that may end behind the run
            for (; e + lanes<A> < whole; v += 2, e += 2 * lanes<A>, weights += 2 * further)
                store(to + e, sums(0)), store(to + e + lanes<A>, sums(1));
            for (; e < whole; ++v, e += lanes<A>, weights += further) store(to + e, sums(0));
            if (e < all) storePart(to + e, sums(0), int(all - e));
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
    Len stride_ = 0, from_ = 0;
    A* ring_ = nullptr;
    int parts_ = 0;
    Part part_[3];
    uint8_t* copies_[2];
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
