// Noise: the generator word by word, uniform noise step by step, Gaussian noise in long double.
#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <numbers>

#include "arith/arith.h"
#include "generate/philox.h"

namespace {

using namespace test;

// Philox4x32-10.
using Block4 = std::array<uint32_t, 4>;
Block4 philox(Block4 x, uint64_t key) {
    auto low = uint32_t(key), high = uint32_t(key >> 32);
    for (int round = 0; round < 10; ++round) {
        const uint64_t p = uint64_t(0xD2511F53) * x[0], q = uint64_t(0xCD9E8D57) * x[2];
        x = {uint32_t(q >> 32) ^ x[1] ^ low, uint32_t(q), uint32_t(p >> 32) ^ x[3] ^ high, uint32_t(p)};
        low += 0x9E3779B9, high += 0xBB67AE85;
    }
    return x;
}
// The block of an element, and which of its words is the element's own.
std::pair<Block4, size_t> placeOf(Case& c, int64_t x, int64_t y, int k, uint32_t kind) {
    const int64_t e = (c.arg("roiOffset").a + x) * c.member.to.channels + k, block = e >> 2;
    const auto row = uint32_t(c.arg("roiOffset").b + y);
    return {philox({uint32_t(block), uint32_t(block >> 32), row, kind}, uint64_t(c.arg("seed").a)), size_t(e & 3)};
}

void bind(Case& c, const char* name, float value) { c.arg(name) = std::bit_cast<int32_t>(value); }
float bound(Case& c, const char* name) { return std::bit_cast<float>(int32_t(c.arg(name).a)); }

// Places where the numbers of elements change sign, or pass 31 bits; where tiles follow, they have numbers too.
void arrangePlace(Case& c) {
    if (c.mode == Mode::usual && c.rng.oneIn(12)) c.width = c.rng.between(250, 1100);
    arrangeByRoles(c);
    const int64_t far = c.mode == Mode::tiles ? 200 : 3;
    const int64_t places[] = {0, -1, -7, 5, INT_MIN, INT_MAX - far, (1 << 29) - 9, 715827882 - 11, -30};
    c.arg("roiOffset") = {places[c.rng.below(9)], places[c.rng.below(9)]};
    c.arg("seed") = int64_t(c.rng.oneIn(4) ? 0 : c.rng.next());
}
float someNumber(Case& c, float range) { return float(c.rng.between(-1000, 1000)) * range / 1000; }
float someRange(Case& c) {
    static const float ranges[] = {1, 20, 300, 40000, 1e-42f, 4e-38f, 1e30f};
    return c.mode == Mode::controls ? 20 : ranges[c.rng.below(int(std::size(ranges)))];
}
void arrangeUniform(Case& c) {
    arrangePlace(c);
    const float range = someRange(c), other = c.rng.oneIn(3) ? someRange(c) : range;
    const float a = someNumber(c, range), b = c.rng.oneIn(6) ? a : someNumber(c, other);
    bind(c, "low", std::min(a, b)), bind(c, "high", std::max(a, b));
    if (c.mode != Mode::usual || !c.rng.oneIn(10)) return;
    bind(c, "low", -0x1.8p127f), bind(c, "high", 0x1.8p127f), c.expected = STATUS_BAD_RANGE;
}
void arrangeGauss(Case& c) {
    arrangePlace(c);
    bind(c, "mean", someNumber(c, someRange(c)));
    bind(c, "stdDev", c.rng.oneIn(6) ? 0 : std::fabs(someNumber(c, someRange(c))));
    if (c.mode == Mode::usual && c.rng.oneIn(10)) bind(c, "stdDev", -1.0f), c.expected = STATUS_OUT_OF_RANGE;
}

void addUniform(Case& c) {
    if (c.expected < 0) return;
    const auto low = bound(c, "low"), high = bound(c, "high");
    const auto unit = float((double(high) - low) * 0x1p-24);
    oneByOne(c, [&]<class T>(T pixel, int64_t x, int64_t y, int k) -> T {
        const auto [words, own] = placeOf(c, x, y, k, 0);
        const float even = float(words[own] >> 8) * unit + low, noise = even > high ? high : even;
        if constexpr (std::is_floating_point_v<T>)
            return nanOr<T>(pixel + noise, pixel);
        else
            return nearest<T>(float(pixel) + noise);
    });
}

long double normal(const Block4& words, size_t own) {
    const long double u1 = ((words[own & 2] >> 8) + 1) * 0x1p-24L, u2 = (words[own | 1] >> 8) * 0x1p-24L;
    const long double radius = sqrtl(-2 * logl(u1)), angle = 2 * std::numbers::pi_v<long double> * u2;
    return radius * (own & 1 ? sinl(angle) : cosl(angle));
}
// Near the exact result: what z may be off, and three roundings.
void addGauss(Case& c) {
    if (c.expected < 0) return;
    const auto mean = bound(c, "mean"), stdDev = bound(c, "stdDev");
    const Image& to = c.image(overwritten(c));
    oneByOne(c, [&]<class T>(T pixel, int64_t x, int64_t y, int k) -> T {
        if constexpr (std::is_floating_point_v<T>)
            if (!std::isfinite(pixel)) return nanOr<T>(pixel, pixel);
        const auto [words, own] = placeOf(c, x, y, k, 1);
        const long double z = normal(words, own), noise = mean + z * stdDev, exact = pixel + noise;
        const long double half = 0x1p-24L, error = 1e-6L * (1 + fabsl(z)) * stdDev +
                                                   half * (fabsl(z * stdDev) + 2 * fabsl(noise) + fabsl(exact)) +
                                                   1e-44L;
        const T given = c.result<T>(to, x, y, k);
        if constexpr (std::is_floating_point_v<T>)
            return fabsl(given - exact) <= error || given == T(exact) ? given : T(exact);
        else
            return nearest<T>(exact - error) <= given && given <= nearest<T>(exact + error) ? given : nearest<T>(exact);
    });
}

using Add = StatusCode(float*, int, ImageSize, ImagePoint, float, float, uint64_t);
// The generator's authors publish what it makes of two counters.
TEST(Noise, PublishedAnswers) {
    for (const Library& library : builds()) {
        const auto add = reinterpret_cast<Add*>(library.find("zmviAddNoiseUniform_32f_C1IR"));
        float words[4] = {};
        ASSERT_EQ(add(words, 16, {4, 1}, {0, 0}, 0, 0x1p24f, 0), STATUS_OK);
        const uint32_t due[] = {0x6627e8d5, 0xe169c58d, 0xbc57ac4c, 0x9b00dbd8};
        for (int i = 0; i < 4; ++i) EXPECT_EQ(words[i], float(due[i] >> 8));
    }
    const auto all = zmv::Philox(~uint64_t(0))(std::array{~zmv::Vec<uint64_t>{}}, ~0u, ~0u, ~0u)[0];
    const uint32_t due[] = {0x408f276d, 0x41c83b0e, 0xa20bc7c6, 0x6d5451fd};
    for (size_t i = 0; i < 4; ++i) EXPECT_EQ(all[i][0], due[i]);
}

// A million elements, three channels: moments, the shape by classes of equal weight, and neighbours that do not know
// of each other; all within five standard errors.
void judge(const Library& library, const char* member, float a, float b, double fourth, double sixth,
           double (*share)(double)) {
    constexpr int w = 1000, h = 334, n = 3 * w * h, classes = 64;
    std::vector<float> v(n, 0);
    const auto add = reinterpret_cast<Add*>(library.find(member));
    ASSERT_EQ(add(v.data(), 12 * w, {w, h}, {0, 0}, a, b, 20260101), STATUS_OK);
    double sums[4] = {}, besides[3] = {}, counts[classes] = {}, chi = 0;
    const int distances[] = {1, 3, 3 * w};
    for (int i = 0; i < n; ++i) {
        for (double power = 1, *s = sums; s != sums + 4; ++s) *s += power *= v[i];
        for (int k = 0; k < 3; ++k) besides[k] += i >= distances[k] ? v[i] * v[i - distances[k]] : 0;
        ++counts[std::clamp(int(share(v[i]) * classes), 0, classes - 1)];
    }
    for (const double count : counts) chi += (count - n / double(classes)) * (count - n / double(classes));
    chi /= n / double(classes);
    const double error = 5 / std::sqrt(double(n));
    EXPECT_LT(std::fabs(sums[0] / n), error) << member;
    EXPECT_LT(std::fabs(sums[1] / n - 1), error * std::sqrt(fourth - 1)) << member;
    EXPECT_LT(std::fabs(sums[2] / n), error * std::sqrt(sixth)) << member;
    for (const double product : besides) EXPECT_LT(std::fabs(product / n), error) << member;
    EXPECT_LT(std::fabs(chi - (classes - 1)), 5 * std::sqrt(2.0 * (classes - 1))) << member;
}
TEST(Noise, HonestStatistics) {
    const float side = std::sqrt(3.0f);  // a variance of 1
    for (const Library& library : builds()) {
        judge(library, "zmviAddNoiseUniform_32f_C3IR", -side, side, 1.8, 27 / 7.0,
              [](double x) { return x / std::sqrt(12.0) + 0.5; });
        judge(library, "zmviAddNoiseGauss_32f_C3IR", 0, 1, 3, 15,
              [](double x) { return std::erfc(-x / std::sqrt(2.0)) / 2; });
    }
}

// Bounds that are none, with the usual other one.
std::vector<Check> refused(StatusCode status, const char* first, const char* second, float tooLarge, float tooSmall) {
    Check check{status, {}};
    for (const char* name : {first, second})
        for (const float value : {NAN, INFINITY, -INFINITY, name == first ? tooLarge : tooSmall})
            check.breaks.push_back({name, Break::whole, std::bit_cast<int32_t>(value)});
    return {check};
}

}  // namespace

extern const Family test_zmviAddNoiseUniform = {.arrange = arrangeUniform,
                                                .oracle = addUniform,
                                                .more = refused(STATUS_BAD_RANGE, "low", "high", 3.4e38f, -3.4e38f)};
extern const Family test_zmviAddNoiseGauss = {
    .arrange = arrangeGauss,
    .oracle = addGauss,
    .more = refused(STATUS_OUT_OF_RANGE, "mean", "stdDev", INFINITY, -1e-45f)};
