// zmviCopyMirrorBorder: the frame mirrors the image about its edge pixels.
#include "datamove/border.h"

namespace zmv {
namespace {

template <Layout layout, class T>
StatusCode ownpi_CopyMirrorBorderI(Image<T> srcDst, Roi srcRoi, Roi dstRoi, Corner at) {
    return copyBorderInPlace<MirrorRule, layout>(srcDst, srcRoi, dstRoi, at);
}

// One pointer for both means the in-place form, before any check: dst is then read as the place of the source inside
// the larger image.
template <Layout layout, class T>
StatusCode ownpi_CopyMirrorBorder(Image<const T> src, Roi srcRoi, Image<T> dst, Roi dstRoi, Corner at) {
    if (src.data == dst.data) return ownpi_CopyMirrorBorderI<layout>(dst, srcRoi, dstRoi, at);
    return copyBorder<MirrorRule, layout>(src, srcRoi, dst, dstRoi, at);
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/border.def"
MIRROR_BORDER_FAMILY
