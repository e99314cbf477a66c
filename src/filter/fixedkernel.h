// Filters whose kernels are known here: sums of neighbours with fixed weights, and what is made of them.
//
// A kernel is a function that makes a block of rows of results from the rows of their windows, at least a vector of
// each.  So the walker of small windows is compiled once for each type, whatever the number of kernels.
#pragma once

#include "filter/fixedmask.h"
#include "kernels/simd_convert.h"
#include "kernels/smallwindow.h"

namespace zmv {

constexpr int kernelRows = 4;  // of results in a block
template <class T, class D>
using Kernel = void (*)(const T* const* rows, D* const* dst, Len count);

// body(x) for the vectors of a row, the last of which ends with it and does some elements twice.
template <int step, class Body>
ZMV_INLINE void eachWhole(Len count, Body body) {
    for (Len x = 0; x < count; x += step) body(std::min(x, count - step));
}

// Sums of integers are exact in these; those of floats are floats.
template <class T>
struct SumType {
    using type = std::make_signed_t<Wider<T>>;
};
template <>
struct SumType<float> {
    using type = float;
};
template <class T>
using SumOf = typename SumType<T>::type;

// Of two NaNs the first goes on.
template <class V>
ZMV_INLINE V plus(V a, V b) {
    if constexpr (std::is_floating_point_v<Element<V>>)
        return addInOrder(a, b);
    else
        return a + b;
}

template <class V>
ZMV_INLINE V minus(V a, V b) {
    if constexpr (std::is_floating_point_v<Element<V>>)
        return subInOrder(a, b);
    else
        return a - b;
}

// Weights of neighbours in a line, which are those of a sum or of a difference: each pair of neighbours as far from the
// middle has the same weight, or opposite ones.
template <int... weights>
struct Weights {
    static constexpr int count = sizeof...(weights), pairs = count / 2, at[count] = {weights...};
    // A difference is taken so that its weight is positive.
    static constexpr bool takesOff = at[0] != at[count - 1], laterFirst = at[0] < 0;
    static constexpr int weight(int pair) { return at[laterFirst ? count - 1 - pair : pair]; }
};
// The weighted sum of at(0) .. at(count - 1): the outer pair, then the next one, then the middle.  A pair is its sum or
// difference, and of real numbers every step is rounded.
template <class W, class At>
ZMV_INLINE auto weighted(At at) {
    decltype(at(0)) sum{};
    unrolled<W::pairs + 1>([&](auto pair) __attribute__((always_inline)) {
        constexpr int k = pair, opposite = W::count - 1 - k, weight = W::weight(k);
        if constexpr (weight != 0) {
            auto term = at(k);
            if constexpr (k < W::pairs && W::takesOff)
                term = W::laterFirst ? minus(at(opposite), term) : minus(term, at(opposite));
            else if constexpr (k < W::pairs)
                term = plus(term, at(opposite));
            if constexpr (weight != 1) term *= Element<decltype(term)>(weight);
            if constexpr (k == 0)
                sum = term;
            else
                sum = plus(sum, term);
        }
    });
    return sum;
}

// A kernel that is a column of weights times a row of them.
template <class ColumnWeights, class RowWeights>
struct Product {
    using Column = ColumnWeights;
    using Row = RowWeights;
};

// What is made of the sums: finish(vectors of sums).
struct AsItIs {
    template <class V>
    ZMV_INLINE V operator()(V sum) const {
        return sum;
    }
};

// Some vectors of sums as results.  Of four channels the fourth may be left as it was.
struct NotAlpha {
    static constexpr bool at(int i) { return i % 4 != 3; }
};
template <bool alpha, class D, class V, size_t parts>
ZMV_INLINE void putResults(D* dst, const std::array<V, parts>& sums) {
    constexpr int each = sizeof(Element<V>) / sizeof(D);
    unrolled<int(parts) / each>([&](auto part) __attribute__((always_inline)) {
        std::array<V, each> some;
        for (int i = 0; i < each; ++i) some[size_t(i)] = sums[size_t(part * each + i)];
        auto results = (Vec<Bits<D>>)joined<D>(some);
        D* const to = dst + part * lanes<D>;
        if constexpr (alpha)
            results = select((Vec<Bits<D>>)maskWhere<NotAlpha, Vec<Bits<D>>>(), results, (Vec<Bits<D>>)load(to));
        store(to, results);
    });
}

// Kernels that look at few neighbours: rule(at) with at(row, column) in the window.
template <int n, bool alpha, class Rule, class T, class D>
void neighbours(const T* const* rows, D* const* dst, Len count) {
    using S = SumOf<T>;
    for (int r = kernelRows - 1; r >= 0; --r)
        eachWhole<lanes<T>>(
            count, [&](Len x) __attribute__((always_inline)) {
                std::array<Vec<S>, sizeof(S) / sizeof(T)> sums;
                unrolled<sizeof(S) / sizeof(T)>([&](auto part) __attribute__((always_inline)) {
                    sums[part] = Rule()([&](int row, int column) __attribute__((always_inline)) {
                        return loadWiden<S>(rows[r + row] + x + column * n + part * lanes<S>);
                    });
                });
                putResults<alpha>(dst[r] + x, sums);
            });
}

// Kernels that are columns times rows: the columns of a stretch of a row are summed into lines, then along the lines.
template <int n, bool alpha, class Finish, class... Products>
struct InLines {
    template <class T, class D>
    static void run(const T* const* rows, D* const* dst, Len count) {
        for (int r = kernelRows - 1; r >= 0; --r)
            eachStretchOf<longest / Len(sizeof(SumOf<T>)), lanes<T>>(
                count, [&](Len from, Len k)
                           __attribute__((always_inline)) { stretch(rows + r, dst[r] + from, from, k); });
    }

