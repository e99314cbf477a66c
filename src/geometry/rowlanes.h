// Rows in lanes: vectors that stand for columns of as many rows as there are lanes.
#pragma once

#include "kernels/simd_convert.h"

namespace zmv {

// The transpose of a square of as many vectors as they have lanes, one behind the other, to rows so many elements
// apart.
template <class A>
ZMV_INLINE void turnSquare(const A* square, A* to, Len step) {
    constexpr int n = lanes<A>, perLane = 16 / int(sizeof(A));
    for (int g = 0; g < n; g += perLane) {
        Block<Vec<A>, perLane> block;  // 16-byte lane p holds a part of row perLane * p + k
        for (int k = 0; k < perLane; ++k) block[k] = loadLanes(square + k * n + g, perLane * n * Len(sizeof(A)));
        block = transposed<perLane, Vec<A>>(block);
        for (int k = 0; k < perLane; ++k) store(to + (g + k) * step, block[k]);
    }
}

// So many elements of lanes<A> rows, from one on, as a vector each; up to a square more is written.
template <class A, class T>
void intoLanes(const T* const* rows, Len from, Len count, A* to) {
    constexpr int n = lanes<A>;
    alignas(64) A square[n * n];
    for (Len i = 0; i < count; i += n) {
        for (int r = 0; r < n; ++r)
            store(square + r * n, loadWidenUpTo<A>(rows[r] + from + i, int(std::min<Len>(n, count - i))));
        turnSquare(square, to + i * n, n);
    }
}

}  // namespace zmv
