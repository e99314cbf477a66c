// zmviScale exact in integers, its floats and zmviScaleC in single and double precision step by step.
#include <gtest/gtest.h>

#include <bit>

#include "arith/arith.h"

namespace {

using namespace test;

template <class T>
void bind(Case& c, const char* name, T value) {
    std::memcpy(&c.arg(name).a, &value, sizeof value);
}
template <class T>
T bound(Case& c, const char* name) {
    T value;
    return std::memcpy(&value, &c.arg(name).a, sizeof value), value;
}

// Ranges of every magnitude, some of small numbers only, and one that is too wide; pixels close to what rounds up.
void arrangeScale(Case& c) {
    arrangeByRoles(c);
    const Image& src = c.image("src");
    float low = 0, high = 1;
    if (c.has("vMin")) {
        const float scale = std::ldexp(1.0f, c.mode == Mode::controls || c.rng.oneIn(3) ? c.rng.between(-149, 115) : 0);
        low = float(c.rng.between(-300, 100)) * scale, high = low + float(c.rng.between(1, 300)) * scale;
        if (c.rng.oneIn(6)) high = std::nextafter(low, INFINITY);
        if (c.mode == Mode::usual && c.rng.oneIn(10)) low = -0x1.8p127f, high = -low, c.expected = STATUS_BAD_RANGE;
        bind(c, "vMin", low), bind(c, "vMax", high);
    }
    change(c, src, [&]<class T>(T v, auto...) {
        const int step = c.rng.below(256), beside = c.rng.between(-1, 2);
        if (c.rng.oneIn(2)) return v;
        if (sizeof v < 4) return v;
        if constexpr (std::is_integral_v<T>)
            return T(uint32_t(step) * 16843009u + 8421504u + uint32_t(beside) + (1u << 31));
        return T(
            std::nextafter(float(low + (step + 0.5) / 255 * (double(high) - low)), beside > 0 ? INFINITY : -INFINITY));
    });
}
void scaleRange(Case& c) {
    if (c.expected < 0) return;
    const bool real = c.has("vMin");
    const float low = real ? bound<float>(c, "vMin") : 0, high = real ? bound<float>(c, "vMax") : 1;
    const double range = double(high) - low;
    oneByAnother(c, [&]<class S, class D>(S v, D, auto...) {
        if constexpr (std::is_same_v<D, float>) {
            const float scaled = v * float(range / 255) + low;
            return v == 255 || scaled > high ? high : scaled;
        } else if constexpr (std::is_same_v<S, float>) {
            return nearest<D>((v - low) * float(255 / range));
        } else {
            const auto span = []<class T>(T) {
                return Wide(std::numeric_limits<T>::max()) - std::numeric_limits<T>::min();
            };
            const Wide above = Wide(v) - std::numeric_limits<S>::min();
            return D((2 * above * span(D()) + span(v)) / (2 * span(v)) + std::numeric_limits<D>::min());
        }
    });
}

// Constants whose results are near ties and limits, and NaNs that can be told apart.
void arrangeScaleC(Case& c) {
    arrangeByRoles(c);
    static const double numbers[] = {0.5, 1.5, -0.5,  1.0 / 3, 255,     1e-3,   1e300,  -INFINITY, 1,
                                     0,   -1,  1e-40, 0x1p-52, 32767.5, -32768, 0x1p31, -0x1p31};
    for (const char* name : {"mVal", "aVal"}) {
        const double nan = std::bit_cast<double>(0xfff0000000000000 | c.rng.next() >> 20);
        bind(c, name, c.rng.oneIn(12) ? nan : numbers[c.rng.below(int(std::size(numbers)))]);
    }
}
void scaleBy(Case& c) {
    const auto factor = bound<double>(c, "mVal"), summand = bound<double>(c, "aVal");
    oneByAnother(c, [&]<class D>(auto pixel, D, auto...) {
        const auto v = double(pixel);
        const double product = nanOr(v * factor, v, factor), sum = nanOr(product + summand, product, summand);
        if constexpr (std::is_floating_point_v<D>)
            return D(sum);
        else
            return nearest<D>(sum);
    });
}

Check badRange() {
    Check check{STATUS_BAD_RANGE, {}};
    for (const float bad : {NAN, INFINITY, 3.4e38f, -INFINITY, -3.4e38f})
        for (const char* name : {"vMin", "vMax"})
            if (bad != bad || (bad > 0) == (name[2] == 'i'))
                check.breaks.push_back({name, Break::whole, std::bit_cast<int32_t>(bad)});
    return check;
}

// All values of types that have few, through tables too, and of 32s all round every boundary.
TEST(Scale, EveryValue) {
    for (const Member& m : members()) {
        const bool ours = m.name.starts_with("zmviScale") || m.name.starts_with("zmviLUT_");
        if (!ours || !m.find("roiSize") || m.to.channels != 1 || isReal(m.source) ||
            (!options.only.empty() && m.name != options.only))
            continue;
        for (uint64_t seed = 0; seed < 20; ++seed) {
            Case c(m, builds().front(), 8 * seed, Mode::bulk);
            c.width = c.height = 256;
            m.family->arrange(c);
            change(c, c.image(onlySource(c)), [](auto zero, int64_t x, int64_t y, int) {
                const int64_t wide = y * 16843009 + 8421504 - 127 + x - (int64_t(1) << 31);
                return decltype(zero)(sizeof zero == 4 ? wide : 256 * y + x);
            });
            EXPECT_EQ(judge(c), "");
        }
    }
}

}  // namespace

extern const Family test_zmviScale = {.arrange = arrangeScale, .oracle = scaleRange, .more = {badRange()}};
extern const Family test_zmviScaleC = {.arrange = arrangeScaleC, .oracle = scaleBy};
