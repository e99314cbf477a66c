// zmviAdd, zmviSub, zmviMul, zmviAnd, zmviOr, zmviXor, and with a constant; zmviNot.
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
                    if constexpr (std::is_floating_point_v<T>) {
                        if constexpr (requires { Op()(b, a); }) c.set(to, x, y, k, singlePrecision<Op>(b, a));
                    } else if (!c.has("scaleFactor"))
                        c.set(to, x, y, k, T(Op()(b, a)));
                    else
                        c.set(to, x, y, k, scaled<T>(Op()(__int128(b), __int128(a)), factor));
                }
    });
}

void computeNot(Case& c) {
    const Image &src = c.image(c.has("src") ? "src" : "srcDst"), &dst = c.image(c.has("dst") ? "dst" : "srcDst");
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t x = 0; x < c.width; ++x)
            for (int k = 0; k < c.member.to.used(); ++k)
                c.set(dst, x, y, k, uint8_t(255 - c.get<uint8_t>(src, x, y, k)));
}

const std::vector<Check> refusals = {pointers({"src1", "src2", "src", "dst", "srcDst", "value"}), sizes({"roiSize"})};

}  // namespace

#define ARITHMETIC(name, Op, rounded)                                                                                  \
    extern const Family test_##name = {.arrange = arrangeBinary,                                                       \
                                       .oracle = computeBinary<Op>,                                                    \
                                       .steps = Steps::any,                                                            \
                                       .ladder = refusals,                                                             \
                                       .rounds = rounded,                                                              \
                                       .bulk = true};
ARITHMETIC(zmviAdd, std::plus<>, true)
ARITHMETIC(zmviAddC, std::plus<>, true)
ARITHMETIC(zmviSub, std::minus<>, true)
ARITHMETIC(zmviSubC, std::minus<>, true)
ARITHMETIC(zmviMul, std::multiplies<>, true)
ARITHMETIC(zmviMulC, std::multiplies<>, true)
ARITHMETIC(zmviAnd, std::bit_and<>, false)
ARITHMETIC(zmviAndC, std::bit_and<>, false)
ARITHMETIC(zmviOr, std::bit_or<>, false)
ARITHMETIC(zmviOrC, std::bit_or<>, false)
ARITHMETIC(zmviXor, std::bit_xor<>, false)
ARITHMETIC(zmviXorC, std::bit_xor<>, false)
extern const Family test_zmviNot = {
    .arrange = arrangeBinary, .oracle = computeNot, .steps = Steps::any, .ladder = refusals};
