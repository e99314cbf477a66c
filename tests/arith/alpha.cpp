// zmviAlphaComp, zmviAlphaCompC, zmviAlphaPremul, zmviAlphaPremulC, zmviCompColorKey, zmviAlphaCompColorKey.
#include <gtest/gtest.h>

#include "arith/arith.h"

namespace {

using namespace test;

std::string firstImage(const Case& c) { return c.has("src1") ? "src1" : onlySource(c); }
std::string secondImage(const Case& c) { return c.has("src2") ? "src2" : "srcDst"; }

// Alphas near the ends and the middle of their range and beyond it; of floats, most pixels between 0 and 1.
template <class T>
T someFraction(Rng& rng) {
    if constexpr (std::is_floating_point_v<T>) {
        const T few[] = {0, 1, T(0.5), T(1) / 3, T(-0.25), 2, std::numeric_limits<T>::denorm_min(), T(-0.0)};
        return rng.oneIn(3) ? few[rng.below(8)] : T(rng.next() >> 40) / T(1 << 24);
    } else {
        constexpr T most = std::numeric_limits<T>::max();
        const T few[] = {0, 1, T(most / 2), T(most / 2 + 1), T(most - 1), most, std::numeric_limits<T>::min()};
        return few[rng.below(7)];
    }
}

void arrangeAlpha(Case& c) {
    for (const char* name : {"src1", "src2", "src", "dst", "srcDst"})
        if (c.has(name)) {
            const Image& image = c.place(name, c.width, c.height);
            if (c.mode == Mode::bulk || c.mode == Mode::far) continue;
            withElement(image.element, [&](auto zero) {
                for (int64_t y = 0; y < c.height; ++y)
                    for (int64_t x = 0; x < c.width; ++x)
                        for (int k = 0; k < std::max(image.planes, image.channels); ++k)
                            if (!c.rng.oneIn(3)) c.set(image, x, y, k, someFraction<decltype(zero)>(c.rng));
            });
        }
    if (c.has("dst") && c.mode == Mode::usual && c.rng.oneIn(4))
        c.alias("dst", c.has("src2") && c.rng.oneIn(2) ? "src2" : firstImage(c));
    for (const char* name : {"alpha1", "alpha2", "alpha"})
        if (c.has(name)) {
            const Image& value = c.placeValue(name, 1);
            withElement(value.element, [&](auto zero) {
                if (!c.rng.oneIn(3)) c.set(value, 0, 0, 0, someFraction<decltype(zero)>(c.rng));
            });
            c.bindValue(name);
        }
    c.arg("roiSize") = {c.width, c.height};
    if (c.has("alphaType")) c.arg("alphaType") = int64_t(c.seed % 12);
}

// A colour key, pixels that have it, and others that miss it by one channel, of four also by the one that AC4 skips.
void arrangeKey(Case& c) {
    arrangeByRoles(c);
    const Image &first = c.image("src1"), &key = c.image("colorKey");
    const int n = key.channels;
    withElement(first.element, [&]<class T>(T) {
        for (int64_t y = 0; y < c.height; ++y)
            for (int64_t x = 0; x < c.width; ++x) {
                if (c.rng.oneIn(3)) continue;
                for (int k = 0; k < n; ++k) c.set(first, x, y, k, c.get<T>(key, 0, 0, k));
                if (const int k = c.rng.below(first.channels); c.rng.oneIn(2))
                    first.at(c.blocks(), x, y, k)[c.rng.below(int(sizeof(T)))] ^= uint8_t(1 << c.rng.below(8));
            }
    });
}
bool hasKey(Case& c, int64_t x, int64_t y) {
    bool equal = true;
    withElement(c.image("src1").element, [&]<class T>(T) {
        for (int k = 0; k < c.member.to.used(); ++k)
            equal &= c.get<T>(c.image("src1"), x, y, k) == c.get<T>(c.image("colorKey"), 0, 0, k);
    });
    return equal;
}
void keyed(Case& c) {
    const Image& to = c.image("dst");
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t x = 0; x < c.width; ++x)
            std::memmove(to.at(c.blocks(), x, y, 0), c.image(hasKey(c, x, y) ? "src2" : "src1").at(c.blocks(), x, y, 0),
                         size_t(c.member.to.used() * bytesOf(to.element)));
}

