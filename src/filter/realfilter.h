// Filters with real taps.  Each result has one order, whatever the build, the tile or the method: products of tap and
// pixel, rounded one by one and added from the first one on, the top row of the window first, left to right.  Speed
// comes from many results at a time.
#pragma once

#include "kernels/rounding.h"
#include "kernels/simd_convert.h"
#include "kernels/smallwindow.h"

namespace zmv {

// A kernel of so many columns and rows, from the tap of the first neighbour on; `next` is -1 where it lies the other
// way round in memory.  Neighbours are `distance` elements apart.
template <class T>
struct RealTaps {
    const T* taps;
    Len width, height, distance, next = 1;
    const T* row(Len i) const { return taps + i * width * next; }
};

// Sums of `count` elements in each of R rows of results, from height + R - 1 rows of pixels: put(r, x, sum, n) takes n
// of them.  `ordered`: which of two NaNs goes on is told, which integers do not need.  `started`: sums go on
// from what start(r, x, n) gives.  Fewer than a vector are read exactly, and no element is done twice.
template <class T, int R, bool ordered, bool started = false>
class Weigher {
  public:
    Weigher(const T* const* row, RealTaps<T> k) : row_(row), k_(k) {}

    template <class Start, class Put>
    ZMV_INLINE void run(Len from, Len to, Start start, Put put) const {
        constexpr int many = 4, step = lanes<T>;
        Len x = from;
        for (; x + many * step <= to; x += many * step) block<many>(x, step, start, put);
        for (; x + step <= to; x += step) block<1>(x, step, start, put);
        if (x < to) block<1>(x, int(to - x), start, put);
    }

  private:
    ZMV_INLINE static Vec<T> product(Vec<T> tap, Vec<T> pixel) {
        if constexpr (ordered)
            return mulInOrder(tap, pixel);
        else
            return tap * pixel;
    }
    ZMV_INLINE static Vec<T> total(Vec<T> sum, Vec<T> term) {
        if constexpr (ordered)
            return addInOrder(sum, term);
        else
            return sum + term;
    }

    template <int V, class Start, class Put>
    ZMV_INLINE void block(Len x, int n, Start start, Put put) const {
        Vec<T> sums[R][V];
        if constexpr (started)
            unrolled<R * V>([&](auto k) __attribute__((always_inline)) {
                sums[k / V][k % V] = start(k / V, x + k % V * lanes<T>, n);
            });
        if (V == 1 && n < lanes<T>)
            addRows<V>(
                sums, x, [n](const T* p) __attribute__((always_inline)) { return loadPart(p, n); });
        else
            addRows<V>(
                sums, x, [](const T* p) __attribute__((always_inline)) { return load(p); });
        unrolled<R * V>([&](auto k) __attribute__((always_inline)) {
            constexpr int r = R - 1 - k / V, v = k % V;
            put(r, x + v * lanes<T>, sums[r][v], n);
        });
    }
    // Row i of pixels meets row i - r of the taps of result r; the first one starts the sum.
    template <int V, class Read>
    ZMV_INLINE void addRows(Vec<T> (&sums)[R][V], Len x, Read read) const {
        static_assert(R <= 2);
        if constexpr (R == 1) {
            addRow<0, 1, !started>(sums, 0, x, read);
            for (Len i = 1; i < k_.height; ++i) addRow<0, 1, false>(sums, i, x, read);
        } else {
            addRow<0, 1, true>(sums, 0, x, read);
            if (k_.height == 1) return addRow<1, 2, true>(sums, 1, x, read);
            addRow<0, 2, true>(sums, 1, x, read);
            for (Len i = 2; i < k_.height; ++i) addRow<0, 2, false>(sums, i, x, read);
            addRow<1, 2, false>(sums, k_.height, x, read);
        }
    }
    // To results from .. to - 1; `fresh` starts the last of them.
    template <int from, int to, bool fresh, int V, class Read>
    ZMV_INLINE void addRow(Vec<T> (&sums)[R][V], Len i, Len x, Read read) const {
        const T* pixels = row_[i] + x;
        const T* taps = k_.row(i - from);
        const Len rowStep = k_.width * k_.next;
        const auto column = [&]<bool first>() __attribute__((always_inline)) {
            Vec<T> p[V];
            unrolled<V>([&](auto v) __attribute__((always_inline)) { p[v] = read(pixels + v * lanes<T>); });
            unrolled<to - from>([&](auto k) __attribute__((always_inline)) {
                constexpr int r = from + k;
                const auto tap = fill(get(taps - k * rowStep));
                unrolled<V>([&](auto v) __attribute__((always_inline)) {
                    const auto term = product(tap, p[v]);
                    sums[r][v] = first && r == to - 1 ? term : total(sums[r][v], term);
                });
            });
        };
        column.template operator()<fresh>();
        for (Len j = 1; j < k_.width; ++j) {
            pixels += k_.distance, taps += k_.next;
            column.template operator()<false>();
        }
    }

