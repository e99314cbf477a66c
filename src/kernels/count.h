// Counting bytes: how often each of the 256 occurs, in every channel for itself.
//
// A count that goes up again before its last value has settled in memory has to wait for it, and neighbours are often
// equal.  So neighbouring bytes of a channel go to tables of their own; narrow ones, that many of them stay in the
// nearest cache, and they move to the totals before one can overflow.
#pragma once

#include <bit>

#include "kernels/rows.h"

namespace zmv {

// Whether the 64 bytes are one pixel over and over; its size in bits divides 64.
inline bool onePixel(const uint8_t* bytes, int pixelBits) {
    const auto first = loadAs<uint64_t>(bytes);
    if (first != std::rotl(first, pixelBits)) return false;
    uint64_t other = 0;
    for (int i = 8; i < 64; i += 8) other |= loadAs<uint64_t>(bytes + i) ^ first;
    return other == 0;
}

template <int channels>
class ByteCounts {
  public:
    static constexpr int tableCount = channels == 3 ? 12 : 8;
    struct Memory {
        uint64_t totals[channels][256];
        uint16_t tables[tableCount][256];
    };
    explicit ByteCounts(Memory& memory) : memory_(memory) { std::memset(&memory, 0, sizeof memory); }

    void add(Image<const uint8_t> image, Roi roi) {
        roi = joinRows(roi, gapless(image, roi.width, channels));
        for (Len y = 0; y < roi.height; ++y) addRow(image.row(y), roi.width * channels);
        settle();
    }

  private:
    static constexpr int unit = channels == 3 ? 24 : 8;
    static constexpr Len most = UINT16_MAX;

    void addRow(const uint8_t* row, Len bytes) {
        while (bytes > 0) {
            if (room_ < 2) settle();
            const Len n = std::min(bytes, (room_ - 1) * tableCount);  // whole pixels
            count(row, n);
            room_ -= n / tableCount + 1;
            row += n, bytes -= n;
        }
    }
    void count(const uint8_t* p, Len bytes) {
        const uint8_t* const end = p + bytes;
        if constexpr (unit == 8)
            for (; end - p >= 64; p += 64) {
                if (onePixel(p, 8 * channels))
                    for (int c = 0; c < channels; ++c) memory_.totals[c][p[c]] += 64 / channels;
                else
                    for (int i = 0; i < 64; i += 8) countEight<0>(p + i);
            }
        for (; end - p >= unit; p += unit) {
            countEight<0>(p);
            if constexpr (unit == 24) countEight<8>(p + 8), countEight<16>(p + 16);
        }
        for (int i = 0; p + i < end; ++i) ++memory_.tables[i % tableCount][p[i]];
    }
    // Eight bytes that stand at a distance from the start of a pixel.
    template <int distance>
    ZMV_INLINE void countEight(const uint8_t* p) {
        const auto eight = loadAs<uint64_t>(p);
#pragma GCC unroll 8
        for (int i = 0; i < 8; ++i) ++memory_.tables[(distance + i) % tableCount][uint8_t(eight >> 8 * i)];
    }
    void settle() {
        for (int t = 0; t < tableCount; ++t)
            for (int v = 0; v < 256; ++v) memory_.totals[t % channels][v] += memory_.tables[t][v];
        std::memset(memory_.tables, 0, sizeof memory_.tables);
        room_ = most;
    }

    Memory& memory_;
    Len room_ = most;  // how often each table may still go up
};

// The same for one channel, where there is memory and there are pixels enough: two neighbours count as one number of 16
// bits, so that half as many counts go up.
class BytePairCounts {
  public:
    static constexpr Len pays = 1 << 17;  // bytes; fewer do not make up for the table
    struct Memory {
        uint64_t totals[1][256];
        uint8_t pairs[65536];  // the second byte is the upper one
    };
    explicit BytePairCounts(Memory& memory) : memory_(memory) { std::memset(&memory, 0, sizeof memory); }

    void add(Image<const uint8_t> image, Roi roi) {
        roi = joinRows(roi, gapless(image, roi.width, 1));
        for (Len y = 0; y < roi.height; ++y) addRow(image.row(y), roi.width);
        uint16_t ofFirst[256] = {};
        for (int second = 0; second < 256; ++second) {
            uint32_t sum = 0;
            const uint8_t* const pairs = memory_.pairs + 256 * second;
            for (int first = 0; first < 256; ++first) sum += pairs[first];
            for (int first = 0; first < 256; ++first) ofFirst[first] = uint16_t(ofFirst[first] + pairs[first]);
            memory_.totals[0][second] += sum;
        }
        for (int first = 0; first < 256; ++first) memory_.totals[0][first] += ofFirst[first];
    }

  private:
    void addRow(const uint8_t* row, Len bytes) {
        const uint8_t* const end = row + bytes;
        uint8_t* const pairs = memory_.pairs;  // not looked up anew after each byte that is stored
        uint64_t* const totals = memory_.totals[0];
        const auto addBoth = [=](const uint8_t* pair, int by) { totals[pair[0]] += by, totals[pair[1]] += by; };
        const auto addPair = [=](const uint8_t* pair) {
            if (++pairs[loadAs<uint16_t>(pair)] == 0) addBoth(pair, 256);
        };
        for (; end - row >= 64; row += 64)
            if (onePixel(row, 16))
                addBoth(row, 32);
            else
#pragma GCC unroll 32
                for (int i = 0; i < 64; i += 2) addPair(row + i);
        for (; end - row >= 2; row += 2) addPair(row);
        if (row < end) ++totals[*row];
    }

    Memory& memory_;
};

}  // namespace zmv
