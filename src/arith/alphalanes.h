// Compositing of 8-bit and 16-bit integers, in lanes of twice their width: the even and the odd elements of a vector
// apart.  L is the largest number of the type, 2^n - 1.
//
// A weight oA * fA, at most L^2, is L * u + v.  Then the colour over L is cA * uA + cB * uB and the rounded
// (cA * vA + cB * vB) / L, every number fits its lane, and rounding a second time is rounding once: half of L^2 - 1 is
// half of L - 1, L times and once more.
#pragma once

#include "arith/alpha.h"
#include "kernels/rounding.h"

namespace zmv {

enum class Weighing {
    over,               // A's weight is a multiple of L
    overPremultiplied,  // A's is L^2: A itself
    whole,              // both are multiples of L; the sum is cut off at L
    both,               // together, they are at most L^2
};

template <class T, Weighing weighing>
class CompositingLanes {
    using V = Vec<T>;
    using E = Wider<T>;
    using W = Vec<E>;
    static constexpr int n = std::numeric_limits<T>::digits, bits = 8 * sizeof(T);
    static constexpr E most = largestOf<T>;
    static constexpr bool isSigned = std::is_signed_v<T>;
    struct Quotient {
        W whole, rest;
    };
    struct OfLanes {
        Quotient a, b;
    };

  public:
    struct Weights {
        OfLanes even, odd;
    };

    explicit CompositingLanes(int alphaType) : own_(fill(isPremultiplied(alphaType) ? most : E(0))) {
        const auto ones = [](bool set) { return fill(set ? most : E(0)); };
        const Composition c = compositionOf(alphaType);
        maskA_ = ones(c.a.otherAlpha), flipA_ = ones(c.a.complement);
        maskB_ = ones(c.b.otherAlpha), flipB_ = ones(c.b.complement);
        fourth_ = isPremultiplied(alphaType) ? W{} : W(maskWhere<IsFourth, V>()) >> bits & most;
    }

    ZMV_INLINE Weights weights(V alphaA, V alphaB) const {
        alphaA = asAlpha(alphaA), alphaB = asAlpha(alphaB);
        return {ofLanes(even(alphaA), even(alphaB)), ofLanes(odd(alphaA), odd(alphaB))};
    }
    ZMV_INLINE V of(const Weights& w, V a, V b) const {
        return joined(a, colours(w.even, even(a), even(b)), colours(w.odd, odd(a), odd(b)));
    }
    // Whole pixels of four channels, the fourth being alpha.
    ZMV_INLINE V pixels(V a, V b) const {
        if constexpr (isSigned) a = withFourth(a, asAlpha(a)), b = withFourth(b, asAlpha(b));
        const W oddA = odd(a), oddB = odd(b);
        const auto spread = [](W odd) { return permute<OfSecond>(odd, odd); };
        constexpr bool apart = weighing == Weighing::overPremultiplied && hasByteShuffle;  // spares a shift
        const OfLanes w = ofLanes(apart ? (W)fourthOf(a) & most : spread(oddA), spread(oddB));
        return joined(a, colours(w, even(a), even(b)), colours(w, oddA | fourth_, oddB | fourth_));
    }
    // Alphas alone, of a premultiplied operation.
    ZMV_INLINE V alphas(V a, V b) const {
        a = asAlpha(a), b = asAlpha(b);
        return of(weights(a, b), a, b);
    }

  private:
    static ZMV_INLINE W even(V v) { return isSigned ? (W)v << bits >> bits : (W)v & E(Bits<T>(~0u)); }
    static ZMV_INLINE W odd(V v) { return (W)v >> bits; }
    static ZMV_INLINE V joined(V a, W even, W odd) {
        const auto low = isSigned ? (W)((Vec<Bits<E>>)(even << bits) >> bits) : even;
        const auto result = V(low | odd << bits);
        return weighing == Weighing::overPremultiplied ? addSaturated(a, result) : result;
    }

