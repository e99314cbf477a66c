// zmviCopyConstBorder, zmviCopyReplicateBorder, zmviCopyMirrorBorder, zmviCopyWrapBorder.
#include "harness/case.h"

namespace {

using namespace test;

// Which source column (or row) column x of the destination takes, for a source of n; -1 for the constant.
using Rule = int64_t (*)(int64_t x, int64_t n);
int64_t constant(int64_t x, int64_t n) { return x < 0 || x >= n ? -1 : x; }
int64_t replicate(int64_t x, int64_t n) { return x < 0 ? 0 : x >= n ? n - 1 : x; }
int64_t mirror(int64_t x, int64_t n) {
    while (n > 1 && (x < 0 || x >= n)) x = x < 0 ? -x : 2 * (n - 1) - x;
    return n == 1 ? 0 : x;
}
int64_t wrap(int64_t x, int64_t n) {
    while (x < 0) x += n;
    return x % n;
}

int64_t frame(Case& c, int64_t size) {
    switch (c.rng.below(4)) {
        case 0:
            return 0;
        case 1:
            return c.rng.between(1, int(std::min<int64_t>(3 * size + 3, 150)));  // wider than the source
        default:
            return c.rng.between(1, 20);
    }
}

template <bool redirects>
void arrange(Case& c) {
    int64_t w = c.width, h = c.height;
    Margins m{frame(c, w), frame(c, w), frame(c, h), frame(c, h)};
    if (c.mode == Mode::far) {
        const int rows = c.member.large ? 1 : 2;
        h = rows;
        m.top = c.rng.between(1, rows), m.bottom = c.rng.between(1, rows);
    }
    if (c.member.inPlace) {
        c.place("srcDst", w, h, m);
    } else if (redirects && c.mode == Mode::usual && c.rng.oneIn(5)) {
        // The same pointer makes the call the in-place form, whatever the step of the source.
        c.place("dst", w, h, m);
        c.alias("src", "dst");
        c.arg("srcStep") = c.rng.between(-5, 1000);
    } else {
        c.place("src", w, h);
        c.place("dst", m.left + w + m.right, m.top + h + m.bottom);
    }
    if (c.has("value")) c.placeValue("value", c.member.to.used());
    c.arg("srcRoiSize") = {w, h};
    c.arg("dstRoiSize") = {m.left + w + m.right, m.top + h + m.bottom};
    c.arg("top") = m.top;
    c.arg("left") = m.left;
}

template <Rule rule>
void extend(Case& c) {
    const int64_t w = c.arg("srcRoiSize").a, h = c.arg("srcRoiSize").b, top = c.arg("top").a, left = c.arg("left").a;
    const Image& src = c.image(c.member.inPlace ? "srcDst" : "src");
    const Image& dst = c.image(c.member.inPlace ? "srcDst" : "dst");
    const Image* const values = c.hasImage("value") ? &c.image("value") : nullptr;
    const Slot size = c.arg("dstRoiSize");
    const bool inPlace = src.pointer[0] == dst.pointer[0];
    withElement(dst.element, [&](auto zero) {
        using Bytes = std::array<uint8_t, sizeof(zero)>;
        for (int64_t y = -top; y < size.b - top; ++y)
            for (int64_t x = -left; x < size.a - left; ++x) {
                if (inPlace && x >= 0 && x < w && y >= 0 && y < h) continue;
                const int64_t fromX = rule(x, w), fromY = rule(y, h);
                for (int k = 0; k < c.member.to.used(); ++k) {
                    const Bytes value =
                        fromX < 0 || fromY < 0 ? c.get<Bytes>(*values, 0, 0, k) : c.get<Bytes>(src, fromX, fromY, k);
                    inPlace ? c.set(dst, x, y, k, value) : c.set(dst, x + left, y + top, k, value);
                }
            }
    });
}

}  // namespace

extern const Family test_zmviCopyConstBorder = {.arrange = arrange<false>, .oracle = extend<constant>};
extern const Family test_zmviCopyReplicateBorder = {.arrange = arrange<true>, .oracle = extend<replicate>};
extern const Family test_zmviCopyMirrorBorder = {.arrange = arrange<true>, .oracle = extend<mirror>};
extern const Family test_zmviCopyWrapBorder = {.arrange = arrange<false>, .oracle = extend<wrap>};
