// zmviAdd, zmviSub, zmviMul, zmviMulScale, zmviAnd, zmviOr, zmviXor, and with a constant; zmviAbs, zmviSqr,
// zmviComplement, zmviNot.
#include <cmath>
#include <functional>
#include <limits>

#include "harness/case.h"

namespace {

using namespace test;

// x * 2^-factor, rounded half to even, saturated.
template <class T>
T scaled(__int128 x, int64_t factor) {
    using Limits = std::numeric_limits<T>;
    if (factor <= 0)
        x = factor < -40 ? (x > 0) - (x < 0) : x, x *= __int128(1) << std::min<int64_t>(-factor, 40);
    else if (factor > 40)
        x = 0;
    else {
        const __int128 unit = __int128(1) << factor;
        __int128 whole = x >> factor, rest = x - whole * unit;
        if (2 * rest > unit || (2 * rest == unit && (whole & 1))) ++whole;
        x = whole;
    }
    return T(x < Limits::min() ? Limits::min() : x > Limits::max() ? Limits::max() : x);
}

int factorOf(Case& c) {
    static const int extremes[] = {INT32_MIN, INT32_MIN + 1, -64, -33, -32, -31, 31, 32, 33, 63, 64, INT32_MAX};
    if (c.seed % 3 == 0) return 0;
    return c.rng.oneIn(6) ? extremes[c.rng.below(12)] : c.rng.between(-40, 40);
}

// Numbers near ties and limits, for which random bytes are too random.
void fillNumbers(Case& c, const std::string& name) {
    const Image& image = c.image(name);
    if (image.element == Element::f32 || c.rng.oneIn(3)) return;
    withElement(image.element, [&](auto zero) {
        using T = decltype(zero);
        for (int64_t y = 0; y < image.height; ++y)
            for (int64_t x = 0; x < image.width; ++x)
                for (int k = 0; k < image.channels; ++k) {
                    const T power = T(1u << c.rng.below(8 * int(sizeof(T))));
                    if (c.rng.oneIn(2)) c.set(image, x, y, k, T(power * c.rng.between(-3, 3) + c.rng.between(-1, 1)));
                }
        if (name == "value" && !c.member.points(name)) {
            const T value = c.get<T>(image, 0, 0);
            std::memcpy(&c.arg(name).a, &value, sizeof value);
        }
    });
}

void arrangeBinary(Case& c) {
    const bool constant = c.has("value");
    for (const char* name : {"src1", "src2", "src", "dst", "srcDst"})
        if (c.has(name)) c.place(name, c.width, c.height);
    if (constant) c.placeValue("value", c.member.to.used());
    const bool usual = c.mode == Mode::usual;
    if (c.has("dst") && usual && c.rng.oneIn(4))
        c.alias("dst", c.has("src") ? "src" : c.rng.oneIn(2) ? "src1" : "src2");
    for (const char* name : {"src1", "src2", "src", "srcDst", "value"})
        if (c.hasImage(name)) fillNumbers(c, name);
    c.arg("roiSize") = {c.width, c.height};
    if (c.has("scaleFactor")) c.arg("scaleFactor") = factorOf(c);
}

// The processor's rule with b in the first place: its NaN, quieted, or the other's, or a NaN of its own.
template <class Op>
float singlePrecision(float b, float a) {
    const auto asFloat = [](uint32_t bits) {
        float x;
        return std::memcpy(&x, &bits, 4), x;
    };
    for (const float x : {b, a})
        if (std::isnan(x)) {
            uint32_t bits;
            std::memcpy(&bits, &x, 4);
            return asFloat(bits | 0x400000);
        }
    const float result = Op()(b, a);
    return std::isnan(result) ? asFloat(0xffc00000) : result;
}

// op(second, first): the operand that is overwritten in place is the second; a constant takes the place of the first.
template <class Op>
void computeBinary(Case& c) {
    const std::string dst = c.has("dst") ? "dst" : "srcDst";
    const bool constant = c.has("value");
    const Image& second = c.image(constant ? (c.has("src") ? "src" : "srcDst") : c.has("src2") ? "src2" : "srcDst");
    const Image& first = c.image(constant ? "value" : c.has("src1") ? "src1" : "src");
    const Image& to = c.image(dst);
    const int64_t factor = c.has("scaleFactor") ? c.arg("scaleFactor").a : 0;
    withElement(to.element, [&](auto zero) {
        using T = decltype(zero);
        for (int64_t y = 0; y < c.height; ++y)
            for (int64_t x = 0; x < c.width; ++x)
                for (int k = 0; k < c.member.to.used(); ++k) {
                    const T b = c.get<T>(second, x, y, k);
                    const T a = constant ? c.get<T>(first, 0, 0, k) : c.get<T>(first, x, y, k);
                    if constexpr (!requires { Op()(b, a); })
                        throw std::string("no such member");
                    else if constexpr (std::is_floating_point_v<T>)
                        c.set(to, x, y, k, singlePrecision<Op>(b, a));
                    else if (!c.has("scaleFactor"))
                        c.set(to, x, y, k, T(Op()(b, a)));
                    else if constexpr (requires { Op()(__int128(b), __int128(a)); })
                        c.set(to, x, y, k, scaled<T>(Op()(__int128(b), __int128(a)), factor));
                }
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
    const Image &src = c.image(c.has("src") ? "src" : "srcDst"), &dst = c.image(c.has("dst") ? "dst" : "srcDst");
    withElement(dst.element, [&](auto zero) {
        using T = decltype(zero);
        for (int64_t y = 0; y < c.height; ++y)
            for (int64_t x = 0; x < c.width; ++x)
                for (int k = 0; k < c.member.to.used(); ++k) {
                    const T a = c.get<T>(src, x, y, k);
                    if (c.has("scaleFactor"))
                        c.set(dst, x, y, k, scaled<T>(__int128(a) * __int128(a), c.arg("scaleFactor").a));
                    else
                        c.set(dst, x, y, k, T(Op()(a)));
                }
    });
}
struct Square {
    template <class T>
    T operator()(T a) const {
        return std::is_same_v<T, float> ? T(singlePrecision<std::multiplies<>>(float(a), float(a))) : a;
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

const std::vector<Check> anyStep = {pointers({"src1", "src2", "src", "dst", "srcDst", "value"}), sizes({"roiSize"})};
const std::vector<Check> positiveStep = {
    anyStep[0], anyStep[1], positive({"src1Step", "src2Step", "srcStep", "dstStep", "srcDstStep"}, STATUS_BAD_STEP)};

}  // namespace

#define ARITHMETIC(name, Op)                                                                                           \
    extern const Family test_##name = {.arrange = arrangeBinary,                                                       \
                                       .oracle = computeBinary<Op>,                                                    \
                                       .steps = Steps::any,                                                            \
                                       .ladder = anyStep,                                                              \
                                       .rounds = true,                                                                 \
                                       .bulk = true};
ARITHMETIC(zmviAdd, std::plus<>)
ARITHMETIC(zmviAddC, std::plus<>)
ARITHMETIC(zmviSub, std::minus<>)
ARITHMETIC(zmviSubC, std::minus<>)
ARITHMETIC(zmviMul, std::multiplies<>)
ARITHMETIC(zmviMulC, std::multiplies<>)

#define LOGIC(name, compute)                                                                                           \
    extern const Family test_##name = {                                                                                \
        .arrange = arrangeBinary, .oracle = compute, .ladder = positiveStep, .bulk = true};
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
    .arrange = arrangeBinary, .oracle = computeUnary<Square>, .ladder = positiveStep, .rounds = true};
