// What warps promise beside their formulas: equalities between maps, and with functions that move pixels.
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
// The whole destination in tiles of a size.
Picture warped(const Warp& w, const Picture& src, int word = BORDER_TRANSPARENT, int tile = side) {
    alignas(64) static uint8_t spec[512];
    static std::vector<uint8_t> buffer(64 + 32 * side + 16384);
    EXPECT_EQ(makeWarp(underTest(), w, spec), STATUS_OK);
    const char* const method = w.interpolation == INTERP_NEAREST  ? "Nearest"
                               : w.interpolation == INTERP_LINEAR ? "Linear"
                                                                  : "Cubic";
    const std::string name = std::string("zmviWarp") + warpMaps[w.map] + method + "_8u_C1R";
    Picture dst;
    const uint8_t value = 99;
    for (int y = 0; y < side; y += tile)
        for (int x = 0; x < side; x += tile)
            EXPECT_EQ(
                callOf(name, src.bytes.data(), step, &dst.bytes[size_t(y * step + x)], step, ImagePoint{x, y},
                       ImageSize{tile, tile}, uint32_t(word), &value, static_cast<const void*>(spec), buffer.data()),
                STATUS_OK);
    return dst;
}
constexpr int methods[] = {INTERP_NEAREST, INTERP_LINEAR, INTERP_CUBIC};
constexpr int words[] = {BORDER_TRANSPARENT, BORDER_REPL, BORDER_MIRROR, BORDER_CONST};

TEST(Warp, QuarterTurnsAreMirrorsAndTranspositions) {
    const Picture src = Picture::random(1);
    const double last = side - 1;
    Picture mirrored, transposed;
    const ImageSize size{side, side};
    EXPECT_EQ(callOf("zmviMirror_8u_C1R", src.bytes.data(), step, mirrored.bytes.data(), step, size, int(AXIS_BOTH)),
              STATUS_OK);
    EXPECT_EQ(callOf("zmviTranspose_8u_C1R", src.bytes.data(), step, transposed.bytes.data(), step, size), STATUS_OK);
    for (const int method : methods)
        for (const int direction : {WARP_FORWARD, WARP_BACKWARD}) {
            EXPECT_EQ(warped(square(Warp::affine, method, {1, 0, 0, 0, 1, 0}, direction), src), src);
            EXPECT_EQ(warped(square(Warp::affine, method, {-1, 0, last, 0, -1, last}, direction), src), mirrored);
            EXPECT_EQ(warped(square(Warp::affine, method, {0, 1, 0, 1, 0, 0}, direction), src), transposed);
        }
}

TEST(Warp, MapsThatAreAffineGiveItsBits) {
    const Picture src = Picture::random(2);
    for (const int method : methods)
        for (const int word : words) {
            const double a = 0.71, b = -0.33, x = 20.3, c = 0.29, d = 0.83, y = -7.1;
            const Picture plain = warped(square(Warp::affine, method, {a, b, x, c, d, y}), src, word);
            EXPECT_EQ(plain, warped(square(Warp::perspective, method, {a, b, x, c, d, y, 0, 0, 1}), src, word));
            EXPECT_EQ(plain, warped(square(Warp::bilinear, method, {0, a, b, x, 0, c, d, y}), src, word));
            for (const int tile : {1, 7, 32})
                EXPECT_EQ(plain, warped(square(Warp::affine, method, {a, b, x, c, d, y}), src, word, tile));
            Warp w = square(Warp::affine, method, {a, b, x, c, d, y}, WARP_FORWARD), back = w;
            ASSERT_TRUE(w.form());
            for (int i = 0; i < 6; ++i) back.c[i / 3][i % 3] = w.b[i / 3][i % 3];
            back.direction = WARP_BACKWARD;
            EXPECT_EQ(warped(w, src, word), warped(back, src, word));
        }
}

TEST(Warp, MultiplesAndTilesChangeNothing) {
    const Picture src = Picture::random(3);
    const double p[] = {0.9, 0.2, 3, -0.1, 1.1, 2, 0.004, -0.003, 1};
    const double f[] = {0.004, 0.8, 0.1, 5, -0.003, 0.2, 0.9, -3};
    for (const int method : methods)
        for (const int direction : {WARP_FORWARD, WARP_BACKWARD}) {
            Warp w = square(Warp::perspective, method, {}, direction),
                 bent = square(Warp::bilinear, method, {}, direction);
            for (int i = 0; i < 9; ++i) w.c[i / 3][i % 3] = p[i];
            for (int i = 0; i < 8; ++i) bent.c[i / 4][i % 4] = f[i];
            const Picture whole = warped(w, src, BORDER_REPL), bentWhole = warped(bent, src, BORDER_CONST);
            for (const int tile : {1, 13, 40}) {
                EXPECT_EQ(whole, warped(w, src, BORDER_REPL, tile));
                EXPECT_EQ(bentWhole, warped(bent, src, BORDER_CONST, tile));
            }
            for (const double power : {0x1p-60, 0x1p7, 0x1p90}) {
                for (int i = 0; i < 9; ++i) w.c[i / 3][i % 3] = p[i] * power;
                EXPECT_EQ(whole, warped(w, src, BORDER_REPL));
            }
        }
}

