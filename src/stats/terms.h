// What is summed or compared: terms of an element, or of two elements at one place of two images.
#pragma once

#include "kernels/simd_math.h"

namespace zmv {

// The larger of two, and the smaller; of real numbers the first where one is NaN.
struct Larger {
    template <class V>
    static ZMV_INLINE V of(V a, V b) {
        return b > a ? b : a;
    }
};
struct Smaller {
    template <class V>
    static ZMV_INLINE V of(V a, V b) {
        return b < a ? b : a;
    }
};

// Real numbers without their sign.
template <class V>
ZMV_INLINE V withoutSign(V v) {
    using B = Vec<Bits<Element<V>>, sizeof(V)>;
    return (V)((B)v << 1 >> 1);
}

// The size of a number, and the distance of two, of integers as unsigned numbers, which hold them.
struct Magnitude {
    template <class V>
    ZMV_INLINE auto operator()(V v) const {
        if constexpr (std::is_floating_point_v<Element<V>>) {
            return withoutSign(v);
        } else {
            const auto u = asUnsigned(v);  // which holds the smallest number's size
            return v < 0 ? -u : u;
        }
    }
};
struct Distance {
    template <class V>
    ZMV_INLINE auto operator()(V a, V b) const {
        if constexpr (std::is_floating_point_v<Element<V>>)
            return withoutSign(a - b);
        else
            return asUnsigned(Larger::of(a, b)) - asUnsigned(Smaller::of(a, b));
    }
};

}  // namespace zmv
