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
    for (int64_t y = 0; y < src.height; ++y)
        for (int64_t x = 0; x < src.width * src.channels; ++x)
            if (c.rng.oneIn(2)) {
                const int step = c.rng.below(256), beside = c.rng.between(-1, 2);
                if (src.element == Element::s32)
                    c.set(src, 0, y, int(x),
                          int32_t(uint32_t(step) * 16843009u + 8421504u + uint32_t(beside) + (1u << 31)));
                if (src.element == Element::f32)
                    c.set(src, 0, y, int(x),
                          std::nextafter(float(low + (step + 0.5) / 255 * (double(high) - low)),
                                         beside > 0 ? INFINITY : -INFINITY));
            }
}
void scaleRange(Case& c) {
    if (c.expected < 0) return;
    const Image &src = c.image("src"), &dst = c.image("dst");
    withElement(c.member.source, [&](auto from) {
        withElement(c.member.destination, [&](auto to) {
            using S = decltype(from);
            using D = decltype(to);
            eachElement(c, [&](int64_t x, int64_t y, int k) {
                const S v = c.get<S>(src, x, y, k);
                if constexpr (std::is_same_v<D, float>) {
                    const auto low = bound<float>(c, "vMin"), high = bound<float>(c, "vMax");
                    const float scaled = v * float((double(high) - low) / 255) + low;
                    c.set<D>(dst, x, y, k, v == 255 || scaled > high ? high : scaled);
                } else if constexpr (std::is_same_v<S, float>) {
                    const auto low = bound<float>(c, "vMin"), high = bound<float>(c, "vMax");
                    c.set<D>(dst, x, y, k, nearest<D>((v - low) * float(255 / (double(high) - low))));
                } else if constexpr (std::is_integral_v<S> && std::is_integral_v<D>) {
                    const Wide above = Wide(v) - std::numeric_limits<S>::min();
                    const Wide from0 = std::numeric_limits<S>::max() - Wide(std::numeric_limits<S>::min());
                    const Wide to0 = std::numeric_limits<D>::max() - Wide(std::numeric_limits<D>::min());
                    c.set<D>(dst, x, y, k, D((2 * above * to0 + from0) / (2 * from0) + std::numeric_limits<D>::min()));
                }
            });
        });
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
    const Image src = c.image(onlySource(c)), dst = c.image(overwritten(c));
    const auto factor = bound<double>(c, "mVal"), summand = bound<double>(c, "aVal");
    withElement(c.member.source, [&](auto from) {
        withElement(c.member.destination, [&](auto to) {
            using D = decltype(to);
            eachElement(c, [&](int64_t x, int64_t y, int k) {
                const auto v = double(c.get<decltype(from)>(src, x, y, k));
                const double product = nanOr(v * factor, v, factor), sum = nanOr(product + summand, product, summand);
                if constexpr (std::is_floating_point_v<D>)
                    c.set(dst, x, y, k, D(sum));
                else
                    c.set(dst, x, y, k, nearest<D>(sum));
            });
        });
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
            Case c(m, builds()[seed % builds().size()], 8 * seed, Mode::bulk);
            c.width = c.height = 256;
            m.family->arrange(c);
            const Image& src = c.image(onlySource(c));
            withElement(m.source, [&](auto zero) {
                eachElement(c, [&](int64_t x, int64_t y, int k) {
                    const int64_t wide = y * 16843009 + 8421504 - 127 + x - (int64_t(1) << 31);
                    c.set(src, x, y, k, decltype(zero)(sizeof zero == 4 ? wide : 256 * y + x));
                });
            });
            c.call();
            if (!c.trapped()) m.family->oracle(c);
            EXPECT_EQ(c.verdict(), "");
        }
    }
}

void comeBack(const Library& library) {
    using Up = StatusCode(const uint8_t*, int, float*, int, ImageSize, float, float);
    using Down = StatusCode(const float*, int, uint8_t*, int, ImageSize, float, float);
    const auto up = reinterpret_cast<Up*>(library.find("zmviScale_8u32f_C1R"));
    const auto down = reinterpret_cast<Down*>(library.find("zmviScale_32f8u_C1R"));
    uint8_t bytes[256], back[256];
    for (int i = 0; i < 256; ++i) bytes[i] = uint8_t(i);
    Rng rng(1);
    for (int i = 0; i < 2000; ++i) {
        const float range = std::ldexp(float(rng.between(1 << 10, 1 << 11)), rng.between(-130, 90));
        const float low = range * float(rng.between(-16384, 16383)), high = low + range;
        if (std::max(std::abs(low), std::abs(high)) > 16384 * (double(high) - low)) continue;
        float floats[256];
        ASSERT_EQ(up(bytes, 256, floats, 1024, {256, 1}, low, high), STATUS_OK);
        ASSERT_EQ(down(floats, 1024, back, 256, {256, 1}, low, high), STATUS_OK);
        ASSERT_EQ(std::memcmp(bytes, back, 256), 0) << low << " .. " << high;
    }
}
TEST(Scale, BytesComeBackFromFloats) {
    for (const Library& library : builds()) comeBack(library);
}

}  // namespace

extern const Family test_zmviScale = {.arrange = arrangeScale, .oracle = scaleRange, .more = {badRange()}};
extern const Family test_zmviScaleC = {.arrange = arrangeScaleC, .oracle = scaleBy};
