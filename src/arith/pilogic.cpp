// zmviAnd, zmviOr, zmviXor, with images and with constants; zmviNot.
#include "arith/binary.h"

namespace zmv {
namespace {

struct And {
    static constexpr bool bitwise = true;
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return a & b;
    }
};
struct Or {
    static constexpr bool bitwise = true;
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return a | b;
    }
};
struct Xor {
    static constexpr bool bitwise = true;
    template <class V>
    ZMV_INLINE static V plain(V a, V b) {
        return a ^ b;
    }
};
struct Not {
    template <class V>
    ZMV_INLINE V operator()(V a) const {
        return ~a;
    }
};

template <class T>
StatusCode ownpi_Not(Image<const T> src, Image<T> dst, Roi roi, Layout layout) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi)})) return bad;
    pointwise(Not{}, dst, roi, layout, false, src);
    return STATUS_OK;
}

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
NOT_FAMILY
