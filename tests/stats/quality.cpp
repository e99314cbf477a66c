// zmviQualityIndex and its query.
#include <gtest/gtest.h>

#include "filter/box.h"

namespace {

using namespace test;
using Wide = __int128;

void arrangeQuality(Case& c) {
    const bool whole = c.rng.oneIn(8), spots = c.rng.oneIn(6);
    const int width = int(c.width), height = int(c.height);
    const auto side = [&](int of) { return whole ? of : c.rng.between(1, std::min(of, spots ? 1 : 12)); };
    c.arg("roiSize") = {width, height};
    c.arg("windowSize") = {side(width), side(height)};
    const int kind = c.rng.below(6);
    for (const char* name : {"src1", "src2"}) {
        const Image& image = c.place(name, width, height);
        if (image.element == Element::f32) fillFloats<float>(c, image);
        change(c, image, [&]<class T>(T v, int64_t x, int64_t y, int k) {
            if (kind == 1 && name[3] == '2') return c.get<T>(c.image("src1"), x, y, k);
            if (kind == 2 || (kind == 3 && x > width / 2)) return T(c.rng.oneIn(2) ? 7.3 : 7.3000005);  // nearly one
            return kind == 4 && (x > width / 2 || name[3] == '2') ? T(0) : v;
        });
    }
    c.place("pQuality", c.member.from.channels, 1);
    c.placeBuffer("buffer", c.bufferSize());
}

// The sum of so many numbers by doubling: blocks of 2^k, the small ones first, or the large ones.
template <class At>
double doubled(At at, int64_t from, int64_t n) {
    return n == 1 ? at(from) : doubled(at, from, n / 2) + doubled(at, from + n / 2, n / 2);
}
template <class At>
double bySize(At at, int64_t n, bool smallFirst) {
    double sum = 0;
    int64_t done = 0;
    for (int k = 0; k < 32; ++k)
        if (const int64_t block = int64_t(1) << (smallFirst ? k : 31 - k); n & block) {
            const double part = doubled(at, done, block);
            sum = done ? sum + part : part;
            done += block;
        }
    return sum;
}

double indexOf(const double* s, double n, bool real) {
    double vx = n * s[2] - s[0] * s[0], vy = n * s[3] - s[1] * s[1], cov = n * s[4] - s[0] * s[1];
    if (real && vx <= n * s[2] * 0x1p-40) vx = cov = 0;
    if (real && vy <= n * s[3] * 0x1p-40) vy = cov = 0;
    const double v = vx + vy, m = s[0] * s[0] + s[1] * s[1];
    if (v == 0 && m == 0) return 1;
    if (v == 0) return 2 * (s[0] * s[1]) / m;
    if (m == 0) return 2 * cov / v;
    return 4 * cov * (s[0] * s[1]) / (v * m);
}

void judgeQuality(Case& c) {
    const int64_t w = c.arg("windowSize").a, h = c.arg("windowSize").b, across = c.width - w + 1,
                  down = c.height - h + 1;
    const Image &a = c.image("src1"), &b = c.image("src2"), &result = c.image("pQuality");
    withElement(a.element, [&]<class T>(T) {
        for (int k = 0; k < a.channels; ++k) {
            double total = 0;
            for (int64_t y = 0; y < down; ++y) {
                double parts[24] = {}, row = 0;
                for (int64_t x = 0; x < across; ++x) {
                    const auto pixel = [&](const Image& image, int64_t i, int64_t j) {
                        return c.get<T>(image, x + i, y + j, k);
                    };
                    double sums[5];
                    for (int s = 0; s < 5; ++s) {
                        const auto term = [&]<class N>(N, int64_t i, int64_t j) {
                            const N p = N(pixel(a, i, j)), q = N(pixel(b, i, j));
                            return s == 0 ? p : s == 1 ? q : s == 2 ? p * p : s == 3 ? q * q : p * q;
                        };
                        Wide exact = 0;
                        for (int64_t i = 0; i < w * h && std::is_integral_v<T>; ++i)
                            exact += term(std::conditional_t<std::is_integral_v<T>, Wide, double>(), i % w, i / w);
                        sums[s] = std::is_integral_v<T>
                                      ? double(exact)
                                      : bySize(
                                            [&](int64_t j) {
                                                return bySize([&](int64_t i) { return term(0.0, i, j); }, w, true);
                                            },
                                            h, false);
                    }
                    parts[x % 24] += indexOf(sums, double(w * h), isReal(a.element));
                }
                for (const double part : parts) row += part;
                total += row;
            }
            const double mean = total / double(across * down);
            c.set(result, k, 0, 0, mean == mean ? mean : std::nan(""));
        }
    });
}

void arrangeQuery(Case& c) {
    static const int types[] = {DATATYPE_8U, DATATYPE_16U, DATATYPE_16S, DATATYPE_32F}, channels[] = {1, 3, 4};
    const bool huge = c.mode == Mode::usual && c.rng.oneIn(4);
    const int width = huge ? INT_MAX : c.rng.between(99, 3000);
    c.arg("roiSize") = {width, width - 9};
    c.arg("windowSize") = {c.rng.between(1, 90), c.rng.between(1, 90)};
    c.arg("dataType") = types[c.rng.below(4)], c.arg("numChannels") = channels[c.rng.below(3)];
    c.place("pBufferSize", 1, 1);
    if (huge) c.expected = STATUS_SIZE_EXCEEDS_INT;
}
void judgeQuery(Case& c) {  // that it is enough is seen where it is used
    const Image& size = c.image("pBufferSize");
    if (c.expected == STATUS_OK) c.set(size, 0, 0, 0, std::max(1, c.result<int>(size, 0, 0)));
}

// Sums that pass 31 bits: of an image and its negative, and of two that have one value each.
TEST(Quality, OfLargeWindows) {
    std::vector<uint8_t> a(60000), negative(60000), flat(60000, 9), other(60000, 27), buffer(100000);
    Rng rng(3);
    for (size_t i = 0; i < a.size(); ++i) a[i] = uint8_t(rng.next()), negative[i] = uint8_t(255 - a[i]);
    const auto index = [&](const std::vector<uint8_t>& p, const std::vector<uint8_t>& q) {
        double quality = 0;
        EXPECT_EQ(FIND(underTest(), zmviQualityIndex_8u_C1R)(p.data(), 300, q.data(), 300, {300, 200}, {290, 190},
                                                             &quality, buffer.data()),
                  STATUS_OK);
        return quality;
    };
    EXPECT_NEAR(index(flat, other), 0.6, 1e-12);
    EXPECT_LT(index(a, negative), -0.99);
}

}  // namespace

const Check beyond = {STATUS_BAD_MASK_SIZE,
                      {{"windowSize", Break::width, INT_MAX}, {"windowSize", Break::height, INT_MAX}}};
extern const Family test_zmviQualityIndex = {.arrange = arrangeQuality, .oracle = judgeQuality, .more = {beyond}};
extern const Family test_zmviQualityIndexGetBufferSize = {
    .arrange = arrangeQuery, .oracle = judgeQuery, .more = {beyond}};
