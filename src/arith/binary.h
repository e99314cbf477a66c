// The drivers of operations on two images, and on an image and a constant.
#pragma once

#include "arith/scaled.h"

namespace zmv {

// Operations that say so check no steps: any step, zero and negative ones too, then walks the rows.
template <class Op, class... S>
StatusCode stepsOf(S... step) {
    if constexpr (requires { Op::takesAnyStep; })
        return STATUS_OK;
    else
        return steps(step...);
}

// Past the caches where a call moves more than these hold; in place, the caches have the destination anyway.
template <class T>
bool binaryPastCache(Image<const T> src1, Image<const T> src2, Image<T> dst, Roi roi, Layout layout) {
    return src1.data != dst.data && src2.data != dst.data && regionPastCache(roi, layout, 3 * sizeof(T));
}

// Where arithmetic takes longer than memory, ordinary stores go on behind it, and streaming ones are waited for.
template <class Op, class T>
constexpr bool streams() {
    if constexpr (requires { Op::template streams<T>; })
        return Op::template streams<T>;
    else
        return true;
}

// An operation that is no rule of exact results has drivers of its own: Op::images and Op::constant.
template <class Op, class T>
StatusCode ownpi_Binary(Image<const T> src1, Image<const T> src2, Image<T> dst, Roi roi, Layout layout, int factor) {
    if constexpr (requires { &Op::template images<T>; }) {
        return Op::images(src1, src2, dst, roi, layout, factor);
    } else {
        if (auto bad = firstOf(
                {pointers(src1.data, src2.data, dst.data), size(roi), stepsOf<Op>(src1.step, src2.step, dst.step)}))
            return bad;
        const bool pastCache = binaryPastCache(src1, src2, dst, roi, layout) && streams<Op, T>();
        scaled<Op>(dst, roi, layout, factor, pastCache, src1, src2);
        return STATUS_OK;
    }
}

// The constant stands in the place of the first image.
template <class Op, class T, class V>
StatusCode ownpi_WithConstant(Image<const T> src, const V* value, Image<T> dst, Roi roi, Layout layout, int factor) {
    if constexpr (requires { &Op::template constant<T>; }) {
        return Op::constant(src, value, dst, roi, layout, factor);
    } else {
        if (auto bad = firstOf({pointers(src.data, value, dst.data), size(roi), stepsOf<Op>(src.step, dst.step)}))
            return bad;
        scaled<Op>(dst, roi, layout, factor, false, Constant<T>(value, layout), src);
        return STATUS_OK;
    }
}

}  // namespace zmv
