// The filters with fixed kernels and their size queries.
#include <gtest/gtest.h>

#include "filter/box.h"

namespace {

using namespace test;
using Line = std::vector<int>;

// In the order of the contract: the NaN of a goes before that of b.
template <class T>
T sum(T x, T y) {
    const volatile T a = x, b = y;
    return T(a != a ? a + a : a + b);
}
template <class T>
T difference(T x, T y) {
    const volatile T a = x, b = y;
    return T(a != a ? a + a : a - b);
}

// Weights from one end of a line to the other; at(i) gives what they are for.
template <class At>
auto weigh(const Line& weights, At at) {
    using T = decltype(at(size_t(0)));
    const size_t n = weights.size();
    T total = 0;
    bool any = false;
    for (size_t k = 0; k <= n / 2; ++k) {
        const int first = weights[k], last = weights[n - 1 - k];
        if (!first) continue;
        const T term = k == n / 2      ? at(k)
                       : first == last ? sum(at(k), at(n - 1 - k))
                       : first < 0     ? difference(at(n - 1 - k), at(k))
                                       : difference(at(k), at(n - 1 - k));
        // Once a number is that number, also where the caller has products of small ones flushed to zero.
        const int weight = first != last ? std::abs(first) : first;
        const volatile T product = weight == 1 ? term : term * T(weight);
        total = any ? sum(total, T(product)) : T(product);
        any = true;
    }
    return total;
}

const Line smooth[] = {{1, 2, 1}, {1, 4, 6, 4, 1}}, second[] = {{1, -2, 1}, {1, 0, -2, 0, 1}},
           later[] = {{-1, 0, 1}, {-1, -2, 0, 2, 1}}, earlier[] = {{1, 0, -1}, {1, 2, 0, -2, -1}},
           mean[] = {{1, 1, 1}, {1, 1, 1, 1, 1}}, laterEvenly[] = {{-1, 0, 1}, {-2, -1, 0, 1, 2}},
           earlierEvenly[] = {{1, 0, -1}, {2, 1, 0, -1, -2}}, scharr[] = {{3, 10, 3}, {}};
const std::map<std::string, std::array<const Line*, 2>> known = {  // columns and rows
    {"SobelHoriz", {later, smooth}},        {"SobelVert", {smooth, earlier}},
    {"SobelSecondHoriz", {second, smooth}}, {"SobelSecondVert", {smooth, second}},
    {"SobelSecondCross", {later, earlier}}, {"ScharrHoriz", {later, scharr}},
    {"ScharrVert", {scharr, earlier}},      {"PrewittHoriz", {laterEvenly, mean}},
    {"PrewittVert", {mean, earlierEvenly}}};

// The kernel's sum at the middle of a window; at(dx, dy) is a pixel.
template <class At>
auto filtered(const std::string& family, int side, At at) {
    if (family == "RobertsHoriz") return difference(at(1, 1), at(0, 0));
    if (family == "RobertsVert") return difference(at(0, 1), at(1, 0));
    const auto [column, row] = known.at(family);
    const int which = side == 5, reach = side / 2;
    return weigh(row[which], [&, column = column](size_t i) {
        return weigh(column[which], [&](size_t j) { return at(int(i) - reach, int(j) - reach); });
    });
}

std::string familyOf(const Case& c) {
    const std::string name = c.member.name.substr(10);  // behind zmviFilter
    return name.substr(0, name.find("Border"));
}

bool isDerivative(const Case& c) { return known.contains(familyOf(c)) || familyOf(c).starts_with("Roberts"); }

// Extremes that saturate, impulses, and floats with NaNs and infinities.
void arrangeFixed(Case& c) {
    if (c.mode == Mode::usual && c.rng.oneIn(8)) {  // strips of rows, and batches of them
        const bool wide = c.rng.oneIn(2);
        c.width = wide ? c.rng.between(1, 9000) / c.member.to.channels + 1 : c.rng.between(1, 80);
        c.height = c.rng.between(1, wide ? 6 : 50);
    }
    arrangeByRoles(c);
    const Image& src = c.image("src");
    if (c.has("borderType")) leaveOutValue(c);
    if (src.element == Element::f32) {
        if (!c.rng.oneIn(3)) fillFloats<float>(c, src);
        return;
    }
    const int kind = c.rng.below(4);
    if (kind > 1) return;
    withElement(src.element, [&](auto zero) {
        using T = decltype(zero);
        constexpr T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
        fillReadable(c, src, [&] { return kind == 0 ? c.rng.oneIn(2) ? low : high : c.rng.oneIn(9) ? high : T(0); });
    });
}

template <class D, class S>
D saturated(S value) {
    using Limits = std::numeric_limits<D>;
    return std::is_floating_point_v<D> ? D(value) : D(std::clamp(value, S(Limits::lowest()), S(Limits::max())));
}
// result(at) of integers exactly, in 64 bits, of floats in order.
template <class Result>
void eachPixel(Case& c, Result result) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    withElement(src.element, [&](auto zero) {
        using T = decltype(zero);
        using S = std::conditional_t<std::is_floating_point_v<T>, T, int64_t>;
        const Extended<T> pixel{c, src};
        for (int64_t y = 0; y < src.height; ++y)
            for (int64_t x = 0; x < src.width; ++x)
                for (int k = 0; k < c.member.to.used(); ++k) {
                    const S value = result([&](int dx, int dy) { return S(pixel(x + dx, y + dy, k)); });
                    if (dst.element == src.element)
                        c.set(dst, x, y, k, saturated<T>(value));
                    else
                        c.set(dst, x, y, k, saturated<int16_t>(value));
                }
    });
}
void differentiate(Case& c) {
    const int side = int(c.arg("mask").a % 10);
    eachPixel(c, [&, family = familyOf(c)](auto at) { return filtered(family, side, at); });
}
void magnitude(Case& c) {
    const int side = int(c.arg("mask").a % 10);
    eachPixel(c, [&](auto at) {
        const auto h = filtered("SobelHoriz", side, at), v = filtered("SobelVert", side, at);
        using S = decltype(filtered("SobelHoriz", side, at));
        const volatile S hh = h * h, vv = v * v, both = sum(S(hh), S(vv));
        if constexpr (std::is_floating_point_v<S>)
            return S(std::sqrt(both));
        else
            return S(std::floor(std::sqrt((long double)both) + 0.5L));
    });
}

