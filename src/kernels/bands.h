// What a filter reads outside its region: the rows and columns that lie beyond the edges.
//
// No filter knows about borders.  It asks for the rows of the extended region one by one, from the top; each comes as
// an address in the caller's memory, in a row of the constant, or in the history of an in-place call.  What lies left
// and right is filled in where the filter wants it: in a copy of the row, or, when the filter works on columns first,
// in their results, since the rules of columns and rows do not touch each other.  Any mask fits any region: the rules
// answer for every distance, and a side that is readable in memory needs nothing.
#pragma once

#include <cstring>

#include "kernels/borders.h"
#include "kernels/scratch.h"
#include "kernels/simd.h"

namespace zmv {

// The pixels round (x, y) that a mask covers: left columns, the pixel's own, right columns; rows likewise.
struct Window {
    Len width, height, left, top, right, bottom;
    constexpr explicit Window(ImageSize mask)
        : width(mask.width),
          height(mask.height),
          left((width - 1) >> 1),
          top((height - 1) >> 1),
          right(width - 1 - left),
          bottom(height - 1 - top) {}
    constexpr Len area() const { return width * height; }
};

// Whether fits(roi, mask) holds for regions and masks round the sizes that layouts of memory turn at: a proof that
// what a driver takes is inside what callers are told.
template <class Fits>
constexpr bool fitsEverywhere(Fits fits) {
    for (int width : {1, 2, 5, 40, 600, 70000})
        for (int height : {1, 2, 40, 70000})
            for (int maskWidth : {1, 2, 3, 8, 41, 70001})
                for (int maskHeight : {1, 2, 3, 8, 41, 70001})
                    if (!fits(ImageSize{width, height}, ImageSize{maskWidth, maskHeight})) return false;
    return true;
}

inline StatusCode maskSize(ImageSize mask) { return refuse(mask.width < 1 || mask.height < 1, STATUS_BAD_MASK_SIZE); }

// Memory that bands work in: for a row of the constant, and in place for the rows that are read again when their
// results have overwritten them.
struct BandsUse {
    bool constant, inPlace;
};
template <class T>
struct BandsMemory {
    T *constantRow = nullptr, *history = nullptr;
    constexpr BandsMemory() = default;
    constexpr BandsMemory(Scratch& s, Roi roi, Window window, int n, BandsUse use)
        : constantRow(use.constant && window.height > 1 ? s.take<T>((WideLen(roi.width) + window.width - 1) * n)
                                                        : nullptr),
          history(use.inPlace ? s.take<T>(WideLen(historyRows(window)) * roi.width * n) : nullptr) {}
    static constexpr Len historyRows(Window window) { return window.top + 1; }
};

template <class T, int n>
class Bands {
  public:
    // inPlace: the destination is the source, and rows are read again when their results have overwritten them.
    Bands(Image<const T> src, Roi roi, Layout layout, Window window, int word, const T* value, bool inPlace)
        : src_(src), roi_(roi), window_(window), word_(word), inPlace_(inPlace) {
        for (int c = 0; c < layout.used() && constant(); ++c) value_[c] = get(value + c);
    }

    BandsUse use() const { return {constant(), inPlace_}; }
    void workIn(BandsMemory<T> memory) {
        memory_ = memory;
        if (!memory.constantRow) return;
        for (Len x = 0; x < roi_.width + window_.width - 1; ++x)
            std::memcpy(memory.constantRow + x * n, value_, sizeof(T) * n);
    }

    // A row of the extended region.  `inside` has the region's columns; `outside` the readable ones left and right.
    struct Row {
        const T* inside;
        const T* outside;
    };
    // Row y, -top <= y < height + bottom, when the results of rows 0 .. finished - 1 are written.
    Row row(Len y, Len finished) const {
        if (y < 0 ? !(word_ & BORDER_IN_MEM_TOP) : y >= roi_.height && !(word_ & BORDER_IN_MEM_BOTTOM)) {
            if (constant()) {
                if (!memory_.constantRow) return {};  // for callers who lay the constant out themselves
                const T* const row = memory_.constantRow + window_.left * n;
                return {row, row};
            }
            y = borderAt(word_, y, roi_.height);
        }
        const T* const inMemory = src_.row(y);
        const bool overwritten = inPlace_ && y >= 0 && y < finished;
        return {overwritten ? saved(y) : inMemory, inMemory};
    }
    // Before the result of row y is written.  No row is asked for later than window.top rows after that: what the
    // mirror takes at the bottom is nearer, and a smaller region fits the history as a whole.
    void save(Len y) const {
        if (inPlace_) std::memcpy(saved(y), src_.row(y), size_t(roi_.width * n) * sizeof(T));
    }

    // The columns that are read from memory, counted from the region's first: readable ones outside included.
    Len firstColumn() const { return word_ & BORDER_IN_MEM_LEFT ? -window_.left : 0; }
    Len endColumn() const { return roi_.width + (word_ & BORDER_IN_MEM_RIGHT ? window_.right : 0); }
    // Calls part(column, pixels, count) for each stretch of a row in memory.
    template <class Part>
    void eachPart(Part part) const {
        if (!inPlace_) return part(firstColumn(), true, endColumn() - firstColumn());
        if (firstColumn() < 0) part(firstColumn(), true, -firstColumn());
        part(Len(0), false, roi_.width);
        if (endColumn() > roi_.width) part(roi_.width, true, endColumn() - roi_.width);
    }

    // Fills the other columns of `line`, whose first element belongs to the region's first column: from the columns
    // that the rule names, or with `constants`, one a channel.
    template <class E>
    void fillColumns(E* line, const E* constants) const {
        const auto fill = [&](Len from, Len to) {
            for (Len x = from; x < to; ++x)
                std::memcpy(line + x * n, constant() ? constants : line + borderAt(word_, x, roi_.width) * n,
                            sizeof(E) * n);
        };
        if (!(word_ & BORDER_IN_MEM_LEFT)) fill(-window_.left, 0);
        if (!(word_ & BORDER_IN_MEM_RIGHT)) fill(roi_.width, roi_.width + window_.right);
    }
    // The column in memory that stands for column x, or none for the constant.
    static constexpr Len none = INT64_MIN;
    Len column(Len x) const {
        if (x >= firstColumn() && x < endColumn()) return x;
        return constant() ? none : borderAt(word_, x, roi_.width);
    }
    const T* value() const { return value_; }
    bool inPlace() const { return inPlace_; }

  private:
    bool constant() const { return borderRule(word_) == BORDER_CONST; }
    T* saved(Len y) const { return memory_.history + y % memory_.historyRows(window_) * roi_.width * n; }

    Image<const T> src_;
    Roi roi_;
    Window window_;
    int word_;
    bool inPlace_;
    T value_[4] = {};
    BandsMemory<T> memory_;
};

}  // namespace zmv