template <class T>
constexpr Wide one = std::numeric_limits<T>::max();

// The table of the operations, written out: the weight of colour A, that of colour B, and alpha.  Numbers are integers
// over 1, which is `one`; of floats they are floats.
template <class N>
struct Row {
    N a, b, alpha;
};
template <class N>
Row<N> row(int64_t type, N aA, N aB, N one, auto times) {
    const N notA = one - aA, notB = one - aB;
    // What a premultiplied colour lacks is its own alpha.
    const N ownA = type < 6 ? aA : one, ownB = type < 6 ? aB : one;
    switch (type % 6) {
        case ALPHA_OVER:
            return {times(ownA, one), times(ownB, notA), times(aA, one) + times(aB, notA)};
        case ALPHA_IN:
            return {times(ownA, aB), 0, times(aA, aB)};
        case ALPHA_OUT:
            return {times(ownA, notB), 0, times(aA, notB)};
        case ALPHA_ATOP:
            return {times(ownA, aB), times(ownB, notA), times(aA, aB) + times(aB, notA)};
        case ALPHA_XOR:
            return {times(ownA, notB), times(ownB, notA), times(aA, notB) + times(aB, notA)};
        default:
            return {times(ownA, one), times(ownB, one), std::min(times(aA, one) + times(aB, one), times(one, one))};
    }
}

template <class T>
struct Reference {
    int64_t type;
    static T clamped(T alpha) {
        if (std::is_floating_point_v<T>) return alpha > 0 ? std::min(alpha, T(1)) : T(0);
        return std::max(alpha, T(0));
    }
    auto table(T aA, T aB) const {
        if constexpr (std::is_floating_point_v<T>)
            return row<T>(type, clamped(aA), clamped(aB), 1, [](T x, T y) { return x * y; });
        else
            return row<Wide>(type, clamped(aA), clamped(aB), one<T>, [](Wide x, Wide y) { return x * y; });
    }
    T colour(T a, T b, T aA, T aB) const {
        const auto weights = table(aA, aB);
        if constexpr (std::is_floating_point_v<T>) {
            const T termA = weights.a == 0 ? 0 : nanOr(a * weights.a, a);
            const T termB = weights.b == 0 ? 0 : nanOr(b * weights.b, b);
            const T sum = nanOr(termA + termB, termA, termB);
            return type >= ALPHA_PLUS && sum > 1 ? 1 : sum;
        } else {
            return ratio<T>(a * weights.a + b * weights.b, one<T> * one<T>, 0);
        }
    }
    T alpha(T aA, T aB) const {
        if (type % 6 == ALPHA_ATOP) return clamped(aB);
        if constexpr (std::is_floating_point_v<T>)
            return table(aA, aB).alpha;
        else
            return ratio<T>(table(aA, aB).alpha, one<T>, 0);
    }
};

void composite(Case& c) {
    const Image &a = c.image(firstImage(c)), &b = c.image(secondImage(c)), &to = c.image(overwritten(c));
    const bool constants = c.has("alpha1");
    const Layout& layout = c.member.to;
    withElement(to.element, [&](auto zero) {
        using T = decltype(zero);
        const Reference<T> due{c.arg("alphaType").a};
        bool hidden = false;  // a pixel of colour 0 and alpha 0
        const auto put = [&](int64_t x, int64_t y, int k) {
            const bool alphas = layout.alpha && !constants && k == layout.channels - 1;
            const int at = layout.channels - 1;
            if (k == 0) hidden = c.has("colorKey") && hasKey(c, x, y);
            const T aA = constants ? c.get<T>(c.image("alpha1"), 0, 0) : hidden ? T(0) : c.get<T>(a, x, y, at);
            const T aB = constants ? c.get<T>(c.image("alpha2"), 0, 0) : c.get<T>(b, x, y, at);
            c.set(to, x, y, k,
                  alphas ? due.alpha(aA, aB)
                         : due.colour(hidden ? T(0) : c.get<T>(a, x, y, k), c.get<T>(b, x, y, k), aA, aB));
        };
        // In place, alphas are read until they are overwritten: after the colours of the pixel, or of the image.
        const int written = layout.channels - (constants && layout.alpha);
        for (int plane = 0; plane < (layout.planar ? written : 1); ++plane)
            for (int64_t y = 0; y < c.height; ++y)
                for (int64_t x = 0; x < c.width; ++x)
                    for (int k = layout.planar ? plane : 0; k < (layout.planar ? plane + 1 : written); ++k)
                        put(x, y, k);
    });
}

