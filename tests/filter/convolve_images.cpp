// zmviConv and its query.
#include <gtest/gtest.h>

#include <memory>

#include "arith/arith.h"
#include "filter/convolve.h"

namespace {

using namespace test;

int64_t areaOf(Slot size) { return size.a * size.b; }
bool exchanges(bool valid, Slot a, Slot b) { return valid ? a.a < b.a || a.b < b.b : areaOf(a) < areaOf(b); }

void arrangeConv(Case& c) {
    const bool valid = c.rng.oneIn(2), far = c.mode == Mode::far;
    Slot one{c.width, far ? c.height : c.rng.between(1, 12)}, two{c.rng.between(1, 12), far ? 3 : c.rng.between(1, 12)};
    if (valid) two = {std::min(one.a, two.a), std::min(one.b, two.b)};
    if (c.rng.oneIn(3)) std::swap(one, two);
    const bool apart = valid && c.mode == Mode::usual && c.rng.oneIn(20);  // neither lies in the other
    if (apart) one.a = two.a + 1, two.b = one.b + 1, c.expected = STATUS_BAD_SIZE;
    const bool swapped = exchanges(valid, one, two);
    const Slot image = swapped ? two : one, kernel = swapped ? one : two;
    const int64_t sign = valid ? -1 : 1;
    c.rowsApart = true;
    c.place("src1", one.a, one.b), c.place("src2", two.a, two.b);
    c.place("dst", std::max<int64_t>(1, image.a + sign * (kernel.a - 1)),
            std::max<int64_t>(1, image.b + sign * (kernel.b - 1)));
    c.arg("src1Size") = one, c.arg("src2Size") = two;
    for (const char* name : {"src1", "src2"})
        if (c.member.source == Element::f32) fillFloats<float>(c, c.image(name));
    if (c.has("divisor")) c.arg("divisor") = divisors[c.rng.below(int(std::size(divisors)))];
    const int algType = c.rng.below(3) | (valid ? CONV_SHAPE_VALID : CONV_SHAPE_FULL) | 0x7f00ff00 * c.rng.below(2);
    c.arg("algType") = algType;
    int bytes = 64;
    FIND(c.library, zmviConvGetBufferSize)
    ({int(one.a), int(one.b)}, {int(two.a), int(two.b)}, dataTypeOf(c.member.source), c.member.to.channels, algType,
     &bytes);
    c.placeBuffer("buffer", bytes);
}

void judgeConv(Case& c) {
    if (c.expected < 0) return;
    const bool valid = c.arg("algType").a >> 16 & 255;
    const bool swapped = exchanges(valid, c.arg("src1Size"), c.arg("src2Size"));
    const Image &image = c.image(swapped ? "src2" : "src1"), &kernel = c.image(swapped ? "src1" : "src2"),
                &dst = c.image("dst");
    const int64_t left = valid ? 0 : kernel.width - 1, top = valid ? 0 : kernel.height - 1;
    withElement(image.element, [&](auto zero) {
        using T = decltype(zero);
        for (int k = 0; k < image.channels; ++k)
            for (int64_t y = 0; y < dst.height; ++y)
                for (int64_t x = 0; x < dst.width; ++x) {
                    const auto tap = [&](int64_t i, int64_t j) {
                        return c.get<T>(kernel, kernel.width - 1 - j, kernel.height - 1 - i, k);
                    };
                    const auto pixel = [&](int64_t i, int64_t j) {
                        const int64_t column = x - left + j, row = y - top + i;
                        const bool inside = column >= 0 && row >= 0 && column < image.width && row < image.height;
                        return inside ? c.get<T>(image, column, row, k) : T(0);
                    };
                    if constexpr (std::is_floating_point_v<T>)
                        c.set(dst, x, y, k, realSum<T>(kernel.height, kernel.width, tap, pixel));
                    else
                        c.set(dst, x, y, k,
                              ratio<T>(wholeSum(kernel.height, kernel.width, tap, pixel), int(c.arg("divisor").a), 0));
                }
    });
}

void arrangeConvSize(Case& c) {
    const int one = anyLength(c, 31), two = anyLength(c, 31);
    c.arg("src1Size") = {std::max(one, 2), std::max(two, 2)};
    c.arg("src2Size") = {anyLength(c, 31) % std::max(one, 2) + 1, anyLength(c, 31) % std::max(two, 2) + 1};
    const int types[] = {DATATYPE_8U, DATATYPE_16S, DATATYPE_32F}, counts[] = {1, 3, 4};
    c.arg("dataType") = types[c.rng.below(3)], c.arg("numChannels") = counts[c.rng.below(3)];
    c.arg("algType") = c.rng.below(3) | CONV_SHAPE_VALID * c.rng.below(2);
    if (c.mode == Mode::usual && c.rng.oneIn(10)) {
        c.arg("src1Size") = {2, 1}, c.arg("src2Size") = {1, 2}, c.arg("algType") = CONV_SHAPE_VALID;
        c.expected = STATUS_BAD_SIZE;
    }
    c.place("pBufferSize", 1, 1);
}
void answerConvSize(Case& c) {  // that it is enough is seen where it is used
    const Image& place = c.image("pBufferSize");
    const int bytes = c.result<int>(place, 0, 0);
    if (c.expected < 0) return;
    const Slot one = c.arg("src1Size"), two = c.arg("src2Size");
    const bool large = std::max({one.a, one.b, two.a, two.b}) > 1000;
    if (large && c.returned == STATUS_SIZE_EXCEEDS_INT) return void(c.expected = STATUS_SIZE_EXCEEDS_INT);
    if (bytes < 64) c.fail("too small a buffer");
    c.set(place, 0, 0, 0, bytes);
}

// Products that cancel each other only after their sum has passed what doubles hold.
TEST(Large, ConvolutionsBeyondDoubles) {
    constexpr int side = 4100;
    constexpr int16_t most = 32767, rest = 1234;
    std::vector<int16_t> image(size_t(side) * side, most), kernel(image.size(), most);
    for (size_t k = kernel.size() / 2; k < kernel.size(); ++k) kernel[k] = -most;
    kernel[0] = most - 1, image[image.size() - 1] = most;  // one product less by 32767
    int bytes = 0;
    const ImageSize size{side, side};
    const Library& l = builds().front();
    ASSERT_EQ(FIND(l, zmviConvGetBufferSize)(size, size, DATATYPE_16S, 1, CONV_SHAPE_VALID, &bytes), STATUS_OK);
    const std::unique_ptr<uint8_t[]> buffer(new uint8_t[size_t(bytes)]);
    int16_t result = 0;
    ASSERT_EQ(FIND(l, zmviConv_16s_C1R)(image.data(), side * 2, size, kernel.data(), side * 2, size, &result, 2, 1,
                                        CONV_SHAPE_VALID, buffer.get()),
              STATUS_OK);
    EXPECT_EQ(result, -most);
    kernel[1] = rest, kernel.back() = -rest + 1;
    ASSERT_EQ(FIND(l, zmviConv_16s_C1R)(image.data(), side * 2, size, kernel.data(), side * 2, size, &result, 2, 1,
                                        CONV_SHAPE_VALID, buffer.get()),
              STATUS_OK);
    EXPECT_EQ(result, 0);
}

}  // namespace

extern const Family test_zmviConvGetBufferSize = {.arrange = arrangeConvSize, .oracle = answerConvSize};
extern const Family test_zmviConv = {.arrange = arrangeConv, .oracle = judgeConv};
