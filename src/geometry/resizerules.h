// The arithmetic of resizing: how lanes of taps become a filtered row, and filtered rows a row of results.
//
// A rule has the type of its lanes of taps (U), of filtered rows (A) and of the table of column weights (Weight), in
// which every element has weightRows() numbers.  along() makes a vector of filtered elements: at(g, p) gives group g of
// the taps, p counting the vectors of U that a vector of A takes.  down() gives what makes a vector of results from
// element x on of the rows at rowAt, for which setRow() has chosen weights; behind the last row there is one more.
// Both come with a count, a constant where it is one of ColumnCounts or RowCounts, that columnCount() and rowCount()
// have chosen; 0 stands for whatever the rule makes of it.  across() makes a filtered element of lanes<A> rows at once,
// where a rule has it: `at` has a vector for each of its taps.  Where rows are made by twos, TwiceCounts are the counts
// of rows whose weights registers hold twice.
#pragma once

#include <array>

#include "geometry/gather.h"
#include "geometry/resizeaxis.h"
#include "kernels/simd_convert.h"

namespace zmv {

// Numbers that are worth a loop of their own; the last one stands for all others.
template <int first, int... more>
struct Counts {
    static bool has(Len n) { return n == first || (... || (n == more)); }
    template <class F>
    ZMV_INLINE static void with(Len n, const F& f) {
        if constexpr (sizeof...(more) > 0)
            if (n != first) return Counts<more...>::with(n, f);
        f(std::integral_constant<int, first>{});
    }
};

// Bytes between two pixels: rows are filtered in 1/128.
struct BytesLinear {
    using T = uint8_t;
    using U = uint16_t;
    using A = int16_t;
    using Weight = std::conditional_t<hasByteShuffle, int16_t, uint32_t>;  // of two taps, else two kinds of numbers
    using ColumnCounts = Counts<1>;
    using RowCounts = Counts<1, 2>;
    using TwiceCounts = Counts<1, 2>;
    const ResizeAxis<float> columns, rows;
    int16_t rowFactor = 0;

    Len groups() const { return 1; }
    Len weightRows() const { return hasByteShuffle ? 2 : 1; }
    Len columnCount() const { return 1; }
    Len rowCount() const { return rows.shape.most; }
    // The fraction in 2^-14.
    static int fraction(const ResizeAxis<float>& axis, Len i) {
        return axis.shape.kind == Taps::one ? 0 : int(std::min(toWhole(16384 * double(*axis.group(i))), 16383.0));
    }
    // a + (b - a) f, from the nearer of both on: the difference of the bytes, 64 times, and four times the fraction, or
    // what it lacks to one, fit 16 bits, and a rounded high product takes 2^15 back.  Without that product as an
    // instruction, a (1 - f) + b f in 32 bits.
    void putWeights(Len x, Weight* to, Len step) const {
        const int f = fraction(columns, x);
        if constexpr (hasByteShuffle)
            to[0] = int16_t(4 * f), to[step] = int16_t(f < 8192 ? 64 : 64 << 8);
        else
            to[0] = Weight(16384 - f) | Weight(f) << 16;
    }
    // The same of a vector of pixels.
    void putVectors(Len x, Weight* to) const {
        const float* const at = columns.weights + x;
        const auto whole = joined<A>(std::array{load(at) * 16384, load(at + lanes<float>) * 16384});
        const auto f = columns.shape.kind == Taps::one ? Vec<A>{} : whole < 16383 ? whole : fill<A>(16383);
        const auto lacks = fill<A>(16384) - f;
        if constexpr (hasByteShuffle)
            store(to, (Vec<U>)f << 2), store(to + lanes<A>, f < 8192 ? fill<A>(64) : fill<A>(64 << 8));
        else
            store(to, interleaveLow(lacks, f)), store(to + lanes<Weight>, interleaveHigh(lacks, f));
    }
    // Within 16 bits, but for what stands in lanes that nobody asked for.
    static ZMV_INLINE Vec<A> mix(Vec<A> a, Vec<A> b) { return (Vec<A>)((Vec<U>)a + (Vec<U>)b); }
    static ZMV_INLINE Vec<A> rounded(Vec<A> a) {  // (a + 64) / 128
        if constexpr (hasByteShuffle)             // and with it the product
            return mulRoundedSigned(a, fill<A>(256));
        else
            return mix(a, fill<A>(64)) >> 7;
    }
    template <class At, class Count>
    ZMV_INLINE Vec<A> along(At at, const Weight* weights, Len step, Count) const {
        const auto taps = (Vec<uint8_t>)at(Len(0), 0);
        if constexpr (hasByteShuffle) {
            const auto differences = bytePairProducts(taps, (Vec<int8_t>)fill<int16_t>(int16_t((64 << 8) - 64 + 256)));
            const auto nearer = bytePairProducts(taps, (Vec<int8_t>)load(weights + step));
            return mix(mix(nearer, nearer), mulRoundedSigned(differences, (Vec<A>)load(weights)));
        } else {
            const auto sums = [](auto pairs, const Weight* w) {
                return (pairProducts((Vec<A>)pairs, (Vec<A>)load(w)) + 64) >> 7;
            };
            const Vec<uint8_t> none{};
            return narrow<A>(sums(interleaveLow(taps, none), weights),
                             sums(interleaveHigh(taps, none), weights + lanes<Weight>));
        }
    }
    void setRow(Len y) { rowFactor = int16_t(2 * fraction(rows, y)); }
    template <class Count>
    ZMV_INLINE auto down(const A* const* rowAt, Count) const {
        return [ first = rowAt[0], second = rowAt[Count::value == 2], factor = fill(rowFactor) ](Len x)
            __attribute__((always_inline)) {
            const auto mixed = [&](Len i) __attribute__((always_inline)) {
                const auto a = load(first + i);
                if constexpr (Count::value != 2) return rounded(a);
                const auto apart = (Vec<A>)((Vec<U>)load(second + i) - (Vec<U>)a);
                return rounded(mix(a, mulRoundedSigned(apart, factor)));
            };
            return joined<T>(std::array{mixed(x), mixed(x + lanes<A>)});
        };
    }
};

// Bytes with integer weights, products by twos: filtered rows in 1/64.
struct BytesWeighted {
    using T = uint8_t;
    using U = uint32_t;
    using A = int16_t;
    using Weight = uint32_t;  // of two taps
    using ColumnCounts = Counts<1, 2, 3, 0>;
    using RowCounts = Counts<1, 2, 3, 4, 5, 0>;
    using TwiceCounts = Counts<2>;
    const ResizeAxis<float> columns, rows;
    Weight rowWeights[mostWholeWeights / 2] = {};

