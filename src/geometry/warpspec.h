// The spec object of all warps: what it holds, and how a map that is made of numbers gets into it.
#pragma once

#include "core/spec.h"
#include "geometry/pigeom.h"
#include "geometry/region.h"

namespace zmv {

enum WarpKind : uint32_t { affineWarp = 1, perspectiveWarp, bilinearWarp };

struct WarpHeader {
    static constexpr uint32_t itsTag = 0x50524157;
    static constexpr Len blockBytes = 512;
    uint32_t tag, kind, interpolation, smoothEdge;
    uint32_t forward;
    uint32_t exact;  // the map tells exactly which pixels of a row come from a box
    uint32_t moves;  // a row comes from one, pixel by pixel
    uint32_t unused;
    int64_t srcWidth, srcHeight, dstWidth, dstHeight;
    int64_t left, top, width, height;  // the region inside of the source; width and height are 0 where there is none
    double map[20];                    // the map's own
    double weights[4][4];              // of a cubic kernel
    bool empty() const { return width == 0; }
};
static_assert(sizeof(WarpHeader) + objectAlignment - 1 <= WarpHeader::blockBytes);

constexpr Len longestSide = Len(1) << 53;  // what coordinates can count
inline StatusCode warpSize(Roi r) {
    return firstOf({size(r), refuse(std::max(r.width, r.height) > longestSide, STATUS_BAD_SIZE)});
}
inline bool areFinite(const double* from, int count) {
    bool all = true;
    for (int i = 0; i < count; ++i) all = all && isFinite(from[i]);
    return all;
}

// ---- Initialisation ----

struct CubicParameters {
    double b = 0, c = 0.5;
};
struct WarpWanted {
    Roi src;
    Region region;
    Roi dst;
    int direction, smoothEdge;
    uint32_t interpolation;
    CubicParameters cubic = {};
};
// A map that is made of numbers, in doubles: it has `kind`, how many `numbers` it takes, and
// bool form(const double* c, WarpHeader&), which says no to numbers that make no map.
template <class Map>
StatusCode ownpi_WarpInit(const WarpWanted& w, const double* coeffs, WarpSpec* spec) {
    const Region& r = w.region;
    const auto badFlag = [](int flag) { return refuse(flag != 0 && flag != 1, STATUS_BAD_ARGUMENT); };
    if (auto bad = firstOf({pointers(coeffs, spec), warpSize(w.src), warpSize(Roi(r.width, r.height)),
                            refuse(r.x < 0 || r.y < 0 || std::max(r.x, r.y) > longestSide, STATUS_BAD_SIZE),
                            warpSize(w.dst), badFlag(w.direction), badFlag(w.smoothEdge),
                            refuse(!isFinite(w.cubic.b) || !isFinite(w.cubic.c), STATUS_BAD_ARGUMENT)}))
        return bad;
    WarpHeader h = {};
    h.tag = h.itsTag, h.kind = Map::kind, h.interpolation = w.interpolation, h.smoothEdge = uint32_t(w.smoothEdge);
    h.forward = w.direction == WARP_FORWARD;
    h.srcWidth = w.src.width, h.srcHeight = w.src.height, h.dstWidth = w.dst.width, h.dstHeight = w.dst.height;
    if (r.x < w.src.width && r.y < w.src.height) {
        h.left = r.x, h.width = std::min(r.width, w.src.width - r.x);
        h.top = r.y, h.height = std::min(r.height, w.src.height - r.y);
    }
    double numbers[Map::numbers];
    for (int i = 0; i < Map::numbers; ++i) numbers[i] = get(coeffs + i);
    if (!areFinite(numbers, Map::numbers) || !Map::form(numbers, h)) return STATUS_BAD_COEFFS;
    const auto [b, c] = w.cubic;
    const double weights[4][4] = {{-b / 6 - c, b / 2 + 2 * c, -b / 2 - c, b / 6},
                                  {2 - 1.5 * b - c, -3 + 2 * b + c, 0, 1 - b / 3},
                                  {-2 + 1.5 * b + c, 3 - 2.5 * b - 2 * c, b / 2 + c, b / 6},
                                  {b / 6 + c, -c, 0, 0}};
    std::memcpy(h.weights, weights, sizeof weights);
    std::memcpy(objectIn(reinterpret_cast<uint8_t*>(spec)), &h, sizeof h);
    return h.empty() ? STATUS_WARN_NO_INTERSECTION : STATUS_OK;
}

}  // namespace zmv
