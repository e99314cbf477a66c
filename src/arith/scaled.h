// Integer results and their scale factor: the exact result, times 2 to the power of -factor, rounded to nearest with
// ties to even, saturated.  What is common to all operations that have one; an operation gives
//   exact<half>(a, ..)  half of the exact results, in lanes that hold them all
//   saturated(a, ..)    the results at factor 0
//   halved(a, ..)       those at factor 1, where that is less work than the rule
//   largest<T>          the largest magnitude of an exact result
// and, for floating-point types, plain(a, ..).
#pragma once

#include "kernels/pointwise.h"
#include "kernels/simd_math.h"

namespace zmv {

// From this factor on every result rounds to zero: the largest is at most one half, and that is a tie.
template <class Op, class T>
constexpr int zeroFrom() {
    constexpr int64_t most = Op::template largest<T>;
    int n = 1;
    while (most > int64_t(1) << (n - 1)) ++n;
    return n;
}

// x / 2^n, rounded, n > 0.  Adding 2^(n-1) - 1 plus the lowest bit that survives sends ties to even.  Where that could
// pass the lanes, the dividend is halved first, its lost bit kept as a one in the last place: far below the tie.
template <class W>
class RoundShift {
  public:
    RoundShift(int n, int64_t largest) {
        const int64_t lanesHold = std::numeric_limits<Element<W>>::max();
        if (largest + (int64_t(1) << (n - 1)) > lanesHold) before_ = 1, kept_ = 1, --n;
        n_ = n;
        half_ = Element<W>((int64_t(1) << (n - 1)) - 1);
    }
    ZMV_INLINE W operator()(W x) const {
        if constexpr (std::is_unsigned_v<Element<W>>) x = (x >> before_) | (x & kept_);
        return (x + half_ + ((x >> n_) & 1)) >> n_;
    }

  private:
    int n_, before_ = 0;
    Element<W> half_, kept_ = 0;
};

// Floating-point types have no factor, nor have operations that say so.
template <class Op, class T>
constexpr bool hasFactor = std::is_integral_v<T>;
template <class Op, class T>
requires requires { Op::withoutFactor; }
constexpr bool hasFactor<Op, T> = false;

// The rules, by the sign of the factor.
template <class Op, class T, class... V>
struct ScaledDown {
    RoundShift<decltype(Op::template exact<0>(V{}...))> shift;
    explicit ScaledDown(int factor) : shift(factor, Op::template largest<T>) {}
    ZMV_INLINE Vec<T> operator()(V... v) const {
        return narrow<T>(shift(Op::template exact<0>(v...)), shift(Op::template exact<1>(v...)));
    }
};
template <class Op, class T>
struct NotScaled {
    template <class... V>
    ZMV_INLINE Vec<T> operator()(V... v) const {
        if constexpr (hasFactor<Op, T>)
            return Op::saturated(v...);
        else
            return Op::plain(v...);
    }
};
template <class Op>
struct Halved {
    template <class... V>
    ZMV_INLINE auto operator()(V... v) const {
        return Op::halved(v...);
    }
};
// What saturates before it is scaled up saturates after.  Beyond the width of the type only zero does not.
template <class Op, class T>
struct ScaledUp {
    int shift;
    explicit ScaledUp(int factor) : shift(factor < -int(8 * sizeof(T)) ? int(8 * sizeof(T)) : -factor) {}
    template <class... V>
    ZMV_INLINE Vec<T> operator()(V... v) const {
        const Vec<T> x = Op::saturated(v...);
        return narrow<T>(widen<0>(x) << shift, widen<1>(x) << shift);
    }
};
template <class Operand, class T>
using VectorOf = Vec<T>;
template <class T>
struct Zero {
    ZMV_INLINE Vec<T> operator()() const { return Vec<T>{}; }
};

// Runs an operation with its factor over a region.
template <class Op, class T, class... Operand>
void scaled(Image<T> dst, Roi roi, Layout layout, int factor, bool pastCache, const Operand&... operands) {
    const auto run = [&](const auto& rule) { pointwise(rule, dst, roi, layout, pastCache, operands...); };
    if constexpr (!hasFactor<Op, T>)
        run(NotScaled<Op, T>{});
    else if (factor >= zeroFrom<Op, T>())
        pointwise(Zero<T>{}, dst, roi, layout, pastCache);
    else if (factor == 0)
        run(NotScaled<Op, T>{});
    else if (factor < 0)
        run(ScaledUp<Op, T>(factor));
    else if constexpr (requires(VectorOf<Operand, T>... v) { Op::halved(v...); })
        factor == 1 ? run(Halved<Op>{}) : run(ScaledDown<Op, T, VectorOf<Operand, T>...>(factor));
    else
        run(ScaledDown<Op, T, VectorOf<Operand, T>...>(factor));
}

}  // namespace zmv
