// zmviNorm, zmviNormDiff, zmviNormRel, zmviSum, zmviMean, zmviDotProd.
#include <gtest/gtest.h>

#include <cmath>

#include "filter/box.h"

namespace {

using namespace test;

enum class Kind { inf, l1, l2, sum, dot };
Kind kindOf(const Member& m) {
    const auto named = [&](const char* part) { return m.name.find(part) != std::string::npos; };
    return named("DotProd") ? Kind::dot
           : named("_Inf_") ? Kind::inf
           : named("_L1_")  ? Kind::l1
           : named("_L2_")  ? Kind::l2
                            : Kind::sum;
}
std::string resultOf(const Case& c) {
    return c.has("sum") ? "sum" : c.has("mean") ? "mean" : c.has("pDp") ? "pDp" : "value";
}

void arrangeNorm(Case& c) {
    if (c.mode == Mode::usual && c.rng.oneIn(40)) c.width = c.rng.between(16300, 17500), c.height = c.rng.between(2, 8);
    for (const char* name : {"src", "src1", "src2"})
        if (c.has(name)) {
            const Image& image = c.place(name, c.width, c.height);
            const bool nothing = c.rng.oneIn(8), equal = std::string(name) == "src2" && c.rng.oneIn(8);
            if (image.element == Element::f32) fillFloats<float>(c, image);
            change(c, image, [&]<class T>(T v, int64_t x, int64_t y, int k) {
                return equal ? c.get<T>(c.image("src1"), x, y, k) : nothing ? T(0) : v;
            });
        }
    c.place(resultOf(c), c.member.from.used(), 1);
    c.arg("roiSize") = {c.width, c.height};
    if (c.has("hint")) c.arg("hint") = c.rng.oneIn(2) ? HINT_ACCURATE : c.rng.between(-1, 4);
}

// Calls f(a, b, i, lastOfRow) for the elements of a channel, or of all where it is negative; i counts along the row.
// The two are the elements of both images; of one the second is zero.
template <class T, class F>
void eachPair(Case& c, bool onlySecond, F f) {
    const Image &one = c.image(c.has("src1") && !onlySecond ? "src1"
                               : c.has("src2")              ? "src2"
                                                            : "src"),
                &two = c.image(c.has("src2") ? "src2" : "src");
    const bool pairs = c.has("src2") && !onlySecond;
    const int n = one.channels;
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t i = 0; i < c.width * n; ++i)
            f(c.get<T>(one, i / n, y, int(i % n)), pairs ? c.get<T>(two, i / n, y, int(i % n)) : T(0), i);
}

using Measures = std::array<double, 4>;
using Wide = __int128;

template <class T>
Measures exact(Case& c, Kind kind, bool onlySecond) {
    Wide all[4] = {};
    eachPair<T>(c, onlySecond, [&](T a, T b, int64_t i) {
        Wide& so_far = all[i % c.member.from.channels];
        const Wide d = Wide(a) - b, size = d < 0 ? -d : d;
        if (kind == Kind::inf)
            so_far = std::max(so_far, size);
        else
            so_far += kind == Kind::dot ? Wide(a) * b : kind == Kind::sum ? d : kind == Kind::l1 ? size : d * d;
    });
    Measures result;
    for (int k = 0; k < 4; ++k) result[size_t(k)] = double(all[k]);
    return result;
}

// Floats in the documented order: element i of a row in partial sum i % n, those joined every 2^15 elements and more.
template <class R>
Measures ordered(Case& c, Kind kind, bool onlySecond) {
    constexpr int n = sizeof(R) == 4 ? 48 : 24;
    const int channels = c.member.from.channels;
    R partial[n] = {};
    double total[n] = {};
    int64_t unsettled = 0;
    Measures largest{}, result{};
    long double reference[4] = {}, scale[4] = {};
    const auto settle = [&] {
        for (int k = 0; k < n; ++k) total[k] += double(partial[k]), partial[k] = 0;
        unsettled = 0;
    };
    eachPair<float>(c, onlySecond, [&](float a, float b, int64_t i) {
        const R d = R(a) - R(b), size = std::fabs(d);
        const double exactSize = std::fabs(double(a) - double(b));
        double& most = largest[size_t(i % channels)];
        if (!(exactSize <= most) && !std::isnan(most)) most = exactSize;
        const R term = kind == Kind::dot ? R(a) * R(b) : kind == Kind::sum ? d : kind == Kind::l1 ? size : d * d;
        partial[i % n] += term;
        reference[i % channels] += kind == Kind::l2 ? (long double)exactSize * exactSize : term;
        scale[i % channels] += std::fabs((long double)term);
        ++unsettled;
        const bool rowEnds = i + 1 == c.width * channels;
        if ((rowEnds || (i + 1) % 49152 == 0) && unsettled >= 32768) settle();
    });
    settle();
    if (kind == Kind::inf) return largest;
    for (int k = 0; k < n; ++k) result[size_t(k % channels)] += total[k];
    // The order is one thing, to be near the sum another.
    constexpr long double slack = sizeof(R) == 4 ? 2e-4L : 1e-13L;
    for (int k = 0; k < channels; ++k)
        if (scale[k] < 1e37L && !(std::fabs(result[size_t(k)] - reference[k]) <= slack * scale[k] + 1e-37L))
            c.fail("far from the sum in channel " + std::to_string(k));
    return result;
}

