// zmviLUT: pixels through a curve that is given by levels and the values at them.
#include "core/spec.h"
#include "kernels/lookup.h"
#include "stats/curve.h"
#include "stats/levels.h"

namespace zmv {
namespace {

StatusCode interpolations(int code) {
    return refuse(code != INTERP_NEAREST && code != INTERP_LINEAR && code != INTERP_CUBIC, STATUS_BAD_INTERPOLATION);
}

struct LutSpec {
    static constexpr uint32_t itsTag = 0x2054554c;
    uint32_t tag;
    int32_t dataType, channels, interpolation;
    bool isFor(int type, int channelCount) const {
        return tag == itsTag && dataType == type && channels == channelCount;
    }
};
// What is behind the header: of integers a table of all values a channel, of floats the curve.
template <class T>
struct TableParts : SpecParts {
    Table<Bits<T>> tables;
    static constexpr Len entries = Len(1) << (8 * sizeof(T));
    explicit TableParts(int channels) : SpecParts(sizeof(LutSpec)), tables(table<Bits<T>>(channels * entries, 64)) {}
};
struct CurveParts : SpecParts {
    struct Channel {
        LevelLine line;
        int64_t count;
    };
    Table<Channel> channels;
    Table<Piece> pieces;  // one for each level
    CurveParts(int channelCount, WideLen levelCount)
        : SpecParts(sizeof(LutSpec)), channels(table<Channel>(channelCount, 8)), pieces(table<Piece>(levelCount, 64)) {}
};
WideLen levelsOf(const int* counts, int channels) {
    WideLen sum = 0;
    for (int c = 0; c < channels; ++c) sum += get(counts + c);
    return sum;
}

StatusCode ownpi_LUTGetSize(int interpolation, int type, int channels, const int* counts, int* specSize) {
    if (auto bad = firstOf(
            {pointers(counts, specSize), interpolations(interpolation), dataType(type), channelCount(channels)}))
        return bad;
    if (auto bad = levelCounts(counts, channels)) return bad;
    const WideLen bytes = type == DATATYPE_32F  ? CurveParts(channels, levelsOf(counts, channels)).blockBytes()
                          : type == DATATYPE_8U ? TableParts<uint8_t>(channels).blockBytes()
                                                : TableParts<uint16_t>(channels).blockBytes();
    if (auto bad = fits<int>(bytes)) return bad;
    put(specSize, int(bytes));
    return STATUS_OK;
}

void keepCurve(uint8_t* object, int interpolation, const Curve<float>* curves, const int* counts, int channels) {
    const CurveParts parts(channels, levelsOf(counts, channels));
    Piece* pieces = parts.pieces.in(object);
    for (int c = 0; c < channels; ++c) {
        const Curve<float>& curve = curves[c];
        parts.channels.in(object)[c] = {lineThrough(curve.levels), curve.levels.count};
        for (int k = 0; k < curve.levels.count; ++k) *pieces++ = curve.piece(k, interpolation);
    }
}

template <class T, class L>
StatusCode ownpi_LUTInit(int interpolation, const L* const* levels, const L* const* values, const int* counts,
                         int channels, uint8_t* spec) {
    if (auto bad =
            firstOf({pointers(levels, values, counts, spec), interpolations(interpolation), channelCount(channels)}))
        return bad;
    if (auto bad =
            firstOf({planePointers(levels, channels), planePointers(values, channels), levelCounts(counts, channels)}))
        return bad;
    Curve<L> curves[4];
    for (int c = 0; c < channels; ++c) {
        curves[c] = {{get(levels + c), get(counts + c)}, {get(values + c), get(counts + c)}};
        if (!curves[c].rises()) return STATUS_BAD_RANGE;
    }
    uint8_t* const object = objectIn(spec);
    store(object, LutSpec{LutSpec::itsTag, dataTypeOf<T>, channels, interpolation});
    if constexpr (std::is_same_v<L, float>) {
        keepCurve(object, interpolation, curves, counts, channels);
    } else {
        using Parts = TableParts<T>;
        Bits<T>* const tables = Parts(channels).tables.in(object);
        for (int c = 0; c < channels; ++c) tabulate<T>(curves[c], interpolation, tables + c * Parts::entries);
    }
    return STATUS_OK;
}

// Some pixels of a channel: what can be done in vectors is done before and after the pieces of the curve are looked up.
// The interpolation is a constant in here, so that it costs nothing a pixel.
template <int interpolation>
void alongCurve(Image<const float> src, Image<float> dst, Roi roi, int pixel, const LevelLine& line,
                const PieceLevels& levels) {
    constexpr int block = 64;
    const Piece* const pieces = levels.first;
    const IntervalFinder finder(levels, line);
    const double first = levels[0], last = levels[levels.count - 1];
    const float low = float(first), below = float(pieces[0].value);
    float pixels[block] = {}, results[block];
    double inside[block], places[block];
    for (Len y = 0; y < roi.height; ++y)
        for (Len x = 0; x < roi.width; x += block) {
            const float* const from = src.row(y) + x * pixel;
            float* const to = dst.row(y) + x * pixel;
            const int n = int(std::min<Len>(block, roi.width - x));
            for (int i = 0; i < n; ++i) pixels[i] = get(from + i * pixel);
            for (int i = 0; i < n; i += lanes<double>) {
                const auto v = smaller(larger(loadWiden<double>(pixels + i), fill(first)), fill(last));
                store(inside + i, v), store(places + i, line.place(v));
            }
            const auto lookUp = [&](auto pieceOf) {
                for (int i = 0; i < n; ++i)
                    results[i] = float(pieces[pieceOf(i)].template at<interpolation>(inside[i]));
            };
            if (line.even)
                lookUp([&](int i) {
                    const int k = line.numberAt(places[i]);
                    return k - (inside[i] < levels[k]);
                });
            else
                lookUp([&](int i) { return finder.levelsUpTo(inside[i]) - 1; });
            for (int i = 0; i < n; ++i) {
                const float v = pixels[i];
                put(to + i * pixel, v < low ? below : v == v ? results[i] : v);
            }
        }
}

template <Layout layout, class T>
StatusCode ownpi_LUT(Image<const T> src, Image<T> dst, Roi roi, const uint8_t* spec) {
    constexpr int n = layout.channels, used = layout.used();
    if (auto bad = firstOf({pointers(src.data, dst.data, spec), size(roi), steps(src.step, dst.step)})) return bad;
    const uint8_t* const object = objectIn(spec);
    const auto header = headerOf<LutSpec>(object);
    if (!header.isFor(dataTypeOf<T>, used)) return STATUS_CONTEXT_MISMATCH;
    if constexpr (std::is_same_v<T, float>) {
        roi = joinOperands(roi, layout, dst, src);
        const auto* const channels = CurveParts(used, 0).channels.in(object);
        WideLen all = 0, before = 0;
        for (int c = 0; c < used; ++c) all += channels[c].count;
        const CurveParts parts(used, all);
        for (int c = 0; c < used; before += channels[c++].count) {
            const auto run = header.interpolation == INTERP_NEAREST  ? alongCurve<INTERP_NEAREST>
                             : header.interpolation == INTERP_LINEAR ? alongCurve<INTERP_LINEAR>
                                                                     : alongCurve<INTERP_CUBIC>;
            run(src.at(c, 0), dst.at(c, 0), roi, n, channels[c].line,
                {parts.pieces.in(object) + Len(before), int(channels[c].count)});
        }
    } else {
        using Parts = TableParts<T>;
        const auto* const tables = Parts(used).tables.in(object);
        const Bits<T>* each[4];
        for (int c = 0; c < used; ++c) each[c] = tables + c * Parts::entries;
        const Image<const Bits<T>> from = bits(src.data, src.step);
        if constexpr (sizeof(T) == 1)
            lookUpBytes<n>(from, dst, roi, layout, each, false);
        else
            lookUpEntries<n>(from, bits(dst.data, dst.step), roi, layout, each);
    }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "stats/lut.def"
LUT_SIZE_FAMILY
LUT_INTEGERS
#undef ENTRY_OF
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
LUT_INIT_FAMILY
LUT_FLOATS
