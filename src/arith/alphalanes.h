// Compositing of bytes, in 16-bit lanes: the even and the odd bytes of a vector apart.
//
// A weight oA * fA, at most 255^2, is 255 * u + v.  Then the colour over 255 is cA * uA + cB * uB and the rounded
// (cA * vA + cB * vB) / 255, and every number fits 16 bits.
#pragma once

#include "arith/alpha.h"

namespace zmv {

enum class Weighing {
    over,               // A's weight is a multiple of 255
    overPremultiplied,  // A's is 255^2: A itself
    whole,              // both are multiples of 255; the sum is cut off at 255
    both,               // together, they are at most 255^2
};

using Words = Vec<uint16_t>;
// Over 255 to nearest, from 0 to 255^2; or -127, in two's complement.
ZMV_INLINE Words over255(Words x) { return mulHigh(x + 128, fill<uint16_t>(257)); }
struct Quotient {
    Words whole, rest;
};
ZMV_INLINE Quotient divide255(Words x) {
    const Words whole = mulHigh(x, fill<uint16_t>(0x8081)) >> 7;
    return {whole, x - whole * 255};
}

template <Weighing weighing>
class CompositingBytes {
    using V = Vec<uint8_t>;
    struct OfWords {
        Quotient a, b;
    };

  public:
    struct Weights {
        OfWords even, odd;
    };

    explicit CompositingBytes(int alphaType) : own_(fill<uint16_t>(isPremultiplied(alphaType) ? 255 : 0)) {
        const auto bits = [](bool set) { return fill<uint16_t>(set ? 255 : 0); };
        const Composition c = compositionOf(alphaType);
        maskA_ = bits(c.a.otherAlpha), flipA_ = bits(c.a.complement);
        maskB_ = bits(c.b.otherAlpha), flipB_ = bits(c.b.complement);
        fourth_ = isPremultiplied(alphaType) ? Words{} : Words(maskWhere<IsFourth, V>()) >> 8;
    }

    ZMV_INLINE Weights weights(V alphaA, V alphaB) const {
        return {ofWords(even(alphaA), even(alphaB)), ofWords(odd(alphaA), odd(alphaB))};
    }
    ZMV_INLINE V of(const Weights& w, V a, V b) const {
        return joined(a, colours(w.even, even(a), even(b)), colours(w.odd, odd(a), odd(b)));
    }
    // Whole pixels of four channels, the fourth being alpha.
    ZMV_INLINE V pixels(V a, V b) const {
        const Words oddA = odd(a), oddB = odd(b);
        const OfWords w = ofWords(permute<OfOdd>(oddA, oddA), permute<OfOdd>(oddB, oddB));
        return joined(a, colours(w, even(a), even(b)), colours(w, oddA | fourth_, oddB | fourth_));
    }
    // Alphas alone, of a premultiplied operation.
    ZMV_INLINE V alphas(V a, V b) const { return of(weights(a, b), a, b); }

  private:
    static ZMV_INLINE Words even(V v) { return (Words)v & 255; }
    static ZMV_INLINE Words odd(V v) { return (Words)v >> 8; }
    struct OfOdd {
        static constexpr int at(int i) { return i | 1; }
    };
    static ZMV_INLINE V joined(V a, Words even, Words odd) {
        const auto sum = V(even | odd << 8);
        return weighing == Weighing::overPremultiplied ? addSaturated(a, sum) : sum;
    }

    ZMV_INLINE OfWords ofWords(Words alphaA, Words alphaB) const {
        const Words zero{};
        if constexpr (weighing == Weighing::overPremultiplied) return {{zero, zero}, {alphaA ^ 255, zero}};
        if constexpr (weighing == Weighing::over) return {{alphaA, zero}, divide255(alphaB * (alphaA ^ 255))};
        // 255 - x is x ^ 255.
        const Words ownA = alphaA | own_, shownA = (alphaB & maskA_) ^ flipA_;
        const Words ownB = alphaB | own_, shownB = (alphaA & maskB_) ^ flipB_;
        if constexpr (weighing == Weighing::whole) return {{ownA & shownA, zero}, {ownB & shownB, zero}};  // one is 255
        return {divide255(ownA * shownA), divide255(ownB * shownB)};
    }
    static ZMV_INLINE Words colours(const OfWords& w, Words a, Words b) {
        if constexpr (weighing == Weighing::overPremultiplied) return over255(b * w.b.whole);
        const Words sum = a * w.a.whole, more = b * w.b.whole;
        if constexpr (weighing == Weighing::whole) {
            constexpr uint16_t most = 255 * 255;
            const Words above = subSaturated(addSaturated(sum, more), fill(most));
            return over255(addSaturated(sum, more) - above);
        }
        if constexpr (weighing == Weighing::over) return over255(sum + more + over255(b * w.b.rest));
        // What the first quotient leaves goes into the second.
        const Words first = a * w.a.rest, quotient = over255(first), left = first - quotient * 255;
        return over255(sum + more + quotient + over255(b * w.b.rest + left));
    }

    Words own_, maskA_, flipA_, maskB_, flipB_;
    Words fourth_;  // of odd bytes
};

}  // namespace zmv
