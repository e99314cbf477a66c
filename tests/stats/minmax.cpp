// zmviMin, zmviMax, zmviMinMax, zmviMinIndx, zmviMaxIndx, zmviMinEvery, zmviMaxEvery, zmviBlockMinMax,
// zmviCountInRange.
#include <climits>
#include <cmath>

#include "arith/arith.h"
#include "filter/box.h"

namespace {

using namespace test;

// Many equal values, and of floats zeros of both signs, NaNs here and there, or nothing else.
void fillTies(Case& c, const Image& image) {
    const int values = c.rng.oneIn(3) ? 3 : 1000;
    const bool specials = c.rng.oneIn(2), allNan = c.rng.oneIn(12);
    withElement(image.element, [&]<class T>(T) {
        const T base = T(c.rng.next());
        for (int64_t y = 0; y < image.height; ++y)
            for (int64_t x = 0; x < image.width; ++x)
                for (int k = 0; k < image.channels; ++k) {
                    T value = T(base + T(c.rng.below(values)));
                    if constexpr (std::is_floating_point_v<T>) {
                        value = T(c.rng.below(values) - values / 2);
                        const T special[] = {T(NAN),
                                             T(-NAN),
                                             T(-0.0),
                                             T(0),
                                             T(INFINITY),
                                             T(-INFINITY),
                                             std::numeric_limits<T>::denorm_min(),
                                             std::numeric_limits<T>::max()};
                        if (specials && c.rng.oneIn(6)) value = special[c.rng.below(8)];
                        if (allNan && (k == 0 || c.rng.below(8))) value = special[c.rng.below(2)];
                    }
                    c.set(image, x, y, k, value);
                }
    });
}
// Images by their roles, of which two in three are such.
void arrangeTies(Case& c) {
    arrangeByRoles(c);
    for (const char* name : {"src", "src1", "src2", "srcDst"})
        if (c.has(name) && c.rng.below(3)) fillTies(c, c.image(name));
}

bool least(const std::string& result) { return result == "pMin" || result == "dstMin"; }
// Whether a goes before b: a real number before NaN, and -0 before 0.
template <class T>
bool before(T a, T b, bool toLeast) {
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(a) || std::isnan(b)) return std::isnan(b) && !std::isnan(a);
        if (a == 0 && b == 0)
            return toLeast ? std::signbit(a) && !std::signbit(b) : std::signbit(b) && !std::signbit(a);
    }
    return toLeast ? a < b : a > b;
}
template <class T>
void setExtreme(Case& c, const Image& to, int64_t x, int64_t y, int k, T value) {
    const T written = c.result<T>(to, x, y, k);
    c.set(to, x, y, k, value == value || written == written ? value : written);  // any NaN
}

void extreme(Case& c) {
    const Image& src = c.image("src");
    withElement(src.element, [&]<class T>(T) {
        for (int k = 0; k < c.member.from.used(); ++k)
            for (const char* name : {"pMin", "pMax"}) {
                if (!c.has(name)) continue;
                const bool toLeast = least(name), byValue = c.has("pIndexX");
                T best = c.get<T>(src, 0, 0, k);
                int64_t atX = 0, atY = 0;
                for (int64_t y = 0; y < c.height; ++y)
                    for (int64_t x = 0; x < c.width; ++x) {
                        const T v = c.get<T>(src, x, y, k);
                        if (before(v, best, toLeast) && !(byValue && v == best)) best = v, atX = x, atY = y;
                    }
                setExtreme(c, c.image(name), k, 0, 0, best);
                if (byValue) c.set(c.image("pIndexX"), k, 0, 0, int(atX)), c.set(c.image("pIndexY"), k, 0, 0, int(atY));
            }
    });
}

void every(Case& c) {
    const bool toLeast = c.member.name.rfind("zmviMinEvery", 0) == 0;
    pairByPair(
        c, [&]<class T>(T second, T first) { return (toLeast ? first < second : first > second) ? first : second; });
}

