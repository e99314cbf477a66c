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

// Results of a chunk of sums.  An output's put() takes a vector of sums that fit int32_t, its one() any sum.
template <class Output, class D>
void putChunk(const Output& output, D* dst, const uint32_t* sums, int count) {
    constexpr int step = lanes<int32_t>;
    const auto sumsAt = [&](int i) { return loadAs<Vec<int32_t>>(sums + i); };
    int i = 0;
    for (; i + step <= count; i += step) output.put(dst + i, sumsAt(i));
    if (i == count) return;
    D few[step];
    output.put(few, sumsAt(i));
    std::memcpy(dst + i, few, size_t(count - i) * sizeof(D));
}

// One row of results, from sums in int32_t or, where the area is too large for those, in int64_t.
template <int n, bool wide, class Output, class Reader, class D>
void putRow(const Output& output, D* dst, const Reader& reader, Len pixels, Len windowWidth, const Pattern* colours) {
    RowSums<Reader, n> rowSums(reader, windowWidth);
    int64_t running[4] = {};
    if constexpr (wide)
        for (Len k = 0; k < (windowWidth - 1) * n; ++k) running[k % n] += reader.one(k);
    const auto putPixels = [&](D* to, Len x, int count) {
        if constexpr (!wide) {
            ChunkSums sums;
            rowSums.next(sums, count);
            putChunk(output, to, sums, count * n);
        } else {
            for (Len i = x * n; i < (x + count) * n; ++i) {
                int64_t& sum = running[i % n];
                sum += reader.one(i + (windowWidth - 1) * n);
                put(to + i - x * n, output.one(sum));
                sum -= reader.one(i);
            }
        }
    };
    for (Len x = 0; x < pixels; x += chunkPixels) {
        const int count = int(std::min<Len>(chunkPixels, pixels - x));
        if (!colours) {
            putPixels(dst + x * n, x, count);
        } else {
            D results[chunkPixels * 4];
            putPixels(results, x, count);
            blendRow(dst + x * n, fromRow(results), *colours, rowBytes<D>(count, 3, 4));
        }
    }
}

}  // namespace zmv
