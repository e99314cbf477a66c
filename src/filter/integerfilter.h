// Filters with integer taps: sums modulo 2^32, so that any order and any factorisation of them gives the same bits.
#pragma once

#include "filter/filterspec.h"
#include "filter/quotient.h"
#include "kernels/smallwindow.h"

namespace zmv {

// Sums of a vector of pixels: those of the lower and those of the upper halves of its 16-byte lanes.
template <class E>
struct HalfSums {
    Vec<E> low, high;
};

// Pixels of two rows, interleaved, times pairs of taps.  Words are added in 32 bits, modulo 2^32; bytes in 16, which
// hold their sums.
template <class T>
struct WordProducts {
    using Tap = int16_t;
    using Sum = uint32_t;
    static constexpr int step = lanes<int16_t>;
    static ZMV_INLINE auto load(const T* p) { return loadWiden<int16_t>(p); }
    static ZMV_INLINE auto tap(const Tap* pair) {
        return (Vec<int16_t>)fill(get(reinterpret_cast<const int32_t*>(pair)));
    }
    static ZMV_INLINE auto product(Vec<int16_t> pixels, Vec<int16_t> taps) {
        return asUnsigned(pairProducts(pixels, taps));
    }
};
struct ByteProducts {
    using Tap = int8_t;
    using Sum = int16_t;
    static constexpr int step = lanes<uint8_t>;
    static ZMV_INLINE auto load(const uint8_t* p) { return zmv::load(p); }
    static ZMV_INLINE auto tap(const Tap* pair) {
        return (Vec<int8_t>)fill(get(reinterpret_cast<const int16_t*>(pair)));
    }
    static ZMV_INLINE auto product(Vec<uint8_t> pixels, Vec<int8_t> taps) { return bytePairProducts(pixels, taps); }
};

// The sums of four rows of results, which share what is loaded.  distance: elements between neighbours.
constexpr int pairedRows = 4;
template <class Products, class T>
ZMV_INLINE void addPairs(const T* const* row, Len x, const TapPair<typename Products::Tap>* taps, Len width, Len pairs,
                         Len distance, HalfSums<typename Products::Sum> (&sum)[pairedRows]) {
    for (auto& s : sum) s = HalfSums<typename Products::Sum>();
    // Results 0 and 1 take pair p of their taps, results 2 and 3 the one before.
    const auto add = [&]<bool upper, bool lower>(Len p) __attribute__((always_inline)) {
        const T *a = row[2 * p] + x, *b = row[2 * p + 1] + x;
        const auto* t = taps + p * width;
        for (Len j = 0; j < width; ++j, a += distance, b += distance, ++t) {
            const auto first = Products::load(a), second = Products::load(b);
            const auto low = interleaveLow(first, second), high = interleaveHigh(first, second);
            const auto addTo = [&](auto& to, const auto* pair) __attribute__((always_inline)) {
                const auto tap = Products::tap(pair);
                to.low += Products::product(low, tap), to.high += Products::product(high, tap);
            };
            if constexpr (upper) addTo(sum[0], t->first), addTo(sum[1], t->second);
            if constexpr (lower) addTo(sum[2], (t - width)->first), addTo(sum[3], (t - width)->second);
        }
    };
    add.template operator()<true, false>(0);
    for (Len p = 1; p < pairs; ++p) add.template operator()<true, true>(p);
    add.template operator()<false, true>(pairs);
}

constexpr int stretchVectors = 8;  // whose sums are kept on the stack

// n results of a row from the sums of its vectors.
template <int step, class E, class T>
void putQuotients(const Quotient& quotient, T* dst, const HalfSums<E>* sums, Len n) {
    if constexpr (std::is_same_v<E, int16_t>) {
        const bool shorter = quotient.withShort([&](auto apply) {
            eachVectorOf<step>(n, [&](Len i, Len x, int k) {
                storeUpTo(dst + x, narrow<uint8_t>(apply(sums[i].low), apply(sums[i].high)), k);
            });
        });
        if (shorter) return;
    }
    quotient.with([&](auto apply) {
        eachVectorOf<step>(n, [&](Len i, Len x, int k) {
            const auto& sum = sums[i];
            if constexpr (std::is_same_v<E, int16_t>) {
                const auto half = [&](Vec<int16_t> v) {
                    return narrow<int16_t>(apply(widen<0>(v)), apply(widen<1>(v)));
                };
                storeUpTo(dst + x, narrow<uint8_t>(half(sum.low), half(sum.high)), k);
            } else {
                const auto results = narrow<int16_t>(apply(asSigned(sum.low)), apply(asSigned(sum.high)));
                if constexpr (sizeof(T) == 1)
                    storePart(dst + x, partsInOrder<2>(narrow<uint8_t>(results, results)), k);
                else
                    storeUpTo(dst + x, results, k);
            }
        });
    });
}

// The rule of small windows for any kernel.
template <class T, class Products = WordProducts<T>>
class PairFilter {
  public:
    using Result = T;
    using Memory = NoMemory;
    static constexpr int rows = pairedRows, step = Products::step;
    static constexpr Len longest = longestStrip;
    using Taps = TapPair<typename Products::Tap>;

