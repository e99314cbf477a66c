// zmviAnd, zmviOr, zmviXor, with images and with constants.
#include "arith/binary.h"

namespace zmv {
namespace {

struct And {
    static constexpr bool withoutFactor = true;
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return a & b;
    }
};
struct Or {
    static constexpr bool withoutFactor = true;
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return a | b;
    }
};
struct Xor {
    static constexpr bool withoutFactor = true;
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return a ^ b;
    }
};
}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/binary.def"
LOGIC_FAMILY(And)
LOGIC_FAMILY(Or)
LOGIC_FAMILY(Xor)
LOGIC_CONSTANT_FAMILY(And)
LOGIC_CONSTANT_FAMILY(Or)
LOGIC_CONSTANT_FAMILY(Xor)