// n / d to nearest, ties to even.
int64_t nearest(int64_t n, int64_t d) {
    const int64_t floor = (n - (((n % d) + d) % d)) / d, twice = 2 * (n - floor * d);
    return floor + (twice > d || (twice == d && floor % 2 != 0));
}
template <class At>
auto cross(At at) {
    return sum(sum(at(0, -1), at(0, 1)), sum(at(-1, 0), at(1, 0)));
}
void laplace(Case& c) {
    eachPixel(c, [&](auto at) {
        using S = decltype(at(0, 0));
        if (c.arg("mask").a == MASK_3X3) return difference(cross(at), S(4 * at(0, 0)));
        const S both = sum(filtered("SobelSecondHoriz", 5, at), filtered("SobelSecondVert", 5, at));
        if constexpr (std::is_floating_point_v<S>)
            return S(both / 64);
        else
            return nearest(both, 64);
    });
}
void sharpen(Case& c) {
    eachPixel(c, [&](auto at) { return difference(decltype(at(0, 0))(5 * at(0, 0)), cross(at)); });
}
// Integers here; of floats the mean is what the box filter gives, in an image that has all that windows cover.
void highPass(Case& c) {
    const int side = int(c.arg("mask").a % 10), reach = side / 2;
    const Image& src = c.image("src");
    if (src.element != Element::f32)
        return eachPixel(c, [&](auto at) {
            int64_t total = 0;
            for (int i = 0; i < side * side; ++i) total += int64_t(at(i % side - reach, i / side - reach));
            return decltype(at(0, 0))(int64_t(at(0, 0)) - nearest(total, side * side));
        });
    const Extended<float> pixel{c, src};
    const ImageSize roi{int(src.width), int(src.height)};
    const int width = roi.width + 2 * reach;
    for (int k = 0; k < c.member.to.used(); ++k) {
        std::vector<float> pixels, means(size_t(src.width * src.height));
        for (int64_t y = -reach; y < src.height + reach; ++y)
            for (int64_t x = -reach; x < src.width + reach; ++x) pixels.push_back(pixel(x, y, k));
        int size = 0;
        reinterpret_cast<decltype(&zmviFilterBoxBorderGetBufferSize)>(
            c.library.find("zmviFilterBoxBorderGetBufferSize"))(roi, {side, side}, DATATYPE_32F, 1, &size);
        std::vector<uint8_t> buffer(static_cast<size_t>(size));
        reinterpret_cast<decltype(&zmviFilterBoxBorder_32f_C1R)>(c.library.find("zmviFilterBoxBorder_32f_C1R"))(
            &pixels[size_t(reach * width + reach)], width * 4, means.data(), roi.width * 4, roi, {side, side},
            BORDER_IN_MEM, 0, buffer.data());
        for (int64_t y = 0; y < src.height; ++y)
            for (int64_t x = 0; x < src.width; ++x)
                c.set(c.image("dst"), x, y, k, difference(pixel(x, y, k), means[size_t(y * src.width + x)]));
    }
}