void premultiply(Case& c) {
    const Image& src = c.image(onlySource(c));
    oneByOne(c, [&]<class T>(T colour, int64_t x, int64_t y, int) {
        const T alpha = c.has("alpha") ? c.get<T>(c.image("alpha"), 0, 0) : c.get<T>(src, x, y, 3);
        if constexpr (std::is_integral_v<T>)
            return ratio<T>(Wide(colour) * alpha, one<T>, 0);
        else
            return colour;
    });
}

// Every operation on pixels of four colours and alphas drawn by draw(i), i counting them.
template <class T, class Draw>
void checkOperations(const char* member, size_t count, Draw draw) {
    std::vector<T> a(4 * count), b(4 * count), result(4 * count);
    for (size_t i = 0; i < 4 * count; ++i) a[i] = draw(i, 0), b[i] = draw(i, 1);
    const auto call = reinterpret_cast<StatusCode (*)(const T*, int, const T*, int, T*, int, ImageSize, int)>(
        underTest().find(member));
    for (int type = 0; type < 12; ++type) {
        ASSERT_EQ(call(a.data(), 0, b.data(), 0, result.data(), 0, {int(count), 1}, type), STATUS_OK);
        const Reference<T> due{type};
        for (size_t i = 0; i < result.size(); ++i) {
            const T aA = a[i | 3], aB = b[i | 3];
            ASSERT_EQ(result[i], i % 4 == 3 ? due.alpha(aA, aB) : due.colour(a[i], b[i], aA, aB))
                << "operation " << type << " on " << a[i] + 0 << " with " << aA + 0 << ", " << b[i] + 0 << " with "
                << aB + 0;
        }
    }
}

// Bytes: all alphas and colours on a grid with the ends and the middle of their range.
TEST(Alpha, AllBytesOnAGrid) {
    const uint8_t grid[] = {0, 1, 2, 63, 84, 85, 86, 127, 128, 129, 170, 200, 253, 254, 255};
    constexpr size_t n = std::size(grid);
    checkOperations<uint8_t>("zmviAlphaComp_8u_AC4R", n * n * n * n, [&](size_t i, int second) {
        const size_t pixel = i / 4, k = i % 4;
        if (k == 3) return grid[(second ? pixel / n : pixel) % n];
        return grid[second ? pixel / n / n / n % n : (pixel / n / n + k) % n];
    });
}

// Results just beside a half are rare among numbers of 16 bits: one in 2^16 tells a quotient that was rounded wrongly.
TEST(Alpha, ManyNumbersOf16Bits) {
    Rng rng(1);
    const auto draw = [&]<class T>(T) { return rng.oneIn(4) ? someFraction<T>(rng) : T(rng.next()); };
    checkOperations<uint16_t>("zmviAlphaComp_16u_AC4R", 150000, [&](size_t, int) { return draw(uint16_t()); });
    checkOperations<int16_t>("zmviAlphaComp_16s_AC4R", 150000, [&](size_t, int) { return draw(int16_t()); });
}

}  // namespace

extern const Family test_zmviAlphaComp = {.arrange = arrangeAlpha, .oracle = composite};
extern const Family test_zmviAlphaCompC = test_zmviAlphaComp;
extern const Family test_zmviAlphaPremul = {.arrange = arrangeAlpha, .oracle = premultiply};
extern const Family test_zmviAlphaPremulC = test_zmviAlphaPremul;
extern const Family test_zmviCompColorKey = {.arrange = arrangeKey, .oracle = keyed};
extern const Family test_zmviAlphaCompColorKey = {.arrange = arrangeKey, .oracle = composite};
