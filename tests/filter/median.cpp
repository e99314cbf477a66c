// Medians of windows, crosses, colours and planes.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

#include "filter/box.h"

namespace {

using namespace test;

// ---- The order of elements, and the one in the middle ----

template <class T>
bool before(T a, T b) {
    if constexpr (std::is_floating_point_v<T>) {
        if (a != a || b != b) return a == a;
        return a < b || (a == b && std::signbit(a) && !std::signbit(b));
    }
    return a < b;
}
template <class T>
T middle(std::vector<T>& values) {
    const auto at = values.begin() + (int64_t(values.size()) - 1) / 2;
    std::nth_element(values.begin(), at, values.end(), before<T>);
    if constexpr (std::is_floating_point_v<T>)
        if (*at != *at) return std::numeric_limits<T>::quiet_NaN();
    return *at;
}

// ---- Arrangement ----

// Two values, few, a ramp with a little noise, or any bits; floats with zeros of both signs, infinities and NaNs.
void fillValues(Case& c, const Image& image) {
    const int kind = c.rng.below(4), part = c.rng.between(2, 6);
    withElement(image.element, [&](auto zero) {
        using T = decltype(zero);
        const T values[] = {std::numeric_limits<T>::max(),
                            std::numeric_limits<T>::lowest(),
                            T(3),
                            T(0),
                            std::numeric_limits<T>::has_infinity ? std::numeric_limits<T>::quiet_NaN() : T(100),
                            std::numeric_limits<T>::has_infinity ? -std::numeric_limits<T>::quiet_NaN() : T(99),
                            T(-0.0),
                            std::numeric_limits<T>::has_infinity ? -std::numeric_limits<T>::infinity() : T(1)};
        for (int64_t y = -image.readable.top; y < image.height + image.readable.bottom && kind < 3; ++y)
            for (int64_t x = -image.readable.left; x < image.width + image.readable.right; ++x)
                for (int k = 0; k < image.channels; ++k)
                    c.set(image, x, y, k,
                          kind == 0   ? values[c.rng.oneIn(part)]
                          : kind == 1 ? values[c.rng.below(8)]
                                      : T(T(3 * x + 2 * y + 64) + T(c.rng.below(9))));
    });
}
void place(Case& c, int64_t w, int64_t h, Margins readable) {
    c.place("src", w, h, readable), c.place("dst", w, h);
    fillValues(c, c.image("src"));
    c.arg("roiSize") = {w, h};
}

void arrangeBordered(Case& c) {
    int64_t w = c.width, h = c.height;
    int mw = 1 + 2 * c.rng.below(3), mh = 1 + 2 * c.rng.below(3);
    if (c.rng.oneIn(4)) mw = mh = 7;
    if (c.rng.oneIn(3)) mw = 1 + 2 * c.rng.below(9), mh = 1 + 2 * c.rng.below(9);
    if (c.mode == Mode::far) mh = 1 + 2 * c.rng.below(2);
    if (c.mode == Mode::usual && c.rng.oneIn(16)) {  // what counters of 8 and of 16 bits just hold, and just do not
        const int sides[] = {255, 257, 331};
        mw = sides[c.rng.below(3)], mh = c.rng.oneIn(2) ? sides[c.rng.below(3)] : 1;
        if (c.rng.oneIn(2)) std::swap(mw, mh);
        w = c.rng.between(1, 4), h = c.rng.between(1, 3);
    }
    if (c.mode == Mode::usual && c.rng.oneIn(24)) w = c.rng.between(500, 1100) / c.member.to.channels, h = 1;
    int word = c.rng.oneIn(2) && c.mode != Mode::controls ? BORDER_REPL : BORDER_CONST;
    if (c.rng.oneIn(2)) word |= 16 * c.rng.below(16);
    if (c.rng.oneIn(12)) word = BORDER_IN_MEM;
    if (c.mode == Mode::controls) word = BORDER_CONST;  // so that every check can fail
    const Reach reach(mw, mh);
    const auto readable = [&](int flag, int64_t pixels) { return word & flag ? pixels : 0; };
    place(c, w, h,
          {readable(BORDER_IN_MEM_LEFT, reach.left), readable(BORDER_IN_MEM_RIGHT, reach.right),
           readable(BORDER_IN_MEM_TOP, reach.top), readable(BORDER_IN_MEM_BOTTOM, reach.bottom)});
    c.arg("borderValue") = nullptr;
    c.arg("borderType") = word;
    if ((word & 15) == BORDER_CONST || c.member.to.channels == 1)
        c.placeValue("borderValue", c.member.to.used()), c.bindValue("borderValue");
    c.arg("maskSize") = {mw, mh};
    // A tile may ask for more than the whole: for no more than all of its pixels.
    c.placeBuffer("buffer", c.bufferSize() + (c.mode == Mode::tiles ? (mw + w) * (mh + h + 32) * 16 : 0));
}

void arrangeAnchored(Case& c) {
    const int mw = c.rng.between(1, 9), mh = c.rng.between(1, c.mode == Mode::far ? 3 : 9);
    const int ax = c.rng.below(mw), ay = c.rng.below(mh);
    place(c, c.width, c.height, {ax, mw - 1 - ax, ay, mh - 1 - ay});
    c.arg("maskSize") = {mw, mh}, c.arg("anchor") = {ax, ay};
    const ImageSize roi{int(c.width), int(c.height)};
    const bool doubles = c.member.source == Element::f64;
    int bytes = 0;
    (doubles ? FIND(c.library, zmviFilterMedianGetBufferSize_64f) : FIND(c.library, zmviFilterMedianGetBufferSize_32f))(
        roi, {mw, mh}, c.member.to.channels, &bytes);
    c.placeBuffer("buffer", bytes);
}

void arrangeFixed(Case& c) {
    const int side = c.has("mask") && c.rng.oneIn(2) ? 5 : 3, reach = side / 2;
    place(c, c.width, c.height, {reach, reach, reach, reach});
    if (c.has("mask")) c.arg("mask") = 11 * side;
    if (c.has("weight")) c.arg("weight") = c.rng.oneIn(4) ? c.rng.between(10, INT_MAX) : c.rng.between(1, 10);
}

// ---- Oracles ----

// result(x, y, channel) is what belongs there.
template <class Result>
void eachPixel(Case& c, Result result) {
    const Image& dst = c.image("dst");
    for (int64_t y = 0; y < dst.height; ++y)
        for (int64_t x = 0; x < dst.width; ++x)
            for (int k = 0; k < c.member.to.used(); ++k) c.set(dst, x, y, k, result(x, y, k));
}
// The middle of the pixels (i, j) in rows and columns -top .. bottom that `takes` says, each so many times.
template <class Pixel, class Times>
auto medianOf(int64_t left, int64_t top, int64_t right, int64_t bottom, Pixel pixel, Times times) {
    std::vector<decltype(pixel(0, 0))> values;
    for (int64_t j = -top; j <= bottom; ++j)
        for (int64_t i = -left; i <= right; ++i) values.insert(values.end(), size_t(times(i, j)), pixel(i, j));
    return middle(values);
}

void judgeWindow(Case& c) {
    const Slot mask = c.arg("maskSize");
    const bool anchored = c.has("anchor");
    Reach reach(mask.a, mask.b);
    if (anchored) {
        const Slot anchor = c.arg("anchor");
        reach.left = anchor.a, reach.top = anchor.b;
        reach.right = mask.a - 1 - anchor.a, reach.bottom = mask.b - 1 - anchor.b;
    }
    withElement(c.member.source, [&](auto zero) {
        using T = decltype(zero);
        const Image& src = c.image("src");
        const auto all = [](auto...) { return 1; };
        eachPixel(c, [&](int64_t x, int64_t y, int k) -> T {
            if (!anchored && mask.a * mask.b == 1) return c.get<T>(src, x, y, k);
            if (anchored)
                return medianOf(
                    reach.left, reach.top, reach.right, reach.bottom,
                    [&](int64_t i, int64_t j) { return c.get<T>(src, x + i, y + j, k); }, all);
            const Extended<T> extended{c, src};
            return medianOf(
                reach.left, reach.top, reach.right, reach.bottom,
                [&](int64_t i, int64_t j) { return extended(x + i, y + j, k); }, all);
        });
    });
}

void judgeFixed(Case& c) {
    const int64_t reach = c.has("mask") ? c.arg("mask").a / 22 : 1, weight = c.has("weight") ? c.arg("weight").a : 0;
    withElement(c.member.source, [&](auto zero) {
        using T = decltype(zero);
        eachPixel(c, [&](int64_t x, int64_t y, int k) {
            return medianOf(
                reach, reach, reach, reach,
                [&](int64_t i, int64_t j) { return c.get<T>(c.image("src"), x + i, y + j, k); },
                [&](int64_t i, int64_t j) {
                    return weight ? (i || j ? 1 : std::min<int64_t>(weight, 99)) : int64_t(!i || !j);
                });
        });
    });
}

void judgePlanes(Case& c) {
    eachPixel(c, [&](int64_t x, int64_t y, int) {
        std::vector<uint8_t> values;
        for (int k = 0; k < 3; ++k) values.push_back(c.get<uint8_t>(c.image("src"), x, y, k));
        return middle(values);
    });
}

void judgeColours(Case& c) {
    const int64_t reach = c.arg("mask").a / 22;
    const Image &src = c.image("src"), &dst = c.image("dst");
    withElement(src.element, [&](auto zero) {
        using T = decltype(zero);
        using S = std::conditional_t<std::is_floating_point_v<T>, float, int64_t>;
        const auto total = [&](int64_t x, int64_t y, int64_t i, int64_t j) {
            S sum = 0;
            for (int64_t v = y - reach; v <= y + reach; ++v)
                for (int64_t u = x - reach; u <= x + reach; ++u) {
                    if (u == i && v == j) continue;
                    volatile S d[3];
                    for (int k = 0; k < 3; ++k) d[k] = std::abs(S(c.get<T>(src, u, v, k)) - S(c.get<T>(src, i, j, k)));
                    const volatile S two = d[0] + d[1], distance = two + d[2];
                    sum += distance;
                }
            return sum == sum ? sum : S(INFINITY);
        };
        for (int64_t y = 0; y < dst.height; ++y)
            for (int64_t x = 0; x < dst.width; ++x) {
                int64_t bestX = x, bestY = y;
                S best = total(x, y, x, y);
                for (int64_t j = y - reach; j <= y + reach; ++j)
                    for (int64_t i = x - reach; i <= x + reach; ++i)
                        if (const S sum = total(x, y, i, j); sum < best) best = sum, bestX = i, bestY = j;
                for (int k = 0; k < 3; ++k) c.set(dst, x, y, k, c.get<T>(src, bestX, bestY, k));
            }
    });
}

// ---- Queries ----

void arrangeSizes(Case& c) {
    const bool large = c.mode == Mode::usual && c.rng.oneIn(3), odd = c.has("dataType");
    const auto side = [&](int most) {
        return large && c.rng.oneIn(2) ? int(c.rng.next() % INT_MAX) : c.rng.between(1, most);
    };
    c.arg("roiSize") = {side(3000), side(3000)};
    c.arg("maskSize") = {side(300) | odd, side(300) | odd};
    const int types[] = {DATATYPE_8U, DATATYPE_16U, DATATYPE_16S, DATATYPE_32F}, counts[] = {1, 3, 4};
    if (odd) c.arg("dataType") = types[c.rng.below(4)], c.arg("numChannels") = counts[c.rng.below(3)];
    if (!odd) c.arg("numChannels") = c.member.name.ends_with("64f") ? 1 : 3 + c.rng.below(2);
    if (odd && c.arg("dataType").a == DATATYPE_32F && c.arg("numChannels").a > 1) {
        if (c.mode == Mode::usual) return void((c.expected = STATUS_BAD_DATATYPE, c.place("pBufferSize", 1, 1)));
        c.arg("numChannels") = 1;
    }
    c.place("pBufferSize", 1, 1);
}
// What is told of bytes of one channel; of others that it grows with them.  That it is enough is seen where it is used.
__int128 oneChannel(Slot roi, Slot mask) {
    using Wide = __int128;
    const Wide w = roi.a, h = roi.b, mw = mask.a, mh = mask.b;
    const auto up = [](Wide n, int to) { return (n + to - 1) / to * to; };
    const bool whole = mw >= w || mh >= h;
    const Wide strips = whole ? Wide(0) : up(2 * h * (mw / 2), 64) + up(2 * w * (mh / 2), 64);
    const Wide extended =
        whole ? (mh + h - 1) * (mw + w - 1) : std::max((mh / 2 + mh) * (w + mw - 1), (mw / 2 + mw) * (h + mh - 1));
    const bool network = (mw < 7 && mh < 7) && mw * mh > 1 && (mw == 1 || mh == 1 || mw == mh);
    const Wide most = std::max(mw, mh);
    const Wide method = most > 256  ? (mw + w) * 1024
                        : most > 16 ? (mw + w) * 512
                        : most > 6  ? (mw + w) * 256
                        : network   ? Wide(0)
                                    : up(mw * mh * 4, 32);
    return strips + (w + 31) / 32 * 32 * mh * 2 + up(extended, 32) + method;
}
void answerSizes(Case& c) {
    if (c.expected < 0) return;
    const Image& place = c.image("pBufferSize");
    const bool bytes = c.has("dataType") && c.arg("dataType").a == DATATYPE_8U;
    const __int128 told = oneChannel(c.arg("roiSize"), c.arg("maskSize")) * c.arg("numChannels").a;
    if (bytes ? told > INT_MAX : c.returned == STATUS_SIZE_EXCEEDS_INT) {
        c.expected = STATUS_SIZE_EXCEEDS_INT;
        if (c.has("dataType")) c.set(place, 0, 0, 0, 0);
    } else {
        c.set(place, 0, 0, 0, bytes ? int(told) : c.result<int>(place, 0, 0));
    }
}

// Networks that are right for zeros and ones are right for everything.
TEST(Median, EveryPatternOfNine) {
    constexpr int patterns = 512, width = 3 * patterns;
    uint8_t image[5][width] = {}, dst[3][width];
    for (int k = 0; k < width; ++k)
        for (int i = 0; i < 3; ++i) image[i + 1][k] = k / 3 >> (3 * i + k % 3) & 1;
    for (const Library& l : builds()) {
        const auto judge = [&](const char* what, int taken, int least) {
            for (unsigned k = 0; k < patterns; ++k)
                ASSERT_EQ(dst[1][3 * k + 1], std::popcount(k & unsigned(taken)) >= least)
                    << what << " " << k << " " << l.build;
        };
        std::vector<uint8_t> buffer(1 << 20);
        FIND(l, zmviFilterMedianBorder_8u_C1R)
        (image[1], width, dst[0], width, {width, 3}, {3, 3}, BORDER_REPL, 0, buffer.data());
        judge("window", 511, 5);
        FIND(l, zmviFilterMedianCross_8u_C1R)(image[1] + 1, width, dst[0] + 1, width, {width - 2, 3}, MASK_3X3);
        judge("cross", 0b010111010, 3);
        FIND(l, zmviFilterMedianWeightedCenter3x3_8u_C1R)(image[1] + 1, width, dst[0] + 1, width, {width - 2, 3}, 1);
        judge("weight 1", 511, 5);
    }
}

TEST(Median, IsBetweenTheExtrema) {
    std::vector<uint8_t> image(41 * 23);
    for (size_t k = 0; k < image.size(); ++k) image[k] = uint8_t(k * k * 2654435761u >> 13);
    for (const Library& l : builds())
        for (const int side : {3, 5, 7, 9, 17}) {
            const auto made = [&](const std::string& name) {
                return filterBytes<uint8_t>(l, "zmviFilter" + name + "Border_8u_C1R", image, 41, ImageSize{side, side});
            };
            const auto least = made("Min"), middle = made("Median"), most = made("Max");
            for (size_t k = 0; k < image.size(); ++k)
                ASSERT_TRUE(least[k] <= middle[k] && middle[k] <= most[k]) << side << " " << k << " " << l.build;
        }
}

}  // namespace

extern const Family test_zmviFilterMedianBorderGetBufferSize = {.arrange = arrangeSizes, .oracle = answerSizes};
extern const Family test_zmviFilterMedianBorder = {.arrange = arrangeBordered, .oracle = judgeWindow};
extern const Family test_zmviFilterMedianGetBufferSize = {.arrange = arrangeSizes, .oracle = answerSizes};
extern const Family test_zmviFilterMedian = {.arrange = arrangeAnchored, .oracle = judgeWindow};
extern const Family test_zmviFilterMedianCross = {.arrange = arrangeFixed, .oracle = judgeFixed};
extern const Family test_zmviFilterMedianColor = {.arrange = arrangeFixed, .oracle = judgeColours};
extern const Family test_zmviFilterMedianWeightedCenter3x3 = {.arrange = arrangeFixed, .oracle = judgeFixed};
extern const Family test_zmviMedian = {.oracle = judgePlanes};
