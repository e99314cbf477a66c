// Which functions ask the core library for the cache size, and from which amount of bytes on, and that results past the
// caches are right.  Runs with the core library that --core names.
#include "core/streaming.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>

#include "harness/case.h"

namespace test {

// The bytes that one pixel makes a call move, for the members that ask; 0 for those that do not.  Of the families that
// ask, members with a mask, with alpha or for one channel do not, nor does what works in place, but for thresholds.
int64_t bytesPerPixel(const Member& m) {
    const std::string& family = m.row->name;
    const bool planar = m.from.planar || m.to.planar, bytes = bytesOf(m.destination) == 1;
    if (!m.facts().cache || m.masked || m.oneChannel || m.to.alpha || !(planar || m.from == m.to)) return 0;
    if (m.inPlace && family.rfind("zmviThreshold", 0) != 0) return 0;
    // Bytes only where reading and writing them costs more than the interleaving.
    if (family == "zmviCopy" && (!planar || (bytes && m.name != "zmviCopy_8u_P4C4R"))) return 0;
    if (family == "zmviMirror" && (m.to.channels != 4 || m.source == Element::s16 || m.source == Element::f32))
        return 0;
    if (family == "zmviTranspose" && m.name != "zmviTranspose_32s_C1R") return 0;
    if (family == "zmviConvert" && m.name.back() != 'R') return 0;
    if ((family == "zmviDiv" || family == "zmviSqrt") && !isReal(m.source)) return 0;  // slower than memory
    int64_t moved = 0;
    for (const Parameter& p : m.params)
        if (p.role == Role::image || p.role == Role::planes)
            moved += bytesOf(p.element) * std::max(m.from.channels, m.to.channels) * (m.inPlace ? 2 : 1);
    return moved;
}

}  // namespace test

namespace {

using namespace test;

constexpr int64_t askFrom = 524289;

int& fake(const char* name) {
    if (!fakeCore()) throw std::runtime_error("runs with --core=");
    return *static_cast<int*>(dlsym(fakeCore(), name));
}

std::string check(const Member& m, int64_t width, int64_t height, uint64_t seed, int asks, bool results) {
    Case c(m, underTest(), seed, Mode::bulk);
    c.width = width;
    c.height = height;
    m.family->arrange(c);
    fake("fakeCacheAsked") = 0;
    c.call();
    if (!c.trapped() && results) m.family->oracle(c);
    if (!c.trapped() && !results) {
        c.acceptMemory();
        if (c.returned > 0) c.expected = c.returned;  // a warning; a refusal asks nothing and shows nothing
    }
    if (const int asked = fake("fakeCacheAsked"); asked != asks)
        c.fail("asks " + std::to_string(asked) + " times, not " + std::to_string(asks));
    return c.verdict();
}

struct Answer {
    int size;
    StatusCode status;
};
const Answer answers[] = {{1, STATUS_OK}, {600000, STATUS_OK}, {INT_MAX, STATUS_OK}, {1, STATUS_NO_OPERATION}};

TEST(Streaming, AsksFromItsThresholdOn) {
    int asking = 0;
    for (const Member& m : members()) {
        const int64_t bytes = bytesPerPixel(m);
        if (bytes == 0 || (!options.only.empty() && m.name != options.only)) continue;
        ++asking;
        const int64_t enough = (askFrom + bytes - 1) / bytes;
        for (const Answer& answer : answers) {
            fake("fakeCacheSize") = answer.size;
            fake("fakeCacheStatus") = answer.status;
            const bool streams = &answer == answers;  // else stores are those of any other call
            EXPECT_EQ(check(m, enough - 1, 1, 1, 0, false), "");
            EXPECT_EQ(check(m, enough, 1, 2, 1, streams), "");
            EXPECT_EQ(check(m, enough / 7 + 1, 7, 3, 1, streams), "");
        }
    }
    // Set C1 C3 C4; planar copies in both directions of 3 and 4 planes, of which bytes ask in one; sums, differences
    // and products of two images of four types, quotients of floats, C1 C3 C4, with both widths of sizes; logic; scaled
    // products.  Roots of floats of one and three channels.  Conversions of 18 pairs of types with C1 C3 C4, and of 5
    // with C1.  Thresholds of one and three channels, two with four, in place too.  Mirrors of three types, and one
    // transpose.  The smaller and the larger of two images of three types.  Scaling between 8 pairs of types.
    // Ramps of four types, and two windows.
    const int all = 3 * 5 + 4 * 4 + 1 + (3 * 4 + 1) * 3 * 2 + 3 * 3 * 3 + 2 * 3 + 2 + 18 * 3 + 5 + (7 * 2 + 2) * 4 * 2 +
                    3 + 1 + 2 * 3 + 8 * 3 + 4 * 3 + 2 * 4;
    EXPECT_TRUE(asking == all || !options.only.empty()) << asking << ", not " << all;
}

TEST(Streaming, OthersNeverAsk) {
    fake("fakeCacheStatus") = STATUS_OK;
    for (const Member& m : members()) {
        if (!m.facts().bulk || bytesPerPixel(m) || (!options.only.empty() && m.name != options.only)) continue;
        fake("fakeCacheSize") = 1;
        const int64_t rowBytes = 300 * bytesOf(m.destination) * std::max(m.from.channels, m.to.channels);
        EXPECT_EQ(check(m, 300, askFrom / rowBytes + 1, 4, 0, false), "");
    }
}

// Results do not show which stores were taken; the rule that decides is asked itself.
TEST(Streaming, Rule) {
    for (const Answer& answer : answers) {
        fake("fakeCacheSize") = answer.size;
        fake("fakeCacheStatus") = answer.status;
        for (const int64_t bytes : {askFrom - 1, askFrom, int64_t(599999), int64_t(600000), int64_t(INT_MAX)})
            EXPECT_EQ(zmv::writesPastCache(bytes),
                      answer.status == STATUS_OK && bytes >= askFrom && bytes >= answer.size)
                << bytes << " bytes, cache " << answer.size;
    }
}

}  // namespace

StatusCode zmvGetMaxCacheSizeB(int* sizeBytes) {
    using Ask = StatusCode (*)(int*);
    return reinterpret_cast<Ask>(dlsym(fakeCore(), "zmvGetMaxCacheSizeB"))(sizeBytes);
}
