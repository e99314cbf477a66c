// zmviCopyReplicateBorder: the frame repeats the nearest edge pixel.
#include "datamove/border.h"

namespace zmv {
namespace {

template <Layout layout, class T>
StatusCode ownpi_CopyReplicateBorderI(Image<T> srcDst, Roi srcRoi, Roi dstRoi, Corner at) {
    return copyBorderInPlace<ReplicateRule, layout>(srcDst, srcRoi, dstRoi, at);
}

// One pointer for both means the in-place form, before any check: dst is then read as the place of the source inside
// the larger image.
template <Layout layout, class T>
StatusCode ownpi_CopyReplicateBorder(Image<const T> src, Roi srcRoi, Image<T> dst, Roi dstRoi, Corner at) {
    if (src.data == dst.data) return ownpi_CopyReplicateBorderI<layout>(dst, srcRoi, dstRoi, at);
    return copyBorder<ReplicateRule, layout>(src, srcRoi, dst, dstRoi, at);
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/border.def"
REPLICATE_BORDER_FAMILY