    PairFilter(Memory, Window window, Len distance, const Taps* taps, const Quotient& quotient)
        : width_(window.width),
          pairs_(Len(pairRows(window.height))),
          distance_(distance),
          taps_(taps),
          quotient_(quotient) {}

    __attribute__((noinline)) void operator()(const T* const* row, T* const* dst, Len count) const {
        eachStretchOf<stretchVectors * step, step>(count, [&](Len from, Len m) {
            HalfSums<typename Products::Sum> sums[rows][stretchVectors];
            eachVectorOf<step>(m, [&](Len i, Len x, int) {
                HalfSums<typename Products::Sum> sum[rows];
                addPairs<Products>(row, from + x, taps_, width_, pairs_, distance_, sum);
                for (int r = 0; r < rows; ++r) sums[r][i] = sum[r];
            });
            for (int r = rows - 1; r >= 0; --r) putQuotients<step>(quotient_, dst[r] + from, sums[r], m);
        });
    }

  private:
    Len width_, pairs_, distance_;
    const Taps* taps_;
    const Quotient& quotient_;
};

// The rule for kernels that are a column times a row: lines of column sums, of type E, then sums along the lines.
template <class T, class E>
class LineFilter {
  public:
    using Result = T;
    static constexpr int rows = pairedRows, step = lanes<int16_t>;
    static constexpr Len longest = longestStrip;
    struct Memory {
        E* lines[rows];
        constexpr Memory(Scratch& s, Roi, Window window, int n) {
            for (auto& line : lines)
                line = s.take<E>(stretchVectors * largestVector / 2 + window.width * n + largestVector);
        }
    };
    LineFilter(const Memory& memory, Window window, Len distance, const TapPair<int16_t>* column, const int16_t* row,
               const Quotient& quotient)
        : width_(window.width),
          pairs_(Len(pairRows(window.height))),
          distance_(distance),
          column_(column),
          row_(row),
          quotient_(quotient) {
        std::copy_n(memory.lines, rows, lines_);
    }

    __attribute__((noinline)) void operator()(const T* const* row, T* const* dst, Len count) const {
        eachStretchOf<stretchVectors * step, step>(count, [&](Len from, Len m) {
            eachVectorOf<step>(m + (width_ - 1) * distance_, [&](Len, Len x, int) {
                HalfSums<uint32_t> sum[rows];
                addPairs<WordProducts<T>>(row, from + x, column_, 1, pairs_, distance_, sum);
                for (int r = 0; r < rows; ++r) putLine(lines_[r] + x, sum[r]);
            });
            for (int r = rows - 1; r >= 0; --r) {
                HalfSums<uint32_t> sums[stretchVectors];
                eachVectorOf<step>(m, [&](Len i, Len x, int) { sums[i] = sumAlongLine(lines_[r] + x); });
                putQuotients<step>(quotient_, dst[r] + from, sums, m);
            }
        });
    }