void arrangeBlocks(Case& c) {
    if (c.mode == Mode::usual && c.rng.oneIn(6)) c.width = c.rng.between(500, 1700);
    c.height += c.rng.below(12);
    if (c.mode == Mode::far) c.height = 4;
    const int64_t w = c.rng.oneIn(4) ? c.rng.between(1, 1200) : c.rng.between(1, 20), h = c.rng.between(1, 8);
    if (const Image& src = c.place("src", c.width, c.height); c.rng.below(3)) fillTies(c, src);
    for (const char* name : {"dstMin", "dstMax"}) c.place(name, (c.width + w - 1) / w, (c.height + h - 1) / h);
    c.arg("roiSize") = {c.width, c.height};
    c.arg("blockSize") = {c.rng.oneIn(9) && w >= c.width ? INT_MAX : w, c.rng.oneIn(9) && h >= c.height ? INT_MAX : h};
}
void blocks(Case& c) {
    const Image& src = c.image("src");
    const int64_t w = c.arg("blockSize").a, h = c.arg("blockSize").b;
    withElement(src.element, [&]<class T>(T) {
        for (const char* name : {"dstMin", "dstMax"}) {
            const Image& to = c.image(name);
            for (int64_t by = 0; by < to.height; ++by)
                for (int64_t bx = 0; bx < to.width; ++bx) {
                    T best = c.get<T>(src, bx * w, by * h);
                    for (int64_t y = by * h; y < std::min(c.height, (by + 1) * h); ++y)
                        for (int64_t x = bx * w; x < std::min(c.width, (bx + 1) * w); ++x) {
                            const T v = c.get<T>(src, x, y);
                            if (before(v, best, least(name))) best = v;
                        }
                    setExtreme(c, to, bx, by, 0, best);
                }
        }
    });
}

void arrangeCount(Case& c) {
    arrangeTies(c);
    const Image& src = c.image("src");
    const int used = c.member.from.used();
    withElement(src.element, [&]<class T>(T) {
        for (int k = 0; k < used; ++k) {
            const auto pixel = [&] { return c.get<T>(src, c.rng.below(int(c.width)), c.rng.below(int(c.height)), k); };
            const T a = pixel(), b = c.rng.oneIn(4) ? a : pixel();
            T low = std::min(a, b), high = std::max(a, b);
            if (c.rng.oneIn(8)) low = std::numeric_limits<T>::lowest();
            if (c.rng.oneIn(8)) high = std::numeric_limits<T>::max();
            if (c.mode == Mode::usual && c.rng.oneIn(25)) std::swap(low, high);
            if (c.mode == Mode::controls && !(low <= high)) low = high = T(5);
            c.set(c.image("lowerBound"), 0, 0, k, low);
            c.set(c.image("upperBound"), 0, 0, k, high);
        }
    });
    for (const char* name : {"lowerBound", "upperBound"}) c.bindValue(name);
}
void count(Case& c) {
    const Image& src = c.image("src");
    withElement(src.element, [&]<class T>(T) {
        const auto bound = [&](const char* name, int k) { return c.get<T>(c.image(name), 0, 0, k); };
        for (int k = 0; k < c.member.from.used(); ++k)
            if (!(bound("lowerBound", k) <= bound("upperBound", k))) c.expected = STATUS_BAD_RANGE;
        for (int k = 0; c.expected == STATUS_OK && k < c.member.from.used(); ++k) {
            int inside = 0;
            for (int64_t y = 0; y < c.height; ++y)
                for (int64_t x = 0; x < c.width; ++x) {
                    const T v = c.get<T>(src, x, y, k);
                    inside += v >= bound("lowerBound", k) && v <= bound("upperBound", k);
                }
            c.set(c.image("pCounts"), k, 0, 0, inside);
        }
    });
}

}  // namespace

#define EXTREME(name) extern const Family test_##name = {.arrange = arrangeTies, .oracle = extreme};
EXTREME(zmviMin)
EXTREME(zmviMax)
EXTREME(zmviMinMax)
EXTREME(zmviMinIndx)
EXTREME(zmviMaxIndx)
extern const Family test_zmviMinEvery = {.arrange = arrangeTies, .oracle = every};
extern const Family test_zmviMaxEvery = {.arrange = arrangeTies, .oracle = every};
extern const Family test_zmviBlockMinMax = {.arrange = arrangeBlocks, .oracle = blocks};
extern const Family test_zmviCountInRange = {.arrange = arrangeCount, .oracle = count};
