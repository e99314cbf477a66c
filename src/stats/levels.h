// The spec object of a histogram.  It starts at the first byte of the caller's block, whatever its alignment: the
// header, then the levels of one channel after the other.
#pragma once

#include <array>

#include "core/spec.h"
#include "stats/intervals.h"

namespace zmv {

struct HistogramSpec {
    static constexpr std::array<char, 4> itsTag = {'h', 'i', 's', 't'};
    int32_t dataType, channels, uniform;
    std::array<char, 4> tag;
    int32_t levelCounts[4];
    const void* levels[4];
    float levelSteps[4];
    bool isFor(int type, int channelCount) const {
        return tag == itsTag && dataType == type && channels == channelCount;
    }
};
static_assert(sizeof(HistogramSpec) == 80);

template <class T>
constexpr int dataTypeOf = std::is_same_v<T, uint8_t>    ? DATATYPE_8U
                           : std::is_same_v<T, uint16_t> ? DATATYPE_16U
                           : std::is_same_v<T, int16_t>  ? DATATYPE_16S
                                                         : DATATYPE_32F;
inline StatusCode levelCounts(const int* counts, int channels) {
    for (int c = 0; c < channels; ++c)
        if (get(counts + c) < 2) return STATUS_BAD_LEVEL_COUNT;
    return STATUS_OK;
}
// Levels of pixels of T.
template <class T>
using LevelOf = std::conditional_t<std::is_integral_v<T>, int32_t, float>;

// L: the type of levels.
template <class L>
struct HistogramParts : SpecParts {
    Table<L> levels[4];
    explicit HistogramParts(const HistogramSpec& header) : SpecParts(sizeof header) {
        for (int c = 0; c < 4; ++c) levels[c] = table<L>(header.levelCounts[c]);
    }
};

template <class L>
struct Levels : LevelArray<L> {
    Levels(const uint8_t* spec, int channel) {
        const auto header = headerOf<HistogramSpec>(spec);
        this->first = HistogramParts<L>(header).levels[channel].in(spec), this->count = header.levelCounts[channel];
    }
};

}  // namespace zmv
