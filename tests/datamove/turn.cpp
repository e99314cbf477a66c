// zmviMirror, zmviTranspose, zmviSwapChannels: pixels and channels that change places, all bits kept.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "harness/case.h"

namespace {

using namespace test;

bool isMember(const Member& m, const char* family) { return m.name.rfind(family, 0) == 0; }
bool turns(Case& c) {
    return isMember(c.member, "zmviTranspose") || (c.has("axis") && c.arg("axis").a >= AXIS_DIAGONAL_A);
}

struct Place {
    int64_t x, y;
    int k;
};

// Elements by their bits: a float need not survive being looked at.  All are read before any is written.
template <class Origin>
void moveBits(Case& c, Origin origin) {
    const Image &src = c.image(c.has("src") ? "src" : "srcDst"), &dst = c.image(c.has("dst") ? "dst" : "srcDst");
    const auto move = [&]<size_t bytes>(std::array<uint8_t, bytes>) {
        using Bits = std::array<uint8_t, bytes>;
        std::vector<std::pair<Place, Bits>> moved;
        for (int64_t y = 0; y < dst.height; ++y)
            for (int64_t x = 0; x < dst.width; ++x)
                for (int k = 0; k < c.member.to.used(); ++k)
                    if (const Place from = origin(x, y, k); from.k >= 0)
                        moved.push_back({{x, y, k}, c.get<Bits>(src, from.x, from.y, from.k)});
        for (const auto& [to, bits] : moved) c.set(dst, to.x, to.y, to.k, bits);
    };
    switch (bytesOf(dst.element)) {
        case 1:
            return move(std::array<uint8_t, 1>{});
        case 2:
            return move(std::array<uint8_t, 2>{});
        case 4:
            return move(std::array<uint8_t, 4>{});
        default:
            return move(std::array<uint8_t, 8>{});
    }
}

void placeImages(Case& c) {
    const bool turned = turns(c);
    if (c.mode == Mode::far && turned) c.width = c.rng.between(1, 5);  // one far row for each column
    if (c.mode != Mode::far && c.mode != Mode::bulk && turned && c.rng.oneIn(2)) c.height = c.rng.between(1, 140);
    const bool oneLayout = c.member.from == c.member.to && !(turned && c.has("axis"));
    const bool same = c.has("src") && oneLayout && c.mode == Mode::usual && c.rng.oneIn(6);
    if (turned && (same || c.has("srcDst"))) c.height = c.width;
    if (c.has("srcDst")) {
        c.place("srcDst", c.width, c.height);
    } else {
        c.place("src", c.width, c.height);
        c.place("dst", turned ? c.height : c.width, turned ? c.width : c.height);
        if (same) c.alias("dst", "src");
    }
    c.arg(c.has("srcRoiSize") ? "srcRoiSize" : "roiSize") = {c.width, c.height};
}

void arrangeMirror(Case& c) {
    c.arg("axis") = c.rng.below(c.has("srcDst") ? 3 : 5);
    placeImages(c);
    if (c.mode != Mode::usual || c.rng.below(20)) return;
    if (c.has("srcDst"))
        c.arg("axis") = c.rng.between(AXIS_DIAGONAL_A, AXIS_DIAGONAL_B), c.expected = STATUS_BAD_AXIS;
    else if (turns(c))
        c.arg("dst") = c.arg("src"), c.expected = STATUS_BAD_ARGUMENT;
}
void mirror(Case& c) {
    if (c.expected != STATUS_OK) return;
    const int64_t axis = c.arg("axis").a, right = c.width - 1, bottom = c.height - 1;
    moveBits(c, [&](int64_t x, int64_t y, int k) -> Place {
        if (axis == AXIS_HORIZONTAL) return {x, bottom - y, k};
        if (axis == AXIS_VERTICAL) return {right - x, y, k};
        if (axis == AXIS_BOTH) return {right - x, bottom - y, k};
        if (axis == AXIS_DIAGONAL_A) return {y, x, k};
        return {right - y, bottom - x, k};
    });
}

void arrangeTranspose(Case& c) {
    c.rowsApart = true;
    placeImages(c);
    if (c.mode == Mode::usual && c.rng.oneIn(20) && c.has("src") && c.width != c.height) {
        c.arg("dst") = c.arg("src"), c.arg("dstStep") = c.arg("srcStep");
        c.expected = STATUS_BAD_SIZE;
    }
}
void transpose(Case& c) {
    if (c.expected != STATUS_OK) return;
    moveBits(c, [](int64_t x, int64_t y, int k) { return Place{y, x, k}; });
}

// Orders with repetitions; now and then one that is refused.
void arrangeSwap(Case& c) {
    c.rowsApart = true;
    placeImages(c);
    const int entries = c.member.to.used(), sources = c.member.from.used();
    c.placeValue("dstOrder", entries);
    const bool refused = c.mode == Mode::usual && c.rng.oneIn(12);
    for (int k = 0; k < entries; ++k) {
        const int most = c.rng.oneIn(20) && sources < entries ? INT32_MAX : sources < entries ? 5 : sources - 1;
        int entry = most == INT32_MAX ? most : c.rng.below(most + 1);
        if (refused && k == c.arg("dstOrder").a % entries) {
            static const int bad[] = {-1, INT32_MIN, INT32_MAX};
            entry = c.rng.oneIn(2) && sources >= entries ? sources : bad[c.rng.below(sources >= entries ? 3 : 2)];
        }
        c.set(c.image("dstOrder"), 0, 0, k, entry);
    }
}
void swap(Case& c) {
    const int entries = c.member.to.used(), sources = c.member.from.used();
    const auto order = [&](int k) { return c.get<int>(c.image("dstOrder"), 0, 0, k); };
    for (int k = 0; k < entries; ++k)
        if (order(k) < 0 || (sources >= entries && order(k) >= sources)) c.expected = STATUS_BAD_CHANNEL_ORDER;
    if (c.expected != STATUS_OK) return;
    moveBits(c, [&](int64_t x, int64_t y, int k) { return Place{x, y, order(k) < sources ? order(k) : -1}; });
}

template <class... A>
StatusCode call(const char* name, A... args) {
    return reinterpret_cast<StatusCode (*)(A...)>(underTest().find(name))(args...);
}

// Regions of one picture: 4 x 3 pixels at (0, 0), mirrored into 3 x 4 pixels at (x, y).
StatusCode mirroredInside(int x, int y, int axis) {
    std::vector<uint8_t> picture(16 * 16), due;
    for (size_t i = 0; i < picture.size(); ++i) picture[i] = uint8_t(i);
    due = picture;
    const StatusCode status = call("zmviMirror_8u_C1R", static_cast<const uint8_t*>(picture.data()), 16,
                                   picture.data() + y * 16 + x, 16, ImageSize{4, 3}, axis);
    for (int i = 0; status == STATUS_OK && i < 4; ++i)
        for (int k = 0; k < 3; ++k)
            due[size_t((y + i) * 16 + x + k)] = uint8_t(axis == AXIS_DIAGONAL_A ? k * 16 + i : (2 - k) * 16 + 3 - i);
    EXPECT_EQ(picture, due) << "at " << x << ", " << y << " about axis " << axis;
    return status;
}
TEST(Mirror, DiagonalRefusesOverlapOnly) {
    for (int axis : {AXIS_DIAGONAL_A, AXIS_DIAGONAL_B}) {
        EXPECT_EQ(mirroredInside(0, 0, axis), STATUS_BAD_ARGUMENT);
        EXPECT_EQ(mirroredInside(3, 2, axis), STATUS_BAD_ARGUMENT);
        EXPECT_EQ(mirroredInside(14, 0, axis), STATUS_BAD_ARGUMENT);  // its rows reach into the next ones
        EXPECT_EQ(mirroredInside(4, 0, axis), STATUS_OK);             // side by side
        EXPECT_EQ(mirroredInside(0, 3, axis), STATUS_OK);
    }
}

// Rows of the destination start at multiples of a cache line, so that its lines are written whole, but not the last.
template <class Pixel>
void transposesLines(const char* name, bool mirrors) {
    const size_t across = 326, down = ((size_t(600) << 10) / across / sizeof(Pixel) + 5) | 1;
    const size_t step = (down * sizeof(Pixel) + 63) / 64 * 64;
    std::vector<Pixel> src(across * down);
    for (size_t i = 0; i < src.size(); ++i)
        for (size_t k = 0; k < sizeof(Pixel); ++k) src[i][k] = uint8_t((i + 77 * k) * 2654435761u >> 11);
    std::vector<uint8_t> memory(step * across + 64, 9);
    uint8_t* const dst = memory.data() + (-reinterpret_cast<uintptr_t>(memory.data()) & 63);
    const auto from = static_cast<const Pixel*>(src.data());
    const int srcStep = int(across * sizeof(Pixel));
    const ImageSize size{int(across), int(down)};
    ASSERT_EQ(mirrors ? call(name, from, srcStep, dst, int(step), size, int(AXIS_DIAGONAL_A))
                      : call(name, from, srcStep, dst, int(step), size),
              STATUS_OK);
    for (size_t x = 0; x < across; ++x)
        for (size_t at = 0; at < step; ++at) {
            const size_t y = at / sizeof(Pixel);
            ASSERT_EQ(dst[x * step + at], y < down ? src[y * across + x][at % sizeof(Pixel)] : 9)
                << name << ": " << x << ", " << at;
        }
}
TEST(Turn, WholeLines) {
    transposesLines<std::array<uint8_t, 1>>("zmviTranspose_8u_C1R", false);
    transposesLines<std::array<uint8_t, 2>>("zmviTranspose_16u_C1R", false);
    transposesLines<std::array<uint8_t, 3>>("zmviTranspose_8u_C3R", false);
    transposesLines<std::array<uint8_t, 4>>("zmviTranspose_32f_C1R", false);
    transposesLines<std::array<uint8_t, 8>>("zmviTranspose_32fc_C1R", false);
    transposesLines<std::array<uint8_t, 16>>("zmviTranspose_32f_C4R", false);
}
// The same past the caches, in the members that may: any region is larger than a cache of one byte.
TEST(Streaming, WholeLines) {
    *static_cast<int*>(dlsym(fakeCore(), "fakeCacheSize")) = 1;
    transposesLines<std::array<uint8_t, 4>>("zmviTranspose_32s_C1R", false);
    transposesLines<std::array<uint8_t, 4>>("zmviMirror_8u_C4R", true);
    transposesLines<std::array<uint8_t, 8>>("zmviMirror_16u_C4R", true);
    transposesLines<std::array<uint8_t, 16>>("zmviMirror_32s_C4R", true);
}

}  // namespace

extern const Family test_zmviMirror = {.arrange = arrangeMirror, .oracle = mirror};
extern const Family test_zmviTranspose = {.arrange = arrangeTranspose, .oracle = transpose};
extern const Family test_zmviSwapChannels = {.arrange = arrangeSwap, .oracle = swap};
