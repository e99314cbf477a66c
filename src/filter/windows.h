// Rows of results from the sums of windows, for integers: what is done with a sum is the output's.
#pragma once

#include "kernels/rows.h"
#include "kernels/window_sums.h"

namespace zmv {

// Sums along rows of the caller's, beyond which nothing may be read.
template <class T>
struct RowReader {
    const T* row;
    Len count;
    Vec<uint32_t> at(Len i) const {
        return i + lanes<uint32_t> <= count ? loadWiden<uint32_t>(row + i)
                                            : loadWidenPart<uint32_t>(row + i, int(count - i));
    }
    Vec<uint32_t, 16> fewAt(Len i) const {
        if (i + 4 <= count) return loadWiden<uint32_t, T, 16>(row + i);
        T few[4] = {};
        std::memcpy(few, row + i, size_t(count - i) * sizeof(T));
        return loadWiden<uint32_t, T, 16>(few);
    }
    int64_t one(Len i) const { return get(row + i); }
};

// Results of a chunk of sums.  An output's put() takes a vector of sums in 32 bits, where it takes vectors at all; its
// one() takes any sum.
template <class Output, class D, class S>
void putChunk(const Output& given, D* dst, const S* sums, int count) {
    const Output output = given;  // in registers: to the compiler, results could lie in it
    if constexpr (sizeof(S) == 4) {
        constexpr int step = lanes<int32_t>;
        const auto sumsAt = [&](int i) { return loadAs<Vec<int32_t>>(sums + i); };
        int i = 0;
        for (; i + step <= count; i += step) output.put(dst + i, sumsAt(i));
        if (i == count) return;
        D few[step];
        output.put(few, sumsAt(i));
        std::memcpy(dst + i, few, size_t(count - i) * sizeof(D));
    } else {
        for (int i = 0; i < count; ++i) put(dst + i, output.one(sums[i]));
    }
}

// One row of results.
template <class Output, class Sums, class D>
void putRow(const Output& output, D* dst, Sums rowSums, Len pixels, int n, const Pattern* colours) {
    for (Len x = 0; x < pixels; x += chunkPixels(n)) {
        const int count = int(std::min<Len>(chunkPixels(n), pixels - x));
        Chunk<typename Sums::Sum> sums;
        rowSums.next(sums, count);
        if (!colours) {
            putChunk(output, dst + x * n, sums, count * n);
        } else {
            D results[chunkElements];
            putChunk(output, results, sums, count * n);
            blendRow(dst + x * n, fromRow(results), *colours, rowBytes<D>(count, 3, 4));
        }
    }
}

}  // namespace zmv
