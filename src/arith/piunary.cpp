// zmviAbs, zmviSqr, zmviSqrt, zmviComplement, zmviNot: operations on one image.
#include "arith/real.h"
#include "arith/scaled.h"

namespace zmv {
namespace {

struct Abs {
    static constexpr bool withoutFactor = true;
    // The magnitude of the smallest integer saturates.
    template <class V>
    ZMV_INLINE static V plain(V a) {
        if constexpr (std::is_floating_point_v<Element<V>>) {
            return (V)((Vec<uint32_t>)a & 0x7fffffffu);
        } else {
            const V negative = subSaturated(V{}, a);
            return a > negative ? a : negative;
        }
    }
};
struct Sqr {
    template <class T>
    static constexpr int64_t largest = std::is_signed_v<T>
                                           ? int64_t(std::numeric_limits<T>::min()) * std::numeric_limits<T>::min()
                                           : int64_t(std::numeric_limits<T>::max()) * std::numeric_limits<T>::max();
    template <int half, class V>
    ZMV_INLINE static auto exact(V a) {
        return product<half>(a, a);
    }
    template <class V>
    ZMV_INLINE static V saturated(V a) {
        return narrow<Element<V>>(exact<0>(a), exact<1>(a));
    }
    template <class V>
    ZMV_INLINE static V plain(V a) {
        return a * a;
    }
};
// Minus one times the number; the smallest wraps to itself.
struct Complement {
    static constexpr bool withoutFactor = true;
    template <class V>
    ZMV_INLINE static V plain(V a) {
        return (V)(-asUnsigned(a));
    }
};
struct Not {
    static constexpr bool withoutFactor = true;
    template <class V>
    ZMV_INLINE static V plain(V a) {
        return ~a;
    }
};

// The root of a negative integer is NaN, which becomes zero.  That of a float is rounded as the caller wants.
struct Sqrt {
    ZMV_INLINE Vec<float> operator()(Vec<float> a) const { return squareRoot(a); }
};
template <class T>
void squareRoots(Image<const T> src, Image<T> dst, Roi roi, Layout layout, int factor) {
    if constexpr (std::is_floating_point_v<T>) {
        const bool pastCache = src.data != dst.data && regionPastCache(roi, layout, 2 * sizeof(T));
        pointwise(Sqrt(), dst, roi, layout, pastCache, src);
    } else {
        withPrecision<T>(factor, [&](auto zero) {
            using F = decltype(zero);
            const auto rule = [scale = scaleOf<F>(factor)](Vec<F> a) { return squareRoot(a) * scale; };
            pointwiseIn<F>(rule, dst, roi, layout, false, src);  // roots of integers take longer than memory
        });
    }
}

template <class Op, class T>
StatusCode ownpi_Unary(Image<const T> src, Image<T> dst, Roi roi, Layout layout, int factor) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    if constexpr (std::is_same_v<Op, Sqrt>)
        squareRoots(src, dst, roi, layout, factor);
    else
        scaled<Op>(dst, roi, layout, factor, false, src);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/unary.def"
ABS_FAMILY
SQR_FAMILY
SQRT_FAMILY
COMPLEMENT_FAMILY
NOT_FAMILY
