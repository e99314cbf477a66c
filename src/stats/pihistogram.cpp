// zmviHistogram: how many pixels lie between which levels.
#include "kernels/rounding.h"
#include "stats/bins.h"

namespace zmv {
namespace {

// A level as the object keeps it: of pixels of integers cut to an integer.
template <class L>
L keptAs(double level) {
    if constexpr (std::is_same_v<L, float>) return float(level);
    if (level >= INT32_MAX) return INT32_MAX;
    return level <= INT32_MIN ? INT32_MIN : L(level);
}
// Does f with a zero of the type of levels.
template <class F>
void withLevelType(int dataType, F f) {
    dataType == DATATYPE_32F ? f(0.0f) : f(int32_t(0));
}

HistogramSpec headerFor(int type, const int* counts, int channels) {
    HistogramSpec header = {};
    header.dataType = type;
    header.channels = channels;
    header.tag = header.itsTag;
    for (int c = 0; c < channels; ++c) header.levelCounts[c] = get(counts + c);
    return header;
}

// Writes the object.  levelAt(c, k): level k of channel c.
template <class LevelAt>
void write(uint8_t* spec, HistogramSpec header, LevelAt levelAt) {
    withLevelType(header.dataType, [&](auto zero) {
        using L = decltype(zero);
        const HistogramParts<L> parts(header);
        for (int c = 0; c < header.channels; ++c) header.levels[c] = parts.levels[c].in(spec);
        store(spec, header);
        for (int c = 0; c < header.channels; ++c)
            for (Len k = 0; k < header.levelCounts[c]; ++k) put(parts.levels[c].in(spec) + k, keptAs<L>(levelAt(c, k)));
    });
}

StatusCode ownpi_HistogramInit(int type, const float* const* levels, const int* counts, int channels, uint8_t* spec) {
    if (auto bad = firstOf({dataType(type), pointers(levels, counts, spec), channelCount(channels)})) return bad;
    if (auto bad = firstOf({planePointers(levels, channels), levelCounts(counts, channels)})) return bad;
    const auto level = [&](int c, Len k) { return get(get(levels + c) + k); };
    const HistogramSpec header = headerFor(type, counts, channels);
    for (int c = 0; c < channels; ++c)
        for (Len k = 1; k < header.levelCounts[c]; ++k)
            if (!(level(c, k - 1) < level(c, k))) return STATUS_BAD_RANGE;
    write(spec, header, level);
    return STATUS_OK;
}

StatusCode ownpi_HistogramUniformInit(int type, const float* lower, const float* upper, const int* counts, int channels,
                                      uint8_t* spec) {
    if (auto bad = firstOf({dataType(type), pointers(lower, upper, counts, spec), channelCount(channels)})) return bad;
    if (auto bad = levelCounts(counts, channels)) return bad;
    constexpr float most = std::numeric_limits<float>::max();
    HistogramSpec header = headerFor(type, counts, channels);
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
    const auto header = headerOf<HistogramSpec>(spec);
    if (auto bad = firstOf({pointers(spec, levels), tagged(header, STATUS_BAD_SPEC_TAG)})) return bad;
    if (auto bad = planePointers(levels, header.channels)) return bad;
    withLevelType(header.dataType, [&](auto zero) {
        for (int c = 0; c < header.channels; ++c) {
            const Levels<decltype(zero)> from(spec, c);
            for (Len k = 0; k < from.count; ++k) put(get(levels + c) + k, float(from[k]));
        }
    });
    return STATUS_OK;
}

StatusCode ownpi_HistogramGetBufferSize(int type, ImageSize roi, const int* counts, int channels, int /* uniform */,
                                        int* specSize, int* bufferSize) {
    if (auto bad = firstOf({pointers(counts, specSize, bufferSize), size(roi), channelCount(channels)})) return bad;
    if (auto bad = firstOf({levelCounts(counts, channels), dataType(type)})) return bad;
    Len levels = 0;
    for (int c = 0; c < channels; ++c) levels += get(counts + c);
    const WideLen spec = HistogramParts<float>(headerFor(type, counts, channels)).objectBytes(),
                  buffer = histogramBufferSize(type, channels, Len(roi.width) * roi.height, levels);
    if (auto bad = firstOf({fits<int>(spec), fits<int>(buffer)})) return bad;
    put(specSize, int(spec)), put(bufferSize, int(buffer));
    return STATUS_OK;
}

template <int n, class T>
StatusCode ownpi_Histogram(Image<const T> src, Roi roi, int* const* binsOf, const uint8_t* spec, uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, spec, buffer), planePointers(binsOf, n), size(roi),
                            rowStep(src.step, roi.width * n * Len(sizeof(T)))}))
        return bad;
    const auto header = headerOf<HistogramSpec>(spec);
    if (!header.isFor(dataTypeOf<T>, n)) return STATUS_BAD_SPEC_TAG;
    int* bins[n];
    for (int c = 0; c < n; ++c) {
        bins[c] = get(binsOf + c);
        std::memset(bins[c], 0, sizeof(int) * size_t(header.levelCounts[c] - 1));
    }

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
// Small levels differ, and small numbers are not zero.
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/histogram.def"
HISTOGRAM_SIZE_FAMILY
HISTOGRAM_INIT_FAMILY
HISTOGRAM_UNIFORM_INIT_FAMILY
HISTOGRAM_GET_LEVELS_FAMILY
HISTOGRAM_FAMILY