// Sizes, and the pairs of types that are told apart late.
void arrangeFixedSize(Case& c) {
    arrangeByRoles(c);
    const int codes[] = {DATATYPE_8U, DATATYPE_16S, DATATYPE_32F}, counts[] = {1, 3, 4};
    c.arg("srcDataType") = c.arg("dstDataType") = codes[c.rng.below(3)];
    if (c.rng.oneIn(4)) c.arg("dstDataType") = codes[c.rng.below(3)];
    c.arg("numChannels") = isDerivative(c) ? 1 : counts[c.rng.below(3)];
    if (isDerivative(c) && c.arg("dstDataType").a == DATATYPE_8U) c.arg("dstDataType") = DATATYPE_16S;
    const auto side = [&] { return c.rng.oneIn(6) ? c.rng.between(100000000, INT_MAX) : c.rng.between(1, 5000); };
    c.arg("roiSize") = {side(), side()};
}
void answerFixedSize(Case& c) {
    const int64_t from = c.arg("srcDataType").a, to = c.arg("dstDataType").a, n = c.arg("numChannels").a;
    const bool real = from == DATATYPE_32F;
    if (isDerivative(c) ? to == DATATYPE_8U || (to == DATATYPE_32F) != real : from != to)
        return void(c.expected = STATUS_BAD_DATATYPE);
    const bool five = c.arg("mask").a == 55;
    const __int128 w = c.arg("roiSize").a, h = c.arg("roiSize").b, element = real ? 4 : from == DATATYPE_16S ? 2 : 1;
    const auto up = [](__int128 bytes) { return (bytes + 31) / 32 * 32; };
    __int128 bytes = up((five ? 7 : 3) * (std::max(w, h) + (five ? 4 : 2)) * n * element) + 32;
    if (element > 1) bytes += up(4 * w * n);
    if (familyOf(c) == "Hipass") {  // a box filter's
        const __int128 m = five ? 5 : 3, a = m / 2, ew = w + m - 1, eh = h + m - 1;
        bytes = n * w * element * (a + 1) + 64;
        if (!(w - 2 * a > m && h - 2 * a > m)) bytes = std::max(bytes, ew * eh * n * element);
        bytes += 4 * n * 2 * (m + a - 1) * (ew + eh) + (w + m + 3) * (n == 1 ? 4 : 16) + (a + 1) * 8;
    }
    if (bytes > INT_MAX) return void(c.expected = STATUS_SIZE_EXCEEDS_INT);
    c.set(c.image("pBufferSize"), 0, 0, 0, int(bytes));
}

TEST(Derivatives, TurnWithTheImage) {
    constexpr size_t n = 37;
    std::vector<uint8_t> image(n * n), turned(n * n);
    for (size_t k = 0; k < n * n; ++k) turned[k % n * n + k / n] = image[k] = uint8_t(k * k * 40503 >> 7);
    for (const Library& l : builds())
        for (const std::string family : {"zmviFilterSobel", "zmviFilterScharr", "zmviFilterPrewitt"}) {
            const auto down = filterBytes<int16_t>(l, family + "HorizBorder_8u16s_C1R", turned, n, int(MASK_3X3)),
                       left = filterBytes<int16_t>(l, family + "VertBorder_8u16s_C1R", image, n, int(MASK_3X3));
            for (size_t k = 0; k < n * n; ++k)
                ASSERT_EQ(down[k % n * n + k / n], -left[k]) << family << " " << k << " " << l.build;
        }
}

}  // namespace

#define FIXED_TESTS(name, judge)                                                                                       \
    extern const Family test_zmviFilter##name##BorderGetBufferSize = {.arrange = arrangeFixedSize,                     \
                                                                      .oracle = answerFixedSize};                      \
    extern const Family test_zmviFilter##name##Border = {.arrange = arrangeFixed, .oracle = judge};
#define DERIVATIVE_TESTS(name) FIXED_TESTS(name, differentiate)
#define ENTRY_OF(result, name, params, call)
#include "filter/fixed.def"
DERIVATIVES(DERIVATIVE_TESTS)
FIXED_TESTS(Laplace, laplace)
FIXED_TESTS(Hipass, highPass)
FIXED_TESTS(Sharpen, sharpen)
extern const Family test_zmviFilterSobel = {.arrange = arrangeFixed, .oracle = magnitude};
