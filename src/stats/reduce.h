// From the elements of a region to some numbers a channel: how sums, counts and extrema of integers walk a region, and
// extrema of real numbers too.  The order makes no difference to them.
//
// A row is read in groups of vectors, of as many as bring every channel into the same lanes again.
#pragma once

#include "kernels/rounding.h"
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

// The group at p; of the last one of a row `left` elements are there, and the others come from elsewhere.
template <int n, class T>
ZMV_INLINE Group<n, Vec<T>> loadGroup(const T* p) {
    Group<n, Vec<T>> group;
    unrolled<groupVectors<n>>([&](auto k) { group[k] = load(p + k * lanes<T>); });
    return group;
}
template <class V, int... i>
ZMV_INLINE V laneNumbers(std::integer_sequence<int, i...>) {
    return V{Element<V>(i)...};
}
template <int n, class T, class Others>
ZMV_INLINE Group<n, Vec<T>> loadGroup(const T* p, Len left, const Others& others) {
    using Index = Vec<std::make_signed_t<Bits<T>>>;
    const auto numbers = laneNumbers<Index>(std::make_integer_sequence<int, lanes<T>>{});
    Group<n, Vec<T>> group;
    for (int k = 0; k < groupVectors<n>; ++k) {
        const Len here = left - k * lanes<T>;
        group[k] = (Vec<T>)others.at(k * vectorBytes);
        if (here >= lanes<T>)
            group[k] = load(p + k * lanes<T>);
        else if (here > 0)
            group[k] = (Vec<T>)select((Index)(numbers < Element<Index>(here)),
                                      (Index)loadPart(p + k * lanes<T>, int(here)), (Index)group[k]);
    }
    return group;
}

// Whether a region is too large for the nearer caches.  It is fetched ahead then: by itself the processor stops at the
// end of each page.  A hint, which no memory need stand behind; nearer data are slower with it.
template <class T>
bool isFar(Roi roi, int channels) {
    return roi.width * roi.height * channels * Len(sizeof(T)) >= Len(8) << 20;
}
template <int bytes>
ZMV_INLINE void fetchAhead(const void* p) {
    for (int at = 0; at < bytes; at += 64) prefetch(static_cast<const uint8_t*>(p) + 2048 + at);
}

// Hands the groups of a region, those of all images side by side, to fold.add(), which keeps what it makes of them in
// fold.vectors, and calls fold.settle() after no more than Fold::mostGroups, and at the end.  The last group of a row
// is filled up with zeros, or with the pixels of a pattern.
struct Zeros {
    static ZMV_INLINE Vec<uint8_t> at(Len) { return Vec<uint8_t>{}; }
};
template <int n, class Fold, class Others, class... S>
ZMV_INLINE void foldRow(Fold& fold, Len count, const Others& others, bool far, const S*... rows) {
    constexpr Len elements = Fold::groupElements;
    auto vectors = fold.vectors;  // a copy that stays in registers
    Len x = 0;
    for (; x + elements <= count; x += elements) {
        if (far) (..., fetchAhead<groupVectors<n> * vectorBytes>(rows + x));
        fold.add(vectors, loadGroup<n>(rows + x)...);
    }
    if (x < count) fold.add(vectors, loadGroup<n>(rows + x, count - x, others)...);
    fold.vectors = vectors;
}
template <int n, class Fold, class Others, class... S>
void foldRegion(Fold& fold, Roi roi, const Others& others, Image<const S>... images) {
    constexpr Len elements = Fold::groupElements, most = Fold::mostGroups;
    const bool far = (... || isFar<S>(roi, n));
    roi = joinRows(roi, (... && gapless(images, roi.width, n)));
    const Len count = roi.width * n;
    Len groups = 0;
    for (Len y = 0; y < roi.height; ++y)
        for (Len x = 0; x < count; x += most * elements) {
            const Len here = std::min(most * elements, count - x), more = (here + elements - 1) / elements;
            if ((groups += more) > most) fold.settle(), groups = more;
            foldRow<n>(fold, here, others, far, (images.row(y) + x)...);
        }
    fold.settle();
}

// The elements of a group, each vector those of one channel: of three channels and four the vector's own number.
template <int n, int k, int channel, class V>
struct IsChannel {
    static constexpr bool at(int i) { return (k * lanesOf<V> + i) % n == channel; }
};
template <int n, class V>
requires requires(V v) { v[0]; }
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

