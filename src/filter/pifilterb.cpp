// zmviFilterBorder: any kernel, with borders; its queries and the makers of its spec object.
#include "filter/integerfilter.h"
#include "filter/realfilter.h"
#include "zmvcore.h"

namespace zmv {
namespace {

StatusCode oneToFour(int channels) { return refuse(channels < 1 || channels > 4, STATUS_BAD_NUM_CHANNELS); }
StatusCode rounding(int mode) {  // anything below zero is above all modes
    return refuse(unsigned(mode & ~ROUND_HINT_ACCURATE) > ROUND_FINANCIAL, STATUS_BAD_ROUND_MODE);
}

// Whether a kernel of integers stays one.  Two channels are taken for one.
bool keepsIntegers(int type, int channels, ImageSize kernel) {
    if (type == DATATYPE_8U) return true;
    return type == DATATYPE_16S && channels <= 2 && kernel.width >= 3 && kernel.height >= 2;
}

// ---- Sizes ----

// Of an object that keeps the kernel, and 80 bytes a tap for what the loops make of it.
WideLen specSize(ImageSize kernel, int type, int kernelType, int channels) {
    const WideLen w = kernel.width, h = kernel.height;
    if (type == DATATYPE_64F) return roundUp(h * w * 8, 64) + 191;
    const bool single = kernelType == DATATYPE_32F || type == DATATYPE_16U ||
                        (type == DATATYPE_16S && !keepsIntegers(type, channels, kernel));
    return roundUp(h * (w + w % 2) * 80, 64) + roundUp(h * w * (single ? 4 : 2), 64) +
           (single ? roundUp(h * w * 16, 64) : 0) + 191;
}

template <class T>
constexpr WideLen workBytes(Roi roi, Window window, int n) {
    if constexpr (std::is_same_v<T, float>)
        return scratchBytes<WindowMemory<T, FloatFilter>>(roi, window, n);
    else
        return std::max(integerFilterBytes<T>(roi, window, n),
                        scratchBytes<WindowMemory<T, RoundedFilter<T>>>(roi, window, n));
}
// What a filter takes that builds the bands round the region, or all of it if the kernel is larger, and some rows to
// work with.  The filters here keep strips instead that do not grow with the region; doubles make do with the bands'.
constexpr WideLen bandBytes(ImageSize kernel, ImageSize roi, WideLen pixelBytes) {
    const WideLen kw = kernel.width, kh = kernel.height, w = roi.width, h = roi.height;
    const WideLen extendedWidth = w + kw - 1, extendedHeight = h + kh - 1;
    WideLen cells = extendedWidth * extendedHeight;
    if (kw < w && kh < h) {
        const WideLen a = kh == 2 ? 2 : kh / 2, b = kw == 2 ? 2 : kw / 2;
        cells = std::max(a > 0 ? (kh + a - 1) * extendedWidth : 0, b > 0 ? (kw - 1 + b) * extendedHeight : 0);
    }
    return roundUp(cells * pixelBytes, 32) + 32;
}
constexpr WideLen doubleBytes(ImageSize kernel, ImageSize roi) { return bandBytes(kernel, roi, 8) + 126; }
static_assert(fitsEverywhere([](ImageSize roi, ImageSize kernel) {
    using Filter = DoubleFilter<false>;
    Window part(kernel);
    part.height = std::min(part.height, Filter::mostRows);
    return scratchBytes<WindowMemory<double, Filter>>(Roi(roi), part, 1) <= doubleBytes(kernel, roi);
}));
WideLen bufferSize(ImageSize kernel, ImageSize roi, int type, int channels) {
    if (type == DATATYPE_64F) return doubleBytes(kernel, roi);
    const Window window(kernel);
    const WideLen ordinary =
        type == DATATYPE_8U    ? bandBytes(kernel, roi, channels) + workBytes<uint8_t>(roi, window, channels)
        : type == DATATYPE_32F ? bandBytes(kernel, roi, 4 * channels) + workBytes<float>(roi, window, channels)
                               : bandBytes(kernel, roi, 2 * channels) + workBytes<int16_t>(roi, window, channels);
    constexpr uint64_t enlarging = 0x08000000;
    return ownGetFeature(enlarging) ? std::max(ordinary + 63, 64 * WideLen((window.width + 3) / 4) * window.height)
                                    : ordinary + 63;
}

StatusCode ownpi_FilterBorderGetSize(ImageSize kernel, ImageSize roi, int type, int kernelType, int channels,
                                     int* specBytes, int* bufferBytes) {
    if (auto bad = firstOf({size(kernel), size(roi)})) return bad;
    if (type == DATATYPE_64F) {
        if (auto bad = firstOf({refuse(kernelType != DATATYPE_64F, STATUS_BAD_DATATYPE),
                                refuse(channels != 1, STATUS_BAD_NUM_CHANNELS), pointers(specBytes, bufferBytes)}))
            return bad;
    } else {
        // The kernel's type is looked at early; but a last one passes, when all else is right, that no kernel has.
        const bool usual = kernelType == DATATYPE_16S || kernelType == DATATYPE_32F;
        const bool odd = kernelType == DATATYPE_64F && type == DATATYPE_16S && keepsIntegers(type, channels, kernel);
        const StatusCode rest = firstOf({oneToFour(channels), pointers(specBytes, bufferBytes)});
        if (auto bad = firstOf({dataType(type), refuse(!usual && (rest || !odd), STATUS_BAD_DATATYPE), rest}))
            return bad;
    }
    const WideLen spec = specSize(kernel, type, kernelType, channels), buffer = bufferSize(kernel, roi, type, channels);
    if (auto bad = firstOf({fits<int>(buffer), fits<int>(spec)})) return put(bufferBytes, 0), bad;
    put(specBytes, int(spec)), put(bufferBytes, int(buffer));
    return STATUS_OK;
}

// ---- Spec objects ----

FilterSpec headerFor(FilterPath path, ImageSize kernel, int channels, int roundMode) {
    FilterSpec header{};
    header.path = path;
    header.kernelWidth = kernel.width, header.kernelHeight = kernel.height;
    header.roundMode = unsigned(roundMode);
    header.numChannels = unsigned(channels);
    return header;
}
constexpr int withoutHint(int roundMode) { return roundMode & ~ROUND_HINT_ACCURATE; }
constexpr StatusCode ignoring(int roundMode) {
    return roundMode & ROUND_HINT_ACCURATE ? STATUS_WARN_ACCURATE_IGNORED : STATUS_OK;
}

FilterSpec::Scale scaleOf(int32_t divisor, unsigned roundMode) {
    FilterSpec::Scale scale{};
    const bool power = divisor > 0 && (divisor & (divisor - 1)) == 0;
    scale.kind = divisor == 1 ? 0 : power ? 1 : 2;
    while (power && 1 << scale.shift < divisor) ++scale.shift;
    scale.half = scale.shift ? 1 << (scale.shift - 1) : 0;
    const double kept = power ? 1.0 / divisor : divisor;
    scale.reciprocal = float(1.0 / divisor);
    scale.divisorAsFloat = float(kept);
    scale.divisor = divisor;
    scale.divisorAsDouble = kept;
    scale.remainderMask = power ? divisor - 1 : 0;
    scale.divisorAgain = float(divisor);
    scale.roundMode = roundMode;
    return scale;
}

// The object of a kernel of real numbers: tap(k) is element k of the given one.
template <class T, class Tap>
void writeTaps(uint8_t* spec, const FilterSpec& header, Table<T> FilterParts::*table, Tap tap) {
    uint8_t* const object = objectIn(spec);
    store(object, header);
    T* const taps = (FilterParts(header).*table).in(object);
    const Len count = Len(header.kernelWidth) * header.kernelHeight;
    for (Len k = 0; k < count; ++k) put(taps + count - 1 - k, tap(k));
}
FilterPath singlePath(int type) {
    return type == DATATYPE_8U    ? single8u
           : type == DATATYPE_16S ? single16s
           : type == DATATYPE_16U ? single16u
                                  : single32f;
}

StatusCode ownpi_FilterBorderInit_16s(const int16_t* kernel, ImageSize size, int divisor, int type, int channels,
                                      int roundMode, uint8_t* spec) {
    const bool integers = type == DATATYPE_8U || type == DATATYPE_16U || type == DATATYPE_16S;
    if (auto bad = firstOf({pointers(kernel, spec), zmv::size(size), refuse(!integers, STATUS_BAD_DATATYPE),
                            oneToFour(channels), rounding(roundMode), refuse(divisor == 0, STATUS_BAD_DIVISOR)}))
        return bad;
    if (!keepsIntegers(type, channels, size)) {
        const double factor = 1.0 / divisor;
        writeTaps(spec, headerFor(singlePath(type), size, channels, withoutHint(roundMode)), &FilterParts::floats,
                  [&](Len k) { return float(get(kernel + k) * factor); });
        return ignoring(roundMode);
    }
    const bool keepsHint = channels != 2;
    auto header = headerFor(type == DATATYPE_8U ? integer8u : integer16s, size, channels,
                            keepsHint ? roundMode : withoutHint(roundMode));
    header.scale = scaleOf(divisor, unsigned(withoutHint(roundMode)));
    uint8_t* const object = objectIn(spec);
    const Len w = size.width, h = size.height;
    const auto tap = [&](Len i, Len j) { return get(kernel + (h - i) * w - 1 - j); };
    // Room for a column and a row, behind all that the object may come to hold.
    int16_t* const column = reinterpret_cast<int16_t*>(object + 2 * objectAlignment + 16 * w * h);
    int16_t* const row = column + h;
    header.sums = sumsOf(type == DATATYPE_8U, w, h, tap, column, row);
    const FilterParts parts(header);
    if (header.sums == SumsOf::words) {
        writePairs(parts.words.in(object), w, h, tap);
    } else if (header.sums == SumsOf::bytes) {
        writePairs(parts.bytes.in(object), w, h, tap);
    } else {
        writePairs(parts.column.in(object), 1, h, [&](Len i, Len) { return get(column + i); });
        std::memcpy(parts.row.in(object), row, size_t(w + w % 2) * sizeof *row);
    }
    store(object, header);
    return keepsHint ? StatusCode(STATUS_OK) : ignoring(roundMode);
}

StatusCode ownpi_FilterBorderInit_32f(const float* kernel, ImageSize size, int type, int channels, int roundMode,
                                      uint8_t* spec) {
    if (auto bad = firstOf(
            {pointers(kernel, spec), zmv::size(size), dataType(type), oneToFour(channels), rounding(roundMode)}))
        return bad;
    writeTaps(spec, headerFor(singlePath(type), size, channels, withoutHint(roundMode)), &FilterParts::floats,
              [&](Len k) { return get(kernel + k); });
    return ignoring(roundMode);
}

// Nothing is rounded here, and yet only one mode is taken.
StatusCode ownpi_FilterBorderInit_64f(const double* kernel, ImageSize size, int type, int channels, int roundMode,
                                      uint8_t* spec) {
    if (auto bad = firstOf({pointers(kernel, spec), zmv::size(size), refuse(type != DATATYPE_64F, STATUS_BAD_DATATYPE),
                            refuse(channels != 1, STATUS_BAD_NUM_CHANNELS),
                            refuse(withoutHint(roundMode) != ROUND_NEAR, STATUS_BAD_ROUND_MODE)}))
        return bad;
    writeTaps(spec, headerFor(double64f, size, channels, roundMode), &FilterParts::doubles,
              [&](Len k) { return get(kernel + k); });
    return STATUS_OK;
}

StatusCode ownpi_FilterBorderSetMode(int hint, int offset, uint8_t* spec) {
    if (auto bad = pointers(spec)) return bad;
    uint8_t* const object = objectIn(spec);
    auto header = headerOf<FilterSpec>(object);
    const auto path = header.path;
    const bool fixed = path == integer16s || path == single16s || path == single32f || path == double64f;
    if (fixed && offset != 0) return STATUS_BAD_ARGUMENT;
    if (path == double64f) return STATUS_OK;
    const bool accurate = path == integer8u || (path == integer16s && header.numChannels == 1);
    if (hint != HINT_ACCURATE)
        header.roundMode &= 3;
    else if (accurate)
        header.roundMode |= ROUND_HINT_ACCURATE;
    header.offset = offset;
    header.offsetScaled = float(int64_t(offset) * (path < single8u ? header.scale.divisor : 1));
    header.hint = hint;
    store(object, header);
    return STATUS_OK;
}

// ---- The filter ----

void doubleFilter(Image<const double> src, Image<double> dst, Roi roi, int borderType, const double* value,
                  RealTaps<double> taps, Window window, Scratch scratch) {
    eachPartOfKernel(taps, window, [&]<class Filter>(RealTaps<double> rows, Window part) {
        const Bands<double, 1> bands(src, roi, C1, part, borderType, value, false);
        walk<Filter>(bands, dst, roi, part, scratch, rows);
    });
}

template <Layout layout, class T>
StatusCode ownpi_FilterBorder(Image<const T> src, Image<T> dst, Roi roi, int borderType, const T* value,
                              const uint8_t* spec, uint8_t* buffer) {
    constexpr int n = layout.channels;
    if (auto bad = firstOf({pointers(src.data, dst.data, spec, buffer), borderValue(borderType, value), size(roi),
                            steps(src.step), rowStep(dst.step, roi.width * n * Len(sizeof(T))), border(borderType)}))
        return bad;
    const uint8_t* const object = objectIn(spec);
    const auto header = headerOf<FilterSpec>(object);
    const FilterParts parts(header);
    const Window window({header.kernelWidth, header.kernelHeight});
    Scratch scratch(buffer);
    if constexpr (std::is_same_v<T, double>) {
        doubleFilter(src, dst, roi, borderType, value, {parts.doubles.in(object), window.width, window.height, 1},
                     window, scratch);
    } else {
        const Bands<T, n> bands(src, roi, layout, window, borderType, value, false);
        const RealTaps<float> taps{parts.floats.in(object), window.width, window.height, n};
        if constexpr (std::is_same_v<T, float>)
            walk<FloatFilter>(bands, dst, roi, window, scratch, taps);
        else
            toNearest([&] {
                if constexpr (sizeof(T) == 1 || (std::is_signed_v<T> && n == 1))
                    if (header.path <= integer16s) {
                        using Limits = std::numeric_limits<T>;
                        const Quotient quotient(header.scale.divisor, unsigned(withoutHint(int(header.roundMode))),
                                                header.offset, Limits::min(), Limits::max());
                        return integerFilter<T, n>(bands, dst, roi, window, header, object, quotient, scratch);
                    }
                walk<RoundedFilter<T>>(bands, dst, roi, window, scratch, taps, header.roundMode, header.offsetScaled);
            });
    }
    return STATUS_OK;
}

// The neighbourhood is in the caller's memory, turned round like the kernel.
StatusCode ownpi_Filter_64f(Image<const double> src, Image<double> dst, Roi roi, const double* kernel, ImageSize size,
                            ImagePoint anchor, uint8_t* /* buffer */) {
    constexpr Len element = sizeof(double);
    if (auto bad = firstOf({pointers(src.data, dst.data, kernel), zmv::size(roi), zmv::size(size),
                            rowStep(src.step, (roi.width + size.width - 1) * element),
                            rowStep(dst.step, roi.width * element)}))
        return bad;
    Window window(size);
    window.right = anchor.x, window.left = size.width - 1 - window.right;
    window.bottom = anchor.y, window.top = size.height - 1 - window.bottom;
    const RealTaps<double> taps{kernel + Len(size.width) * size.height - 1, window.width, window.height, 1, -1};
    doubleFilter(src, dst, roi, BORDER_IN_MEM, nullptr, taps, window, Scratch(nullptr));
    return STATUS_OK;
}

StatusCode ownpi_FilterGetBufSize(ImageSize kernel, int roiWidth, int* bytes) {
    if (auto bad = firstOf({pointers(bytes), size(kernel), refuse(roiWidth < 1, STATUS_BAD_SIZE)})) return bad;
    put(bytes, 0);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "filter/convolve.def"
FILTER_INIT_FAMILY
FILTER_MODE_FAMILY
#undef ENTRY_OF
#define ENTRY_OF ZMV_DEFINE
FILTER_SIZE_FAMILY
FILTER_FAMILY
FILTER_64F_SIZE_FAMILY
FILTER_64F_FAMILY
