// zmviAdd, zmviSub, zmviMul, zmviMulScale, zmviAnd, zmviOr, zmviXor, and with a constant; zmviAbs, zmviSqr,
// zmviComplement, zmviNot, zmviLShiftC, zmviRShiftC: exact in integers.
#include <functional>

#include "arith/arith.h"

namespace test {

namespace {

int factorOf(Case& c) {
    static const int extremes[] = {INT32_MIN, INT32_MIN + 1, -64, -33, -32, -31, 31, 32, 33, 63, 64, INT32_MAX};
    if (c.seed % 3 == 0) return 0;
    return c.rng.oneIn(6) ? extremes[c.rng.below(12)] : c.rng.between(-40, 40);
}

// Numbers near ties and limits, for which random bytes are too random.
void fillNumbers(Case& c, const std::string& name) {
    const Image& image = c.image(name);
    if (c.rng.oneIn(3)) return;
    withElement(image.element, [&](auto zero) {
        using T = decltype(zero);
        static constexpr double reals[] = {0, -0.0, 1, -1, 0.5, 1.5, 255, -1e-40, 1e30, 0.49999997, 3.25, 65535.5};
        for (int64_t y = 0; y < image.height; ++y)
            for (int64_t x = 0; x < image.width; ++x)
                for (int k = 0; k < image.channels; ++k) {
                    if (c.rng.oneIn(2)) continue;
                    if constexpr (std::is_floating_point_v<T>) {
                        c.set(image, x, y, k, T(reals[c.rng.below(12)]));
                    } else {
                        const T power = T(1u << c.rng.below(8 * int(sizeof(T))));
                        c.set(image, x, y, k, T(int64_t(power) * c.rng.between(-3, 3) + c.rng.between(-1, 1)));
                    }
                }
    });
}

}  // namespace

void arrangeArithmetic(Case& c) {
    for (const char* name : {"src1", "src2", "src", "dst", "srcDst"})
        if (c.has(name)) c.place(name, c.width, c.height);
    if (c.has("value")) c.placeValue("value", c.member.to.used());
    if (c.has("dst") && c.member.source == c.member.destination && c.mode == Mode::usual && c.rng.oneIn(4))
        c.alias("dst", c.has("src") ? "src" : c.rng.oneIn(2) ? "src1" : "src2");
    for (const char* name : {"src1", "src2", "src", "srcDst", "value"})
        if (c.hasImage(name)) fillNumbers(c, name);
    if (c.has("value")) bindValue(c);
    c.arg("roiSize") = {c.width, c.height};
    if (c.has("scaleFactor")) c.arg("scaleFactor") = factorOf(c);
}

}  // namespace test

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
    arrangeArithmetic(c);
    const Image& value = c.image("value");
    for (int k = 0; k < value.channels; ++k)
        if (c.rng.below(4)) c.set(value, 0, 0, k, uint32_t(c.rng.below(36)));
    bindValue(c);
}
template <bool left>
void computeShift(Case& c) {
    oneByOne(c, [&]<class T>(T a, int64_t, int64_t, int k) {
        const uint32_t n = std::min(c.get<uint32_t>(c.image("value"), 0, 0, k), 40u);
        return T(left ? Wide(a) * (Wide(1) << n) : Wide(a) >> n);
    });
}

}  // namespace

#define ARITHMETIC(name, Op)                                                                                           \
    extern const Family test_##name = {.arrange = arrangeArithmetic,                                                   \
                                       .oracle = computeBinary<Op>,                                                    \
                                       .steps = Steps::any,                                                            \
                                       .ladder = anyStep(),                                                            \
                                       .rounds = Rounds::floats,                                                       \
                                       .bulk = true};
ARITHMETIC(zmviAdd, std::plus<>)
ARITHMETIC(zmviAddC, std::plus<>)
ARITHMETIC(zmviSub, std::minus<>)
ARITHMETIC(zmviSubC, std::minus<>)
ARITHMETIC(zmviMul, std::multiplies<>)
ARITHMETIC(zmviMulC, std::multiplies<>)

#define LOGIC(name, compute)                                                                                           \
    extern const Family test_##name = {                                                                                \
        .arrange = arrangeArithmetic, .oracle = compute, .ladder = positiveStep(), .bulk = true};
LOGIC(zmviAnd, computeBinary<std::bit_and<>>)
LOGIC(zmviAndC, computeBinary<std::bit_and<>>)
LOGIC(zmviOr, computeBinary<std::bit_or<>>)
LOGIC(zmviOrC, computeBinary<std::bit_or<>>)
LOGIC(zmviXor, computeBinary<std::bit_xor<>>)
LOGIC(zmviXorC, computeBinary<std::bit_xor<>>)
LOGIC(zmviMulScale, computeBinary<OverLargest>)
LOGIC(zmviMulCScale, computeBinary<OverLargest>)
LOGIC(zmviAbs, computeUnary<Magnitude>)
LOGIC(zmviComplement, computeUnary<Minus>)
LOGIC(zmviNot, computeUnary<Inverse>)
extern const Family test_zmviSqr = {
    .arrange = arrangeArithmetic, .oracle = computeUnary<Square>, .ladder = positiveStep(), .rounds = Rounds::floats};
extern const Family test_zmviLShiftC = {
    .arrange = arrangeShift, .oracle = computeShift<true>, .ladder = positiveStep()};
extern const Family test_zmviRShiftC = {
    .arrange = arrangeShift, .oracle = computeShift<false>, .ladder = positiveStep()};
