// Counting the pixels of bins: value by value, then bin by bin; or by finding the bin of each pixel.
#pragma once

#include <limits>

#include "kernels/count.h"
#include "kernels/scratch.h"
#include "stats/levels.h"

namespace zmv {

// Of 16-bit types, so many pixels are counted value by value; of fewer, as of floats, each one's bin is found, since a
// table of all values would cost more than it saves.
constexpr Len manyPixels = 1 << 15;
using ValueCounts = uint32_t[65536];

// What the work buffer has to hold for a region, all of these pixels or fewer.  levels: of all channels.
inline Len histogramBufferSize(int type, int channels, Len pixels, Len levels) {
    if (type == DATATYPE_8U) {
        if (channels == 1 && pixels >= BytePairCounts::pays) return Scratch::bytesOf<BytePairCounts::Memory>();
        if (channels == 1) return Scratch::bytesOf<ByteCounts<1>::Memory>();
        return channels == 3 ? Scratch::bytesOf<ByteCounts<3>::Memory>() : Scratch::bytesOf<ByteCounts<4>::Memory>();
    }
    const bool byValue = type != DATATYPE_32F && pixels >= manyPixels;
    return std::max(Scratch::bytesOf<uint32_t>(levels + channels),
                    Scratch::bytesOf<ValueCounts>(byValue ? channels : 0));
}

inline void raise(int* bin, uint64_t count) {
    put(bin, int(std::min<uint64_t>(uint64_t(get(bin)) + count, INT32_MAX)));
}

// counts: of every value of T, from the smallest on.
template <class T, class Count>
void addValues(int* bins, const Count* counts, Levels<int32_t> levels) {
    using Limits = std::numeric_limits<T>;
    const auto place = [](int32_t level) {
        return std::clamp<Len>(level, Limits::min(), Len(Limits::max()) + 1) - Limits::min();
    };
    for (int k = 0; k < levels.count - 1; ++k) {
        uint64_t sum = 0;
        for (Len v = place(levels[k]), end = place(levels[k + 1]); v < end; ++v) sum += counts[v];
        raise(bins + k, sum);
    }
}

template <class Counts, int n>
void countBytes(int* const* bins, Image<const uint8_t> src, Roi roi, const uint8_t* spec, Scratch scratch) {
    using Memory = typename Counts::Memory;
    auto& memory = *scratch.take<Memory, alignof(Memory)>(1);
    Counts(memory).add(src, roi);
    for (int c = 0; c < n; ++c) addValues<uint8_t>(bins[c], memory.totals[c], Levels<int32_t>(spec, c));
}

template <int n, class T>
void countValues(int* const* bins, Image<const T> src, Roi roi, const uint8_t* spec, Scratch scratch) {
    auto* const counts = scratch.take<ValueCounts, alignof(ValueCounts)>(n);
    std::memset(counts, 0, n * sizeof(ValueCounts));
    roi = joinRows(roi, gapless(src, roi.width, n));
    constexpr Len block = 64 / sizeof(T) / n * n;
    const auto at = [&](int c, T value) -> uint32_t& { return counts[c][value - std::numeric_limits<T>::min()]; };
    for (Len y = 0; y < roi.height; ++y) {
        const T* row = src.row(y);
        for (const T* const end = row + roi.width * n; row < end;) {
            const T* const stop = row + std::min<Len>(block, end - row);
            if (n != 3 && stop - row == block && onePixel(reinterpret_cast<const uint8_t*>(row), 8 * sizeof(T) * n)) {
                for (int c = 0; c < n; ++c) at(c, get(row + c)) += block / n;
                row = stop;
            }
            for (; row < stop; row += n)
                for (int c = 0; c < n; ++c) ++at(c, get(row + c));
        }
    }
    for (int c = 0; c < n; ++c) addValues<T>(bins[c], counts[c], Levels<int32_t>(spec, c));
}

template <int n, class T>
void countBins(int* const* bins, Image<const T> src, Roi roi, const uint8_t* spec, Scratch scratch) {
    using L = LevelOf<T>;
    struct Channel {
        IntervalFinder<Levels<L>> finder;
        Len slots;
        uint32_t* counts;
    };
    const auto channel = [&](int c) {
        const Levels<L> levels(spec, c);
        const Len slots = Len(levels.count) + 1;
        auto* const counts = scratch.take<uint32_t, alignof(uint32_t)>(slots);
        std::fill(counts, counts + slots, 0);
        // Of fewer pixels than levels it does not pay to look whether these are even.
        const bool looks = roi.width * roi.height >= levels.count;
        return Channel{{levels, looks ? lineThrough(levels) : LevelLine()}, slots, counts};
    };
    const auto each = [&]<int... c>(std::integer_sequence<int, c...>) { return std::array<Channel, n>{channel(c)...}; };
    const auto channels = each(std::make_integer_sequence<int, n>{});
    for (Len y = 0; y < roi.height; ++y)
        for (int c = 0; c < n; ++c) {
            const auto& [finder, slots, counts] = channels[c];
            const T* const row = src.row(y) + c;
            for (Len x = 0; x < roi.width; ++x) ++counts[finder.levelsUpTo(L(get(row + x * n)))];
        }
    for (int c = 0; c < n; ++c)
        for (Len k = 1; k < channels[c].slots - 1; ++k) raise(bins[c] + k - 1, channels[c].counts[k]);
}

}  // namespace zmv