    const T* const* row_;
    RealTaps<T> k_;
};

inline constexpr auto nothing = [](int, Len, int) {};

// Images of floats, in their own rows.
class FloatFilter {
  public:
    using Result = float;
    using Memory = NoMemory;
    static constexpr int rows = 2, step = lanes<float>;
    static constexpr Len longest = longestStrip;
    FloatFilter(Memory, RealTaps<float> taps) : taps_(taps) {}

    __attribute__((noinline)) void operator()(const float* const* row, float* const* dst, Len count) const {
        Weigher<float, rows, true>(row, taps_).run(0, count, nothing, [&](int r, Len x, Vec<float> sum, int k) {
            storeUpTo(dst[r] + x, sum, k);
        });
    }

  private:
    RealTaps<float> taps_;
};

// Images of doubles.  Their strips are exactly as wide as their windows ask for, and larger kernels are worked in
// parts, whose sums meet in the destination: so that a row of addresses fits on the stack.
template <bool started>
class DoubleFilter {
  public:
    using Result = double;
    using Memory = NoMemory;
    static constexpr int rows = 1, step = lanes<double>;
    static constexpr Len longest = longestStrip, mostRows = 32;
    DoubleFilter(Memory, RealTaps<double> taps) : taps_(taps) {}

    __attribute__((noinline)) void operator()(const double* const* row, double* const* dst, Len count) const {
        double* const to = dst[0];
        Weigher<double, rows, true, started>(row, taps_)
            .run(
                0, count, [&](int, Len x, int k) { return loadUpTo(to + x, k); },
                [&](int, Len x, Vec<double> sum, int k) { storeUpTo(to + x, sum, k); });
    }

  private:
    RealTaps<double> taps_;
};
// part(filter, taps, window): for each part of a kernel.
template <class Part>
void eachPartOfKernel(RealTaps<double> taps, Window window, Part part) {
    for (Len from = 0; from < window.height; from += DoubleFilter<false>::mostRows) {
        Window rows = window;
        rows.height = std::min(DoubleFilter<false>::mostRows, window.height - from);
        rows.top = window.top - from;
        rows.bottom = rows.height - 1 - rows.top;
        const RealTaps<double> of{taps.row(from), taps.width, rows.height, 1, taps.next};
        if (from == 0)
            part.template operator()<DoubleFilter<false>>(of, rows);
        else
            part.template operator()<DoubleFilter<true>>(of, rows);
    }
}

// Real numbers as integers of T: brought into its range, where NaN is 0, then rounded.
template <class T>
class Rounding {
  public:
    explicit Rounding(unsigned mode) : mode_(mode) {}
    // count numbers, of which a whole last vector can be read.
    void operator()(T* dst, const float* numbers, Len count) const {
        const auto each = [&](auto round) {
            eachVectorOf<lanes<T>>(count, [&](Len, Len x, int k) {
                std::array<Vec<int32_t>, 4 / sizeof(T)> ints;
                for (size_t i = 0; i < ints.size(); ++i)
                    ints[i] = round(inRange(load(numbers + x + Len(i) * lanes<float>)));
                storeUpTo(dst + x, joined<T>(ints), k);
            });
        };
        if (mode_ == ROUND_NEAR) return each([](auto v) { return roundToInt(v); });
        if (mode_ == ROUND_ZERO) return each([](auto v) { return truncate(v); });
        // One half is not added, since the sum may round.
        each([](auto v) {
            const auto below = floorToInt(v);
            return below - (v - toFloat(below) >= 0.5f);
        });
    }

