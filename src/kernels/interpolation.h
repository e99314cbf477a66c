// Kernels that give values between pixels: how many pixels they weigh along an axis, how many of them lie before the
// base pixel, and what they count at a fraction behind it.  In lanes of the type in which all is computed.
#pragma once

#include <array>
#include <cstring>

#include "kernels/lanczos.h"
#include "kernels/simd_convert.h"
#include "kernels/simd_order.h"

namespace zmv {

// What values between pixels are formed in.
template <class T>
using Formed = std::conditional_t<sizeof(T) == 8, double, float>;

// Coordinates as integers, in as many lanes.
template <class W>
using Places = Vec<int32_t, lanes<W> * 4>;
// Toward zero, of numbers below 2^31, and back.
template <class V>
ZMV_INLINE auto wholeOf(V v) {
    if constexpr (sizeof(Element<V>) == 4) {
        return truncate(v);
    } else {
        Places<double> whole;
        for (int i = 0; i < lanesOf<V>; ++i) whole[i] = int32_t(v[i]);
        return whole;
    }
}
template <class W>
ZMV_INLINE Vec<W> realOf(Places<W> places) {
    if constexpr (sizeof(W) == 4) {
        return toFloat(places);
    } else {
        Vec<W> real;
        for (int i = 0; i < lanes<W>; ++i) real[i] = places[i];
        return real;
    }
}
// The first lanes of floats.
template <class W>
ZMV_INLINE Vec<W> inLanesOf(Vec<float> v) {
    if constexpr (sizeof(W) == 4) {
        return v;
    } else {
        Vec<W> wide;
        for (int i = 0; i < lanes<W>; ++i) wide[i] = v[i];
        return wide;
    }
}

// a + b, and of two NaNs the first; there is none among integers.
template <bool real, class V>
ZMV_INLINE V sumInOrder(V a, V b) {
    if constexpr (real)
        return addInOrder(a, b);
    else
        return a + b;
}

template <class V, int n>
struct Weighted {
    std::array<V, n> weight;
    template <bool real>
    ZMV_INLINE V sum(const std::array<V, n>& p) const {
        V total = weight[0] * p[0];
        unrolled<n - 1>([&](auto i) { total = sumInOrder<real>(total, weight[i + 1] * p[i + 1]); });
        return total;
    }
};
// The pixel that the point is nearest to, one half counting as nearer to the next.  `between` says of a kernel that its
// values lie between those of pixels.
struct NearestKernel {
    static constexpr int taps = 1, before = 0;
    static constexpr bool between = true;
};
// On the line between two pixels; a constant stays itself exactly.
struct LinearKernel {
    static constexpr int taps = 2, before = 0;
    static constexpr bool between = true;
    template <class V>
    struct At {
        V fraction;
        explicit ZMV_INLINE At(V f) : fraction(f) {}
        template <bool real>
        ZMV_INLINE V sum(const std::array<V, 2>& p) const {
            return sumInOrder<real>(p[0], (p[1] - p[0]) * fraction);
        }
    };
    template <class V>
    static ZMV_INLINE At<V> at(V f) {
        return At<V>(f);
    }
};
// k * x, which nobody takes for x * -k: c - k * x and c + x * -k differ where the caller does not round to nearest, and
// to compilers they are the same.
template <class V>
ZMV_INLINE V scaledBy(Element<V> k, V x) {
    return mulInOrder(x, fill<Element<V>, sizeof(V)>(k));
}
// On the cubic through two pixels whose slopes there are those between their neighbours.
struct CatmullRomKernel {
    static constexpr int taps = 4, before = 1;
    static constexpr bool between = false;
    template <class V>
    struct At : Weighted<V, 4> {
        using T = Element<V>;
        explicit ZMV_INLINE At(V f)
            : Weighted<V, 4>{{((1 - scaledBy(T(0.5), f)) * f - T(0.5)) * f, (f * T(1.5) - T(2.5)) * f * f + 1,
                              ((2 - scaledBy(T(1.5), f)) * f + T(0.5)) * f, (f * T(0.5) - T(0.5)) * f * f}} {}
    };
    template <class V>
    static ZMV_INLINE At<V> at(V f) {
        return At<V>(f);
    }
};
// On the cubic through four pixels.
struct LagrangeKernel {
    static constexpr int taps = 4, before = 1;
    static constexpr bool between = false;
    template <class V>
    struct At : Weighted<V, 4> {
        using T = Element<V>;
        static constexpr T third = T(1) / 3, sixth = T(1) / 6;
        explicit ZMV_INLINE At(V f)
            : Weighted<V, 4>{{((T(0.5) - scaledBy(sixth, f)) * f - third) * f, ((f * T(0.5) - 1) * f - T(0.5)) * f + 1,
                              ((T(0.5) - scaledBy(T(0.5), f)) * f + 1) * f, (f * sixth * f - sixth) * f}} {}
    };
    template <class V>
    static ZMV_INLINE At<V> at(V f) {
        return At<V>(f);
    }
};
// On the cubics of two parameters, as four polynomials of the fraction, the coefficient of its cube first.  The
// parameters may be of any size: of a weight and a pixel that are both NaN the pixel goes on.
template <class W>
struct CubicFamilyKernel {
    static constexpr int taps = 4, before = 1;
    static constexpr bool between = false;
    W p[taps][4];
    template <class V>
    struct At {
        std::array<V, taps> weight;
        template <bool real>
        ZMV_INLINE V sum(const std::array<V, taps>& pixels) const {
            const auto term = [&](size_t i) {
                if constexpr (real)
                    return mulInOrder(pixels[i], weight[i]);
                else
                    return pixels[i] * weight[i];
            };
            V total = term(0);
            unrolled<taps - 1>([&](auto i) { total = sumInOrder<real>(total, term(i + 1)); });
            return total;
        }
    };
    template <class V>
    ZMV_INLINE At<V> at(V f) const {
        At<V> weights;
        unrolled<taps>([&](auto i) { weights.weight[i] = ((p[i][0] * f + p[i][1]) * f + p[i][2]) * f + p[i][3]; });
        return weights;
    }
};

// The Lanczos kernel of three lobes, between the entries of its table, the weights divided by their sum.
struct LanczosKernel {
    static constexpr int taps = 6, before = 2;
    static constexpr bool between = false;
    template <class V>
    struct At : Weighted<V, taps> {
        using T = Element<V>;
        static constexpr int n = lanesOf<V>;
        explicit ZMV_INLINE At(V f) {
            alignas(64) int32_t entries[taps][n];
            Block<Vec<float>, 2> pairs[taps];  // an entry and the next, of the points in the order of even
            V behind[taps], sum;
            unrolled<taps>([&](auto k) {
                const V apart = (-2 - f) + T(k), at = larger(apart, -apart) * 100;
                const auto entry = wholeOf(at);
                store(entries[k], entry), behind[k] = at - realOf<T>(entry);
            });
            unrolled<taps>([&](auto k) {
                const auto pair = [&](int i) {
                    uint64_t both;
                    std::memcpy(&both, &tblL3[size_t(entries[k][i])], 8);
                    return both;
                };
                Block<Vec<uint64_t>, 2> words{};
                unrolled<n>([&](auto i) { words[i / 2 % 2][i / 4 * 2 + i % 2] = pair(i); });
                pairs[k] = {(Vec<float>)words[0], (Vec<float>)words[1]};
            });
            unrolled<taps>([&](auto k) {
                const auto& [first, second] = pairs[k];
                const V low = inLanesOf<T>(even(first, second)),
                        high = inLanesOf<T>(even(oddToEven(first), oddToEven(second)));
                this->weight[k] = low + behind[k] * (high - low);
                sum = k == 0 ? this->weight[k] : sum + this->weight[k];
            });
            for (V& w : this->weight) w /= sum;
        }
    };
    template <class V>
    static ZMV_INLINE At<V> at(V f) {
        return At<V>(f);
    }
};

}  // namespace zmv
