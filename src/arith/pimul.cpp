// zmviMul, zmviMulC: the product.  zmviMulScale, zmviMulCScale: the product over the largest value of the type.
// zmviMulC64f: the product with numbers of double precision.
#include "arith/binary.h"
#include "kernels/pointwise_in.h"

namespace zmv {
namespace {

constexpr bool narrowRegisters = vectorBytes == 16;

struct Mul {
    static constexpr bool takesAnyStep = true;
    template <class T>
    static constexpr bool streams = !(narrowRegisters && sizeof(T) == 2);
    template <class T>
    static constexpr int64_t largest = std::is_signed_v<T>
                                           ? int64_t(std::numeric_limits<T>::min()) * std::numeric_limits<T>::min()
                                           : int64_t(std::numeric_limits<T>::max()) * std::numeric_limits<T>::max();
    template <int half, class V>
    ZMV_INLINE static auto exact(V a, V b) {
        return product<half>(a, b);
    }
    template <class V>
    ZMV_INLINE static V saturated(V a, V b) {
        return narrow<Element<V>>(exact<0>(a, b), exact<1>(a, b));
    }
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return mulInOrder(b, a);
    }
};

// Bytes are rounded down, 16-bit numbers to nearest.
struct MulScale {
    static constexpr bool withoutFactor = true;
    template <class>
    static constexpr bool streams = !narrowRegisters;
    template <int half, class V>
    ZMV_INLINE static auto quotient(V a, V b) {
        using T = Element<V>;
        const auto p = product<half>(a, b);
        if constexpr (sizeof(T) == 1)
            return overLargestDown<T>(p);
        else
            return overLargest<T>(p);
    }
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return narrow<Element<V>>(quotient<0>(a, b), quotient<1>(a, b));
    }
};

struct MulC64f {
    ZMV_INLINE Vec<double> operator()(Vec<double> a, Vec<double> b) const { return mulInOrder(b, a); }
    template <class T>
    static StatusCode constant(Image<const T> src, const double* value, Image<T> dst, Roi roi, Layout layout, int) {
        if (auto bad = firstOf({pointers(src.data, value, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
        pointwiseIn<double>(MulC64f(), dst, roi, layout, false, ConstantIn<double>(value, layout), src);
        return STATUS_OK;
    }
};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/binary.def"
BINARY_FAMILY(Mul)
CONSTANT_FAMILY(Mul)
MUL_SCALE_FAMILY
MUL_C_SCALE_FAMILY
MUL_C64F_FAMILY
