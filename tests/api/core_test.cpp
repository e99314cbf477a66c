// The companion core library: allocation, the size of the largest cache, processor features.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>

#include "zmvcore.h"

namespace {

TEST(Core, BlocksAreAlignedAndWholeAndReleasable) {
    for (int64_t bytes : {1, 2, 63, 64, 65, 127, 4095, 4096, 100000, 10000000}) {
        for (const bool large : {false, true}) {
            void* block = large ? zmvMalloc_L(bytes) : zmvMalloc(int(bytes));
            ASSERT_TRUE(block) << bytes;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 64, 0u) << bytes;
            std::memset(block, 0x5a, size_t(bytes));
            zmvFree(block);
        }
    }
    zmvFree(nullptr);
}

TEST(Core, SizesThatCannotBeAreNull) {
    for (int64_t bytes : {int64_t(0), int64_t(-1), int64_t(-64), INT64_MIN})
        EXPECT_EQ(zmvMalloc_L(bytes), nullptr) << bytes;
    for (int bytes : {0, -1, -64, INT32_MIN}) EXPECT_EQ(zmvMalloc(bytes), nullptr) << bytes;
#ifndef ZMV_SANITIZE  // there the allocator stops the program instead
    for (int64_t bytes : {INT64_MAX, INT64_MAX - 62, INT64_MAX - 63, int64_t(1) << 62, int64_t(1) << 50})
        EXPECT_EQ(zmvMalloc_L(bytes), nullptr) << bytes;
#endif
}

// A size as the kernel writes it: "48K", "2048K", "32M".
int64_t bytesOf(const std::string& text) {
    size_t end = 0;
    const int64_t number = std::stoll(text, &end);
    return text[end] == 'K' ? number << 10 : text[end] == 'M' ? number << 20 : number;
}

TEST(Core, CacheSizeIsTheLargestThatTheKernelLists) {
    int size = -1;
    ASSERT_EQ(zmvGetMaxCacheSizeB(&size), STATUS_OK);
    int again = -1;
    ASSERT_EQ(zmvGetMaxCacheSizeB(&again), STATUS_OK);
    EXPECT_EQ(size, again);
    EXPECT_GE(size, 8 << 10);
    int64_t largest = 0;
    for (int i = 0; i < 8; ++i) {
        const std::string folder = "/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(i);
        std::string type, text;
        if (!(std::ifstream(folder + "/type") >> type) || !(std::ifstream(folder + "/size") >> text)) break;
        if (type != "Instruction") largest = std::max(largest, bytesOf(text));
    }
    if (largest == 0) GTEST_SKIP() << "this kernel lists no caches";
    EXPECT_EQ(size, std::min<int64_t>(largest, INT32_MAX));
}

TEST(Core, CacheSizeRefusesANullPointer) { EXPECT_EQ(zmvGetMaxCacheSizeB(nullptr), STATUS_NULL_POINTER); }

TEST(Core, FeaturesAreTheProcessors) {
    __builtin_cpu_init();
    const struct {
        uint64_t mask;
        int expected;
    } features[] = {
        {ZMV_FEATURE_SSE3, __builtin_cpu_supports("sse3")},    {ZMV_FEATURE_SSSE3, __builtin_cpu_supports("ssse3")},
        {ZMV_FEATURE_SSE41, __builtin_cpu_supports("sse4.1")}, {ZMV_FEATURE_SSE42, __builtin_cpu_supports("sse4.2")},
        {ZMV_FEATURE_AVX, __builtin_cpu_supports("avx")},      {ZMV_FEATURE_AVX2, __builtin_cpu_supports("avx2")},
        {ZMV_FEATURE_FMA, __builtin_cpu_supports("fma")}};
    uint64_t present = 0;
    for (const auto& f : features) {
        EXPECT_EQ(ownGetFeature(f.mask) != 0, f.expected != 0) << std::hex << f.mask;
        if (f.expected) present |= f.mask;
    }
    const bool avx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                        __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
                        __builtin_cpu_supports("avx512vl");
    EXPECT_EQ(ownGetFeature(ZMV_FEATURE_AVX512) != 0, avx512);
    EXPECT_EQ(ownGetFeature(ZMV_FEATURE_WIDE_FILTER) != 0, avx512);
    // All of a mask, not some of it; nothing asked is nothing missing.
    EXPECT_NE(ownGetFeature(present), 0);
    EXPECT_EQ(ownGetFeature(present | uint64_t(1) << 63), 0);
    EXPECT_NE(ownGetFeature(0), 0);
}

}  // namespace
