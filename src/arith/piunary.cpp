// zmviAbs, zmviSqr, zmviComplement, zmviNot: operations on one image.
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

template <class Op, class T>
StatusCode ownpi_Unary(Image<const T> src, Image<T> dst, Roi roi, Layout layout, int factor) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
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
COMPLEMENT_FAMILY
NOT_FAMILY
