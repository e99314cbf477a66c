// The companion core library: aligned allocation, the size of the largest cache, processor features.
// SPDX-License-Identifier: Apache-2.0
#include "zmvcore.h"

#include <cpuid.h>

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace {

struct Registers {
    unsigned a = 0, b = 0, c = 0, d = 0;
};

// A leaf that the processor does not have reads as zeros.
Registers cpuid(unsigned leaf, unsigned subleaf = 0) {
    Registers r;
    __get_cpuid_count(leaf, subleaf, &r.a, &r.b, &r.c, &r.d);
    return r;
}

// Leaf 4 and leaf 0x8000001D describe one cache per subleaf, in the same layout.  Every cache listed is one that this
// core reaches, so the largest is the answer; what other cores share of it does not matter to one thread.
int64_t largestListedCache(unsigned leaf) {
    int64_t largest = 0;
    for (unsigned i = 0; i < 16; ++i) {
        const Registers r = cpuid(leaf, i);
        enum { none = 0, instructions = 2 };
        const unsigned type = r.a & 31;
        if (type == none) break;
        if (type == instructions) continue;
        const int64_t ways = (r.b >> 22) + 1, partitions = ((r.b >> 12) & 1023) + 1, line = (r.b & 4095) + 1;
        largest = std::max(largest, ways * partitions * line * (int64_t(r.c) + 1));
    }
    return largest;
}

// Processors without such a list give level 1 and 2 sizes in KiB and level 3 in units of 512 KiB.
int64_t largestOldStyleCache() {
    const Registers level1 = cpuid(0x80000005), level23 = cpuid(0x80000006);
    return std::max({int64_t(level1.c >> 24) << 10, int64_t(level23.c >> 16) << 10, int64_t(level23.d >> 18) << 19});
}

int largestCache() {
    int64_t size = largestListedCache(4);
    constexpr unsigned topologyExtensions = 1u << 22;
    if (size == 0 && (cpuid(0x80000001).c & topologyExtensions)) size = largestListedCache(0x8000001D);
    if (size == 0) size = largestOldStyleCache();
    return int(std::min<int64_t>(size, INT_MAX));
}

// The register sets that the operating system saves, or 0 where the processor cannot tell.
uint64_t savedRegisterSets(const Registers& leaf1) {
    constexpr unsigned osxsave = 1u << 27;
    if (!(leaf1.c & osxsave)) return 0;
    uint32_t low, high;
    __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return uint64_t(high) << 32 | low;
}

uint64_t processorFeatures() {
    const Registers leaf1 = cpuid(1), leaf7 = cpuid(7);
    const uint64_t saved = savedRegisterSets(leaf1);
    const bool ymm = (saved & 0x06) == 0x06, zmm = (saved & 0xe6) == 0xe6;
    const auto has = [](unsigned reg, unsigned bit) { return (reg >> bit & 1) != 0; };
    uint64_t features = 0;
    const auto note = [&](uint64_t feature, bool present) { features |= present ? feature : 0; };
    note(ZMV_FEATURE_SSE3, has(leaf1.c, 0));
    note(ZMV_FEATURE_SSSE3, has(leaf1.c, 9));
    note(ZMV_FEATURE_SSE41, has(leaf1.c, 19));
    note(ZMV_FEATURE_SSE42, has(leaf1.c, 20));
    note(ZMV_FEATURE_AVX, ymm && has(leaf1.c, 28));
    note(ZMV_FEATURE_AVX2, ymm && has(leaf7.b, 5));
    note(ZMV_FEATURE_FMA, ymm && has(leaf1.c, 12));
    constexpr unsigned f = 16, dq = 17, cd = 28, bw = 30, vl = 31;
    note(ZMV_FEATURE_AVX512 | ZMV_FEATURE_WIDE_FILTER,
         zmm && has(leaf7.b, f) && has(leaf7.b, dq) && has(leaf7.b, cd) && has(leaf7.b, bw) && has(leaf7.b, vl));
    return features;
}

// Read once, when the library is loaded: cpuid traps in a virtual machine and then costs microseconds.
const int theLargestCache = largestCache();
const uint64_t theFeatures = processorFeatures();

}  // namespace

void* zmvMalloc_L(int64_t sizeBytes) {
    if (sizeBytes < 1 || sizeBytes > INT64_MAX - 63) return nullptr;
    return std::aligned_alloc(64, size_t(sizeBytes + 63) & ~size_t(63));
}

void* zmvMalloc(int sizeBytes) { return zmvMalloc_L(sizeBytes); }

void zmvFree(void* ptr) { std::free(ptr); }

StatusCode zmvGetMaxCacheSizeB(int* sizeBytes) {
    if (!sizeBytes) return STATUS_NULL_POINTER;
    *sizeBytes = theLargestCache;
    return theLargestCache > 0 ? STATUS_OK : STATUS_NO_OPERATION;
}

int ownGetFeature(uint64_t mask) { return (theFeatures & mask) == mask; }
