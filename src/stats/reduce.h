// From the elements of a region to some numbers a channel: how sums, counts and extrema of integers walk a region, and
// extrema of real numbers too.  The order makes no difference to them.
//
// A row is read in groups of vectors, of as many as bring every channel into the same lanes again.
#pragma once

#include "kernels/rows.h"
#include "stats/terms.h"

namespace zmv {

template <class R>
using PerChannel = std::array<R, 4>;

template <int n>
constexpr int groupVectors = n == 4 ? 4 : 3;
template <int n, class V>
using Group = Block<V, groupVectors<n>>;

// Calls part(n) with the number of channels as a constant.
template <class Part>
ZMV_INLINE auto withChannels(int channels, Part part) {
    if (channels == 1) return part(std::integral_constant<int, 1>{});
    if (channels == 3) return part(std::integral_constant<int, 3>{});
    return part(std::integral_constant<int, 4>{});
}

// The group at p.  Of the last one of a row `left` elements are there; the others are what the pattern repeats.
template <int n, class T>
ZMV_INLINE Group<n, Vec<T>> loadGroup(const T* p) {
    Group<n, Vec<T>> group;
    for (int k = 0; k < groupVectors<n>; ++k) group[k] = load(p + k * lanes<T>);
    return group;
}
struct LaneNumber {
    static constexpr int at(int i) { return i; }
};
template <class V, int... i>
ZMV_INLINE V laneNumbers(std::integer_sequence<int, i...>) {
    return V{Element<V>(i)...};
}
template <int n, class T>
ZMV_INLINE Group<n, Vec<T>> loadGroup(const T* p, Len left, const Pattern& others) {
    using Index = Vec<std::make_signed_t<Bits<T>>>;
    const auto numbers = laneNumbers<Index>(std::make_integer_sequence<int, lanes<T>>{});
    Group<n, Vec<T>> group;
    for (int k = 0; k < groupVectors<n>; ++k) {
        const Len here = left - k * lanes<T>;
        group[k] = (Vec<T>)others.at(k * width);
        if (here >= lanes<T>)
            group[k] = load(p + k * lanes<T>);
        else if (here > 0)
            group[k] = (Vec<T>)select((Index)(numbers < Element<Index>(here)), (Index)loadPart(p + k * lanes<T>, int(here)),
                                      (Index)group[k]);
    }
    return group;
}

// Hands the groups of a region to fold.add(), those of all images side by side, and calls fold.settle() in between:
// after no more than so many groups, and at the end.
constexpr Len unsettledGroups = 1 << 14;
template <int n, class T>
struct GroupsOf {
    static constexpr Len elements = groupVectors<n> * lanes<T>;
    template <class Fold, class... S>
    static void row(Fold& fold, Len count, const Pattern& others, const S*... rows) {
        Fold local = fold;  // in registers
        Len x = 0;
        for (; x + elements <= count; x += elements) local.add(loadGroup<n>(rows + x)...);
        if (x < count) local.add(loadGroup<n>(rows + x, count - x, others)...);
        fold = local;
    }
};
template <int n, class Fold, class T, class... S>
void foldRegion(Fold& fold, Roi roi, const Pattern& others, Image<T> first, Image<S>... further) {
    using Groups = GroupsOf<n, std::remove_const_t<T>>;
    roi = joinRows(roi, (gapless(first, roi.width, n) && ... && gapless(further, roi.width, n)));
    const Len count = roi.width * n;
    Len groups = 0;
    for (Len y = 0; y < roi.height; ++y)
        for (Len x = 0; x < count; x += unsettledGroups * Groups::elements) {
            const Len here = std::min(unsettledGroups * Groups::elements, count - x);
            const Len more = (here + Groups::elements - 1) / Groups::elements;
            if ((groups += more) > unsettledGroups) fold.settle(), groups = more;
            Groups::row(fold, here, others, first.row(y) + x, (further.row(y) + x)...);
        }
    fold.settle();
}

// The elements of a group, each vector those of one channel: of three channels and four the vector's own number.
template <int n, int k, int channel, class V>
struct IsChannel {
    static constexpr bool at(int i) { return (k * lanesOf<V> + i) % n == channel; }
};
template <int n, class V>
ZMV_INLINE Group<n, V> byChannel(const Group<n, V>& group) {
    if constexpr (n == 1) {
        return group;
    } else if constexpr (n == 4) {
        return planesOf(group);
    } else {
        // In each lane the three vectors have three different channels.
        const auto plane = [&]<int c>(std::integral_constant<int, c>) {
            return select(maskWhere<IsChannel<n, 1, c, V>, V>(), group[1],
                          select(maskWhere<IsChannel<n, 2, c, V>, V>(), group[2], group[0]));
        };
        return {plane(std::integral_constant<int, 0>{}), plane(std::integral_constant<int, 1>{}),
                plane(std::integral_constant<int, 2>{})};
    }
}

// ---- Sums, exact for any region ----

// Of vectors of unsigned numbers, no more than the groups between two settlements.
template <class T>
struct Sums;
template <>
struct Sums<uint8_t> {
    Vec<uint64_t> sums{};
    void add(Vec<uint8_t> v) { sums += byteSums(v); }
    uint64_t total() const { return laneSum(sums); }
};
template <>
struct Sums<uint16_t> {
    Vec<uint64_t> allBytes{}, lowBytes{};
    void add(Vec<uint16_t> v) {
        allBytes += byteSums((Vec<uint8_t>)v);
        lowBytes += byteSums((Vec<uint8_t>)(v & 255));
    }
    uint64_t total() const { return 256 * laneSum(allBytes) - 255 * laneSum(lowBytes); }
};
template <>
struct Sums<uint32_t> {  // of numbers below 2^16
    Vec<uint32_t> sums{};
    void add(Vec<uint32_t> v) { sums += v; }
    uint64_t total() const { return laneSum(pairSums(sums)); }
};
template <class T>
struct SquareSums;
template <>
struct SquareSums<uint8_t> {
    Vec<uint32_t> sums{};  // four squares a group of vectors at most: 2^14 * 4 * 255^2 is below 2^32
    void add(Vec<uint8_t> v) {
        const auto even = (Vec<int16_t>)v & 255, odd = (Vec<int16_t>)((Vec<uint16_t>)v >> 8);
        sums += (Vec<uint32_t>)(pairProducts(even, even) + pairProducts(odd, odd));
    }
    uint64_t total() const { return laneSum(pairSums(sums)); }
};
template <>
struct SquareSums<uint16_t> {
    Vec<uint64_t> sums{};
    void add(Vec<uint16_t> v) { sums += pairSums(product<0>(v, v)) + pairSums(product<1>(v, v)); }
    uint64_t total() const { return laneSum(sums); }
};

// The sums of a term of every element, or of every pair of elements of two images.
template <int n, class Accumulator, class Term>
class SumFold {
  public:
    explicit SumFold(Term term) : term_(term) {}
    template <class V, class... More>
    ZMV_INLINE void add(const Group<n, V>& first, const More&... more) {
        Group<n, decltype(term_(first[0], more[0]...))> terms;
        for (int k = 0; k < groupVectors<n>; ++k) terms[k] = term_(first[k], more[k]...);
        terms = byChannel<n>(terms);
        for (int k = 0; k < groupVectors<n>; ++k) sums_[k].add(terms[k]);
    }
    void settle() {
        for (int k = 0; k < groupVectors<n>; ++k) {
            totals_[n == 1 ? 0 : k] += sums_[k].total();
            sums_[k] = {};
        }
    }
    const PerChannel<unsigned __int128>& totals() const { return totals_; }

