// The spec object of the general filter: a kernel, turned round and laid out as the loops want it.
#pragma once

#include <cstdlib>
#include <numeric>

#include "core/spec.h"
#include "kernels/simd.h"

namespace zmv {

enum FilterPath : uint32_t {
    integer8u = 0,
    integer16s = 1,
    single8u = 3,
    single16s = 4,
    single16u = 5,
    single32f = 6,
    double64f = 7,
};
// How sums of integers are formed.  All ways give the same bits; which one depends on the kernel.
enum class SumsOf : uint32_t {
    words,       // pairs of 16-bit products, in 32 bits
    bytes,       // pairs of products of bytes, in 16 bits: no sum passes them
    shortLines,  // columns first, whose sums fit 16 bits, then rows: the kernel is a column times a row
    longLines,   // the same with 32 bits
};

struct FilterSpec {
    uint32_t path;
    int32_t kernelWidth, kernelHeight;
    struct Scale {  // of integer kernels, from their divisor
        uint32_t kind;
        int32_t shift, half;
        float reciprocal, divisorAsFloat;
        int32_t divisor, unused;
        double divisorAsDouble;
        int32_t remainderMask;
        float divisorAgain;
        uint32_t roundMode;
    } scale;
    uint32_t roundMode;
    int32_t offset;
    float offsetScaled;
    int32_t hint;
    uint32_t numChannels;
    SumsOf sums;
};

// Integer taps by two rows: the kernel's rows 2 p and 2 p + 1 for one row of results, 2 p - 1 and 2 p for the next
// one, so that both use the same two rows of pixels.
template <class K>
struct TapPair {
    K first[2], second[2];
};
inline WideLen pairRows(WideLen height) { return height / 2 + 1; }
// tap(i, j): of a kernel, turned round.
template <class K, class Tap>
void writePairs(TapPair<K>* pairs, Len width, Len height, Tap tap) {
    const auto at = [&](Len i, Len j) { return i < 0 || i >= height ? K(0) : K(tap(i, j)); };
    for (Len p = 0; p < Len(pairRows(height)); ++p)
        for (Len j = 0; j < width; ++j, ++pairs)
            store(pairs, TapPair<K>{{at(2 * p, j), at(2 * p + 1, j)}, {at(2 * p - 1, j), at(2 * p, j)}});
}

struct FilterParts : SpecParts {
    Table<TapPair<int16_t>> words, column;
    Table<TapPair<int8_t>> bytes;
    Table<int16_t> row;
    Table<float> floats;
    Table<double> doubles;
    explicit FilterParts(const FilterSpec& s)
        : SpecParts(2 * objectAlignment),
          words(table<TapPair<int16_t>>(has(s, SumsOf::words) ? pairs(s) * s.kernelWidth : 0)),
          column(table<TapPair<int16_t>>(inLines(s) ? pairs(s) : 0)),
          bytes(table<TapPair<int8_t>>(has(s, SumsOf::bytes) ? pairs(s) * s.kernelWidth : 0)),
          row(table<int16_t>(inLines(s) ? s.kernelWidth + s.kernelWidth % 2 : 0)),
          floats(table<float>(s.path > integer16s && s.path < double64f ? area(s) : 0)),
          doubles(table<double>(s.path == double64f ? area(s) : 0)) {}

  private:
    static WideLen area(const FilterSpec& s) { return WideLen(s.kernelWidth) * s.kernelHeight; }
    static WideLen pairs(const FilterSpec& s) { return pairRows(s.kernelHeight); }
    static bool has(const FilterSpec& s, SumsOf sums) { return s.path <= integer16s && s.sums == sums; }
    static bool inLines(const FilterSpec& s) { return has(s, SumsOf::shortLines) || has(s, SumsOf::longLines); }
};
static_assert(sizeof(FilterSpec) <= 2 * objectAlignment);

// A kernel of integers as a column times a row, if it is one exactly: the column without a common factor, so that its
// sums are small.  row and column: where they go, the row with room for an even number of taps.
template <class Tap>
bool isProduct(Len width, Len height, Tap tap, int16_t* column, int16_t* row) {
    Len i0 = 0, j0 = 0;
    while (i0 < height && tap(i0, j0) == 0)
        if (++j0 == width) j0 = 0, ++i0;
    if (i0 == height) return false;
    int factor = 0;  // of column j0, which is the kernel's column but for a factor
    for (Len i = i0; i < height; ++i) factor = std::gcd(factor, int(tap(i, j0)));
    const auto fits = [](int x) { return x >= INT16_MIN && x <= INT16_MAX; };
    for (Len i = 0; i < height; ++i) {
        const int c = tap(i, j0) / factor;
        if (!fits(c)) return false;
        put(column + i, int16_t(c));
    }
    for (Len j = 0; j < width; ++j) {
        const int c = get(column + i0), r = tap(i0, j) / c;
        if (!fits(r)) return false;
        put(row + j, int16_t(r));
    }
    if (width % 2) put(row + width, int16_t(0));
    for (Len i = 0; i < height; ++i)
        for (Len j = 0; j < width; ++j)
            if (int(get(column + i)) * get(row + j) != tap(i, j)) return false;
    return true;
}

}  // namespace zmv