// Pixels at the edges come back from where they were sent to, whatever the scale rounds.
TEST(Warp, ScalesKeepEveryEdge) {
    const Picture src = Picture::random(4);
    for (int n = 1; n < 200; ++n)
        for (const int method : {INTERP_NEAREST, INTERP_LINEAR}) {
            // Source pixel k goes to n k, of which a tile shows the last.
            Warp w = square(Warp::affine, method, {double(n), 0, 0, 0, double(n), 0}, WARP_FORWARD);
            w.dst = {side * n, side * n};
            alignas(64) uint8_t spec[512];
            static uint8_t buffer[20000];
            ASSERT_EQ(makeWarp(underTest(), w, spec), STATUS_OK);
            for (const int k : {0, 1, 30, side - 1}) {
                uint8_t pixel = uint8_t(~src.bytes[size_t(k * step + k)]);
                const char* const name =
                    method == INTERP_NEAREST ? "zmviWarpAffineNearest_8u_C1R" : "zmviWarpAffineLinear_8u_C1R";
                ASSERT_EQ(callOf(name, src.bytes.data(), step, &pixel, 1, ImagePoint{k * n, k * n}, ImageSize{1, 1},
                                 uint32_t(BORDER_TRANSPARENT), static_cast<const void*>(nullptr),
                                 static_cast<const void*>(spec), buffer),
                          STATUS_OK);
                ASSERT_EQ(pixel, src.bytes[size_t(k * step + k)]) << n;
            }
        }
}

// Corners go where they should, and what is solved goes back to where it came from.
TEST(Warp, CoefficientsMeetTheirCorners) {
    Rng rng(5);
    const auto unit = [&] { return rng.below(1 << 20) / double(1 << 20); };
    int met = 0;
    for (int round = 0; round < 3000; ++round) {
        const double corners[4][2] = {
            {unit(), unit()}, {2 + unit(), unit()}, {2 + unit(), 2 + unit()}, {unit(), 2 + unit()}};
        double quad[4][2], back[4][2], matrix[3][3], bent[2][4];
        const bool flipped = rng.oneIn(2);
        for (int i = 0; i < 4; ++i)
            for (int k = 0; k < 2; ++k) quad[i][k] = corners[i][flipped ? 1 - k : k] * 100 + 13;
        const ImageRect rect{rng.below(1000), rng.below(1000), rng.between(2, 400), rng.between(2, 400)};
        const auto near = [&] {
            for (int i = 0; i < 8; ++i) ASSERT_NEAR(quad[i / 2][i % 2], back[i / 2][i % 2], 1e-6 * 400);
        };
        if (callOf("zmviGetPerspectiveTransform", rect, &quad[0], &matrix[0]) != STATUS_OK) continue;
        ++met;
        ASSERT_EQ(callOf("zmviGetPerspectiveQuad", rect, &back[0], &matrix[0]), STATUS_OK);
        near();
        ASSERT_EQ(callOf("zmviGetBilinearTransform", rect, &quad[0], &bent[0]), STATUS_OK);
        ASSERT_EQ(callOf("zmviGetBilinearQuad", rect, &back[0], &bent[0]), STATUS_OK);
        near();
        Warp w;
        w.map = Warp::bilinear, w.direction = WARP_FORWARD;
        w.roi = {rect.x, rect.y, rect.width, rect.height}, w.src = {rect.x + rect.width, rect.y + rect.height};
        std::memcpy(w.c, bent, sizeof bent);
        ASSERT_TRUE(w.form());
        const double x = rect.x + unit() * (rect.width - 1), y = rect.y + unit() * (rect.height - 1);
        const auto image = [&](const double* k) { return k[0] * x * y + k[1] * x + k[2] * y + k[3]; };
        const WarpPoint p = w.at(image(bent[0]), image(bent[1]));
        EXPECT_NEAR(p.x, x, 1e-6);
        EXPECT_NEAR(p.y, y, 1e-6);
    }
    EXPECT_GT(met, 2000);
}

}  // namespace