  private:
    Term term_;
    Accumulator sums_[groupVectors<n>];
    PerChannel<unsigned __int128> totals_{};
};

// ---- Extrema ----

// The extreme of a term of every element; Pick::of gives the one of two that goes before the other.
template <int n, class Term, class Pick, class T>
class ExtremeFold {
  public:
    ExtremeFold(Term term, T neutral) : term_(term) {
        for (auto& v : extremes_) v = fill(neutral);
    }
    template <class V, class... More>
    ZMV_INLINE void add(const Group<n, V>& first, const More&... more) {
        for (int k = 0; k < groupVectors<n>; ++k)
            extremes_[k] = Pick::of(extremes_[k], term_(first[k], more[k]...));
    }
    void settle() {}
    PerChannel<T> extremes() const {
        T all[groupVectors<n> * lanes<T>];
        for (int k = 0; k < groupVectors<n>; ++k) store(all + k * lanes<T>, extremes_[k]);
        PerChannel<T> result{};
        for (int i = 0; i < groupVectors<n> * lanes<T>; ++i) {
            T& extreme = result[i % n];
            extreme = i < n ? all[i] : Pick::of(extreme, all[i]);
        }
        return result;
    }

  private:
    Term term_;
    Vec<T> extremes_[groupVectors<n>];
};

}  // namespace zmv
