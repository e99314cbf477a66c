// The spec object of a histogram.  It starts at the first byte of the caller's block, whatever its alignment: the
// header, then the levels of one channel after the other.  Levels are found by where they stand, not by the header's
// pointers, so that a copy of the object is as good.
#pragma once

#include "kernels/simd.h"

namespace zmv {

struct HistogramSpec {
    int32_t dataType, channels, uniform;
    char tag[4];
    int32_t levelCounts[4];
    const void* levels[4];
    float levelSteps[4];

    static constexpr char itsTag[4] = {'h', 'i', 's', 't'};
    bool isOne() const { return std::memcmp(tag, itsTag, sizeof tag) == 0; }
    bool isFor(int type, int channelCount) const { return isOne() && dataType == type && channels == channelCount; }
    // Where a channel's levels start, in bytes from the start of the object.
    Len offset(int channel) const {
        Len offset = sizeof *this;
        for (int c = 0; c < channel; ++c) offset += Len(levelCounts[c]) * 4;
        return offset;
    }
};
static_assert(sizeof(HistogramSpec) == 80);

template <class T>
constexpr int dataTypeOf = std::is_same_v<T, uint8_t>    ? DATATYPE_8U
                           : std::is_same_v<T, uint16_t> ? DATATYPE_16U
                           : std::is_same_v<T, int16_t>  ? DATATYPE_16S
                                                         : DATATYPE_32F;
// Levels of pixels of T.
template <class T>
using LevelOf = std::conditional_t<std::is_integral_v<T>, int32_t, float>;

template <class L>
struct Levels {
    const uint8_t* first;
    int count;
    Levels(const uint8_t* spec, int channel) {
        const auto header = loadAs<HistogramSpec>(spec);
        first = spec + header.offset(channel), count = header.levelCounts[channel];
    }
    L operator[](Len k) const { return loadAs<L>(first + k * Len(sizeof(L))); }
};

}  // namespace zmv
