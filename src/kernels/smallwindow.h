// The walker of small windows: it hands a rule the rows round a block of results, as addresses, and the rule knows
// nothing of borders.
//
// Where a window lies in the caller's memory it is read there.  Only columns whose windows reach beyond it are copied,
// with what the border makes of the pixels outside: a strip at the left end of the rows and one at the right, wide
// enough for whole vectors, or all of a narrow region.  Rows outside are rows inside under another number, or a row of
// the constant.
//
//     struct Rule {
//         using Result = uint8_t;
//         using Memory = NoMemory;                      // what it keeps in the work buffer
//         static constexpr int rows = 2;                // of results in a block
//         static constexpr int step = lanes<uint8_t>;   // elements of a vector
//         static constexpr Len longest = longestStrip;  // elements of a row that are worked at a time
//         void start(const T* const* above, Len count);  // may be left out: the rows before those of the first block
//         void operator()(const T* const* rows, Result* const* dst, Len count);
//     };
//
// rows[i] is the row of the block's window number i, at the leftmost neighbour of the first of `count` results; result
// k of row r has its neighbours at rows[r] + k .. rows[r + window.height - 1] + k + (window.width - 1) * n.  There is
// one row more than the results need, for rules that take rows in pairs.  A rule walks the results by eachVectorOf, in
// vectors of `step` that it may read in full, and stores row r after row r + 1: behind the last row of the region the
// results of the last one stand for those that are too many.
//
// A rule with `static constexpr Len mostRows = 32` and one row of results has windows of at most so many rows, reads no
// more than them, and gets strips that are no wider than they have to be, one row at a time: for work buffers that hold
// no more than that.
//
//     walk<Rule>(bands, dst, results, window, scratch, arguments...)
//
// makes a Rule(memory, arguments...) and takes it over all results, in scratchBytes<WindowMemory<T, Rule>>(..) bytes.
#pragma once

#include "core/spec.h"
#include "kernels/bands.h"

namespace zmv {

// body(i, x, n) for vector i, the n elements from x on: the last vector ends with the row and does some of them twice;
// a row that is shorter than a vector is a part of one.
template <int step, class Body>
ZMV_INLINE void eachVectorOf(Len count, Body body) {
    if (count < step) return body(Len(0), Len(0), int(count));
    for (Len i = 0; i * step < count; ++i) body(i, std::min(i * step, count - step), step);
}

// part(from, n): stretches of at most so many of the results that a rule is asked for, for what it keeps on the stack.
// None but a short row is shorter than a vector: results may be made twice.
template <Len most, int step, class Part>
ZMV_INLINE void eachStretchOf(Len count, Part part) {
    for (Len from = 0, n; from < count; from += n) {
        n = std::min(most, count - from);
        if (n < step && from > 0) from -= step - n, n = step;
        part(from, n);
    }
}

// Elements of a row that are worked at a time where a rule has no reason for another number: so many that the processor
// fetches rows ahead, so few that the rows of a window stay in the nearest caches.
constexpr Len longestStrip = 4096;

// Work buffers are laid out for vectors of this size by every build, so that queries have one answer.
constexpr Len largestVector = 64;
struct NoMemory {
    constexpr NoMemory(Scratch&, Roi, Window, int) {}
};
template <class T, class Rule>
struct WindowMemory {
    // Rows are worked in batches: what is copied is copied well before it is read, since a load that spans recent
    // stores waits for them.
    static constexpr bool exact = requires { Rule::mostRows; };
    static constexpr int batch = exact ? 1 : 16;
    static constexpr Len tableRows(Len height) { return height + batch; }
    static constexpr Len ownRows() {  // of a table on the stack
        if constexpr (exact) return tableRows(Rule::mostRows);
        return 1;
    }
    static constexpr Len copiedRows(Len height) { return height - 1 + batch; }
    // Rows of this many vectors are copied as a whole: that costs less than to walk three strips.
    static constexpr int narrow = 8;

    typename Rule::Memory rule;
    const T** table = nullptr;
    T* rows;
    constexpr WindowMemory(Scratch& s, Roi results, Window window, int n) : rule(s, results, window, n) {
        const Len width = window.width * n, step = Rule::step * largestVector / vectorBytes;
        if constexpr (exact) {
            const Len region = results.width * n, sides = std::max(window.left, window.right) * n;
            const Len copied = region > width - n ? sides : region, beyond = width - n;
            const Len constant = window.height > 1 ? std::min(region, Rule::longest + Rule::step) + beyond : 0;
            rows = s.take<T>(std::max(WideLen(window.height) * (copied + beyond), WideLen(constant)));
        } else {
            // The longest one: a vector and two ends, each a vector or what a window takes, and what it takes beyond.
            const Len copied =
                std::max<Len>(narrow * largestVector / Len(sizeof(T)), step + 2 * std::max(width, step)) + width + step;
            table = s.take<const T*, alignof(const T*)>(tableRows(window.height));
            rows =
                s.take<T>(std::max(WideLen(copiedRows(window.height)) * copied, WideLen(Rule::longest) + step + width));
        }
    }
};

template <class T, int n, class Rule>
class SmallWindow {
  public:
    using D = typename Rule::Result;
    using Memory = WindowMemory<T, Rule>;
    // results: they start at the source's first pixel, and need not end with it.
    SmallWindow(const Bands<T, n>& bands, Image<D> dst, Roi results, Window window, const Memory& memory)
        : bands_(bands),
          dst_(dst),
          end_(results.width * n),
          height_(results.height),
          before_(window.left * n),
          behind_(window.right * n),
          top_(window.top),
          bottom_(window.bottom),
          memory_(memory) {}

