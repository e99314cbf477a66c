// Kernels of bytes that are columns times rows, with all sums in registers: first along the rows, by products of pairs
// of neighbours, which leave the sums of even and of odd pixels; then down the columns.
#pragma once

#include "filter/fixedkernel.h"

namespace zmv {

struct EvenOdd {
    Vec<int16_t> even, odd;
};
// a * p[2 * i] + b * p[2 * i + 1] in lane i.
template <int a, int b>
ZMV_INLINE Vec<int16_t> pairSum(Vec<uint8_t> p) {
    return bytePairProducts(p, (Vec<int8_t>)fill(int16_t(uint8_t(a) | uint8_t(b) << 8)));
}
// The sums of windows that start at p, at p + 1 and so on.  Both kinds take the same vectors, every second neighbour's,
// so that nothing is read beyond the last window.
template <class W>
ZMV_INLINE EvenOdd alongRow(const uint8_t* p) {
    EvenOdd sum{};
    unrolled<W::pairs + 1>([&](auto pair) __attribute__((always_inline)) {
        constexpr int at = 2 * pair, before = at > 0 ? W::at[at - 1] : 0, here = W::at[at],
                      behind = at + 1 < W::count ? W::at[at + 1] : 0;
        const auto pixels = load(p + at);
        if constexpr (here != 0 || behind != 0) sum.even += pairSum<here, behind>(pixels);
        if constexpr (before != 0 || here != 0) sum.odd += pairSum<before, here>(pixels);
    });
    return sum;
}

// The order of pixels, of their even and odd ones: the first half of them, or the second.
template <int half>
struct Alternately {
    static constexpr int at(int i) { return i % 2 * lanes<int16_t> + (half * lanes<int16_t> + i) / 2; }
};

template <class Finish, class... Products>
void byteKernel(const uint8_t* const* rows, int16_t* const* dst, Len count) {
    constexpr int side = std::max({Products::Row::count...}), summed = kernelRows + side - 1;
    eachWhole<lanes<uint8_t>>(
        count, [&](Len x) __attribute__((always_inline)) {
            EvenOdd sums[sizeof...(Products)][summed];
            unrolled<summed>([&](auto i) __attribute__((always_inline)) {
                int product = 0;
                (..., (sums[product++][i] = alongRow<typename Products::Row>(rows[i] + x)));
            });
            unrolled<kernelRows>([&](auto fromBelow) __attribute__((always_inline)) {
                constexpr int r = kernelRows - 1 - fromBelow;
                const auto results = [&]<size_t... p>(auto pixels, std::index_sequence<p...>)
                    __attribute__((always_inline)) {
                    return Finish()(weighted<typename Products::Column>([&](int i) __attribute__((always_inline)) {
                        return sums[p][r + i].*pixels;
                    })...);
                };
                constexpr std::index_sequence_for<Products...> all;
                const auto even = results(&EvenOdd::even, all), odd = results(&EvenOdd::odd, all);
                putResults<false>(dst[r] + x,
                                  std::array{permute<Alternately<0>>(even, odd), permute<Alternately<1>>(even, odd)});
            });
        });
}

}  // namespace zmv
