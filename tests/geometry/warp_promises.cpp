// What warps promise beside their formulas: equalities between maps, edges at every scale, rows that are long.
#include <gtest/gtest.h>

#include <algorithm>

#include "geometry/warp.h"

namespace {

using namespace test;

constexpr int side = 61, step = 64;  // an image of odd sides, rows apart
struct Picture {
    std::vector<uint8_t> bytes = std::vector<uint8_t>(step * side, 7);
    static Picture random(unsigned seed) {
        Picture p;
        Rng rng(seed);
        for (uint8_t& b : p.bytes) b = uint8_t(rng.next());
        return p;
    }
    bool operator==(const Picture& other) const {
        for (int y = 0; y < side; ++y)
            if (!std::equal(&bytes[size_t(y * step)], &bytes[size_t(y * step)] + side, &other.bytes[size_t(y * step)]))
                return false;
        return true;
    }
};
template <class... Args>
StatusCode callOf(const std::string& name, Args... args) {
    return reinterpret_cast<StatusCode (*)(Args...)>(underTest().find(name))(args...);
}
Warp square(Warp::Map map, int interpolation, std::initializer_list<double> numbers, int direction = WARP_BACKWARD) {
    Warp w;
    w.map = map, w.interpolation = interpolation, w.direction = direction;
    w.src = w.dst = {side, side}, w.roi = {0, 0, side, side};
    int i = 0;
    for (const double x : numbers) w.c[i / w.columns()][i % w.columns()] = x, ++i;
    return w;
}
// A tile of the destination by the member for bytes.
template <class Step, class Point, class Size>
void warp(const Warp& w, const uint8_t* src, Step srcStep, uint8_t* dst, Step dstStep, Point at, Size size, int word) {
    alignas(64) static uint8_t spec[512];
    static uint8_t buffer[64 + 32 * side + 16384];
    ASSERT_EQ(makeWarp(underTest(), w, spec), STATUS_OK);
    const uint8_t value = 99;
    ASSERT_EQ(callOf("zmviWarp" + nameOf(w) + (sizeof(Step) == 8 ? "_8u_C1R_L" : "_8u_C1R"), src, srcStep, dst, dstStep,
                     at, size, uint32_t(word), &value, static_cast<const void*>(spec), buffer),
              STATUS_OK);
}
// The whole destination in tiles of a size.
Picture warped(const Warp& w, const Picture& src, int word = BORDER_TRANSPARENT, int tile = side) {
    Picture dst;
    for (int y = 0; y < side; y += tile)
        for (int x = 0; x < side; x += tile)
            warp(w, src.bytes.data(), step, &dst.bytes[size_t(y * step + x)], step, ImagePoint{x, y},
                 ImageSize{tile, tile}, word);
    return dst;
}
constexpr int methods[] = {INTERP_NEAREST, INTERP_LINEAR, INTERP_CUBIC};
constexpr int words[] = {BORDER_TRANSPARENT, BORDER_REPL, BORDER_MIRROR, BORDER_CONST};

TEST(Warp, OneMapByManyNames) {
    const Picture src = Picture::random(2);
    const double a = 0.71, b = -0.33, x = 20.3, c = 0.29, d = 0.83, y = -7.1;
    const std::initializer_list<double> p = {0.9, 0.2, 3, -0.1, 1.1, 2, 0.004, -0.003, 1};
    const std::initializer_list<double> f = {0.004, 0.8, 0.1, 5, -0.003, 0.2, 0.9, -3};
    for (const int method : methods)
        for (const int word : words) {
            const Warp affine = square(Warp::affine, method, {a, b, x, c, d, y});
            const Picture plain = warped(affine, src, word);
            EXPECT_EQ(plain, warped(square(Warp::perspective, method, {a, b, x, c, d, y, 0, 0, 1}), src, word));
            EXPECT_EQ(plain, warped(square(Warp::bilinear, method, {0, a, b, x, 0, c, d, y}), src, word));
            Warp there = square(Warp::affine, method, {a, b, x, c, d, y}, WARP_FORWARD), back = affine;
            ASSERT_TRUE(there.form());
            for (int i = 0; i < 6; ++i) back.c[i / 3][i % 3] = there.b[i / 3][i % 3];
            EXPECT_EQ(warped(there, src, word), warped(back, src, word));
            for (const int direction : {WARP_FORWARD, WARP_BACKWARD}) {
                Warp bent = square(Warp::perspective, method, p, direction);
                const Picture whole = warped(bent, src, word);
                for (const Warp& w : {affine, bent, square(Warp::bilinear, method, f, direction)})
                    for (const int tile : {1, 13, 40}) EXPECT_EQ(warped(w, src, word), warped(w, src, word, tile));
                for (auto& row : bent.c)
                    for (double& number : row) number *= 0x1p-60;
                EXPECT_EQ(whole, warped(bent, src, word));
            }
        }
}

// Pixels at the edges come back from where they were sent to, whatever the scale rounds: pixel k goes to n k.
TEST(Warp, ScalesKeepEveryEdge) {
    const Picture src = Picture::random(4);
    for (int n = 1; n < 200; ++n)
        for (const int method : {INTERP_NEAREST, INTERP_LINEAR})
            for (const int k : {0, 1, 30, side - 1}) {
                Warp w = square(Warp::affine, method, {double(n), 0, 0, 0, double(n), 0}, WARP_FORWARD);
                w.dst = {side * n, side * n};
                const uint8_t due = src.bytes[size_t(k * step + k)];
                uint8_t pixel = uint8_t(~due);
                warp(w, src.bytes.data(), step, &pixel, 1, ImagePoint{k * n, k * n}, ImageSize{1, 1},
                     BORDER_TRANSPARENT);
                ASSERT_EQ(pixel, due) << n;
            }
}

// Regions wider than 32 bits count, and rows far apart.
TEST(Warp, LongRows) {
    static Arena memory = Arena::ring(size_t(6) << 30);
    const int64_t far = int64_t(5) << 30, period = int64_t(Arena::ringBytes);
    for (int64_t i = 0; i < period; ++i) memory.begin[i] = uint8_t(i * 7 + i / 253);
    for (const int method : {INTERP_NEAREST, INTERP_LINEAR})
        for (const int64_t width : {far, int64_t(5000)}) {
            const int64_t rows = width == far ? 2 : 6000, rowStep = width == far ? far / 8 : far / rows;
            const double column = double(width - 50), row = double(rows - 2);
            Warp w = square(Warp::affine, method, {1, 0, column + 0.5, 0, 1, row});
            w.src = {width, rows}, w.roi = {0, 0, width, rows}, w.dst = {40, 1};
            uint8_t dst[40] = {};
            warp(w, memory.begin, rowStep, dst, int64_t(40), ImagePointL{0, 0}, ImageSizeL{40, 1}, BORDER_REPL);
            for (int64_t x = 0; x < 40; ++x) {
                const auto pixel = [&](int64_t i) {
                    return memory.begin[(int64_t(row) * rowStep + width - 50 + x + i) % period];
                };
                const double value = method == INTERP_NEAREST ? pixel(1) : (pixel(0) + pixel(1)) / 2.0;
                ASSERT_EQ(dst[x], uint8_t(std::nearbyint(value))) << x;
            }
        }
}

}  // namespace
