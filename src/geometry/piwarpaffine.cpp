// Affine warps, and the sizes of the objects and work buffers of all warps.
#include "geometry/warp.h"

namespace zmv {
namespace {

template <class Int>
StatusCode ownpi_WarpGetSize(Roi src, Roi dst, int interpolation, Int* specSize) {
    const bool known =
        interpolation == INTERP_NEAREST || interpolation == INTERP_LINEAR || interpolation == INTERP_CUBIC;
    if (auto bad =
            firstOf({pointers(specSize), warpSize(src), warpSize(dst), refuse(!known, STATUS_BAD_INTERPOLATION)}))
        return bad;
    put(specSize, Int(WarpHeader::blockBytes));
    return STATUS_OK;
}

template <class Int>
StatusCode ownpi_WarpGetBufferSize(const WarpSpec* spec, Roi tile, int channels, Int* bufSize) {
    const auto block = reinterpret_cast<const uint8_t*>(spec);
    const auto h = headerOf<WarpHeader>(block ? objectIn(block) : nullptr);
    const WideLen bytes = warpBufferBytes(std::min(tile.height, h.dstHeight));
    if (auto bad = firstOf({pointers(spec, bufSize), size(tile), tagged(h), channelCount(channels), fits<Int>(bytes)}))
        return bad;
    put(bufSize, Int(bytes));
    return tile.width > h.dstWidth || tile.height > h.dstHeight ? STATUS_WARN_SIZE_CLIPPED : STATUS_OK;
}

// The map from destination to source, as the object keeps it.
struct AffineWarp {
    static constexpr WarpKind kind = affineWarp;
    static constexpr int numbers = 6;
    static bool form(const double* c, WarpHeader& h) {
        const AffineMap map{c[0], c[1], c[2], c[3], c[4], c[5]};
        const double d = map.determinant();
        const AffineMap back = h.forward ? map.inverse() : map;
        const double all[] = {back.xx, back.xy, back.x0, back.yx, back.yy, back.y0};
        std::memcpy(h.map, all, sizeof all), h.exact = true;
        h.moves = back.xx == 1 && back.yx == 0;
        return d != 0 && isFinite(d) && back.finite();
    }

    static WarpLines lines(const WarpHeader& h, Len y) {
        const double* const b = h.map;
        return {{b[0], b[1] * double(y) + b[2] + 0.0}, {b[3], b[4] * double(y) + b[5] + 0.0}, {}};
    }
};
constexpr WarpMap affineMap{affineWarp, false, true, AffineWarp::lines, nullptr, nullptr};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "geometry/warp.def"
WARP_GET_SIZE_FAMILY
WARP_GET_BUFFER_SIZE_FAMILY
AFFINE_NEAREST_INIT_FAMILY
AFFINE_LINEAR_INIT_FAMILY
AFFINE_CUBIC_INIT_FAMILY
WARP_AFFINE_NEAREST_FAMILY
WARP_AFFINE_LINEAR_FAMILY
WARP_AFFINE_CUBIC_FAMILY
