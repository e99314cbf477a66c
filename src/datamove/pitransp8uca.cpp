// zmviTranspose: rows become columns.
#include "datamove/transpose.h"

namespace zmv {
namespace {

// Steps are not checked in this family: any step, zero and negative ones too, walks the rows.

template <Layout layout, class T>
StatusCode ownpi_TransposeInPlace(Image<T> image, Roi roi) {
    if (auto bad = firstOf({pointers(image.data), size(roi), refuse(roi.width != roi.height, STATUS_BAD_SIZE)}))
        return bad;
    transposeInPlace<layout.channels* int(sizeof(T))>(bytesOf(image), roi.width);
    return STATUS_OK;
}

template <Layout layout, bool asks, class T>
StatusCode ownpi_Transpose(Image<const T> src, Image<T> dst, Roi roi) {
    if (src.data == dst.data && src.step == dst.step) return ownpi_TransposeInPlace<layout>(dst, roi);
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi)})) return bad;
    transpose<layout, asks>(src, dst, roi);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/turn.def"
TRANSPOSE_FAMILY
