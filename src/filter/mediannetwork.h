// Medians of small windows, a vector of them at a time: by comparisons whose order does not depend on the values.
//
// The columns of a window are sorted, once for all windows that they are in, then its rows, which leaves the columns in
// order.  Now most elements have too many before them, or behind them, to be the one in the middle; the others lie in
// rows that are merged, and only the middle of the last merge is made.
#pragma once

#include "kernels/ranks.h"
#include "kernels/rows.h"
#include "kernels/smallwindow.h"

namespace zmv {

template <class V>
ZMV_INLINE V lesser(V a, V b) {
    return a < b ? a : b;
}
template <class V>
ZMV_INLINE V greater(V a, V b) {
    return a < b ? b : a;
}

// Places in an array, in the order of what lies in them.
struct Places {
    static constexpr int most = 49;
    int at[most] = {}, count = 0;
    constexpr Places() = default;
    static constexpr Places range(int from, int step, int count) {
        Places places;
        for (int k = 0; k < count; ++k) places.add(from + k * step);
        return places;
    }
    constexpr void add(int place) { at[count++] = place; }
    constexpr Places part(int from, int step, int to) const {
        Places some;
        for (int k = from; k < to; k += step) some.add(at[k]);
        return some;
    }
};

// Exchanges between the places of an array, made when the library is compiled.
class Network {
  public:
    struct Exchange {
        int a, b;        // the lesser goes to a, the greater to b
        bool low, high;  // unless nobody asks for it
    };
    Exchange exchanges[400] = {};
    int count = 0;
    Places results;

    // Two sorted lists as one.  Their even places and their odd ones are merged by themselves; then only neighbours may
    // be in the wrong order.
    constexpr Places merge(const Places& a, const Places& b) {
        if (a.count == 0) return b;
        if (b.count == 0) return a;
        if (a.count == 1 && b.count == 1) return add(a.at[0], b.at[0]);
        const Places even = merge(a.part(0, 2, a.count), b.part(0, 2, b.count));
        const Places odd = merge(a.part(1, 2, a.count), b.part(1, 2, b.count));
        Places all;
        all.add(even.at[0]);
        for (int i = 0; i < odd.count || i + 1 < even.count; ++i) {
            if (i < odd.count && i + 1 < even.count) add(odd.at[i], even.at[i + 1]);
            if (i < odd.count) all.add(odd.at[i]);
            if (i + 1 < even.count) all.add(even.at[i + 1]);
        }
        return all;
    }
    constexpr Places sort(const Places& places) {
        const int half = places.count / 2;
        if (half == 0) return places;
        return merge(sort(places.part(0, 1, half)), sort(places.part(half, 1, places.count)));
    }
    // Element k of two sorted lists merged: of all ways to have k + 1 from their beginnings the one whose last is
    // least.
    constexpr int pick(const Places& a, const Places& b, int k) {
        int best = -1;
        for (int i = std::max(0, k + 1 - b.count); i <= std::min(k + 1, a.count); ++i) {
            const int j = k + 1 - i;
            if (i > 0 && j > 0) add(a.at[i - 1], b.at[j - 1]);
            const int last = j > 0 ? b.at[j - 1] : a.at[i - 1];
            if (best >= 0) add(best, last);
            if (best < 0) best = last;
        }
        return best;
    }
    // Leaves out what does not lead to a result.
    constexpr Network made(const Places& wanted) const {
        bool needed[Places::most] = {};
        for (int k = 0; k < wanted.count; ++k) needed[wanted.at[k]] = true;
        Network fewer;
        for (int k = count - 1; k >= 0; --k) {
            Exchange e = exchanges[k];
            e.low = needed[e.a], e.high = needed[e.b];
            if (!e.low && !e.high) continue;
            needed[e.a] = needed[e.b] = true;
            fewer.exchanges[fewer.count++] = e;
        }
        for (int k = 0; k < fewer.count / 2; ++k) std::swap(fewer.exchanges[k], fewer.exchanges[fewer.count - 1 - k]);
        fewer.results = wanted;
        return fewer;
    }