// Of a limited number of vectors of unsigned numbers.
template <class T>
struct Sums;
template <>
struct Sums<uint8_t> {
    static constexpr Len mostVectors = 1 << 20;
    Vec<uint64_t> sums{};
    void add(Vec<uint8_t> v) { sums += byteSums(v); }
    uint64_t total() const { return laneSum(sums); }
};
template <>
struct Sums<uint16_t> {
    static constexpr Len mostVectors = 1 << 20;
    Vec<uint64_t> allBytes{}, lowBytes{};
    void add(Vec<uint16_t> v) {
        allBytes += byteSums((Vec<uint8_t>)v);
        lowBytes += byteSums((Vec<uint8_t>)(v & 255));
    }
    uint64_t total() const { return 256 * laneSum(allBytes) - 255 * laneSum(lowBytes); }
};
// Of products of two numbers, of squares.
template <class V>
struct Factors {
    V a, b;
};
template <int n, class V>
ZMV_INLINE Group<n, Factors<V>> byChannel(const Group<n, Factors<V>>& group) {
    Group<n, V> a, b;
    unrolled<groupVectors<n>>([&](auto k) { a[k] = group[k].a, b[k] = group[k].b; });
    a = byChannel<n>(a), b = byChannel<n>(b);
    Group<n, Factors<V>> sorted;
    unrolled<groupVectors<n>>([&](auto k) { sorted[k] = {a[k], b[k]}; });
    return sorted;
}
template <class T>
struct ProductSums;
template <class T>
requires(sizeof(T) == 1) struct ProductSums<T> {
    static constexpr Len mostVectors = 1 << 14;  // four products a lane: 2^14 * 4 * 255^2 is below 2^32
    Vec<uint32_t> sums{};
    void add(Factors<Vec<T>> v) {
        const auto even = [](Vec<T> v) {
            return std::is_signed_v<T> ? (Vec<int16_t>)v << 8 >> 8 : (Vec<int16_t>)v & 255;
        };
        const auto odd = [](Vec<T> v) { return (Vec<int16_t>)((Vec<Wider<T>>)v >> 8); };
        sums += (Vec<uint32_t>)(pairProducts(even(v.a), even(v.b)) + pairProducts(odd(v.a), odd(v.b)));
    }
    int64_t total() const {
        if constexpr (std::is_signed_v<T>) return int64_t(laneSum(pairSums(sums ^ 1u << 31))) - lanes<int32_t> * half;
        return int64_t(laneSum(pairSums(sums)));
    }

  private:
    static constexpr int64_t half = int64_t(1) << 31;
};
template <>
struct ProductSums<uint16_t> {
    static constexpr Len mostVectors = 1 << 20;
    Vec<uint64_t> sums{};
    void add(Factors<Vec<uint16_t>> v) { sums += pairSums(product<0>(v.a, v.b)) + pairSums(product<1>(v.a, v.b)); }
    uint64_t total() const { return laneSum(sums); }
};
template <>
struct ProductSums<int16_t> {
    static constexpr Len mostVectors = 1 << 20;
    static constexpr uint32_t lift = INT32_MAX;  // two products are above -2^31 and up to 2^31, which is one too many
    Vec<uint64_t> sums{};
    int64_t added = 0;
    void add(Factors<Vec<int16_t>> v) {
        sums += pairSums((Vec<uint32_t>)pairProducts(v.a, v.b) + lift);
        ++added;
    }
    int64_t total() const { return int64_t(laneSum(sums)) - added * lanes<uint32_t> * int64_t(lift); }
};
// Numbers of 64 bits are summed modulo 2^64, and their upper halves once more: that leaves the lower ones, which fit.
struct HalvesSums {
    Vec<uint64_t> all{}, upper{};
    void add(Vec<uint64_t> v, Vec<uint64_t> upperOfIt) { all += v, upper += upperOfIt; }
    uint64_t uppers() const { return laneSum(upper); }
    uint64_t lowers() const { return laneSum(all) - (uppers() << 32); }
};
template <>
struct ProductSums<uint32_t> {
    static constexpr Len mostVectors = 1 << 20;
    HalvesSums products;
    void add(Factors<Vec<uint32_t>> v) {
        const auto even = mulEven(v.a, v.b), odd = mulEven(oddToEven(v.a), oddToEven(v.b));
        products.add(even, even >> 32), products.add(odd, odd >> 32);
    }
    __int128 total() const { return (__int128(products.uppers()) << 32) + products.lowers(); }
};
// Counted from the smallest number on: a b = (a + 2^31) (b + 2^31) - 2^31 (a + b + 2^32) + 2^62.
template <>
struct ProductSums<int32_t> {
    static constexpr Len mostVectors = 1 << 20;
    ProductSums<uint32_t> products;
    HalvesSums numbers;
    int64_t added = 0;
    void add(Factors<Vec<int32_t>> v) {
        const auto a = (Vec<uint32_t>)v.a ^ 1u << 31, b = (Vec<uint32_t>)v.b ^ 1u << 31;
        products.add({a, b});
        for (const auto& x : {a, b}) numbers.add((Vec<uint64_t>)x, (Vec<uint64_t>)oddToEven(x));
        ++added;
    }
    __int128 total() const {
        return products.total() - (__int128(numbers.uppers() + numbers.lowers()) << 31) +
               (__int128(added * lanes<int32_t>) << 62);
    }
};
template <class T>
struct SquareSums : ProductSums<T> {
    void add(Vec<T> v) { ProductSums<T>::add({v, v}); }
};