Measures measure(Case& c, bool onlySecond = false) {
    const Kind kind = kindOf(c.member);
    Measures result{};
    withElement(c.member.source, [&]<class T>(T) {
        if constexpr (std::is_same_v<T, float>)
            result = kind == Kind::inf || c.arg("hint").a == HINT_ACCURATE ? ordered<double>(c, kind, onlySecond)
                                                                           : ordered<float>(c, kind, onlySecond);
        else if constexpr (std::is_integral_v<T>)
            result = exact<T>(c, kind, onlySecond);
    });
    return result;
}

void norm(Case& c) {
    const bool relative = c.member.name.rfind("zmviNormRel", 0) == 0;
    const Measures all = measure(c), second = relative ? measure(c, true) : Measures{};
    const Image& result = c.image(resultOf(c));
    for (int k = 0; k < c.member.from.used(); ++k) {
        double value = all[size_t(k)];
        if (relative) {
            const double by = second[size_t(k)];
            const auto isZero = [](double x) { return x < 2.2250738585072014e-308; };
            if (isZero(by)) c.expected = STATUS_WARN_DIV_BY_ZERO;
            value = !isZero(by) ? value / by : isZero(value) || std::isnan(value) ? NAN : INFINITY;
        }
        if (kindOf(c.member) == Kind::l2) value = std::sqrt(value);
        if (c.has("mean")) value /= double(c.width * c.height);
        // Which of the NaNs is not for the caller to know, but always the same.
        const double written = c.result<double>(result, k, 0);
        if (std::isnan(value)) value = std::isnan(written) ? written : NAN;
        c.set(result, k, 0, 0, value);
    }
}

// Images of one value, large enough for every counter to be emptied in between, whatever the build: the largest sums.
TEST(Statistics, LargestSums) {
    for (const Member& m : members()) {
        const bool one = m.name.rfind("zmviNorm_L", 0) == 0 || m.name.rfind("zmviSum_", 0) == 0;
        if (!one && kindOf(m) != Kind::dot) continue;
        if (isReal(m.source)) continue;
        withElement(m.source, [&]<class T>(T) {
            for (const T value : {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()})
                for (const auto& [width, height] : {std::pair{1500, 1531}, std::pair{70000, 3}, std::pair{1, 5000}}) {
                    const int n = m.from.channels, step = int(sizeof(T)) * n * width;
                    std::vector<T> image(size_t(width) * size_t(height) * size_t(n), value);
                    double out[4] = {};
                    const Slot both[] = {image.data(), step, image.data(), step, {width, height}, out};
                    const Slot single[] = {image.data(), step, {width, height}, out};
                    ASSERT_EQ(m.invoke(underTest().find(m.name), one ? single : both), STATUS_OK);
                    const Wide count = Wide(width) * height;
                    const double due = kindOf(m) == Kind::l2    ? std::sqrt(double(count * value * value))
                                       : kindOf(m) == Kind::dot ? double(count * value * value)
                                       : kindOf(m) == Kind::sum ? double(count * value)
                                                                : double(count * (value < 0 ? -Wide(value) : value));
                    for (int k = 0; k < m.from.used(); ++k)
                        EXPECT_EQ(out[k], due) << m.name << " of " << width << "x" << height;
                }
        });
    }
}

}  // namespace

#define NORM(K)                                                                                                        \
    extern const Family test_zmviNorm_##K = {.arrange = arrangeNorm, .oracle = norm},                                  \
                        test_zmviNormDiff_##K = {.arrange = arrangeNorm, .oracle = norm},                              \
                        test_zmviNormRel_##K = {.arrange = arrangeNorm, .oracle = norm};
NORM(Inf)
NORM(L1)
NORM(L2)
extern const Family test_zmviSum = {.arrange = arrangeNorm, .oracle = norm};
extern const Family test_zmviDotProd = {.arrange = arrangeNorm, .oracle = norm};
extern const Family test_zmviMean = {.arrange = arrangeNorm, .oracle = norm};
