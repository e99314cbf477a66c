// Every value of a byte with every other, every value of 16 bits, and every scale factor that makes a difference.
#include <gtest/gtest.h>

#include "arith/arith.h"

namespace {

using namespace test;

// Numbers of 16 bits where signs, ties and saturation change.
constexpr int edges[] = {0,      1,      2,      3,      5,      127,    128,    129,    255,    256,    257,
                         1000,   0x3fff, 0x4000, 0x7ffe, 0x7fff, 0x8000, 0x8001, 0xaaaa, 0xbfff, 0xc000, 0xfeff,
                         0xff00, 0xff01, 0xff7f, 0xff80, 0xfffd, 0xfffe, 0xffff, 0x5555, 7,      100};

bool ofTwoImages(const Member& m) { return m.find(m.inPlace ? "src" : "src1") != nullptr; }

void fill(Case& c, const std::string& name, int (*number)(int64_t x, int64_t y)) {
    const Image& image = c.image(name);
    withElement(image.element, [&](auto zero) {
        eachElement(c, [&](int64_t x, int64_t y, int k) { c.set(image, x, y, k, decltype(zero)(number(x, y))); });
    });
}

std::string check(const Member& m, int64_t factor, int mode) {
    Case c(m, builds().front(), 0, Mode::bulk);
    const bool bytes = bytesOf(m.source) == 1, two = ofTwoImages(m);
    c.width = c.height = bytes || !two ? 256 : int64_t(std::size(edges));
    m.family->arrange(c);
    if (two) {
        fill(
            c, firstSource(c),
            bytes ? [](int64_t, int64_t y) { return int(y); } : [](int64_t, int64_t y) { return edges[y]; });
        fill(
            c, secondSource(c),
            bytes ? [](int64_t x, int64_t) { return int(x); } : [](int64_t x, int64_t) { return edges[x]; });
    } else {
        fill(c, onlySource(c), [](int64_t x, int64_t y) { return int(x + 256 * y); });
    }
    c.arg("scaleFactor") = factor;
    if (c.has("roundMode")) c.arg("roundMode") = mode;
    return judge(c);
}

TEST(Arithmetic, EveryValueAndFactor) {
    int checked = 0;
    for (const Member& m : members()) {
        const int bytes = bytesOf(m.source);
        if (!m.find("scaleFactor") || m.large || m.to.channels != 1 || m.find("value") || bytes > 2) continue;
        if (!options.only.empty() && m.name != options.only) continue;
        ++checked;
        const bool few = bytes == 1 || !ofTwoImages(m);  // factors for the larger images
        std::vector<int64_t> factors = {INT32_MIN, INT32_MAX, -200000, 94547, 94540, 367, 300};
        for (int factor = -40; factor <= 40; ++factor)
            if (!few || std::abs(factor) <= 9 || std::abs(factor) / 2 == 8) factors.push_back(factor);
        for (const int64_t factor : factors)
            for (int mode = 0; mode < (m.find("roundMode") ? 3 : 1); ++mode)
                if (const std::string bad = check(m, factor, mode); !bad.empty()) {
                    ADD_FAILURE() << bad;
                    break;
                }
    }
    EXPECT_TRUE(checked >= 3 * 2 * 9 || !options.only.empty()) << checked;
}

}  // namespace