    ZMV_INLINE OfLanes ofLanes(W alphaA, W alphaB) const {
        const W zero{};
        // L - x is x ^ L.
        if constexpr (weighing == Weighing::overPremultiplied) return {{zero, zero}, {alphaA ^ most, zero}};
        if constexpr (weighing == Weighing::over) {
            const W weight = alphaB * (alphaA ^ most), whole = overLargest<T>(weight);
            return {{alphaA, zero}, {whole, restOf(weight, whole)}};
        }
        const W ownA = alphaA | own_, shownA = (alphaB & maskA_) ^ flipA_;
        const W ownB = alphaB | own_, shownB = (alphaA & maskB_) ^ flipB_;
        if constexpr (weighing == Weighing::whole) return {{ownA & shownA, zero}, {ownB & shownB, zero}};  // one is L
        const auto quotient = [](W weight) -> Quotient {
            const W whole = overLargestDown<T>(weight);
            return {whole, weight - whole * most};
        };
        return {quotient(ownA * shownA), quotient(ownB * shownB)};
    }
    // The rest of a rounded quotient is small and signed.  Of bytes its low half says all, which timesLow() reads.
    static ZMV_INLINE W restOf(W weight, W whole) { return sizeof(T) == 1 ? weight + whole : weight - whole * most; }
    static ZMV_INLINE W timesRest(W colour, W rest) {
        if constexpr (sizeof(T) == 1)
            return timesLow(colour, rest);
        else
            return colour * rest;
    }

    static ZMV_INLINE W colours(const OfLanes& w, W a, W b) {
        if constexpr (weighing == Weighing::overPremultiplied) return overLargest<T>(b * w.b.whole);
        const W ofA = a * w.a.whole, ofB = b * w.b.whole;
        if constexpr (weighing == Weighing::whole) return overLargest<T>(cutSum(ofA, ofB));
        if constexpr (weighing == Weighing::over) {
            // Lanes without a sign hold a negative number moved up, and its quotient moved as well.
            constexpr E up = isSigned ? 0 : E(1) << (n - 1);
            return overLargest<T>(ofA + ofB + (overLargest<T>(timesRest(b, w.b.rest) + E(up * most)) - up));
        }
        // What the first quotient leaves goes into the second.
        const W first = a * w.a.rest, quotient = overLargest<T>(first), left = first - quotient * most;
        return overLargest<T>(ofA + ofB + quotient + overLargest<T>(b * w.b.rest + left));
    }
    // What is over L after division is L, and of signed types what is below the smallest number is that.
    static ZMV_INLINE W cutSum(W a, W b) {
        constexpr E largest = most * most;
        if constexpr (sizeof(T) == 1) {
            const W sum = addSaturated(a, b);
            return sum - subSaturated(sum, fill(largest));
        } else if constexpr (isSigned) {
            constexpr E smallest = std::numeric_limits<T>::min() * most;
            const W sum = a + b, above = sum > smallest ? sum : W{} + smallest;
            return above < largest ? above : W{} + largest;
        } else {
            const W sum = a + b;
            return ((sum < a) | (sum > largest)) ? W{} + largest : sum;
        }
    }

    W own_, maskA_, flipA_, maskB_, flipB_;
    W fourth_;  // of odd elements
};

// Calls f with the operation.
template <class T, class F>
void compositing(int alphaType, F f) {
    if constexpr (std::is_integral_v<T> && sizeof(T) <= 2) {
        if (alphaType == ALPHA_OVER) return f(CompositingLanes<T, Weighing::over>(alphaType));
        if (alphaType == ALPHA_OVER_PREMUL) return f(CompositingLanes<T, Weighing::overPremultiplied>(alphaType));
        if (isCut(alphaType)) return f(CompositingLanes<T, Weighing::whole>(alphaType));
        f(CompositingLanes<T, Weighing::both>(alphaType));
    } else if constexpr (std::is_integral_v<T>) {
        f(Compositing<T>(alphaType));
    } else {
        toNearest([&] { f(Compositing<T>(alphaType)); });
    }
}

}  // namespace zmv