  private:
    ZMV_INLINE static void putLine(E* to, const HalfSums<uint32_t>& sum) {
        if constexpr (sizeof(E) == 2) {
            store(to, narrow<int16_t>(asSigned(sum.low), asSigned(sum.high)));
        } else {
            storeLanes(to, sum.low, 32), storeLanes(to + 4, sum.high, 32);
        }
    }
    ZMV_INLINE HalfSums<uint32_t> sumAlongLine(const E* line) const {
        HalfSums<uint32_t> sum{};
        if constexpr (sizeof(E) == 2) {
            for (Len j = 0; j < width_; j += 2, line += 2 * distance_) {
                const auto a = load(line), b = load(line + distance_);
                const auto tap = (Vec<int16_t>)fill(get(reinterpret_cast<const int32_t*>(row_ + j)));
                sum.low += asUnsigned(pairProducts(interleaveLow(a, b), tap));
                sum.high += asUnsigned(pairProducts(interleaveHigh(a, b), tap));
            }
        } else {
            for (Len j = 0; j < width_; ++j, line += distance_) {
                const auto tap = uint32_t(int32_t(get(row_ + j)));
                sum.low += loadLanes(line, 32) * tap, sum.high += loadLanes(line + 4, 32) * tap;
            }
        }
        return sum;
    }

    Len width_, pairs_, distance_;
    const TapPair<int16_t>* column_;
    const int16_t* row_;
    const Quotient& quotient_;
    E* lines_[rows];
};

// Which way the sums of a kernel are formed.  row and column are written where they are asked for.
template <class Tap>
SumsOf sumsOf(bool pixelsAreBytes, Len width, Len height, Tap tap, int16_t* column, int16_t* row) {
    constexpr int most = INT16_MAX / UINT8_MAX;  // of magnitudes, for 16 bits
    Len total = 0;
    bool small = pixelsAreBytes;
    for (Len i = 0; i < height; ++i)
        for (Len j = 0; j < width; ++j) total += std::abs(int(tap(i, j))), small = small && tap(i, j) <= INT8_MAX;
    small = small && total <= most;
    const Len inTwo = small ? 4 * (width + height) : 2 * (width + height);  // what two passes cost
    if (width * height <= inTwo || !isProduct(width, height, tap, column, row))
        return small ? SumsOf::bytes : SumsOf::words;
    Len inColumn = 0;
    for (Len i = 0; i < height; ++i) inColumn += std::abs(int(get(column + i)));
    return pixelsAreBytes && inColumn <= most ? SumsOf::shortLines : SumsOf::longLines;
}

// What integerFilter takes at most.
template <class T>
constexpr WideLen integerFilterBytes(Roi roi, Window window, int n) {
    using Pairs = PairFilter<T, std::conditional_t<sizeof(T) == 1, ByteProducts, WordProducts<T>>>;
    return std::max(scratchBytes<WindowMemory<T, Pairs>>(roi, window, n),
                    scratchBytes<WindowMemory<T, LineFilter<T, uint32_t>>>(roi, window, n));
}

template <class T, int n>
void integerFilter(const Bands<T, n>& bands, Image<T> dst, Roi results, Window window, const FilterSpec& spec,
                   const uint8_t* object, const Quotient& quotient, Scratch scratch) {
    const FilterParts parts(spec);
    const auto go = [&]<class Rule>(const auto&... taps) {
        walk<Rule>(bands, dst, results, window, scratch, window, Len(n), taps..., quotient);
    };
    const auto *const column = parts.column.in(object), *const words = parts.words.in(object);
    const auto* const row = parts.row.in(object);
    if (spec.sums == SumsOf::longLines) return go.template operator()<LineFilter<T, uint32_t>>(column, row);
    if constexpr (sizeof(T) == 1) {
        if (spec.sums == SumsOf::shortLines) return go.template operator()<LineFilter<T, int16_t>>(column, row);
        if (spec.sums == SumsOf::bytes)
            return go.template operator()<PairFilter<T, ByteProducts>>(parts.bytes.in(object));
    }
    go.template operator()<PairFilter<T>>(words);
}

}  // namespace zmv
