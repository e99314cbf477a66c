// zmviComputeThreshold_Otsu.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "arith/arith.h"

namespace {

using namespace test;

using Counts = std::array<int64_t, 256>;

// The variance between the classes up to a level and above it, times the square of the number of pixels; from exact
// sums.
long double between(const Counts& counts, int level) {
    Wide pixels = 0, sum = 0, under = 0, sumUnder = 0;
    for (int k = 0; k < 256; ++k) {
        const Wide n = counts[size_t(k)];
        pixels += n, sum += k * n;
        if (k <= level) under += n, sumUnder += k * n;
    }
    if (under == 0 || under == pixels) return 0;
    const auto root = static_cast<long double>(sum * under - sumUnder * pixels);
    return root * root / static_cast<long double>(under * (pixels - under));
}

// A third of the pixels each of 0, 100 and 200: the levels 0 and 100 part them equally well, and what rounding to
// nearest makes of that depends on their number.
struct Thirds {
    int64_t width, height;
    int level;
};
constexpr Thirds thirds[] = {{9, 5, 0},    {9, 4, 100},   {15, 3, 0},   {15, 1, 100}, {33, 1, 0},
                             {33, 3, 100}, {45, 4, 0},    {66, 3, 100}, {75, 2, 0},   {96, 4, 100},
                             {120, 5, 0},  {126, 3, 100}, {249, 5, 0},  {255, 5, 100}};

bool equalThirds = false;  // for the oracle of the same case

void arrangeOtsu(Case& c) {
    const int kind = c.mode == Mode::bulk ? 2 : c.rng.below(7), base = c.rng.below(256), other = c.rng.below(256);
    if (kind == 5)
        c.width = thirds[c.seed % std::size(thirds)].width, c.height = thirds[c.seed % std::size(thirds)].height;
    const Image& src = c.place("src", c.width, c.height);
    for (int64_t y = 0; y < c.height && kind > 1; ++y)
        for (int64_t x = 0; x < c.width; ++x) {
            int pixel = base;
            if (kind == 2) pixel = c.rng.oneIn(2) ? 10 : 200;
            if (kind == 3) pixel = c.rng.oneIn(50) ? other : base;  // nearly flat
            if (kind == 4) pixel = (c.rng.oneIn(3) ? 60 : 170) + c.rng.below(25) + c.rng.below(25);
            if (kind == 5) pixel = int(x % 3) * 100;
            c.set(src, x, y, 0, uint8_t(pixel));
        }
    c.arg("roiSize") = {c.width, c.height};
    c.placeValue("pThreshold", 1);
    equalThirds = kind == 5;
    if (c.mode == Mode::usual && c.rng.oneIn(20)) c.arg("srcStep") = c.width - 1;
}

void judgeOtsu(Case& c) {
    if (c.arg("srcStep").a < c.width) {
        c.expected = STATUS_BAD_STEP;
        return;
    }
    Counts counts = {};
    const Image& src = c.image("src");
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t x = 0; x < c.width; ++x) ++counts[c.get<uint8_t>(src, x, y)];
    long double most = 0;
    for (int k = 0; k < 256; ++k) most = std::max(most, between(counts, k));
    // The first of equal levels has pixels; a flat image gives 0.
    int level = c.result<uint8_t>(c.image("pThreshold"), 0, 0);
    if (most == 0) level = 0;
    if (most > 0 && (between(counts, level) < most * (1 - 1e-12L) || counts[size_t(level)] == 0))
        c.fail("does not part the pixels best at " + std::to_string(level));
    if (equalThirds) level = thirds[c.seed % std::size(thirds)].level;
    c.set(c.image("pThreshold"), 0, 0, 0, uint8_t(level));
}

int thresholdOf(const uint8_t* pixels, int width, int height) {
    uint8_t level = 77;
    const auto function = reinterpret_cast<StatusCode (*)(const uint8_t*, int, ImageSize, uint8_t*)>(
        underTest().find("zmviComputeThreshold_Otsu_8u_C1R"));
    EXPECT_EQ(function(pixels, width, {width, height}, &level), STATUS_OK);
    return level;
}

// One pixel among 2^24 is less than the least weight that counts, three are more.
TEST(Otsu, ClassesOfNoWeightAreLeftOut) {
    const int side = 1 << 12;
    for (const int odd : {0, 255}) {
        std::vector<uint8_t> pixels(size_t(side) * side, 100);
        pixels[12345] = uint8_t(odd);
        EXPECT_EQ(thresholdOf(pixels.data(), side, side), 0);
        pixels[22345] = pixels[777777] = uint8_t(odd + 1);
        pixels[1] = pixels[2] = pixels[3] = uint8_t(odd);
        EXPECT_EQ(thresholdOf(pixels.data(), side, side), odd ? 100 : 1);
    }
}

// More than 2^32 pixels of one level: 60 % of 10 against 20 % each of 100 and 200.
TEST(Large, OtsuCountsBeyond32Bits) {
    constexpr int width = 1 << 16, height = 132000, period = int(Arena::ringBytes) / width;
    Arena ring = Arena::ring(size_t(width) * height / Arena::ringBytes * Arena::ringBytes + Arena::ringBytes);
    for (int y = 0; y < period; ++y)
        std::memset(ring.begin + y * width, y * 10 < period * 6 ? 10 : y * 10 < period * 8 ? 100 : 200, width);
    EXPECT_EQ(thresholdOf(ring.begin, width, height), 10);
}

}  // namespace

extern const Family test_zmviComputeThreshold_Otsu = {.arrange = arrangeOtsu, .oracle = judgeOtsu};
