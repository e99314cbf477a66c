// Regions beyond 2^31 bytes: width, height and the product of both over the edge.  The address space is one small
// piece of memory laid out over and over, with memory of its own round the edge and at the end.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include "harness/case.h"

namespace {

using namespace test;

constexpr int64_t edge = int64_t(1) << 31, window = 1 << 16, total = edge + 8 * window;

// `total` bytes.  The windows at the start, at the edge and at the end are distinct memory; the rest repeats.
class Large {
  public:
    Large() : ring_(Arena::ring(size_t(total / Arena::ringBytes + 1) * Arena::ringBytes)) {
        for (int64_t at : windows())
            mmap(ring_.begin + at, window, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0);
    }
    static std::array<int64_t, 4> windows() { return {0, edge - window, edge, total - window}; }
    uint8_t* begin() { return ring_.begin; }
    void fill(uint8_t seed) {
        for (int64_t at : windows())
            for (int64_t i = 0; i < window; ++i) ring_.begin[at + i] = uint8_t(seed + i * 31 + i / 251 + at / 977);
    }

  private:
    Arena ring_;
};
Large& source() {
    static Large large;
    return large;
}
Large& target() {
    static Large large;
    return large;
}

template <class... A>
StatusCode call(const char* name, A... args) {
    return reinterpret_cast<StatusCode (*)(A...)>(underTest().find(name))(args...);
}

// Bytes from .. end of target are those of source, the rest of its windows is as it was.
void expectCopied(int64_t end) {
    for (int64_t at : Large::windows())
        for (int64_t i = at; i < at + window; ++i) {
            const uint8_t old = uint8_t(7 + (i - at) * 31 + (i - at) / 251 + at / 977);
            ASSERT_EQ(target().begin()[i], i < end ? source().begin()[i] : old) << "byte " << i;
        }
}

void copies(const char* name, ImageSizeL size, int64_t bytes) {
    source().fill(100);
    target().fill(7);
    const int64_t step = bytes / size.height;
    ASSERT_EQ(call(name, static_cast<const uint8_t*>(source().begin()), step, target().begin(), step, size), STATUS_OK);
    expectCopied(bytes);
}

TEST(Large, CopyWidthBeyondEdge) { copies("zmviCopy_8u_C1R_L", {total - 77, 1}, total - 77); }
TEST(Large, CopyHeightBeyondEdge) { copies("zmviCopy_8u_C1R_L", {1, total - 1}, total - 1); }
TEST(Large, CopyPixelsBeyondEdge) { copies("zmviCopy_32f_C3R_L", {total / 12 - 1, 1}, (total / 12 - 1) * 12); }
TEST(Large, CopyContiguous) {
    source().fill(100);
    target().fill(7);
    const int side = 46345;  // its square is beyond the edge
    ASSERT_EQ(call("zmviCopy_8u_C1R", static_cast<const uint8_t*>(source().begin()), side, target().begin(), side,
                   ImageSize{side, side}),
              STATUS_OK);
    expectCopied(int64_t(side) * side);
}

TEST(Large, Set) {
    target().fill(7);
    const int side = 46345;
    ASSERT_EQ(call("zmviSet_8u_C1R", uint8_t(201), target().begin(), side, ImageSize{side, side}), STATUS_OK);
    for (int64_t at : Large::windows())
        for (int64_t i = at; i < at + window; ++i)
            ASSERT_EQ(target().begin()[i] == 201,
                      i < int64_t(side) * side || uint8_t(7 + (i - at) * 31 + (i - at) / 251 + at / 977) == 201)
                << i;
}

TEST(Large, ReplicateBorder) {
    target().fill(7);
    const uint8_t pixels[3] = {1, 2, 3};
    const int64_t left = edge + 5, right = window;
    ASSERT_EQ(call("zmviCopyReplicateBorder_8u_C1R_L", pixels, int64_t(3), ImageSizeL{3, 1}, target().begin(), total,
                   ImageSizeL{left + 3 + right, 1}, int64_t(0), left),
              STATUS_OK);
    const uint8_t* row = target().begin();
    EXPECT_EQ(row[0], 1);
    EXPECT_EQ(row[edge - 1], 1);
    EXPECT_EQ(row[left], 1);
    EXPECT_EQ(row[left + 1], 2);
    EXPECT_EQ(row[left + 2], 3);
    EXPECT_EQ(row[left + 3], 3);
    EXPECT_EQ(row[left + 3 + right - 1], 3);
    const int64_t next = left + 3 + right - edge;  // the first byte behind the row lies in no window
    EXPECT_GE(next, window);
}

}  // namespace
