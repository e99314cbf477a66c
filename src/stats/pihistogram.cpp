// zmviHistogram: how many pixels lie between which levels.
#include "kernels/rounding.h"
#include "stats/bins.h"

namespace zmv {
namespace {

StatusCode levelCounts(const int* counts, int channels) {
    for (int c = 0; c < channels; ++c)
        if (get(counts + c) < 2) return STATUS_BAD_LEVEL_COUNT;
    return STATUS_OK;
}

int32_t cutToInt(double level) {
    if (level >= INT32_MAX) return INT32_MAX;
    return level <= INT32_MIN ? INT32_MIN : int32_t(level);
}

HistogramSpec headerOf(int type, const int* counts, int channels, const uint8_t* spec) {
    HistogramSpec header = {};
    header.dataType = type;
    header.channels = channels;
    std::memcpy(header.tag, header.itsTag, sizeof header.tag);
    for (int c = 0; c < 4; ++c) header.levelCounts[c] = c < channels ? get(counts + c) : 0;
    for (int c = 0; c < channels; ++c) header.levels[c] = spec + header.offset(c);
    return header;
}

// Writes the object.  levelAt(c, k): level k of channel c.
template <class LevelAt>
void write(uint8_t* spec, const HistogramSpec& header, LevelAt levelAt) {
    store(spec, header);
    uint8_t* to = spec + sizeof header;
    for (int c = 0; c < header.channels; ++c)
        for (Len k = 0; k < header.levelCounts[c]; ++k, to += 4)
            if (header.dataType == DATATYPE_32F)
                store(to, float(levelAt(c, k)));
            else
                store(to, cutToInt(levelAt(c, k)));
}

StatusCode ownpi_HistogramInit(int type, const float* const* levels, const int* counts, int channels, uint8_t* spec) {
    if (auto bad = firstOf({dataType(type), pointers(levels, counts, spec), channelCount(channels)})) return bad;
    if (auto bad = firstOf({planePointers(levels, channels), levelCounts(counts, channels)})) return bad;
    const RoundingControl control(RoundingControl::toNearestEven);  // small levels differ
    for (int c = 0; c < channels; ++c)
        for (Len k = 1; k < counts[c]; ++k)
            if (!(get(levels[c] + k - 1) < get(levels[c] + k))) return STATUS_BAD_RANGE;
    write(spec, headerOf(type, counts, channels, spec), [&](int c, Len k) { return double(get(levels[c] + k)); });
    return STATUS_OK;
}

StatusCode ownpi_HistogramUniformInit(int type, const float* lower, const float* upper, const int* counts, int channels,
                                      uint8_t* spec) {
    if (auto bad = firstOf({dataType(type), pointers(lower, upper, counts, spec), channelCount(channels)})) return bad;
    if (auto bad = levelCounts(counts, channels)) return bad;
    constexpr float most = std::numeric_limits<float>::max();
    const RoundingControl control(RoundingControl::toNearestEven);
    HistogramSpec header = headerOf(type, counts, channels, spec);
    header.uniform = 1;
    double from[4], to[4], steps[4];
    bool narrow = false;
    for (int c = 0; c < channels; ++c) {
        from[c] = get(lower + c), to[c] = get(upper + c);
        if (!(from[c] < to[c] && from[c] >= -most && to[c] <= most)) return STATUS_BAD_RANGE;
        steps[c] = (to[c] - from[c]) / (header.levelCounts[c] - 1);
        header.levelSteps[c] = float(steps[c]);
        narrow |= steps[c] < 1;
    }
    write(spec, header, [&](int c, Len k) {
        if (k == 0) return from[c];
        return k == header.levelCounts[c] - 1 ? to[c] : double(k) * steps[c] + from[c];
    });
    return narrow && type != DATATYPE_32F ? STATUS_WARN_SIZE_CLIPPED : STATUS_OK;
}

StatusCode ownpi_HistogramGetLevels(const uint8_t* spec, float* const* levels) {
    if (auto bad = pointers(spec, levels)) return bad;
    const auto header = loadAs<HistogramSpec>(spec);
    if (!header.isOne()) return STATUS_BAD_SPEC_TAG;
    if (auto bad = planePointers(levels, header.channels)) return bad;
    const RoundingControl control(RoundingControl::toNearestEven);
    const auto copy = [](auto from, float* to) {
        for (int k = 0; k < from.count; ++k) put(to + k, float(from[k]));
    };
    for (int c = 0; c < header.channels; ++c)
        if (header.dataType == DATATYPE_32F)
            copy(Levels<float>(spec, c), levels[c]);
        else
            copy(Levels<int32_t>(spec, c), levels[c]);
    return STATUS_OK;
}

StatusCode ownpi_HistogramGetBufferSize(int type, ImageSize roi, const int* counts, int channels, int /* uniform */,
                                        int* specSize, int* bufferSize) {
    if (auto bad = firstOf({pointers(counts, specSize, bufferSize), size(roi), channelCount(channels)})) return bad;
    if (auto bad = firstOf({levelCounts(counts, channels), dataType(type)})) return bad;
    Len levels = 0;
    for (int c = 0; c < channels; ++c) levels += get(counts + c);
    const Len spec = Len(sizeof(HistogramSpec)) + 4 * levels;
    const Len buffer = histogramBufferSize(type, channels, Len(roi.width) * roi.height, levels);
    if (std::max(spec, buffer) > INT32_MAX) return STATUS_SIZE_EXCEEDS_INT;
    put(specSize, int(spec)), put(bufferSize, int(buffer));
    return STATUS_OK;
}

template <int n, class T>
StatusCode ownpi_Histogram(Image<const T> src, Roi roi, int* const* bins, const uint8_t* spec, uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, spec, buffer), planePointers(bins, n), size(roi),
                            rowStep(src.step, roi.width * n * Len(sizeof(T)))}))
        return bad;
    const auto header = loadAs<HistogramSpec>(spec);
    if (!header.isFor(dataTypeOf<T>, n)) return STATUS_BAD_SPEC_TAG;
    for (int c = 0; c < n; ++c) std::memset(bins[c], 0, sizeof(int) * size_t(header.levelCounts[c] - 1));

    const RoundingControl control(RoundingControl::toNearestEven);  // small numbers are not zero
    const Len pixels = roi.width * roi.height;
    // So many rows at a time that 32 bits count their pixels.
    const Len rows = std::max<Len>(1, INT32_MAX / roi.width);
    for (Len y = 0; y < roi.height; y += rows) {
        const auto with = [&](auto count) {
            count(bins, src.at(0, y), Roi(roi.width, std::min(rows, roi.height - y)), spec, Scratch(buffer));
        };
        if constexpr (sizeof(T) == 1 && n == 1)
            with(pixels >= BytePairCounts::pays ? countBytes<BytePairCounts, 1> : countBytes<ByteCounts<1>, 1>);
        else if constexpr (sizeof(T) == 1)
            with(countBytes<ByteCounts<n>, n>);
        else if constexpr (sizeof(T) == 2)
            with(pixels >= manyPixels ? countValues<n, T> : countBins<n, T>);
        else
            with(countBins<n, T>);
    }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "stats/histogram.def"
HISTOGRAM_SIZE_FAMILY
HISTOGRAM_INIT_FAMILY
HISTOGRAM_UNIFORM_INIT_FAMILY
HISTOGRAM_GET_LEVELS_FAMILY
HISTOGRAM_FAMILY
