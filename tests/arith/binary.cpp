// zmviAdd, zmviSub, zmviMul, zmviMulScale, zmviAnd, zmviOr, zmviXor, and with a constant; zmviAbs, zmviSqr,
// zmviComplement, zmviNot, zmviLShiftC, zmviRShiftC: exact in integers.
#include <functional>

#include "arith/arith.h"

namespace {

using namespace test;

template <class Op>
void computeBinary(Case& c) {
    const int64_t factor = c.has("scaleFactor") ? c.arg("scaleFactor").a : 0;
    pairByPair(c, [&]<class T>(T b, T a) -> T {
        if constexpr (!requires { Op()(b, a); })
            throw std::string("no such member");
        else if constexpr (std::is_floating_point_v<T>)
            return nanOr<T>(Op()(b, a), b, a);
        else if constexpr (requires { Op()(Wide(b), Wide(a)); })
            return c.has("scaleFactor") ? ratio<T>(Op()(Wide(b), Wide(a)), 1, factor) : T(Op()(b, a));
        else
            return Op()(b, a);
    });
}

// Products over the largest value of the type: rounded down, or to nearest.
struct OverLargest {
    template <class T>
    requires(std::is_same_v<T, uint8_t> || std::is_same_v<T, uint16_t>) T operator()(T b, T a) const {
        const uint64_t p = uint64_t(a) * b, most = std::numeric_limits<T>::max();
        return T(sizeof(T) == 1 ? p / most : (2 * p + most) / (2 * most));
    }
};

template <class Op>
void computeUnary(Case& c) {
    oneByOne(c, [&]<class T>(T a, int64_t, int64_t, int) -> T {
        return c.has("scaleFactor") ? ratio<T>(Wide(a) * Wide(a), 1, c.arg("scaleFactor").a) : Op()(a);
    });
}
struct Square {
    template <class T>
    T operator()(T a) const {
        return std::is_same_v<T, float> ? nanOr<T>(a * a, a) : a;
    }
};
struct Magnitude {
    template <class T>
    T operator()(T a) const {
        if constexpr (std::is_floating_point_v<T>) {
            uint32_t bits;
            std::memcpy(&bits, &a, 4);
            bits &= 0x7fffffff;
            return std::memcpy(&a, &bits, 4), a;
        } else {
            return T(std::min<int64_t>(std::abs(int64_t(a)), std::numeric_limits<T>::max()));
        }
    }
};
struct Minus {
    template <class T>
    T operator()(T a) const {
        return T(-int64_t(a));
    }
};
struct Inverse {
    template <class T>
    T operator()(T a) const {
        return T(std::numeric_limits<T>::max() - a);
    }
};

// Counts that are mostly within the width.
void arrangeShift(Case& c) {
    arrangeByRoles(c);
    const Image& value = c.image("value");
    for (int k = 0; k < value.channels; ++k)
        if (c.rng.below(4)) c.set(value, 0, 0, k, uint32_t(c.rng.below(36)));
    c.bindValue("value");
}
template <bool left>
void computeShift(Case& c) {
    oneByOne(c, [&]<class T>(T a, int64_t, int64_t, int k) {
        const uint32_t n = std::min(c.get<uint32_t>(c.image("value"), 0, 0, k), 40u);
        return T(left ? Wide(a) * (Wide(1) << n) : Wide(a) >> n);
    });
}

}  // namespace

#define EXACT(name, ...) extern const Family test_##name = {.oracle = __VA_ARGS__};
EXACT(zmviAdd, computeBinary<std::plus<>>)
EXACT(zmviAddC, computeBinary<std::plus<>>)
EXACT(zmviSub, computeBinary<std::minus<>>)
EXACT(zmviSubC, computeBinary<std::minus<>>)
EXACT(zmviMul, computeBinary<std::multiplies<>>)
EXACT(zmviMulC, computeBinary<std::multiplies<>>)
EXACT(zmviAnd, computeBinary<std::bit_and<>>)
EXACT(zmviAndC, computeBinary<std::bit_and<>>)
EXACT(zmviOr, computeBinary<std::bit_or<>>)
EXACT(zmviOrC, computeBinary<std::bit_or<>>)
EXACT(zmviXor, computeBinary<std::bit_xor<>>)
EXACT(zmviXorC, computeBinary<std::bit_xor<>>)
EXACT(zmviMulScale, computeBinary<OverLargest>)
EXACT(zmviMulCScale, computeBinary<OverLargest>)
EXACT(zmviAbs, computeUnary<Magnitude>)
EXACT(zmviComplement, computeUnary<Minus>)
EXACT(zmviNot, computeUnary<Inverse>)
EXACT(zmviSqr, computeUnary<Square>)
extern const Family test_zmviLShiftC = {.arrange = arrangeShift, .oracle = computeShift<true>};
extern const Family test_zmviRShiftC = {.arrange = arrangeShift, .oracle = computeShift<false>};
