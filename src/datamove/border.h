// The driver of border extension: where the source goes, the frame round it, by any rule.
#pragma once

#include "kernels/borders.h"
#include "kernels/rows.h"

namespace zmv {

struct Corner {
    Len top, left;  // of the source region inside the destination
};

// The checks of all border operations after the pointers and steps, in their order.
inline StatusCode geometry(Roi src, Roi dst, Corner at) {
    if (auto bad = firstOf({size(src), size(dst), refuse(at.top < 0 || at.left < 0, STATUS_BAD_SIZE)})) return bad;
    return refuse(at.left > dst.width - src.width || at.top > dst.height - src.height, STATUS_BAD_SIZE);
}

// Whether a call with one pointer for source and destination means the in-place form.
template <class Rule>
constexpr bool samePointerIsInPlace = !std::is_same_v<Rule, WrapRule>;

// Runs of pixels of a layout: all channels, or all but the fourth.
template <class T, Layout layout>
class PixelRows {
  public:
    static T* pixel(T* row, Len x) { return row + x * layout.channels; }
    void copy(T* dst, const T* src, Len width) const {
        if (layout.alpha)
            blendRow(dst, fromRow(src), colours_, bytes(width));
        else
            copyRow(dst, src, bytes(width));
    }
    void fill(T* dst, const Pattern& values, Len width) const {
        if (width == 0) return;
        if (layout.alpha)
            blendRow(dst, fromPattern(values), colours_, bytes(width));
        else
            fillRow(dst, values, bytes(width));
    }

  private:
    static Len bytes(Len width) { return rowBytes<T>(width, layout.used(), layout.channels); }
    Pattern colours_ = Pattern::mask<T>(layout.used(), layout.channels);
};

// Where everything goes: inner is the region that the source takes inside the destination, or already has.
template <class T, Layout layout>
struct Frame {
    Image<T> inner;
    Roi src;
    Len left, right, top, bottom;
    PixelRows<T, layout> rows{};
    Len width() const { return left + src.width + right; }
    T* wholeRow(Len y) const { return rows.pixel(inner.row(y), -left); }
};

// Filled outward: the columns left and right of each row by sides(row), then the rows above and below by outside(y).
template <class T, Layout layout, class Sides, class Outside>
void extend(const Frame<T, layout>& frame, const Image<const T>* src, Sides sides, Outside outside) {
    for (Len y = 0; y < frame.src.height; ++y) {
        if (src) frame.rows.copy(frame.inner.row(y), src->row(y), frame.src.width);
        sides(frame.inner.row(y));
    }
    for (Len y = -frame.top; y < 0; ++y) outside(y);
    for (Len y = frame.src.height; y < frame.src.height + frame.bottom; ++y) outside(y);
}

// Outside pixels by a rule: the rows above and below are copies of finished ones.
template <class Rule, class T, Layout layout>
void extendByRule(const Frame<T, layout>& frame, const Image<const T>* src) {
    const auto& rows = frame.rows;
    const auto sides = [&](T* row) {
        const auto column = [&](Len x) {
            copyPixel<int(sizeof(T)) * layout.used()>(rows.pixel(row, x),
                                                      rows.pixel(row, Rule::at(x, frame.src.width)));
        };
        const auto repeat = [&](Len x, Len from, Len count) {
            if (layout.channels == 1) return fillShort(row + x, get(row + from), count);
            rows.fill(rows.pixel(row, x), Pattern(rows.pixel(row, from), layout), count);
        };
        if constexpr (std::is_same_v<Rule, ReplicateRule>) {
            repeat(-frame.left, 0, frame.left);
            repeat(frame.src.width, frame.src.width - 1, frame.right);
        } else {
            for (Len x = -frame.left; x < 0; ++x) column(x);
            for (Len x = frame.src.width; x < frame.src.width + frame.right; ++x) column(x);
        }
    };
    extend(frame, src, sides,
           [&](Len y) { rows.copy(frame.wholeRow(y), frame.wholeRow(Rule::at(y, frame.src.height)), frame.width()); });
}

template <Layout layout, class T>
Frame<T, layout> frameOf(Image<T> inner, Roi src, Roi dst, Corner at) {
    return {inner, src, at.left, dst.width - at.left - src.width, at.top, dst.height - at.top - src.height};
}

// The in-place and the out-of-place form of the operations that have a rule and no value.
template <class Rule, Layout layout, class T>
StatusCode ownpi_CopyBorderI(Image<T> srcDst, Roi srcRoi, Roi dstRoi, Corner at) {
    if (auto bad = firstOf({pointers(srcDst.data), steps(srcDst.step), geometry(srcRoi, dstRoi, at)})) return bad;
    extendByRule<Rule, T>(frameOf<layout>(srcDst, srcRoi, dstRoi, at), nullptr);
    return STATUS_OK;
}
template <class Rule, Layout layout, class T>
StatusCode ownpi_CopyBorder(Image<const T> src, Roi srcRoi, Image<T> dst, Roi dstRoi, Corner at) {
    // Looked at before any check: dst is then the place of the source inside the larger image.
    if (samePointerIsInPlace<Rule> && src.data == dst.data)
        return ownpi_CopyBorderI<Rule, layout>(dst, srcRoi, dstRoi, at);
    if (auto bad = firstOf({pointers(src.data, dst.data), steps(src.step, dst.step), geometry(srcRoi, dstRoi, at)}))
        return bad;
    const Image<T> inner = dst.at(at.left * layout.channels, at.top);
    extendByRule<Rule, T>(frameOf<layout>(inner, srcRoi, dstRoi, at), &src);
    return STATUS_OK;
}

}  // namespace zmv
