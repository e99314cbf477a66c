// zmviCopyConstBorder: the frame takes a constant.
#include "datamove/border.h"

namespace zmv {
namespace {

template <class T, Layout layout>
void extendByValue(const Frame<T, layout>& frame, const Image<const T>* src, const T* value) {
    const Pattern values(value, layout);
    const auto sides = [&](T* row) {
        frame.rows.fill(frame.rows.pixel(row, -frame.left), values, frame.left);
        frame.rows.fill(frame.rows.pixel(row, frame.src.width), values, frame.right);
    };
    extend(frame, src, sides, [&](Len y) { frame.rows.fill(frame.wholeRow(y), values, frame.width()); });
}

// The value pointer is looked at last, after the geometry.
template <Layout layout, class T>
StatusCode ownpi_CopyConstBorder(Image<const T> src, Roi srcRoi, Image<T> dst, Roi dstRoi, Corner at, const T* value) {
    if (auto bad = firstOf(
            {pointers(src.data, dst.data), steps(src.step, dst.step), geometry(srcRoi, dstRoi, at), pointers(value)}))
        return bad;
    const Image<T> inner = dst.at(at.left * layout.channels, at.top);
    extendByValue<T>(frameOf<layout>(inner, srcRoi, dstRoi, at), &src, value);
    return STATUS_OK;
}
template <Layout layout, class T>
StatusCode ownpi_CopyConstBorderI(Image<T> srcDst, Roi srcRoi, Roi dstRoi, Corner at, const T* value) {
    if (auto bad = firstOf({pointers(srcDst.data), steps(srcDst.step), geometry(srcRoi, dstRoi, at), pointers(value)}))
        return bad;
    extendByValue<T>(frameOf<layout>(srcDst, srcRoi, dstRoi, at), nullptr, value);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/border.def"
CONST_BORDER_FAMILY