// Of ones and zeros.
template <class T>
struct Counts;
template <>
struct Counts<uint8_t> {
    static constexpr Len mostVectors = 255;
    Vec<uint8_t> counts{};
    void add(Vec<uint8_t> v) { counts += v; }
    uint64_t total() const { return laneSum(byteSums(counts)); }
};
template <>
struct Counts<uint32_t> {
    static constexpr Len mostVectors = 1 << 20;
    Vec<uint32_t> counts{};
    void add(Vec<uint32_t> v) { counts += v; }
    uint64_t total() const { return laneSum(pairSums(counts)); }
};

// The sums of a term of every element, or of every pair of elements of two images.
template <int n, class T, class Accumulator, class Term>
class SumFold {
  public:
    static constexpr Len groupElements = groupVectors<n> * lanes<T>, mostGroups = Accumulator::mostVectors;
    using Vectors = std::array<Accumulator, groupVectors<n>>;
    Vectors vectors{};
    template <class... More>
    ZMV_INLINE void add(Vectors& sums, const Group<n, Vec<T>>& first, const More&... more) const {
        Group<n, decltype(Term{}(first[0], more[0]...))> terms;
        unrolled<groupVectors<n>>([&](auto k) { terms[k] = Term{}(first[k], more[k]...); });
        terms = byChannel<n>(terms);
        unrolled<groupVectors<n>>([&](auto k) { sums[k].add(terms[k]); });
    }
    void settle() {
        unrolled<groupVectors<n>>([&](auto k) {
            totals_[n == 1 ? 0 : k] += vectors[k].total();
            vectors[k] = {};
        });
    }
    const PerChannel<__int128>& totals() const { return totals_; }

  private:
    PerChannel<__int128> totals_{};
};

// Rounded once: what does not fit 64 bits leaves a trace in the last of them, which rounding sees.
inline double rounded(__int128 sum) {
    int moved = 0;
    for (; int64_t(sum) != sum; ++moved) sum = sum >> 1 | (sum & 1);
    return double(int64_t(sum)) * powerOfTwo(moved);
}

// ---- Extrema ----

// The extreme of a term of every element; Pick::of gives the one of two that goes before the other.
template <int n, class T, class Result, class Term, class Pick>
class ExtremeFold {
  public:
    static constexpr Len groupElements = groupVectors<n> * lanes<T>, mostGroups = Len(1) << 40;
    using Vectors = Group<n, Vec<Result>>;
    Vectors vectors;
    explicit ExtremeFold(Result neutral) { vectors.fill(fill(neutral)); }
    template <class... More>
    ZMV_INLINE void add(Vectors& extremes, const Group<n, Vec<T>>& first, const More&... more) const {
        unrolled<groupVectors<n>>([&](auto k) { extremes[k] = Pick::of(extremes[k], Term{}(first[k], more[k]...)); });
    }
    void settle() {}
    PerChannel<Result> extremes() const {
        // Of three channels each vector then has one; of one or four, 16 bytes have the same ones everywhere.
        const auto sorted = n == 3 ? byChannel<n>(vectors) : vectors;
        constexpr int sets = n == 3 ? 3 : 1, count = lanes<Result, 16>;
        PerChannel<Result> result{};
        for (int set = 0; set < sets; ++set) {
            Result all[lanes<Result>];
            store(all, sorted[set]);
            auto best = load<Result, 16>(all);
            for (int k = set; k < groupVectors<n>; k += sets) {
                store(all, sorted[k]);
                for (int i = 0; i < lanes<Result>; i += count) best = Pick::of(best, load<Result, 16>(all + i));
            }
            for (int i = 0; i < count; ++i) {
                Result& extreme = result[n == 3 ? set : i % n];
                extreme = i < n / sets ? best[i] : Pick::of(extreme, best[i]);
            }
        }
        return result;
    }
};

}  // namespace zmv
