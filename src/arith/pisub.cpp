// zmviSub: the second image minus the first.  zmviSubC: the image minus the constant.
#include "arith/binary.h"

namespace zmv {
namespace {

struct Sub {
    static constexpr bool takesAnyStep = true;
    template <class T>
    static constexpr int64_t largest = std::numeric_limits<T>::max() - int64_t(std::numeric_limits<T>::min());
    // Lanes of twice the width hold a difference with its sign; one below zero saturates there in unsigned types.
    template <int half, class V>
    ZMV_INLINE static auto exact(V a, V b) {
        return asSigned(widen<half>(b)) - asSigned(widen<half>(a));
    }
    template <class V>
    ZMV_INLINE static V saturated(V a, V b) {
        return subSaturated(b, a);
    }
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return b - a;
    }
};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/binary.def"
BINARY_FAMILY(Sub)
CONSTANT_FAMILY(Sub)
