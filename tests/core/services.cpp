// zmviMalloc, zmviFree, zmviGetLibVersion and the shared constants.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "harness/case.h"

namespace {

using namespace test;

int64_t pixelBytes(const Member& m) { return bytesOf(m.source) * m.to.channels; }

// Sizes round every limit of the argument types, and everyday ones.
int64_t length(Case& c) {
    const int64_t pixel = pixelBytes(c.member);
    const int64_t rowLimit = c.member.large ? INT64_MAX / pixel : INT_MAX / pixel;
    const int64_t limits[] = {
        0,     1,       -1,      rowLimit,         int64_t(uint64_t(rowLimit) + 1), rowLimit - 63, 65535,
        65536, INT_MAX, INT_MIN, int64_t(1) << 32, (int64_t(1) << 32) + 1};
    const int64_t n = c.rng.oneIn(2) ? c.rng.between(1, 300) : limits[c.rng.below(int(std::size(limits)))];
    return c.member.large ? n : int(n);
}

void arrangeMalloc(Case& c) {
    c.arg("width") = length(c);
    c.arg("height") = length(c);
    c.place("stepOut", 1, 1);
    if (c.rng.oneIn(20)) c.arg("stepOut") = nullptr;
}

// The step that is written, and whether the image may be had, by exact arithmetic.
template <class Step>
void judgeMalloc(Case& c) {
    const __int128 pixel = pixelBytes(c.member), width = c.arg("width").a, height = c.arg("height").a;
    const auto given = reinterpret_cast<uint8_t*>(c.returned);
    const bool large = c.member.large;
    __int128 step = 0, total = 0;
    bool fits = c.arg("stepOut").a && width > 0 && height > 0;
    if (fits) {
        const __int128 row = width * pixel, rowLimit = large ? __int128(UINT64_MAX) : INT_MAX;
        fits = row <= rowLimit;
        const __int128 rounded = (row + 63) / 64 * 64;
        if (fits) step = large ? __int128(uint64_t(rounded) & INT64_MAX) : __int128(int(uint32_t(rounded)));
        if (large && step < row) fits = false, step = 0;
        total = step * height;
        fits = fits && total > 0 && total <= (large ? INT64_MAX : INT_MAX);
    }
    if (c.arg("stepOut").a) c.set<Step>(c.image("stepOut"), 0, 0, 0, Step(step));
    // More than this machine may have: null is right as well.
    const bool must = fits && total < (int64_t(1) << 31);
    if (given && !fits) c.fail("gives memory for an image that does not fit");
    if (!given && must) c.fail("gives no memory");
    if (given) {
        if (c.returned % 64) c.fail("gives memory that is not aligned to 64 bytes");
        if (total < (1 << 24))
            std::memset(given, 0x5A, size_t(total));
        else
            given[0] = given[int64_t(total) - 1] = 1;
        reinterpret_cast<void (*)(void*)>(c.library.find("zmviFree"))(given);
    }
    c.expected = c.returned;
}
void checkMalloc(Case& c) { c.member.large ? judgeMalloc<int64_t>(c) : judgeMalloc<int>(c); }

void arrangeFree(Case& c) {
    int step;
    const auto get = reinterpret_cast<uint8_t* (*)(int, int, int*)>(c.library.find("zmviMalloc_8u_C1"));
    c.arg("ptr") = c.seed % 2 ? get(100, 100, &step) : nullptr;
}

void nothing(Case&) {}

// What the record says is looked at in the libraries themselves.
void checkVersion(Case& c) { c.expected = c.returned; }

TEST(Services, MallocEdges) {
    const Library& l = underTest();
    const auto call = [&](const char* name, int width, int height, int* step) {
        const auto f = reinterpret_cast<void* (*)(int, int, int*)>(l.find(name));
        void* p = f(width, height, step);
        reinterpret_cast<void (*)(void*)>(l.find("zmviFree"))(p);
        return p != nullptr;
    };
    int step = -1;
    EXPECT_TRUE(call("zmviMalloc_8u_C1", 1, 1, &step));
    EXPECT_EQ(step, 64);
    EXPECT_TRUE(call("zmviMalloc_8u_C3", 100, 10, &step));
    EXPECT_EQ(step, 320);
    EXPECT_FALSE(call("zmviMalloc_32fc_C3", 89478486, 1, &step));
    EXPECT_EQ(step, 0);
    // The image is refused only after its step is known.
    EXPECT_FALSE(call("zmviMalloc_8u_C1", 65536, 65536, &step));
    EXPECT_EQ(step, 65536);
    // A step that wraps to a negative number stays with the caller, and makes no image.
    EXPECT_FALSE(call("zmviMalloc_8u_C1", INT_MAX, 1, &step));
    EXPECT_EQ(step, INT_MIN);
}

TEST(Services, Constants) {
    std::vector<Constant> constants;
    for (const Tested& f : families())
        constants.insert(constants.end(), f.row->constants.begin(), f.row->constants.end());
    ASSERT_EQ(constants.size(), 2u);
    for (const Constant& constant : constants) {
        const double value = *static_cast<const double*>(underTest().find(constant.name));
        EXPECT_EQ(std::isnan(value), std::string(constant.name).find("NAN") != std::string::npos) << constant.name;
        EXPECT_EQ(std::isinf(value) && value > 0, std::string(constant.name).find("INF") != std::string::npos);
    }
}

}  // namespace

extern const Family test_zmviMalloc = {.arrange = arrangeMalloc, .oracle = checkMalloc};
extern const Family test_zmviFree = {.arrange = arrangeFree, .oracle = nothing};
extern const Family test_zmviGetLibVersion = {.arrange = nothing, .oracle = checkVersion};
