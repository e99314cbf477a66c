// Real numbers as integers in the same order, made of their bits: -0 comes before 0, and a NaN where it is wanted.
#pragma once

#include <bit>
#include <limits>

#include "kernels/simd.h"

namespace zmv {

template <class T>
using RankOf =
    std::conditional_t<!std::is_floating_point_v<T>, T, std::conditional_t<sizeof(T) == 4, int32_t, int64_t>>;

// Negative numbers with larger bits are smaller.  The same change makes a number's bits of its rank again.
template <class Int, class V>
ZMV_INLINE V exchangeOrder(V bits) {
    return bits ^ ((bits >> int(8 * sizeof(Int) - 1)) & std::numeric_limits<Int>::max());
}
// The ranks of a vector, where every NaN has one.
template <class V>
ZMV_INLINE auto ranksOf(V v, [[maybe_unused]] RankOf<Element<V>> nan) {
    using Rank = RankOf<Element<V>>;
    if constexpr (std::is_floating_point_v<Element<V>>) {
        using Ranks = Vec<Rank, sizeof(V)>;
        return select((Ranks)(v == v), exchangeOrder<Rank>((Ranks)v), fill<Rank, sizeof(V)>(nan));
    } else {
        return v;
    }
}

// The same of one number, and the number of a rank.
template <class T>
RankOf<T> rankOf(T x, [[maybe_unused]] RankOf<T> nan) {
    if constexpr (std::is_floating_point_v<T>)
        return x == x ? exchangeOrder<RankOf<T>>(std::bit_cast<RankOf<T>>(x)) : nan;
    else
        return x;
}
template <class T>
T ofRank(RankOf<T> rank) {
    if constexpr (std::is_floating_point_v<T>)
        return std::bit_cast<T>(exchangeOrder<RankOf<T>>(rank));
    else
        return rank;
}

}  // namespace zmv