  private:
    ZMV_INLINE static Vec<float> inRange(Vec<float> v) {
        v = v == v ? v : Vec<float>{};
        return larger(smaller(v, fill(float(std::numeric_limits<T>::max()))),
                      fill(float(std::numeric_limits<T>::min())));
    }
    unsigned mode_;
};

// Rows of integers as real numbers R, each made once, in a ring.
template <class R, class T, int rows>
class RealRows {
  public:
    static constexpr Len longest = 4096 / sizeof(R);  // of a strip, so that the ring stays in the nearest caches

    struct Memory {
        R **ring, *elements;
        constexpr Memory(Scratch& s, Roi, Window window, int n)
            : ring(s.take<R*, alignof(R*)>(ringRows(window.height))),
              elements(s.take<R>(WideLen(ringRows(window.height)) * rowLength(window.width * n))) {}
    };
    RealRows(const Memory& memory, RealTaps<R> taps)
        : reach_((taps.width - 1) * taps.distance), kept_(taps.height - 1), ring_(memory.ring) {
        const Len length = rowLength(taps.width * taps.distance);
        for (Len i = 0; i < ringRows(taps.height); ++i) ring_[i] = memory.elements + i * length;
    }
    void start(const T* const* above, Len count) const {
        for (Len i = 0; i < kept_; ++i) convert(ring_[rows + i], above[i], count);
    }
    // The rows of the next block of `rows` results.
    const R* const* next(const T* const* row, Len count) const {
        std::rotate(ring_, ring_ + rows, ring_ + kept_ + rows);
        for (Len i = kept_; i < kept_ + rows; ++i) convert(ring_[i], row[i], count);
        return ring_;
    }

  private:
    static constexpr Len ringRows(Len height) { return height - 1 + rows; }
    // A strip, or a region that is copied as a whole, with what windows take beyond.
    static constexpr Len rowLength(Len width) { return longest + 16 * largestVector + 4 * width; }
    void convert(R* to, const T* from, Len count) const {
        eachVectorOf<lanes<R>>(count + reach_, [&](Len, Len x, int k) {
            store(to + x, k == lanes<R> ? loadWiden<R>(from + x) : loadWidenPart<R>(from + x, k));
        });
    }
    Len reach_, kept_;
    R** ring_;
};
constexpr Len stretch = 512;  // elements whose sums are kept on the stack
template <class R, class T>
using StretchSums = R[stretch + lanes<T>];

// Images of integers with taps in single precision.
template <class T>
class RoundedFilter {
  public:
    using Result = T;
    static constexpr int rows = 2, step = lanes<T>;
    using Rows = RealRows<float, T, rows>;
    using Memory = typename Rows::Memory;
    static constexpr Len longest = Rows::longest;
    RoundedFilter(const Memory& memory, RealTaps<float> taps, unsigned roundMode, float offset)
        : taps_(taps), rounding_(roundMode), offset_(offset), source_(memory, taps) {}

    void start(const T* const* above, Len count) const { source_.start(above, count); }
    __attribute__((noinline)) void operator()(const T* const* row, T* const* dst, Len count) const {
        const Weigher<float, rows, false> weigher(source_.next(row, count), taps_);
        eachStretchOf<stretch, step>(count, [&](Len from, Len m) {
            StretchSums<float, T> sums[rows];
            weigher.run(from, from + m, nothing,
                        [&](int r, Len x, Vec<float> sum, int) { store(sums[r] + x - from, sum + offset_); });
            for (int r = rows - 1; r >= 0; --r) rounding_(dst[r] + from, sums[r], m);
        });
    }

  private:
    RealTaps<float> taps_;
    Rounding<T> rounding_;
    float offset_;
    Rows source_;
};

}  // namespace zmv
