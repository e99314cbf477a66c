// What the compositing operations make of two colours and their alphas.
//
// Alphas and colours are fractions of the largest number of their type; of floats, of 1.  Every operation is
//     (cA * oA * fA  +  cB * oB * fB) / largest^2
// where f is the part of an image that the operation shows, by the other image's alpha, and o is the image's own alpha,
// or the largest number where colours come multiplied by it already.  The largest number as a colour, or the alpha
// itself in the place of a premultiplied one, gives the alpha of the result.
#pragma once

#include <limits>

#include "kernels/simd_math.h"

namespace zmv {

constexpr int compositions = 6, alphaTypes = 2 * compositions;  // without and with premultiplied colours

inline StatusCode knownAlphaType(int alphaType) {
    return refuse(alphaType < 0 || alphaType >= alphaTypes, STATUS_BAD_ALPHA_TYPE);
}

// The part of an image that is shown: all, none, what lies inside of the other one, or outside.
struct Shown {
    bool otherAlpha, complement;
};
constexpr Shown all{false, true}, none{false, false}, inside{true, false}, outside{true, true};
struct Composition {
    Shown a, b;
};
constexpr Composition compositionOf(int alphaType) {
    constexpr Composition table[compositions] = {{all, outside},    {inside, none},     {outside, none},
                                                 {inside, outside}, {outside, outside}, {all, all}};
    return table[alphaType % compositions];
}
constexpr bool isPremultiplied(int alphaType) { return alphaType >= compositions; }
// Sums may pass the largest number, and are cut off there.
constexpr bool isCut(int alphaType) { return alphaType >= ALPHA_PLUS; }
// Alphas composite like premultiplied colours.
constexpr int ofAlphas(int alphaType) { return alphaType % compositions + compositions; }

template <class T>
constexpr T largestOf = std::is_floating_point_v<T> ? T(1) : std::numeric_limits<T>::max();

// Alphas that are out of range count as the nearest that is not; NaN counts as zero.
template <class V>
ZMV_INLINE V asAlpha(V v) {
    using T = Element<V>;
    if constexpr (std::is_signed_v<T>) v = v > V{} ? v : V{};
    if constexpr (std::is_floating_point_v<T>) v = v < T(1) ? v : V{} + T(1);
    return v;
}

// Pixels of four channels: the fourth one's place, and its value in all four.
struct IsFourth {
    static constexpr bool at(int i) { return i % 4 == 3; }
};
struct OfFourth {
    static constexpr int at(int i) { return i | 3; }
};
struct OfSecond {
    static constexpr int at(int i) { return i | 1; }
};
template <class V>
ZMV_INLINE V fourthOf(V pixels) {
    if constexpr (sizeof(Element<V>) > 1 || hasByteShuffle) return permute<OfFourth>(pixels, pixels);
    using Pairs = Vec<uint16_t, sizeof(V)>;
    const auto pairs = (Pairs)pixels >> 8, fourth = permute<OfSecond>(pairs, pairs);
    return (V)(fourth | fourth << 8);
}
template <class V>
ZMV_INLINE V withFourth(V pixels, V fourth) {
    using Raw = Vec<Bits<Element<V>>, sizeof(V)>;
    return (V)select(maskWhere<IsFourth, Raw>(), (Raw)fourth, (Raw)pixels);
}

// An operation, known at run time, on pixels of 32-bit numbers.
template <class T>
class Compositing {
  public:
    static constexpr bool real = std::is_floating_point_v<T>;
    using V = Vec<T>;
    struct Weights {
        V ownA, shownA, ownB, shownB;
    };

    explicit Compositing(int alphaType)
        : a_(compositionOf(alphaType).a),
          b_(compositionOf(alphaType).b),
          premultiplied_(isPremultiplied(alphaType)),
          cut_(isCut(alphaType)),
          copied_(alphaType % compositions == ALPHA_ATOP) {}

    ZMV_INLINE Weights weights(V alphaA, V alphaB) const {
        alphaA = asAlpha(alphaA), alphaB = asAlpha(alphaB);
        const V most = fill(largestOf<T>);
        const auto shown = [&](Shown s, V other) {
            if (!s.otherAlpha) return s.complement ? most : V{};
            return s.complement ? most - other : other;
        };
        return {premultiplied_ ? most : alphaA, shown(a_, alphaB), premultiplied_ ? most : alphaB, shown(b_, alphaA)};
    }

    ZMV_INLINE V of(const Weights& w, V a, V b) const {
        if constexpr (real) {
            // What has no weight has no influence, not even as infinity or NaN.
            const auto term = [](V colour, V weight) { return weight > 0 ? mulInOrder(colour, weight) : V{}; };
            const V sum = addInOrder(term(a, w.ownA * w.shownA), term(b, w.ownB * w.shownB));
            return cut_ ? (sum > 1 ? V{} + 1 : sum) : sum;
        } else {
            return eachLane(w, a, b);
        }
    }

    // Whole pixels of four channels, the fourth being alpha.
    ZMV_INLINE V pixels(V a, V b) const {
        const V alphaA = fourthOf(a), alphaB = fourthOf(b), most = fill(largestOf<T>);
        const V result = of(weights(alphaA, alphaB), withFourth(a, premultiplied_ ? asAlpha(alphaA) : most),
                            withFourth(b, premultiplied_ ? asAlpha(alphaB) : most));
        return real && copied_ ? withFourth(result, asAlpha(alphaB)) : result;
    }
    // Alphas alone, of a premultiplied operation.
    ZMV_INLINE V alphas(V a, V b) const {
        return real && copied_ ? asAlpha(b) : of(weights(a, b), asAlpha(a), asAlpha(b));
    }

  private:
    // x over the largest number, to nearest, however large x is: what overLargest() does once, until nothing is left.
    template <class W>
    static W quotient(W x) {
        constexpr int bits = std::numeric_limits<T>::digits;
        constexpr W most = largestOf<T>;
        W rest = x + most / 2, quotient = 0;
        while (rest >> bits) {
            quotient += rest >> bits;
            rest = (rest >> bits) + (rest & most);
        }
        return quotient + (rest == most);
    }
    __attribute__((noinline)) static V eachLane(const Weights& w, V a, V b) {
        using W = __int128;
        V result;
        for (int i = 0; i < lanes<T>; ++i) {
            const W sum = W(a[i]) * w.ownA[i] * w.shownA[i] + W(b[i]) * w.ownB[i] * w.shownB[i];
            // Rounding twice is rounding once: (L^2 - 1) / 2 is L * (L - 1) / 2 + (L - 1) / 2.
            const W colour = quotient(quotient(sum));
            constexpr W least = std::numeric_limits<T>::min(), most = largestOf<T>;
            result[i] = T(colour > most ? most : colour < least ? least : colour);
        }
        return result;
    }

    Shown a_, b_;
    bool premultiplied_, cut_;
    bool copied_;  // B's alpha is the result's: in floats the sum may miss it
};

}  // namespace zmv
