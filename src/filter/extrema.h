// Minimum and maximum of a window: an operation on two neighbours, along the rows and then down the columns.
//
// Any order gives the same bits as long as no NaN takes part, also of zeros: the later of two equal values stays.  A
// NaN makes what came before it forgotten, so that rows with a NaN are worked in the order of the contract.
#pragma once

#include "filter/fixedkernel.h"
#include "kernels/rows.h"

namespace zmv {

template <bool least>
struct Extremum {
    template <class V>
    ZMV_INLINE V operator()(V acc, V next) const {
        if constexpr (std::is_same_v<Element<V>, uint16_t> && vectorBytes == 16) {  // no instruction compares these
            const V more = subSaturated(acc, next);
            return least ? acc - more : next + more;
        } else if constexpr (least) {
            return acc < next ? acc : next;
        } else {
            return acc > next ? acc : next;
        }
    }
};
using Min = Extremum<true>;
using Max = Extremum<false>;

// The extremum of at(0) .. at(count - 1), one after the other.
template <class Op, class At>
ZMV_INLINE auto inTurn(At at, Len count) {
    auto acc = at(Len(0));
    for (Len k = 1; k < count; ++k) acc = Op()(acc, at(k));
    return acc;
}

// ---- Small windows, in registers ----

template <class Op, int side, int n, bool alpha, class T>
void smallExtremum(const T* const* rows, T* const* dst, Len count) {
    constexpr int summed = kernelRows + side - 1, split = std::min(side, kernelRows) - 1;
    eachWhole<lanes<T>>(
        count, [&](Len x) __attribute__((always_inline)) {
            Vec<T> row[summed];
            unrolled<summed>([&](auto i) __attribute__((always_inline)) {
                row[i] = inTurn<Op>(
                    [&](Len j) __attribute__((always_inline)) { return load(rows[i] + x + j * n); }, side);
            });
            const auto put = [&](int r, Vec<T> v) __attribute__((always_inline)) {
                putResults<alpha>(dst[r] + x, std::array{v});
            };
            if constexpr (std::is_floating_point_v<T>) {
                unrolled<kernelRows>([&](auto above) __attribute__((always_inline)) {
                    constexpr int r = kernelRows - 1 - above;
                    put(r, inTurn<Op>(
                               [&](Len i) __attribute__((always_inline)) { return row[r + i]; }, side));
                });
            } else {
                // Each window is an end of the rows up to the split, and a start of those behind it.
                Vec<T> end[split + 1], start = row[split + 1];
                end[split] = row[split];
                unrolled<split>([&](auto i) __attribute__((always_inline)) {
                    end[split - 1 - i] = Op()(row[split - 1 - i], end[split - i]);
                });
                Vec<T> results[kernelRows];
                unrolled<kernelRows>([&](auto r) __attribute__((always_inline)) {
                    constexpr int last = r + side - 1;
                    if constexpr (last > split + 1) start = Op()(start, row[last]);
                    results[r] = last <= split ? end[r] : r > split ? start : Op()(end[std::min<int>(r, split)], start);
                });
                unrolled<kernelRows>([&](auto above) __attribute__((always_inline)) {
                    put(kernelRows - 1 - above, results[kernelRows - 1 - above]);
                });
            }
        });
}

// ---- Windows of any size ----

template <class T>
struct ExtremaMemory {
    T *line = nullptr, *ring = nullptr, *start = nullptr;
    constexpr ExtremaMemory(Scratch& s, Roi roi, Window window, int n) {
        const WideLen row = WideLen(roi.width) * n;
        line = s.take<T>(row + (window.width - 1) * n);
        if (window.height > 1) start = s.take<T>(row), ring = s.take<T>(row * window.height);
        s.take<uint8_t>(largestVector);  // the line is read beyond its end, and the ring may be
    }
};

// Extrema of `width` neighbours along a line, n elements apart, into `to`; the line is used up.  Blocks of 1, 4, 16 ..
// neighbours first, then as many of them as make a window, the last two of which may overlap.
template <class Op, class T>
void extremaAlong(T* to, T* line, Len count, Len width, Len n, bool inOrder) {
    const auto pass = [&](T * into, Len results, auto value) __attribute__((always_inline)) {
        Len i = 0;
        for (; i + lanes<T> <= results; i += lanes<T>) store(into + i, value(line + i));
        if (i < results) storePart(into + i, value(line + i), int(results - i));
    };
    if (inOrder)
        return pass(
            to, count, [=](const T* p) __attribute__((always_inline)) {
                return inTurn<Op>(
                    [=](Len k) __attribute__((always_inline)) { return load(p + k * n); }, width);
            });
    const auto four = [](Len second, Len third, Len last) __attribute__((always_inline)) {
        return [=](const T* p) __attribute__((always_inline)) {
            return Op()(Op()(load(p), load(p + second)), Op()(load(p + third), load(p + last)));
        };
    };
    Len block = 1;
    for (; 4 * block < width; block *= 4)
        pass(line, count + (width - 4 * block) * n, four(block * n, 2 * block * n, 3 * block * n));
    const Len last = width - block;
    pass(to, count, four(std::min(block, last) * n, std::min(2 * block, last) * n, last * n));
}

// A row of the extended region, laid out; whether it has a NaN.
template <class T, int n>
bool layOutRow(const void* of, Len y, T* line, Len length, Len left) {
    const auto& bands = *static_cast<const Bands<T, n>*>(of);
    if (const T* const row = bands.row(y, 0).inside) {
        T* const home = line + left;
        bands.eachPart([&](Len column, bool, Len count) __attribute__((always_inline)) {
            copyRow(home + column * n, row + column * n, count * n * Len(sizeof(T)));
        });
        bands.fillColumns(home, bands.value());
    } else {
        for (Len x = 0; x < length; x += n) std::memcpy(line + x, bands.value(), sizeof(T) * n);
    }
    if constexpr (std::is_floating_point_v<T>) {
        Vec<int32_t> unordered{};
        eachVectorOf<lanes<T>>(
            length, [&](Len, Len x, int k) __attribute__((always_inline)) {
                const auto v = loadUpTo(line + x, k);
                unordered |= v != v;
            });
        return !allZero(unordered);
    }
    return false;
}

template <class T>
using LayOut = bool (*)(const void* bands, Len y, T* line, Len length, Len left);

// Down the columns, rows are taken in blocks as high as the window: a window is the end of one block and the start of
// the next one, or it is a block.  `start` has the extremum of the current block's rows so far.  The rows of a complete
// block become those of it from each row to its end, unless it has a NaN: then they stay, for the order of the
// contract.
template <class Op, class T>
void extrema(const void* bands, LayOut<T> layOut, Image<T> dst, Roi roi, Layout layout, Window window,
             Scratch scratch) {
    const int n = layout.channels;
    const ExtremaMemory<T> memory(scratch, roi, window, n);
    const Len count = roi.width * n, height = window.height, rows = roi.height + height - 1;
    const auto ring = [&](Len place) __attribute__((always_inline)) { return memory.ring + place * count; };
    const auto colours = Pattern::mask<Bits<T>>(layout.used(), n).at(0);  // a vector holds whole pixels
    const auto put = [&](T * to, Vec<T> v, int k) __attribute__((always_inline)) {
        if (layout.alpha) v = (Vec<T>)select(colours, (Vec<uint8_t>)v, (Vec<uint8_t>)loadUpTo(to, k));
        storeUpTo(to, v, k);
    };
    bool kept = false, nan = false;  // rows of the block before; a NaN in the current one
    for (Len i = 0; i < rows; ++i) {
        const Len place = i % height, y = i - height + 1;
        const bool disordered =
            layOut(bands, i - window.top, memory.line, count + (window.width - 1) * n, window.left * n);
        nan = (place > 0 && nan) || disordered;
        T* const entering = height > 1 ? ring(place) : layout.alpha ? memory.line : dst.row(y);
        extremaAlong<Op>(entering, memory.line, count, window.width, Len(n), disordered);
        if (height == 1 && !layout.alpha) continue;
        T *const to = dst.row(std::max<Len>(y, 0)), *const start = height > 1 ? memory.start : entering;
        // What the last vector of a row does twice makes no difference.
        eachVectorOf<lanes<T>>(
            count, [&](Len, Len x, int k) __attribute__((always_inline)) {
                auto value = loadUpTo(entering + x, k);
                if (place > 0) value = Op()(loadUpTo(start + x, k), value);
                if (height > 1) storeUpTo(start + x, value, k);
                if (y < 0) return;
                if (place < height - 1) {
                    auto acc = loadUpTo(ring(place + 1) + x, k);
                    if (kept)
                        for (Len p = place + 2; p < height; ++p) acc = Op()(acc, loadUpTo(ring(p) + x, k));
                    if (nan)
                        for (Len p = 0; p <= place; ++p) acc = Op()(acc, loadUpTo(ring(p) + x, k));
                    value = nan ? acc : Op()(acc, value);
                }
                put(to + x, value, k);
            });
        if (place < height - 1) continue;
        kept = nan;
        if (!kept && height > 1 && i + 1 < rows)
            eachVectorOf<lanes<T>>(
                count, [&](Len, Len x, int k) __attribute__((always_inline)) {
                    auto end = loadUpTo(ring(height - 1) + x, k);
                    for (Len p = height - 2; p > 0; --p) {
                        end = Op()(loadUpTo(ring(p) + x, k), end);
                        storeUpTo(ring(p) + x, end, k);
                    }
                });
    }
}

}  // namespace zmv
