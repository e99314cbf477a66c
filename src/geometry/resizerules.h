// The arithmetic of resizing: how lanes of taps become a filtered row, and filtered rows a row of results.
//
// A rule has the type of its lanes of taps (U), of filtered rows (A) and of the table of column weights (Weight), in
// which every element has weightRows() numbers.  along() makes a vector of filtered elements: at(g, p) gives group g of
// the taps, p counting the vectors of U that a vector of A takes.  down() gives what makes a vector of results from
// element x on of the rows at rowAt, for which setRow() has chosen weights; behind the last row there is one more.
// Both come with a count, a constant where it is small, that columnCount() and rowCount() have chosen; 0 stands for
// whatever the rule makes of it.
#pragma once

#include <array>

#include "geometry/gather.h"
#include "geometry/resizeaxis.h"
#include "kernels/simd_convert.h"

namespace zmv {

// Calls f with the number as a constant where it is one of the usual ones, else with 0.
template <class F>
void withCount(Len n, F f) {
    const auto is = [&]<int k>(std::integral_constant<int, k> count) { return n == k && (f(count), true); };
    using std::integral_constant;
    if (is(integral_constant<int, 1>{}) || is(integral_constant<int, 2>{}) || is(integral_constant<int, 3>{}) ||
        is(integral_constant<int, 4>{}) || is(integral_constant<int, 6>{}))
        return;
    f(integral_constant<int, 0>{});
}

// Bytes between two pixels: rows are filtered in 1/128, with the half of the last rounding in them.
struct BytesLinear {
    using T = uint8_t;
    using U = uint16_t;
    using A = int16_t;
    using Weight = int16_t;
    const ResizeAxis<float> columns, rows;
    int16_t rowFactor = 0;

    Len groups() const { return 1; }
    Len weightRows() const { return 1; }
    Len columnCount() const { return 1; }
    Len rowCount() const { return rows.shape.most; }
    // Twice the fraction in 2^-14: a rounded high product takes it back.
    static int16_t factor(const ResizeAxis<float>& axis, Len i) {
        if (axis.shape.kind == Taps::one) return 0;
        return int16_t(2 * std::min(toWhole(16384 * double(*axis.group(i))), 16383.0));
    }
    void putWeights(Len x, Weight* to, Len) const { *to = factor(columns, x); }
    // Within 16 bits, but for what stands in lanes that nobody asked for.
    static ZMV_INLINE Vec<A> mix(Vec<A> a, Vec<A> b) { return (Vec<A>)((Vec<U>)a + (Vec<U>)b); }
    template <class At, class Count>
    ZMV_INLINE Vec<A> along(At at, const Weight* weights, Len, Count) const {
        const Vec<U> taps = at(Len(0), 0);
        const auto a = (Vec<A>)((taps & 255) << 7), b = (Vec<A>)(taps >> 1 & 0x7f80);
        return mix(a + 64, mulRoundedSigned(b - a, load(weights)));
    }
    void setRow(Len y) { rowFactor = factor(rows, y); }
    template <class Count>
    ZMV_INLINE auto down(const A* const* rowAt, Count) const {
        return [first = rowAt[0], second = rowAt[Count::value == 2], factor = fill(rowFactor)](Len x) {
            const auto mixed = [&](Len i) {
                const auto a = load(first + i);
                if constexpr (Count::value != 2) return a >> 7;
                const auto apart = (Vec<A>)((Vec<U>)load(second + i) - (Vec<U>)a);
                return mix(a, mulRoundedSigned(apart, factor)) >> 7;
            };
            return joined<T>(std::array{mixed(x), mixed(x + lanes<A>)});
        };
    }
};

// Bytes with integer weights, products by twos.  Scale: what becomes of sums, along and down.
template <class Axis, class Scale>
struct BytesWeighted {
    using T = uint8_t;
    using U = uint32_t;
    using A = int16_t;
    using Weight = uint32_t;  // of two taps
    const Axis columns, rows;
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
        std::array<Vec<int32_t>, 2> sums = {fill(Scale::half), fill(Scale::half)};
        for (Len g = 0; g < count; ++g, weights += 2 * step)
            unrolled<2>([&](auto p) {
                const auto taps = (Vec<uint16_t>)at(g, p);
                const Weight* const w = weights + p * lanes<Weight>;
                sums[p] += pairProducts((Vec<A>)(taps & 255), (Vec<A>)load(w));
                sums[p] += pairProducts((Vec<A>)(taps >> 8), (Vec<A>)load(w + step));
            });
        return joined<A>(std::array{sums[0] >> Scale::shift, sums[1] >> Scale::shift});
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
        return [=, scale = Scale(columns, rows)](Len x) {
            const auto mixed = [&](Len i) {
                Vec<int32_t> low{}, high{};
                for (int k = 0; k < count; ++k) {
                    const auto a = load(at[size_t(2 * k)] + i), b = load(at[size_t(2 * k + 1)] + i);
                    low += pairProducts(interleaveLow(a, b), w[size_t(k)]);
                    high += pairProducts(interleaveHigh(a, b), w[size_t(k)]);
                }
                return narrow<A>(scale(low), scale(high));
            };
            return joined<T>(std::array{mixed(x), mixed(x + lanes<A>)});
        };
    }
};

