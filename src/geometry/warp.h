// What the entries of all warps share: a call whose arguments are checked, and its memory.  A map adds what its object
// holds and where a destination row's pixels come from: lines, which tell what comes from a box too, or two functions.
#pragma once

#include "geometry/warprows.h"
#include "kernels/interpolation.h"
#include "kernels/rounding.h"
#include "kernels/scratch.h"

namespace zmv {

// One call, its arguments checked: a tile of the destination and the source from its first pixel on.
template <class T>
struct WarpJob {
    const WarpHeader& header;
    const WarpMap& map;
    Image<const T> src;
    Image<T> dst;
    Layout layout;
    At offset;
    Roi size;
    int word;
    const T* borderValue;
    uint8_t* buffer;
    void run() const;
};

// What a tile needs.
struct WarpMemory {
    static constexpr Len points = 1024;
    WarpRow* rows;
    double *x, *y;
    constexpr WarpMemory(Scratch& s, Len height)
        : rows(s.take<WarpRow, objectAlignment>(height)), x(s.take<double>(points)), y(s.take<double>(points)) {}
};
constexpr WideLen warpBufferBytes(Len height) { return 64 + 32 * WideLen(height) + 16384; }
static_assert(scratchBytes<WarpMemory>(Len(1)) <= warpBufferBytes(1) &&
              scratchBytes<WarpMemory>(longestSide) <= warpBufferBytes(longestSide));

inline StatusCode warpBorder(uint32_t word, bool smooth) {
    const bool known = word == BORDER_REPL || word == BORDER_MIRROR || word == BORDER_CONST;
    return refuse(word != BORDER_TRANSPARENT && (!known || smooth), STATUS_BAD_BORDER);
}

template <class T>
StatusCode ownpi_Warp(const WarpMap& map, uint32_t interpolation, Layout layout, Image<const T> src, Image<T> dst,
                      At offset, Roi tile, uint32_t word, const T* borderValue, const WarpSpec* spec, uint8_t* buffer) {
    const auto block = reinterpret_cast<const uint8_t*>(spec);
    const auto h = headerOf<WarpHeader>(block ? objectIn(block) : nullptr);
    const bool otherKind = h.kind != map.kind || h.interpolation != interpolation;
    const bool outside = offset.x < 0 || offset.y < 0 || offset.x >= h.dstWidth || offset.y >= h.dstHeight;
    if (auto bad = firstOf({pointers(src.data, dst.data, spec, buffer), size(tile), steps(src.step, dst.step),
                            tagged(h), refuse(otherKind, STATUS_CONTEXT_MISMATCH), refuse(outside, STATUS_OUT_OF_RANGE),
                            warpBorder(word, h.smoothEdge), zmv::borderValue(int(word), borderValue)}))
        return bad;
    if (h.empty()) return STATUS_WARN_NO_INTERSECTION;
    const Roi size(std::min(tile.width, h.dstWidth - offset.x), std::min(tile.height, h.dstHeight - offset.y));
    WarpJob<T>{h, map, src, dst, layout, offset, size, int(word), borderValue, buffer}.run();
    return tile.width > h.dstWidth || tile.height > h.dstHeight ? STATUS_WARN_SIZE_CLIPPED : STATUS_OK;
}

}  // namespace zmv
