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

// The same product in four ways: either operand may be the kernel, an impulse gives the other one back, and a filter
// over zeros is the middle of the full form.
TEST(Convolution, CommutesAndIsWhatTheFilterMakes) {
    constexpr int w = 37, h = 23, kw = 5, kh = 4, fw = w + kw - 1, fh = h + kh - 1;
    constexpr int bytesAPixel = 2, divisor = 7;
    const ImageSize size{w, h}, kernelSize{kw, kh};
    Rng rng(20);
    std::vector<int16_t> image(w * h), kernel(kw * kh), impulse(kw * kh), one(fw * fh), two(fw * fh), same(w * h);
    for (int16_t& pixel : image) pixel = int16_t(rng.between(-900, 900));
    for (int16_t& tap : kernel) tap = int16_t(rng.between(-90, 90));
    impulse[kw + 2] = 1;  // column 2 of row 1
    for (const Library& l : builds()) {
        int bytes = 0, specBytes = 0;
        ASSERT_EQ(FIND(l, zmviConvGetBufferSize)(size, kernelSize, DATATYPE_16S, 1, CONV_SHAPE_FULL, &bytes),
                  STATUS_OK);
        std::vector<uint8_t> buffer(static_cast<size_t>(bytes));
        const auto conv = [&](const auto& a, ImageSize aSize, const auto& b, ImageSize bSize, auto& to, int scale) {
            return FIND(l, zmviConv_16s_C1R)(a.data(), aSize.width * bytesAPixel, aSize, b.data(),
                                             bSize.width * bytesAPixel, bSize, to.data(), fw * bytesAPixel, scale,
                                             CONV_SHAPE_FULL, buffer.data());
        };
        ASSERT_EQ(conv(image, size, impulse, kernelSize, one, 1), STATUS_OK);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                ASSERT_EQ(one[size_t((y + 1) * fw + x + 2)], image[size_t(y * w + x)])
                    << l.build << ' ' << x << ' ' << y;
        ASSERT_EQ(conv(image, size, kernel, kernelSize, one, divisor), STATUS_OK);
        ASSERT_EQ(conv(kernel, kernelSize, image, size, two, divisor), STATUS_OK);
        EXPECT_EQ(one, two) << l.build;
        FIND(l, zmviFilterBorderGetSize)(kernelSize, size, DATATYPE_16S, DATATYPE_16S, 1, &specBytes, &bytes);
        std::vector<uint8_t> spec(static_cast<size_t>(specBytes)), work(static_cast<size_t>(bytes));
        ASSERT_EQ(FIND(l, zmviFilterBorderInit_16s)(kernel.data(), kernelSize, divisor, DATATYPE_16S, 1, ROUND_NEAR,
                                                    spec.data()),
                  STATUS_OK);
        const int16_t zero = 0;
        ASSERT_EQ(FIND(l, zmviFilterBorder_16s_C1R)(image.data(), w * bytesAPixel, same.data(), w * bytesAPixel, size,
                                                    BORDER_CONST, &zero, spec.data(), work.data()),
                  STATUS_OK);
        const Reach reach(kw, kh);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                ASSERT_EQ(same[size_t(y * w + x)], one[size_t((y + kh - 1 - reach.top) * fw + x + kw - 1 - reach.left)])
                    << l.build << ' ' << x << ' ' << y;
    }
}

}  // namespace

extern const Family test_zmviConvGetBufferSize = {.arrange = arrangeConvSize, .oracle = answerConvSize};
extern const Family test_zmviConv = {.arrange = arrangeConv, .oracle = judgeConv};
