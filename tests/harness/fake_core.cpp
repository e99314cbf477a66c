// A companion core library whose answers the tests choose.
#include <cstdlib>

#include "zmvcore.h"

extern "C" {
ZMV_API int fakeCacheSize = 1;
ZMV_API StatusCode fakeCacheStatus = STATUS_OK;
ZMV_API int fakeCacheAsked = 0;
ZMV_API void (*fakeCacheHook)() = nullptr;  // called with each question
}

StatusCode zmvGetMaxCacheSizeB(int* sizeBytes) {
    ++fakeCacheAsked;
    if (fakeCacheHook) fakeCacheHook();
    *sizeBytes = fakeCacheSize;
    return fakeCacheStatus;
}

void* zmvMalloc_L(int64_t sizeBytes) {
    return sizeBytes < 1 ? nullptr : std::aligned_alloc(64, size_t(sizeBytes + 63) & ~size_t(63));
}
void* zmvMalloc(int sizeBytes) { return zmvMalloc_L(sizeBytes); }
void zmvFree(void* ptr) { std::free(ptr); }
int ownGetFeature(uint64_t) { return 0; }
