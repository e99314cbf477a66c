// Minimum and maximum filters: erosion and dilation.
#include "filter/extrema.h"
#include "kernels/rounding.h"

namespace zmv {
namespace {

// Of a filter that builds the bands outside the region, or all of it where the mask is larger, and keeps a ring of
// rows.
template <class T>
constexpr WideLen bufferSize(ImageSize roi, ImageSize mask, int channels) {
    const Window w(mask);
    const WideLen pixel = WideLen(sizeof(T)) * channels, row = mask.width - 1 + WideLen(roi.width),
                  column = mask.height - 1 + WideLen(roi.height);
    WideLen cells = row * column;
    if (mask.width < roi.width && mask.height < roi.height) {
        cells = w.bottom < 1 ? 0 : (mask.height - 1 + w.bottom) * row;
        if (w.right != 0) cells = std::max(cells, (mask.width - 1 + w.right) * column);
    }
    return roundUp(cells * pixel, 32) + roundUp(roi.width * pixel, 32) * mask.height + roundUp(mask.width * pixel, 32) +
           (std::is_same_v<T, float> ? 64 : 0) + 32;
}
template <class T>
constexpr bool memoryFits(ImageSize roi, ImageSize mask) {
    for (int n : {1, 3, 4})
        if (scratchBytes<ExtremaMemory<T>>(Roi(roi), Window(mask), n) > bufferSize<T>(roi, mask, n)) return false;
    return true;
}
static_assert(fitsEverywhere(memoryFits<uint8_t>) && fitsEverywhere(memoryFits<int16_t>) &&
              fitsEverywhere(memoryFits<float>));

StatusCode ownpi_ExtremumGetBufferSize(ImageSize roi, ImageSize mask, int type, int channels, int* size) {
    if (auto bad = firstOf({pointers(size), zmv::size(roi), maskSize(mask), channelCount(channels), dataType(type)}))
        return bad;
    return answerSize(type == DATATYPE_8U    ? bufferSize<uint8_t>(roi, mask, channels)
                      : type == DATATYPE_32F ? bufferSize<float>(roi, mask, channels)
                                             : bufferSize<int16_t>(roi, mask, channels),
                      size);
}

template <class Op, Layout layout, class T>
StatusCode ownpi_ExtremumBorder(Image<const T> src, Image<T> dst, Roi roi, ImageSize mask, int borderType,
                                const T* value, uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, dst.data, buffer), size(roi), maskSize(mask), border(borderType),
                            borderValue(neededBorder(borderType), value)}))
        return bad;
    constexpr int n = layout.channels;
    const Window window(mask);
    const Bands<T, n> bands(src, roi, layout, window, neededBorder(borderType), value, false);
    if (mask.width == 3 && mask.height == 3)
        applyKernel(bands, dst, roi, window, smallExtremum<Op, 3, n, layout.alpha, T>);
    else if (mask.width == 5 && mask.height == 5)
        applyKernel(bands, dst, roi, window, smallExtremum<Op, 5, n, layout.alpha, T>);
    else
        extrema<Op, T>(&bands, layOutRow<T, n>, dst, roi, layout, window, Scratch(buffer));
    return STATUS_OK;
}

template <class Op>
StatusCode ownpi_Extremum3x3(Image<const double> src, Image<double> dst, Roi roi) {
    const Len row = roi.width * Len(sizeof(double)), frame = 2 * Len(sizeof(double));
    if (auto bad = firstOf({pointers(src.data, dst.data), steps(src.step, dst.step), size(roi),
                            refuse(src.step < row + frame || dst.step < row, STATUS_STEP_TOO_SMALL)}))
        return bad;
    const Window window({3, 3});
    applyKernel(Bands<double, 1>(src, roi, C1, window, BORDER_IN_MEM, nullptr, false), dst, roi, window,
                smallExtremum<Op, 3, 1, false, double>);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST  // which also takes no small number for zero
#include "filter/extrema.def"
EXTREMUM_SIZE_FAMILY(Min)
EXTREMUM_FAMILY(Min)
EXTREMUM_SIZE_FAMILY(Max)
EXTREMUM_FAMILY(Max)
MORPHOLOGY_FAMILY(Dilate, Max)
MORPHOLOGY_FAMILY(Erode, Min)
