// Sums of weighted taps, one rounded operation at a time: what resizing, remap and warps have in common.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "harness/case.h"

namespace test {

// The pixel that stands for one, along an axis of n; -1 for the constant.
inline int64_t standsFor(int64_t i, int64_t n, int64_t word) {
    const int64_t rule = word & 15;
    if (i >= 0 && i < n) return i;
    if (rule == BORDER_CONST) return -1;
    if (rule != BORDER_MIRROR || n == 1) return std::clamp<int64_t>(i, 0, n - 1);
    while (i < 0 || i >= n) i = i < 0 ? -i : 2 * n - 2 - i;
    return i;
}

template <class R>
R quiet(R x) {  // as every operation leaves a NaN
    return x + R(0) == x ? x : x + x;
}
inline __int128 sum(__int128 a, __int128 b) { return a + b; }
inline __int128 product(__int128 a, __int128 b) { return a * b; }
template <class R>
R sum(R a, R b) {  // of NaNs the first
    return std::isnan(a) ? quiet(a) : std::isnan(b) ? quiet(b) : a + b;
}
template <class R>
R product(R a, R b) {
    return std::isnan(a) ? quiet(a) : a * b;
}

// Along an axis, from the first tap on: that tap where there are no weights, the way to the next one where there is a
// single fraction, else the sum from left to right.
template <class R, class At>
R along(const std::vector<R>& w, int64_t first, At at) {
    if (w.empty()) return at(first);
    const R a = at(first);
    if (w.size() == 1) return sum(a, product(sum(R(at(first + 1)), -a), w[0]));
    R total = product(a, w[0]);
    for (size_t k = 1; k < w.size(); ++k) total = sum(total, product(R(at(first + int64_t(k))), w[k]));
    return total;
}

// What stands beside the image in the band of smooth edges: the value there and the old one, by the distances from it.
template <class W>
W blended(W value, W old, W x, W y) {
    const bool both = x > 0 && y > 0;
    const W share = both ? (1 - x) * (1 - y) : 1 - (x > 0 ? x : y);
    return sum(W(value * share), W(old * (both ? 1 - share : x > 0 ? x : y)));
}

// Numbers as they are; integers by the nearest even, saturated, NaN as zero.
template <class T, class R>
T rounded(R x) {
    if constexpr (std::is_floating_point_v<T>) return T(x);
    using Limits = std::numeric_limits<T>;
    return x != x ? T(0) : T(std::clamp(std::nearbyint(double(x)), double(Limits::min()), double(Limits::max())));
}

}  // namespace test
