// zmviExp, zmviLn: e to the power of a pixel, and its natural logarithm, in double precision by rules of their own.
#include <bit>

#include "arith/exp.h"
#include "arith/real.h"
#include "arith/scaled.h"

namespace zmv {
namespace {

using D = Vec<double>;
using U = Vec<uint64_t>;

// ln x * 2^-factor, for numbers that are not denormal.
struct Ln {
    double scale;
    explicit Ln(int scaleFactor) : scale(scaleOf<double>(scaleFactor)) {}

    // 2 / (2k + 1), up to where the next term is below half a unit in the last place for |s| <= 3 - 2 sqrt(2).
    static constexpr std::array<double, 12> coefficients = [] {
        std::array<double, 12> c{};
        for (int k = 0; k < 12; ++k) c[size_t(k)] = 2.0 / (2 * k + 1);
        return c;
    }();

    ZMV_INLINE D positive(D x) const {
        // x = 2^n m, m from sqrt(1/2) to sqrt(2): ln m = 2 artanh(s), s = (m - 1) / (m + 1).
        constexpr uint64_t one = uint64_t(1023) << 52, leastM = 0x3fe6a09e667f3bcd, unit = 0x4330000000000000;
        const U biased = ((U)x - leastM + one) >> 52;
        const D n = (D)(biased | unit) - (0x1p52 + 1023), m = (D)((U)x - (biased << 52) + one);
        const D s = (m - 1.0) / (m + 1.0);
        return n * ln2 + (n * ln2Rest + s * polynomial(coefficients, s * s));
    }
};
// Of integers, zero and what lies below give the smallest of the type.
struct LnOfInteger : Ln {
    using Ln::Ln;
    ZMV_INLINE D operator()(D x) const { return (x > 0.0 ? positive(x) : fill(-__builtin_inf())) * scale; }
};
struct LnOfFloat : Ln {
    using Ln::Ln;
    ZMV_INLINE D operator()(D x) const {
        const D inf = fill(__builtin_inf());
        D ln = positive(x);
        ln = x == inf ? inf : ln;
        ln = x == 0.0 ? -inf : ln;
        ln = x < 0.0 ? fill(std::bit_cast<double>(0xfff8000000000000)) : ln;
        return x == x ? ln : x;
    }
};

template <class Op, class T>
StatusCode ownpi_Unary(Image<const T> src, Image<T> dst, Roi roi, Layout layout, int factor) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    using Rule = std::conditional_t<std::same_as<Op, Exp>, Exp,
                                    std::conditional_t<std::is_integral_v<T>, LnOfInteger, LnOfFloat>>;
    pointwiseIn<double>(Rule(factor), dst, roi, layout, false, src);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/unary.def"
EXP_LN_FAMILY(Exp)
EXP_LN_FAMILY(Ln)
