// zmviComputeThreshold_Otsu.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "arith/arith.h"

namespace {

using namespace test;

using Counts = std::array<int64_t, 256>;

// What the contract says, step by step in double precision.
int otsu(const Counts& counts) {
    int64_t pixels = 0;
    for (const int64_t count : counts) pixels += count;
    constexpr double tiny = 0x1p-23, inverse = 1;
    std::array<double, 256> share, centre;
    double mean = 0, best = -1, weight = 0, below = 0;
    for (int k = 0; k < 256; ++k) {
        centre[size_t(k)] = k + 0.5;
        share[size_t(k)] = double(counts[size_t(k)]) * (inverse / double(pixels));
        mean += double(counts[size_t(k)]) * centre[size_t(k)];
    }
    mean *= inverse / double(pixels);
    int level = 0;
    for (size_t k = 0; k < 256; ++k) {
        weight += share[k];
        const double others = 1 - weight;
        const bool considered = weight >= tiny && others >= tiny && weight <= 1 - tiny && others <= 1 - tiny;
        if (!considered) continue;
        below += share[k] * centre[k];
        const double root = below * others + (below - mean) * weight;
        const double measure = root * root / (others * weight);
        if (measure > best) best = measure, level = int(k);
    }
    return level;
}

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

void arrangeOtsu(Case& c) {
    const int kind = c.mode == Mode::bulk ? 2 : c.rng.below(7), base = c.rng.below(256), other = c.rng.below(256);
    if (kind == 5) c.width += 2 - (c.width + 2) % 3;  // two levels that only rounding tells apart
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
    const int level = otsu(counts);
    long double most = 0;
    for (int k = 0; k < 256; ++k) most = std::max(most, between(counts, k));
    if (between(counts, level) < most * (1 - 1e-12L)) c.fail("the oracle is wrong");
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
