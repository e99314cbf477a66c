// zmviRemap: every destination pixel from the place in the source that two maps name.
#include <algorithm>

#include "geometry/remap.h"

namespace zmv {
namespace {

constexpr uint32_t smoothEdge = INTERP_SMOOTH_EDGE;

StatusCode interpolation(uint32_t mode) {
    const uint32_t kind = mode & ~smoothEdge;
    const bool known = kind == INTERP_NEAREST || kind == INTERP_LINEAR || kind == INTERP_CUBIC_ALT ||
                       kind == INTERP_CUBIC || kind == INTERP_LANCZOS;
    return refuse(!known, STATUS_BAD_INTERPOLATION);
}

// Kernels that reach farther than a source is wide or high give way to smaller ones.
int lowered(int kind, ImageSize source) {
    const int side = std::min(source.width, source.height);
    if (side == 1) return INTERP_NEAREST;
    if (side < 4 && kind != INTERP_NEAREST) return INTERP_LINEAR;
    if (side < 6 && kind == INTERP_LANCZOS) return INTERP_CUBIC_ALT;
    return kind;
}

template <Layout layout, class T>
StatusCode ownpi_Remap(Image<const T> src, ImageSize srcSize, ImageRect srcRoi, Image<const MapOf<T>> xMap,
                       Image<const MapOf<T>> yMap, Image<T> dst, ImageSize roi, int mode) {
    const bool badRoi = srcRoi.x < 0 || srcRoi.y < 0 || srcRoi.width < 1 || srcRoi.height < 1;
    if (auto bad =
            firstOf({pointers(src.data, xMap.data, yMap.data, dst.data), size(srcSize), refuse(badRoi, STATUS_BAD_SIZE),
                     size(roi), interpolation(uint32_t(mode)), steps(src.step, dst.step, xMap.step, yMap.step)}))
        return bad;
    if (srcRoi.x >= srcSize.width || srcRoi.y >= srcSize.height) return STATUS_WARN_NO_INTERSECTION;
    const int right = srcRoi.x + std::min(srcSize.width - srcRoi.x, srcRoi.width) - 1;
    const int bottom = srcRoi.y + std::min(srcSize.height - srcRoi.y, srcRoi.height) - 1;
    const uint32_t kind = uint32_t(mode) & ~smoothEdge;
    Remapping<T>{
        {src, srcRoi.x, srcRoi.y, right, bottom}, xMap, yMap, dst, roi, lowered(int(kind), srcSize), int(kind) != mode}
        .template run<layout>();
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "geometry/remap.def"
REMAP_FAMILY