    Len groups() const { return (columns.shape.most + 3) / 4; }
    Len weightRows() const { return 2 * groups(); }
    Len columnCount() const { return groups(); }
    Len rowCount() const { return (rows.shape.most + 1) / 2; }
    static Weight pair(const int16_t* w, int a, int b) { return uint16_t(w[a]) | Weight(uint16_t(w[b])) << 16; }
    void putWeights(Len x, Weight* to, Len step) const {
        int16_t w[mostWholeWeights] = {};
        wholeWeightsOf(columns, x, [&](Len k, double whole) { w[k] = int16_t(whole); });
        for (int g = 0; g < int(groups()); ++g, to += 2 * step)
            to[0] = pair(w, 4 * g, 4 * g + 2), to[step] = pair(w, 4 * g + 1, 4 * g + 3);
    }
    template <class At, class Count>
    ZMV_INLINE Vec<A> along(At at, const Weight* weights, Len step, Count) const {
        const Len count = Count::value ? Count::value : groups();
        std::array<Vec<int32_t>, 2> sums = {fill(128), fill(128)};
        for (Len g = 0; g < count; ++g, weights += 2 * step)
            unrolled<2>([&](auto p) __attribute__((always_inline)) {
                const auto taps = (Vec<uint16_t>)at(g, p);
                const Weight* const w = weights + p * lanes<Weight>;
                sums[p] += pairProducts((Vec<A>)(taps & 255), (Vec<A>)load(w));
                sums[p] += pairProducts((Vec<A>)(taps >> 8), (Vec<A>)load(w + step));
            });
        return joined<A>(std::array{sums[0] >> 8, sums[1] >> 8});
    }
    void setRow(Len y) {
        int16_t w[mostWholeWeights] = {};
        wholeWeightsOf(rows, y, [&](Len k, double whole) { w[k] = int16_t(whole); });
        for (int k = 0; k < int(mostWholeWeights); k += 2) rowWeights[k / 2] = pair(w, k, k + 1);
    }
    template <class Count>
    ZMV_INLINE auto down(const A* const* rowAt, Count) const {
        constexpr int most = Count::value ? Count::value : mostWholeWeights / 2;
        const int count = Count::value ? Count::value : int(rowCount());
        std::array<Vec<A>, most> w{};
        std::array<const A*, 2 * most> at{};
        for (int k = 0; k < count; ++k)
            w[size_t(k)] = (Vec<A>)fill(rowWeights[k]), at[size_t(2 * k)] = rowAt[2 * k],
            at[size_t(2 * k + 1)] = rowAt[2 * k + 1];
        return [=](Len x) __attribute__((always_inline)) {
            const auto mixed = [&](Len i) __attribute__((always_inline)) {
                Vec<int32_t> low = fill(1 << 19), high = low;
                for (int k = 0; k < count; ++k) {
                    const auto a = load(at[size_t(2 * k)] + i), b = load(at[size_t(2 * k + 1)] + i);
                    low += pairProducts(interleaveLow(a, b), w[size_t(k)]);
                    high += pairProducts(interleaveHigh(a, b), w[size_t(k)]);
                }
                return narrow<A>(low >> 20, high >> 20);
            };
            return joined<T>(std::array{mixed(x), mixed(x + lanes<A>)});
        };
    }
};

// Everything else in real numbers R, each operation rounded once.
template <class Pixel, class R>
struct Real {
    using T = Pixel;
    using U = Bits<R>;
    using A = R;
    using Weight = R;
    using V = Vec<R>;
    static constexpr int q = int(sizeof(U) / sizeof(T));
    // Bytes come here with many taps.
    using ColumnCounts = std::conditional_t<sizeof(T) == 1, Counts<0>, Counts<1, 2, 4, 6, 0>>;
    using RowCounts = ColumnCounts;
    const ResizeAxis<R> columns, rows;
    const R* rowWeights = nullptr;
    Len rowTaps = 1;