  private:
    constexpr Places add(int a, int b) {
        exchanges[count++] = {a, b, true, true};
        Places both;
        both.add(a), both.add(b);
        return both;
    }
};

template <int count>
constexpr Network sorting = [] {
    Network network;
    return network.made(network.sort(Places::range(0, 1, count)));
}();
// The last element goes to its place among the others, which are sorted.
template <int count>
constexpr Network insertion = [] {
    Network network;
    return network.made(network.merge(sorting<count - 1>.results, Places::range(count - 1, 1, 1)));
}();
template <int count>
constexpr Network middleOfAny = [] {
    Network network;
    return network.made(network.sort(Places::range(0, 1, count)).part((count - 1) / 2, 1, (count + 1) / 2));
}();
// Of a window, from its columns, each sorted; its element in row i and column j is in place j * height + i.
template <int width, int height>
constexpr Network middleOfWindow = [] {
    // Above and left of an element are (i + 1) * (j + 1) - 1 that are no greater.
    constexpr int half = (width * height + 1) / 2;
    const auto mayBe = [](int i, int j) { return (i + 1) * (j + 1) <= half && (height - i) * (width - j) <= half; };
    Network network;
    Places rows[height], sorted[height];
    for (int i = 0; i < height; ++i) {
        sorted[i] = network.sort(Places::range(i, height, width));
        for (int j = 0; j < width; ++j)
            if (mayBe(i, j)) rows[i].add(sorted[i].at[j]);
    }
    if (width == 5 && height == 5) {
        // What may be the middle lies on three diagonals.  Of the first one all but the greatest have seven of these 13
        // behind them, of the last one all but the least have seven before them.
        const auto on = [&](int diagonal, int i) { return Places::range(sorted[i].at[diagonal - i], 1, 1); };
        Places first = on(3, 0), last = on(5, 1), left;
        for (int i = 1; i < 4; ++i) {
            first = network.merge(first, on(3, i)).part(1, 1, 2);
            last = network.merge(last, on(5, i + 1)).part(0, 1, 1);
        }
        left.add(first.at[0]), left.add(last.at[0]);
        for (int i = 0; i < 5; ++i) left.add(on(4, i).at[0]);
        return network.made(network.sort(left).part(3, 1, 4));
    }
    int left = height;
    for (; left > 2; left = (left + 1) / 2)
        for (int i = 0; i < left / 2; ++i) {
            rows[i] = network.merge(rows[2 * i], rows[2 * i + 1]);
            if (i == left / 2 - 1 && left % 2) rows[i + 1] = rows[left - 1];
        }
    const Places last = left > 1 ? rows[left - 1] : Places{};
    Places middle;
    middle.add(network.pick(rows[0], last, (rows[0].count + last.count - 1) / 2));
    return network.made(middle);
}();

template <int a, int b, bool low, bool high, class V>
ZMV_INLINE void exchange(V* v) {
    const V x = v[a], y = v[b];
    if constexpr (low) v[a] = lesser(x, y);
    if constexpr (high) v[b] = greater(x, y);
}
template <const Network& network, class V, int... k>
ZMV_INLINE void run([[maybe_unused]] V* v, std::integer_sequence<int, k...>) {
    (...,
     exchange<network.exchanges[k].a, network.exchanges[k].b, network.exchanges[k].low, network.exchanges[k].high>(v));
}
template <const Network& network, class V>
ZMV_INLINE void run(V* v) {
    run<network>(v, std::make_integer_sequence<int, network.count>{});
}
template <const Network& network, class V>
ZMV_INLINE V resultOf(V* v) {
    run<network>(v);
    return v[network.results.at[0]];
}

// Every NaN ranks as this one and becomes it.
template <class T>
constexpr RankOf<T> rankOfNan() {
    if constexpr (std::is_floating_point_v<T>) return std::bit_cast<RankOf<T>>(std::numeric_limits<T>::quiet_NaN());
    return RankOf<T>();
}
// Writes the elements of these ranks, the last `n` of a row being fewer than a vector; of pixels with alpha, `kept` has
// the bits that are written.
template <class T, class Ranks>
ZMV_INLINE void putRanks(T* dst, Ranks ranks, int n, const Pattern* kept = nullptr) {
    auto v = (Vec<uint8_t>)ranks;
    if constexpr (std::is_floating_point_v<T>) v = (Vec<uint8_t>)exchangeOrder<RankOf<T>>(ranks);
    if (kept) v = select(kept->at(0), v, (Vec<uint8_t>)loadUpTo(dst, n));
    storeUpTo(dst, (Vec<T>)v, n);
}

// The rule of small windows.
template <class T, int width, int height>
class MedianNetwork {
    using Rank = RankOf<T>;
    using V = Vec<Rank>;

  public:
    using Result = T;
    using Memory = NoMemory;
    static constexpr int rows = 2, step = lanes<T>;
    static constexpr Len longest = 8192 / sizeof(T);
    MedianNetwork(Memory, Len distance, const Pattern* kept) : distance_(distance), kept_(kept) {}

    // Two rows of results share all rows of their windows but one.
    __attribute__((noinline)) void operator()(const T* const* row, T* const* dst, Len count) const {
        eachStretchOf<most, step>(count, [&](Len from, Len m) {
            SortedRows sortedRows[rows];
            eachVectorOf<step>(
                m + (width - 1) * distance_, [&](Len, Len x, int) __attribute__((always_inline)) {
                    putColumn(row, from + x, sortedRows, x);
                });
            for (int r = rows - 1; r >= 0; --r)
                eachVectorOf<step>(
                    m, [&](Len, Len x, int k) __attribute__((always_inline)) {
                        V window[width * height];
                        unrolled<width * height>([&](auto i) __attribute__((always_inline)) {
                            window[i] = load(sortedRows[r][i % height] + x + i / height * distance_);
                        });
                        putRanks(dst[r] + from + x, resultOf<middleOfWindow<width, height>>(window), k, kept_);
                    });
        });
    }

  private:
    // So many that the first sorted columns have reached memory when they are read: loads across two stores wait for
    // both.
    static constexpr Len most = 8 * step;
    using SortedRows = Rank[height][most + 4 * (width - 1) + step];

    ZMV_INLINE static void putColumn(const T* const* row, Len from, SortedRows* to, Len x) {
        const auto at = [&](int i) __attribute__((always_inline)) {
            return ranksOf(load(row[i] + from), rankOfNan<T>());
        };
        V shared[height];
        unrolled<height - 1>([&](auto i) __attribute__((always_inline)) { shared[i] = at(i + 1); });
        run<sorting<height - 1>>(shared);
        unrolled<rows>([&](auto r) __attribute__((always_inline)) {
            V column[height];
            unrolled<height - 1>([&](auto i) __attribute__((always_inline)) { column[i] = shared[i]; });
            column[height - 1] = at(r * height);
            run<insertion<height>>(column);
            unrolled<height>([&](auto i) __attribute__((always_inline)) {
                store(to[r][i] + x, column[insertion<height>.results.at[i]]);
            });
        });
    }

    Len distance_;
    const Pattern* kept_;
};

}  // namespace zmv