  private:
    static constexpr Len longest = 1024;  // bytes of a line, which lies on the stack
    static constexpr int side = std::max({Products::Row::count...});

    template <class T, class D>
    ZMV_INLINE static void stretch(const T* const* row, D* dst, Len from, Len count) {
        using S = SumOf<T>;
        constexpr int parts = sizeof(S) / sizeof(T), beyond = (side - 1) * n;
        S lines[sizeof...(Products)][longest / sizeof(S) + beyond];
        eachWhole<lanes<S>>(
            count + beyond, [&](Len x) __attribute__((always_inline)) {
                const auto at = [&](int i) __attribute__((always_inline)) { return loadWiden<S>(row[i] + from + x); };
                int line = 0;
                (..., store(lines[line++] + x, weighted<typename Products::Column>(at)));
            });
        eachWhole<lanes<T>>(
            count, [&](Len x) __attribute__((always_inline)) {
                const auto along = [&]<class Row>(Row, const S* p) __attribute__((always_inline)) {
                    return weighted<Row>([&](int i) __attribute__((always_inline)) { return load(p + i * n); });
                };
                std::array<Vec<S>, parts> sums;
                unrolled<parts>([&](auto part) __attribute__((always_inline)) {
                    sums[part] = [&]<size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) {
                        return Finish()(along(typename Products::Row(), lines[i] + x + part * lanes<S>)...);
                    }
                    (std::index_sequence_for<Products...>());
                });
                putResults<alpha>(dst + x, sums);
            });
    }
};

// The rule of small windows that calls a kernel.
template <class T, class D>
struct CallKernel {
    using Result = D;
    using Memory = NoMemory;
    static constexpr int rows = kernelRows, step = lanes<T>;
    static constexpr Len longest = 4096 / sizeof(T);
    CallKernel(Memory, Kernel<T, D> given) : kernel(given) {}
    void operator()(const T* const* row, D* const* dst, Len count) const {
        if (count >= step) return kernel(row, dst, count);
        D few[rows][step];  // a row shorter than a vector
        D* to[rows];
        for (int r = 0; r < rows; ++r) to[r] = few[r], std::memcpy(few[r], dst[r], size_t(count) * sizeof(D));
        kernel(row, to, step);
        for (int r = rows - 1; r >= 0; --r) std::memcpy(dst[r], few[r], size_t(count) * sizeof(D));
    }
    Kernel<T, D> kernel;
};
// All results.  The rows that the walker lays out lie on the stack: the work buffers that callers are told of hold
// less.
template <class T, class D, int n>
__attribute__((noinline)) void applyKernel(const Bands<T, n>& bands, Image<D> dst, Roi roi, Window window,
                                           Kernel<T, D> kernel) {
    using Rule = CallKernel<T, D>;
    constexpr Len bytes = Len(scratchBytes<WindowMemory<T, Rule>>(Roi(1, 1), Window({5, 5}), n));
    static_assert(bytes <= 14000);
    uint8_t memory[bytes];
    // Behind short rows lie no numbers that could be worth an exception.
    if (roi.width * n < lanes<T>) std::memset(memory, 0, bytes);
    walk<Rule>(bands, dst, roi, window, Scratch(memory), kernel);
}

}  // namespace zmv