    Len groups() const { return (columns.shape.most + q - 1) / q; }
    Len weightRows() const {
        const AxisShape& s = columns.shape;
        return s.kind == Taps::one ? 0 : s.kind == Taps::two ? 1 : s.most + (s.kind == Taps::counted);
    }
    static Len countOf(const AxisShape& s) { return s.kind == Taps::counted ? 0 : s.most; }
    Len columnCount() const { return countOf(columns.shape); }
    Len rowCount() const { return countOf(rows.shape); }
    void putWeights(Len x, Weight* to, Len step) const {
        const bool counted = columns.shape.kind == Taps::counted;
        if (counted) put(reinterpret_cast<U*>(to), U(columns.count(x))), to += step;
        for (Len k = 0; k < weightRows() - counted; ++k, to += step)
            *to = k < columns.count(x) ? columns.group(x)[k] : R(0);
    }
    // Tap k of the lanes as a real number.
    ZMV_INLINE static V tap(Vec<U> taps, int k) {
        constexpr int bits = 8 * int(sizeof(T)), above = 8 * int(sizeof(U)) - bits;
        if constexpr (q == 1)
            return (V)taps;
        else if constexpr (std::is_signed_v<T>)
            return toFloat(asSigned(taps << (above - k * bits)) >> above);
        else
            return toFloat(asSigned(taps << (above - k * bits) >> above));
    }
    // ((w0 * p0 + w1 * p1) + w2 * p2) + ..: of NaNs the earliest tap's goes on.
    ZMV_INLINE static V sum(V a, V b) {
        if constexpr (std::is_integral_v<T>)
            return a + b;
        else
            return addInOrder(a, b);
    }
    ZMV_INLINE static V product(V p, V weight) {
        if constexpr (std::is_integral_v<T>)
            return p * weight;
        else
            return mulInOrder(p, weight);
    }
    ZMV_INLINE static V between(V a, V b, V f) { return sum(a, product(b - a, f)); }
    // Tap 4 * block + k, k being a constant below 4.
    template <class At, class K>
    ZMV_INLINE static V tapAt(At at, Len block, K k) {
        if constexpr (q == 1)
            return tap(at(4 * block + k, 0), 0);
        else
            return tap(at(4 / q * block + k / q, 0), k % q);
    }
    template <class At, class Count>
    ZMV_INLINE V along(At at, const Weight* weights, Len step, Count) const {
        constexpr std::integral_constant<int, 0> first{};
        constexpr std::integral_constant<int, 1> second{};
        const Taps kind = columns.shape.kind;
        if (Count::value == 1 || (Count::value == 0 && kind == Taps::one)) return tapAt(at, 0, first);
        if (Count::value == 2 || (Count::value == 0 && kind == Taps::two))
            return between(tapAt(at, 0, first), tapAt(at, 0, second), load(weights));
        const bool counted = Count::value == 0 && kind == Taps::counted;
        const auto counts = counted ? (Vec<U>)load(weights) : Vec<U>{};
        if (counted) weights += step;
        const Len most = Count::value ? Count::value : columns.shape.most,
                  fewest = counted ? Len(columns.shape.fewest) : most;
        V total = product(tapAt(at, 0, first), load(weights));
        const auto added = [&](Len block, auto k) __attribute__((always_inline)) {
            return sum(total, product(tapAt(at, block, k), load(weights + (4 * block + k) * step)));
        };
        const auto rest = [&](Len block) __attribute__((always_inline)) {
            unrolled<4>([&](auto k) __attribute__((always_inline)) {
                const Len i = 4 * block + k;
                if (i == 0 || i >= most) return;
                const V next = added(block, k);
                total = i >= fewest ? (V)select((Vec<U>)(counts > U(i)), (Vec<U>)next, (Vec<U>)total) : next;
            });
        };
        rest(0);
        Len block = 1;
        for (; 4 * block + 4 <= fewest; ++block)  // that all have
            unrolled<4>([&](auto k) __attribute__((always_inline)) { total = added(block, k); });
        for (; 4 * block < most; ++block) rest(block);
        return total;
    }
    // The taps of pixel x, so many numbers apart.
    ZMV_INLINE V across(const A* at, Len step, Len x) const {
        const R* const weights = columns.group(x);
        const Len taps = columns.count(x);
        V total = product(load(at), fill(weights[0]));
        const auto add = [&](Len k) __attribute__((always_inline)) {
            total = sum(total, product(load(at + k * step), fill(weights[k])));
        };
        Len k = 1;
        for (; k + 4 <= taps; k += 4) unrolled<4>([&](auto i) __attribute__((always_inline)) { add(k + i); });
        for (; k < taps; ++k) add(k);
        return total;
    }
    void setRow(Len y) { rowWeights = rows.group(y), rowTaps = rows.count(y); }
    template <class Count>
    ZMV_INLINE auto down(const A* const* rowAt, Count) const {
        constexpr size_t known = Count::value ? Count::value : 1;
        std::array<const A*, known> first{};
        std::array<V, known> w{};
        for (size_t k = 0; k < known; ++k)
            first[k] = rowAt[k],
            w[k] = rows.shape.kind == Taps::one ? V{} : fill(rowWeights[Count::value == 2 ? 0 : k]);
        [[maybe_unused]] const Taps kind = rows.shape.kind;
        [[maybe_unused]] const R* const weights = rowWeights;
        [[maybe_unused]] const Len taps = rowTaps;
        return [=](Len x) __attribute__((always_inline)) {
            std::array<V, sizeof(R) / sizeof(T)> all;
            const auto each = [&](auto value) __attribute__((always_inline)) {
                unrolled<int(sizeof(R) / sizeof(T))>([&](auto i) __attribute__((always_inline)) {
                    all[i] = value(all[i], x + i * lanes<R>);
                });
            };
            const auto tap = [&](const A* row, V weight) __attribute__((always_inline)) {
                each([&](V total, Len i)
                         __attribute__((always_inline)) { return sum(total, product(load(row + i), weight)); });
            };
            if (Count::value == 1 || (Count::value == 0 && kind == Taps::one)) {
                each([&](V, Len i) __attribute__((always_inline)) { return load(first[0] + i); });
            } else if (Count::value == 2 || (Count::value == 0 && kind == Taps::two)) {
                each([&, second = Count::value ? first[known - 1] : rowAt[1] ](V, Len i) __attribute__((
                    always_inline)) { return between(load(first[0] + i), load(second + i), w[0]); });
            } else {
                each([&](V, Len i) __attribute__((always_inline)) { return product(load(first[0] + i), w[0]); });
                for (size_t k = 1; k < known; ++k) tap(first[k], w[k]);
                if constexpr (Count::value == 0)
                    for (Len k = 1; k < taps; ++k) tap(rowAt[k], fill(weights[k]));
            }
            return joined<T>(all);
        };
    }
};

}  // namespace zmv
