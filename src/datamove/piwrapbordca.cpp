// zmviCopyWrapBorder: the frame repeats the image periodically.
#include "datamove/border.h"

namespace zmv {
namespace {

template <Layout layout, class T>
StatusCode ownpi_CopyWrapBorderI(Image<T> srcDst, Roi srcRoi, Roi dstRoi, Corner at) {
    return copyBorderInPlace<WrapRule, layout>(srcDst, srcRoi, dstRoi, at);
}

template <Layout layout, class T>
StatusCode ownpi_CopyWrapBorder(Image<const T> src, Roi srcRoi, Image<T> dst, Roi dstRoi, Corner at) {
    return copyBorder<WrapRule, layout>(src, srcRoi, dst, dstRoi, at);
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/border.def"
WRAP_BORDER_FAMILY
