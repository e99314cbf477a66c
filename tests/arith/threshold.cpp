// zmviThreshold and its sisters.
#include "arith/arith.h"

namespace {

using namespace test;

// Levels in the middle of the pixels, and some pixels at the levels.
void arrangeThreshold(Case& c) {
    arrangeByRoles(c);
    const Image& src = c.image(onlySource(c));
    withElement(src.element, [&](auto zero) {
        using T = decltype(zero);
        for (int k = 0; k < c.member.to.used(); ++k) {
            const T pixel = c.get<T>(src, c.rng.below(int(c.width)), c.rng.below(int(c.height)), k);
            const T other = c.get<T>(src, c.rng.below(int(c.width)), c.rng.below(int(c.height)), k);
            if (c.has("threshold") && c.rng.below(4)) c.set(c.image("threshold"), 0, 0, k, pixel);
            if (c.has("thresholdLT")) {
                c.set(c.image("thresholdLT"), 0, 0, k, other < pixel ? other : pixel);
                c.set(c.image("thresholdGT"), 0, 0, k, other < pixel || c.rng.oneIn(8) ? pixel : other);
                if (c.mode == Mode::usual && c.rng.oneIn(20))
                    c.set(c.image("thresholdLT"), 0, 0, k, std::numeric_limits<T>::max());
            }
        }
    });
    for (const char* name : {"threshold", "thresholdLT", "thresholdGT"})
        if (c.has(name)) c.bindValue(name);
}

bool crossed(Case& c) {
    bool any = false;
    if (c.has("thresholdLT"))
        withElement(c.member.source, [&](auto t) {
            const auto at = [&](const char* name, int k) { return c.get<decltype(t)>(c.image(name), 0, 0, k); };
            for (int k = 0; k < c.member.to.used(); ++k) any |= at("thresholdGT", k) < at("thresholdLT", k);
        });
    return any;
}

template <int cmpOp>
void threshold(Case& c) {
    const int64_t op = c.has("cmpOp") ? c.arg("cmpOp").a : cmpOp;
    if (crossed(c)) {
        c.expected = STATUS_BAD_THRESHOLD;
        return;
    }
    oneByOne(c, [&]<class T>(T s, int64_t, int64_t, int k) {
        const auto constant = [&](const char* name) { return c.get<T>(c.image(name), 0, 0, k); };
        if (c.has("thresholdLT")) {
            if (s < constant("thresholdLT")) return constant("valueLT");
            return s > constant("thresholdGT") ? constant("valueGT") : s;
        }
        const T level = constant("threshold");
        const bool beyond = op == CMP_GREATER ? s > level : s < level;
        return beyond ? constant(c.has("value") ? "value" : "threshold") : s;
    });
}

}  // namespace

#define THRESHOLD(name, op) extern const Family test_##name = {.arrange = arrangeThreshold, .oracle = threshold<op>};
THRESHOLD(zmviThreshold, CMP_LESS)
THRESHOLD(zmviThreshold_GT, CMP_GREATER)
THRESHOLD(zmviThreshold_LT, CMP_LESS)
THRESHOLD(zmviThreshold_Val, CMP_LESS)
THRESHOLD(zmviThreshold_GTVal, CMP_GREATER)
THRESHOLD(zmviThreshold_LTVal, CMP_LESS)
THRESHOLD(zmviThreshold_LTValGTVal, CMP_LESS)
