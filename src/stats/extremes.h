// Extrema of every element type, compared as integers: of floats by their bits, brought into the order of the numbers.
#pragma once

#include <bit>

#include "stats/reduce.h"

namespace zmv {

template <class T>
using RankOf = std::conditional_t<std::is_floating_point_v<T>, int32_t, T>;

// Below, or above, all ranks of numbers; a NaN has it, and so goes before nothing.
template <class Pick, class T>
constexpr RankOf<T> lastRank = std::is_same_v<Pick, Smaller> ? std::numeric_limits<RankOf<T>>::max()
                                                             : std::numeric_limits<RankOf<T>>::min();
template <class Pick>
struct Rank {
    template <class V>
    ZMV_INLINE auto operator()(V v) const {
        if constexpr (std::is_floating_point_v<Element<V>>) {
            using Ranks = Vec<int32_t, sizeof(V)>;
            const auto bits = (Ranks)v;
            // Negative numbers with larger bits are smaller, and -0 comes before 0.
            return select((Ranks)(v == v), bits ^ (bits >> 31 & INT32_MAX),
                          fill<int32_t, sizeof(V)>(lastRank<Pick, float>));
        } else {
            return v;
        }
    }
};
template <class Pick, class T>
T fromRank(RankOf<T> rank) {
    if constexpr (std::is_integral_v<T>)
        return rank;
    else
        return rank == lastRank<Pick, T> ? T(zmvConstantOfNAN_64f) : std::bit_cast<T>(rank ^ (rank >> 31 & INT32_MAX));
}

template <int n, class Pick, class T>
struct RankFold : ExtremeFold<n, T, RankOf<T>, Rank<Pick>, Pick> {
    RankFold() : ExtremeFold<n, T, RankOf<T>, Rank<Pick>, Pick>(lastRank<Pick, T>) {}
};
template <int n, class T>
struct BothRanksFold {
    using Least = RankFold<n, Smaller, T>;
    using Most = RankFold<n, Larger, T>;
    static constexpr Len groupElements = Least::groupElements, mostGroups = Least::mostGroups;
    struct Vectors {
        typename Least::Vectors least = Least().vectors;
        typename Most::Vectors most = Most().vectors;
    } vectors;
    ZMV_INLINE void add(Vectors& both, const Group<n, Vec<T>>& group) const {
        Least().add(both.least, group), Most().add(both.most, group);
    }
    void settle() {}
    auto least() const { return of(Least(), vectors.least); }
    auto most() const { return of(Most(), vectors.most); }

  private:
    template <class Fold>
    static auto of(Fold fold, const typename Fold::Vectors& vectors) {
        fold.vectors = vectors;
        return fold.extremes();
    }
};

}  // namespace zmv
