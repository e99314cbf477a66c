// When a bulk writer writes past the caches: never below a threshold, and from the size of the largest cache on.
#pragma once

#include "core/frame.h"
#include "zmvcore.h"

namespace zmv {

// bytesMoved: what the call reads and writes.  Below the threshold the core library is not even asked; when it does
// not know the cache, ordinary stores are the safe choice.
inline bool writesPastCache(Len bytesMoved) {
    constexpr Len askFrom = 524289;
    if (bytesMoved < askFrom) return false;
    int cacheBytes = 0;
    return zmvGetMaxCacheSizeB(&cacheBytes) == STATUS_OK && bytesMoved >= cacheBytes;
}

// The same of a region of which all channels are walked, a number of bytes for each element.
inline bool regionPastCache(Roi roi, Layout layout, Len bytesPerElement) {
    return !layout.alpha && writesPastCache(roi.width * roi.height * layout.channels * bytesPerElement);
}

}  // namespace zmv
