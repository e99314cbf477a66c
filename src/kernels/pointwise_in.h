// The walker of operations whose operands or results are of other types than what is computed with: pixel by pixel too,
// in lanes of a type W.  Operands are widened to it; results are saturated, and real numbers rounded: to nearest with
// ties to even, or as the rule's `rounding` says.
#pragma once

#include <concepts>

#include "kernels/pointwise.h"
#include "kernels/rounding.h"
#include "kernels/simd_convert.h"

namespace zmv {

// One value a channel, as W.
template <class W>
class ConstantIn {
  public:
    // The fourth channel of AC4 is zero.
    template <class T>
    ConstantIn(const T* values, Layout layout) {
        for (int i = 0; i < period + lanes<W>; ++i) {
            const int channel = i % layout.channels;
            values_[i] = channel < layout.used() ? W(get(values + channel)) : W(0);
        }
    }
    Vec<W> at(Len x) const { return load(values_ + x % period); }

  private:
    static constexpr int period = 12;  // a multiple of every number of channels
    W values_[period + lanes<W>];
};

// What a row of an operand gives: the vector that starts at element x, and one of which n elements exist.
template <class W, class T>
struct ImageRowIn {
    const T* row;
    Vec<W> at(Len x) const { return loadWiden<W>(row + x); }
    Vec<W> part(Len x, Len n) const { return loadWidenUpTo<W>(row + x, n < lanes<W> ? int(n) : lanes<W>); }
};
template <class W>
struct ConstantRowIn {
    const ConstantIn<W>& constant;
    Len from;
    Vec<W> at(Len x) const { return constant.at(from + x); }
    Vec<W> part(Len x, Len) const { return at(x); }
};
template <class W, class T>
ZMV_INLINE ImageRowIn<W, T> rowIn(Image<const T> image, Len y, Len x, Len) {
    return {image.row(y) + x};
}
template <class W>
ZMV_INLINE ConstantRowIn<W> rowIn(const ConstantIn<W>& constant, Len, Len x, Len) {
    return {constant, x};
}
template <class W>
bool operandGapless(const ConstantIn<W>&, Len, int) {
    return true;
}

// What computes its rows: rowAt(y, x, n) makes them of the place, which tells them apart, so that they are not joined.
struct ComputedRows {};
template <class W, std::derived_from<ComputedRows> Operand>
ZMV_INLINE auto rowIn(const Operand& operand, Len y, Len x, Len n) {
    return operand.rowAt(y, x, n);
}
inline bool operandGapless(const ComputedRows&, Len, int) { return false; }
// The numbers 0, 1, 2 .. of a vector's lanes.
template <class V, int... i>
ZMV_INLINE V laneNumbers(std::integer_sequence<int, i...>) {
    return V{Element<V>(i)...};
}
template <class V>
ZMV_INLINE V laneNumbers() {
    return laneNumbers<V>(std::make_integer_sequence<int, lanesOf<V>>{});
}
// The numbers of the columns, from one on.
template <class W>
struct Columns : ComputedRows {
    explicit Columns(Len first) : from(first) {}
    Len from;
    struct Row {
        Vec<W> first;
        Vec<W> at(Len x) const { return first + W(x); }
        Vec<W> part(Len x, Len) const { return at(x); }
    };
    Row rowAt(Len, Len x, Len) const { return {laneNumbers<Vec<W>>() + W(from + x)}; }
};

// The vector of results from element x on.
template <class W, class T, class Rule, class... Row>
ZMV_INLINE Vec<T> resultsIn(const Rule& rule, Len x, const Row&... rows) {
    std::array<Vec<W>, sizeof(W) / sizeof(T)> results;
    for (size_t i = 0; i < results.size(); ++i) results[i] = rule(rows.at(x + Len(i) * lanes<W>)...);
    return joined<T>(results);
}
template <class W, class T, class Rule, class... Row>
ZMV_INLINE void pointwiseRowIn(const Rule& rule, T* dst, Len count, const Row&... rows) {
    Len x = 0;
#pragma GCC unroll 4
    for (; count - x >= lanes<T>; x += lanes<T>) store(dst + x, resultsIn<W, T>(rule, x, rows...));
    if (x == count) return;
    std::array<Vec<W>, sizeof(W) / sizeof(T)> results;
    for (size_t i = 0; i < results.size(); ++i) {
        const Len at = x + Len(i) * lanes<W>;
        results[i] = rule(rows.part(at, count - at)...);
    }
    storePart(dst + x, joined<T>(results), int(count - x));
}

// Whole lines, past the caches.
template <class W, class T, class Rule, class... Row>
ZMV_INLINE void pointwiseLinesIn(const Rule& rule, T* dst, Len count, const Row&... rows) {
    for (Len x = 0; x < count; x += lineVectors * lanes<T>)
        streamLine(reinterpret_cast<uint8_t*>(dst + x),
                   [&](int i) { return resultsIn<W, T>(rule, x + i * lanes<T>, rows...); });
}

template <class Rule>
RoundingControl::Mode roundingOf([[maybe_unused]] const Rule& rule) {
    if constexpr (requires { rule.rounding; })
        return rule.rounding;
    else
        return RoundingControl::toNearestEven;
}

// dst = rule(operands...) over a region, the rule in lanes of W.
template <class W, class T, class Rule, class... Operand>
void pointwiseIn(const Rule& rule, Image<T> dst, Roi roi, Layout layout, bool pastCache, const Operand&... operands) {
    const auto walk = [&] {
        eachRow(
            dst, joinOperands(roi, layout, dst, operands...), layout, pastCache && canStream(dst, sizeof(T)),
            [&](T* to, Len y, Len x, Len n) { pointwiseRowIn<W>(rule, to, n, rowIn<W>(operands, y, x, n)...); },
            [&](T* to, Len y, Len x, Len n) { pointwiseLinesIn<W>(rule, to, n, rowIn<W>(operands, y, x, n)...); });
    };
    if constexpr (std::is_integral_v<W>)
        walk();
    else
        rounding(roundingOf(rule), walk);
}

}  // namespace zmv
