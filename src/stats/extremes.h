// Extrema of every element type, compared as integers: of floats by their bits, brought into the order of the numbers.
#pragma once

#include <algorithm>

#include "kernels/ranks.h"
#include "stats/reduce.h"

namespace zmv {

// Below, or above, all ranks of numbers; a NaN has it, and so goes before nothing.
template <class Pick, class T>
constexpr RankOf<T> lastRank = std::is_same_v<Pick, Smaller> ? std::numeric_limits<RankOf<T>>::max()
                                                             : std::numeric_limits<RankOf<T>>::min();
template <class Pick>
struct Rank {
    template <class V>
    ZMV_INLINE auto operator()(V v) const {
        return ranksOf(v, lastRank<Pick, Element<V>>);
    }
};
template <class Pick, class T>
T fromRank(RankOf<T> rank) {
    if constexpr (std::is_floating_point_v<T>)
        if (rank == lastRank<Pick, T>) return std::numeric_limits<T>::quiet_NaN();
    return ofRank<T>(rank);
}

template <int n, class Pick, class T>
struct RankFold : ExtremeFold<n, T, RankOf<T>, Rank<Pick>, Pick> {
    RankFold() : ExtremeFold<n, T, RankOf<T>, Rank<Pick>, Pick>(lastRank<Pick, T>) {}
};

// Extrema of floats as processors find them, in a third of the instructions that ranks take.  They pass over a NaN that
// way, but take -0 and 0 for equal: the zero that goes before the other is looked for by itself.  What no number went
// before, infinity, may be the extreme or stand for there having been no number: inDoubt().
template <int n, class Pick>
class FloatFold {
    using Ranks = Vec<int32_t>;
    static constexpr bool least = std::is_same_v<Pick, Smaller>;
    static constexpr float last =
        least ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
    static constexpr int32_t firstZero = least ? INT32_MIN : 0;  // by its bits

  public:
    static constexpr Len groupElements = groupVectors<n> * lanes<float>, mostGroups = Len(1) << 40;
    struct Vectors {
        Group<n, Vec<float>> best;
        Group<n, Ranks> zeros{};  // where such a zero was
        Vectors() { best.fill(fill(last)); }
    } vectors;
    ZMV_INLINE void add(Vectors& all, const Group<n, Vec<float>>& group) const {
        unrolled<groupVectors<n>>([&](auto k) {
            all.best[k] = Pick::of(all.best[k], group[k]);
            all.zeros[k] |= (Ranks)group[k] == firstZero;
        });
    }
    void settle() {}
    auto extremes() const {
        RankFold<n, Pick, float> ranks;
        for (int k = 0; k < groupVectors<n>; ++k)
            ranks.vectors[k] = select((Ranks)(vectors.best[k] == 0), least ? vectors.zeros[k] : ~vectors.zeros[k],
                                      Rank<Pick>{}(vectors.best[k]));
        return ranks.extremes();
    }
};
template <int n, class Pick, class T>
using FastFold = std::conditional_t<std::is_floating_point_v<T>, FloatFold<n, Pick>, RankFold<n, Pick, T>>;

template <class Pick, class T>
bool inDoubt(const PerChannel<RankOf<T>>& ranks, int channels) {
    constexpr int32_t infinity = 0x7f800000;
    return std::is_floating_point_v<T> &&
           std::count(ranks.begin(), ranks.begin() + channels,
                      RankOf<T>(std::is_same_v<Pick, Smaller> ? infinity : ~infinity)) > 0;
}

// The least and the largest in one walk.
template <class Least, class Most>
struct BothFolds {
    static constexpr Len groupElements = Least::groupElements, mostGroups = Least::mostGroups;
    struct Vectors {
        typename Least::Vectors least = Least().vectors;
        typename Most::Vectors most = Most().vectors;
    } vectors;
    template <class Group>
    ZMV_INLINE void add(Vectors& both, const Group& group) const {
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
