// zmviAdd, zmviAddC: the sum.
#include "arith/binary.h"

namespace zmv {
namespace {

struct Add {
    static constexpr bool takesAnyStep = true;
    template <class T>
    static constexpr int64_t largest = 2 * (int64_t(std::numeric_limits<T>::max()) + std::is_signed_v<T>);
    // Lanes of twice the width hold a sum with its sign.
    template <int half, class V>
    ZMV_INLINE static auto exact(V a, V b) {
        return asSigned(widen<half>(a)) + asSigned(widen<half>(b));
    }
    template <class V>
    ZMV_INLINE static V saturated(V a, V b) {
        return addSaturated(a, b);
    }
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return addInOrder(b, a);
    }
};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/binary.def"
BINARY_FAMILY(Add)
CONSTANT_FAMILY(Add)