    void run(Rule& rule) const {
        Len left = std::clamp<Len>(bands_.firstColumn() * n + before_, 0, end_);
        Len right = std::clamp<Len>(bands_.endColumn() * n - behind_, 0, end_);
        if constexpr (!exact) {
            if (left > 0) left = std::max<Len>(left, Rule::step);
            if (right < end_) right = std::min<Len>(right, end_ - Rule::step);
        }
        const bool copiedWhole = !exact && (left > 0 || right < end_) && end_ <= Memory::narrow * lanes<T>;
        if (copiedWhole || right - left < (exact ? 1 : Rule::step)) return strip<true>(rule, 0, end_);
        if (left > 0) strip<true>(rule, 0, left);
        for (Len from = left, to; from < right; from = to) {
            to = right - from < Rule::longest + Rule::step ? right : from + Rule::longest;
            strip<false>(rule, from, to);
        }
        if (right < end_) strip<true>(rule, right, end_);
    }

  private:
    static constexpr bool exact = Memory::exact;
    static constexpr int batch = Memory::batch;
    static constexpr Len slack = exact ? 0 : Rule::step;

    template <bool copied>
    void strip(Rule& rule, Len from, Len to) const {
        const Len first = from - before_, length = to + behind_ - first, rowLength = length + slack;
        const Len kept = top_ + bottom_, slots = Memory::copiedRows(kept + 1);
        const T* ours[Memory::ownRows()];
        const T** const table = exact ? ours : memory_.table;
        T* const memory = memory_.rows;
        const Ends ends(bands_, first, first + length);
        bool constantIsLaidOut = false;
        Len slot = 0;
        const auto rowAt = [&](Len y) -> const T* {
            const T* const row = bands_.row(y, 0).inside;
            if constexpr (copied) {
                T* const copy = memory + slot * rowLength;
                if (++slot == slots) slot = 0;
                ends.copy(copy, row);
                return copy;
            } else {
                if (row) return row + first;
                if (!constantIsLaidOut) ends.copy(memory, nullptr);
                constantIsLaidOut = true;
                return memory;
            }
        };
        const auto fillTable = [&](Len at, Len y, Len count) {
            for (Len i = 0; i < count; ++i) table[at + i] = rowAt(y + i);
            for (Len i = at + count; i <= kept + batch; ++i) table[i] = table[at + count - 1];
        };
        for (Len y = 0; y < height_; y += batch) {
            const Len rows = std::min<Len>(batch, height_ - y);
            if (y == 0) {
                fillTable(0, -top_, kept + rows);
                if constexpr (requires { rule.start(table, length); }) rule.start(table, to - from);
            } else {
                for (Len i = 0; i < kept; ++i) table[i] = table[batch + i];
                fillTable(kept, y + bottom_, rows);
            }
            for (Len k = 0; k < rows; k += Rule::rows) {
                D* dst[Rule::rows];
                for (Len r = 0; r < Rule::rows; ++r) dst[r] = dst_.row(std::min(y + k + r, height_ - 1)) + from;
                rule(table + k, dst, to - from);
            }
        }
    }

    // The elements of a row from `first` to `stop`: those in memory, and what the border makes of the others.
    class Ends {
      public:
        Ends(const Bands<T, n>& bands, Len first, Len stop)
            : bands_(bands),
              first_(first),
              stop_(stop),
              begin_(std::clamp(bands.firstColumn() * n, first, stop)),
              end_(std::clamp(bands.endColumn() * n, begin_, stop)) {
            for (int i = 0; i < few; ++i) before_[i] = source(begin_ - 1 - i), behind_[i] = source(end_ + i);
        }
        void copy(T* to, const T* row) const {
            if (!row) {
                for (Len i = first_; i < stop_; ++i) put(to + i - first_, bands_.value()[channel(i)]);
                return;
            }
            to -= first_;
            if (begin_ < end_)
                eachVectorOf<lanes<T>>(end_ - begin_, [&](Len, Len x, int count) {
                    storeUpTo(to + begin_ + x, loadUpTo(row + begin_ + x, count), count);
                });
            for (Len i = begin_ - 1; i >= first_; --i)
                outside(to + i, row, i, begin_ - i <= few ? before_[begin_ - 1 - i] : source(i));
            for (Len i = end_; i < stop_; ++i) outside(to + i, row, i, i - end_ < few ? behind_[i - end_] : source(i));
        }

      private:
        static constexpr int few = 8;
        static Len channel(Len i) { return ((i % n) + n) % n; }
        // The element in memory that stands for element i.
        Len source(Len i) const {
            const Len inside = bands_.column((i - channel(i)) / n);
            return inside == bands_.none ? inside : inside * n + channel(i);
        }
        void outside(T* to, const T* row, Len i, Len from) const {
            put(to, from == bands_.none ? bands_.value()[channel(i)] : get(row + from));
        }
        const Bands<T, n>& bands_;
        Len first_, stop_, begin_, end_;
        Len before_[few], behind_[few];  // what stands for the nearest ones, outward
    };

    const Bands<T, n>& bands_;
    Image<D> dst_;
    Len end_, height_;  // of the results
    Len before_, behind_, top_, bottom_;
    const Memory& memory_;
};

template <class Rule, class T, int n, class... Args>
void walk(const Bands<T, n>& bands, Image<typename Rule::Result> dst, Roi results, Window window,
          const WindowMemory<T, Rule>& memory, const Args&... args) {
    Rule rule(memory.rule, args...);
    SmallWindow<T, n, Rule>(bands, dst, results, window, memory).run(rule);
}
template <class Rule, class T, int n, class... Args>
void walk(const Bands<T, n>& bands, Image<typename Rule::Result> dst, Roi results, Window window, Scratch scratch,
          const Args&... args) {
    walk<Rule>(bands, dst, results, window, WindowMemory<T, Rule>(scratch, results, window, n), args...);
}

}  // namespace zmv
