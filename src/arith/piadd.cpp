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
    // The average rounds up; where that made a tie odd it is one too many.  Signed numbers are moved up by half the
    // range.
    template <class V>
    ZMV_INLINE static V halved(V a, V b) {
        using T = Element<V>;
        constexpr auto moved = std::make_unsigned_t<T>(std::numeric_limits<T>::min());
        const auto x = asUnsigned(a) ^ moved, y = asUnsigned(b) ^ moved, up = average(x, y);
        return (V)((up - ((x ^ y) & up & 1)) ^ moved);
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
