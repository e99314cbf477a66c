// zmviMul, zmviMulC: the product.
#include "arith/binary.h"

namespace zmv {
namespace {

struct Mul {
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

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/binary.def"
BINARY_FAMILY(Mul)
CONSTANT_FAMILY(Mul)