// Weights of 2^-14: filtered rows in 1/64.
struct Fractions {
    static constexpr int half = 128, shift = 8;
    template <class Axis>
    Fractions(const Axis&, const Axis&) {}
    ZMV_INLINE Vec<int32_t> operator()(Vec<int32_t> sum) const { return (sum + (1 << 19)) >> 20; }
};
// Overlaps: the sum over an area, divided by its size.  Up to this size a quotient in float is nearer to its integer
// than to the next one, and exact at a half.
struct Areas {
    static constexpr int half = 0, shift = 0;
    static constexpr Len most = 1 << 14, mostAlong = 128;
    Vec<float> area;
    Areas(const SuperAxis& columns, const SuperAxis& rows) : area(fill(float(columns.whole() * rows.whole()))) {}
    static bool fit(const SuperAxis& columns, const SuperAxis& rows) {
        return columns.whole() <= mostAlong && columns.whole() * rows.whole() <= most &&
               std::max(columns.shape.most, rows.shape.most) <= mostWholeWeights;
    }
    ZMV_INLINE Vec<int32_t> operator()(Vec<int32_t> sum) const { return roundToInt(toFloat(sum) / area); }
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
    ZMV_INLINE static V product(V p, V weight) { return mulInOrder(p, weight); }
    ZMV_INLINE static V between(V a, V b, V f) { return addInOrder(a, mulInOrder(b - a, f)); }
    template <class At, class Count>
    ZMV_INLINE V along(At at, const Weight* weights, Len step, Count) const {
        Vec<U> taps = at(Len(0), 0);
        if constexpr (Count::value == 1) return tap(taps, 0);
        if constexpr (Count::value == 2)
            return between(tap(taps, 0), q == 1 ? tap(at(Len(1), 0), 0) : tap(taps, 1), load(weights));
        const auto counts = Count::value ? Vec<U>{} : (Vec<U>)load(weights);
        if (!Count::value) weights += step;
        const Len most = Count::value ? Count::value : columns.shape.most;
        V sum = product(tap(taps, 0), load(weights));
        for (Len k = 1; k < most; ++k) {
            if (k % q == 0) taps = at(k / q, 0);
            const V next = addInOrder(sum, product(tap(taps, int(k % q)), load(weights + k * step)));
            sum = !Count::value && k >= columns.shape.fewest
                      ? (V)select((Vec<U>)(counts > U(k)), (Vec<U>)next, (Vec<U>)sum)
                      : next;
        }
        return sum;
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
        return [=, weights = rowWeights, taps = rowTaps](Len x) {
            const auto mixed = [&](Len i) {
                const V top = load(first[0] + i);
                if constexpr (Count::value == 1) return top;
                if constexpr (Count::value == 2) return between(top, load(first[known - 1] + i), w[0]);
                V sum = product(top, w[0]);
                for (size_t k = 1; k < known; ++k) sum = addInOrder(sum, product(load(first[k] + i), w[k]));
                if constexpr (Count::value == 0)
                    for (Len k = 1; k < taps; ++k) sum = addInOrder(sum, product(load(rowAt[k] + i), fill(weights[k])));
                return sum;
            };
            std::array<V, sizeof(R) / sizeof(T)> all;
            unrolled<int(sizeof(R) / sizeof(T))>([&](auto i) { all[i] = mixed(x + i * lanes<R>); });
            return joined<T>(all);
        };
    }
};

}  // namespace zmv
