// zmviExp, zmviLn: e to the power of a pixel, and its natural logarithm, in double precision by rules of their own.
#include <bit>

#include "arith/exp.h"
#include "arith/real.h"
#include "arith/scaled.h"
#include "kernels/logarithm.h"

namespace zmv {
namespace {

using D = Vec<double>;

// ln x * 2^-factor, for numbers that are not denormal.
struct Ln {
    double scale;
    explicit Ln(int scaleFactor) : scale(scaleOf<double>(scaleFactor)) {}
};
// Of integers, zero and what lies below give the smallest of the type.
struct LnOfInteger : Ln {
    using Ln::Ln;
    ZMV_INLINE D operator()(D x) const { return (x > 0.0 ? logarithm(x) : fill(-__builtin_inf())) * scale; }
};
struct LnOfFloat : Ln {
    using Ln::Ln;
    ZMV_INLINE D operator()(D x) const {
        const D inf = fill(__builtin_inf());
        D ln = logarithm(x);
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
