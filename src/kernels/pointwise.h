// The walker of all operations that work pixel by pixel: rows, tails, channels left alone and stores past the caches,
// once for every rule.
//
// A rule makes a vector of results from a vector of each operand.  Operands are images, or constants of one value a
// channel, which repeat along the row as an image would.
#pragma once

#include "core/streaming.h"
#include "kernels/rows.h"

namespace zmv {

// One value a channel.
template <class T>
struct Constant {
    Pattern pattern;
    Constant(const T* values, Layout layout) : pattern(bits(values), layout) {}
};

// What a row of an operand gives: vectors at byte offsets, k counting the vectors modulo 3, and the first n elements of
// one.
template <class T>
struct ImageRow {
    const T* row;
    Vec<T> at(Len offset, int) const { return loadAs<Vec<T>>(reinterpret_cast<const uint8_t*>(row) + offset); }
    Vec<T> part(Len offset, int, int n) const { return loadPart(row + offset / Len(sizeof(T)), n); }
};
template <class T>
struct ConstantRow {
    Vec<T> period[3];
    ZMV_INLINE ConstantRow(const Pattern& p, Len from)
        : period{(Vec<T>)p.at(from), (Vec<T>)p.at(from + vectorBytes), (Vec<T>)p.at(from + 2 * vectorBytes)} {}
    Vec<T> at(Len, int k) const { return period[k]; }
    Vec<T> part(Len, int k, int) const { return period[k]; }
};
// Elements x to x + n of row y.
template <class T>
ZMV_INLINE ImageRow<T> rowOf(Image<const T> image, Len y, Len x, Len) {
    return {image.row(y) + x};
}
template <class T>
ZMV_INLINE ConstantRow<T> rowOf(const Constant<T>& constant, Len, Len x, Len) {
    constexpr Len start = 0;  // known to the compiler, as most rows begin there
    return x == 0 ? ConstantRow<T>(constant.pattern, start) : ConstantRow<T>(constant.pattern, x * Len(sizeof(T)));
}
template <class T>
bool operandGapless(Image<const T> image, Len width, int channels) {
    return gapless(image, width, channels);
}
template <class T>
bool operandGapless(const Constant<T>&, Len, int) {
    return true;
}

template <class T, class Rule, class... Row>
ZMV_INLINE void pointwiseRow(const Rule& rule, T* dst, Len count, const Row&... rows) {
    const auto to = reinterpret_cast<uint8_t*>(dst);
    const Len bytes = count * Len(sizeof(T));
    const Len done =
        eachVector(0, bytes, [&](Len at, [[maybe_unused]] auto k) { store(to + at, rule(rows.at(at, k)...)); });
    if (const int rest = int((bytes - done) / Len(sizeof(T))))
        storePart(to + done, rule(rows.part(done, int(done / vectorBytes % 3), rest)...), rest);
}

// Whole lines, past the caches.
template <class T, class Rule, class... Row>
ZMV_INLINE void pointwiseLines(const Rule& rule, T* dst, Len count, const Row&... rows) {
    const auto to = reinterpret_cast<uint8_t*>(dst);
    const Len bytes = count * Len(sizeof(T));
    int first = 0;
    for (Len at = 0; at < bytes; at += lineBytes, first = (first + lineVectors) % 3)
        streamLine(to + at, [&](int i) { return rule(rows.at(at + i * vectorBytes, (first + i) % 3)...); });
}

// Where a channel is left alone, results take a detour through a block that stays in the nearest cache; it holds whole
// periods of every pattern.
template <class T, class Row>
__attribute__((noinline)) void eachBlock(Image<T> dst, Len height, Len count, Row row) {
    constexpr Len blockBytes = 48 * vectorBytes, block = blockBytes / Len(sizeof(T));
    alignas(64) uint8_t results[blockBytes];
    for (Len y = 0; y < height; ++y)
        for (Len x = 0; x < count; x += block) {
            const Len n = std::min(block, count - x);
            row(reinterpret_cast<T*>(results), y, x, n);
            blendRow(dst.row(y) + x, fromRow(results), Pattern::mask<Bits<T>>(3, 4), n * Len(sizeof(T)));
        }
}
// Elements in groups of so many bytes, which do not lie across the ends of lines.
template <class T>
bool canStream(Image<T> dst, Len group) {
    return (reinterpret_cast<uintptr_t>(dst.data) | uintptr_t(dst.step)) % uintptr_t(group) == 0;
}
// Calls row(to, y, x, n) for the elements x to x + n of each row y, which it writes to `to`; past the caches
// lines(to, y, x, n) for those that are whole lines, which it streams.
template <class T, class Row, class Lines>
void eachRow(Image<T> dst, Roi roi, Layout layout, bool pastCache, Row row, Lines lines) {
    constexpr Len size = sizeof(T);
    const Len count = rowBytes<T>(roi.width, layout.used(), layout.channels) / size;
    if (layout.alpha) return eachBlock(dst, roi.height, count, row);
    for (Len y = 0; y < roi.height; ++y) {
        T* const to = dst.row(y);
        if (!pastCache)
            row(to, y, 0, count);
        else
            splitAtLines(
                to, count * size, [&](Len at, Len n) { row(to + at / size, y, at / size, n / size); },
                [&](Len at, Len n) { lines(to + at / size, y, at / size, n / size); });
    }
    if (pastCache) fence();
}
template <class T, class... Operand>
Roi joinOperands(Roi roi, Layout layout, Image<T> dst, const Operand&... operands) {
    return joinRows(
        roi, gapless(dst, roi.width, layout.channels) && (... && operandGapless(operands, roi.width, layout.channels)));
}

// dst = rule(operands...) over a region.
template <class T, class Rule, class... Operand>
void pointwise(const Rule& rule, Image<T> dst, Roi roi, Layout layout, bool pastCache, const Operand&... operands) {
    eachRow(
        dst, joinOperands(roi, layout, dst, operands...), layout, pastCache && canStream(dst, sizeof(T)),
        [&](T* to, [[maybe_unused]] Len y, [[maybe_unused]] Len x, Len n) {
            pointwiseRow(rule, to, n, rowOf(operands, y, x, n)...);
        },
        [&](T* to, [[maybe_unused]] Len y, [[maybe_unused]] Len x, Len n) {
            pointwiseLines(rule, to, n, rowOf(operands, y, x, n)...);
        });
}

}  // namespace zmv
