// The bordered window operations, box filter and window sums: one driver, with the result as a parameter.
#pragma once

#include "filter/mean3x3.h"
#include "filter/windows.h"
#include "kernels/rounding.h"
#include "kernels/tree.h"

namespace zmv {

// Bytes of the work buffer, by a formula that callers know.  The parts are those of a filter that builds the bands
// outside the region, keeps a row of sums, and saves rows in place; the drivers below have other parts, which fit.
constexpr WideLen boxBufferSize(ImageSize roi, ImageSize mask, int elementBytes, int channels) {
    const Window w(mask);
    const WideLen width = roi.width, height = roi.height, n = channels;
    const WideLen extendedWidth = width + w.width - 1, extendedHeight = height + w.height - 1;
    const WideLen bands = (w.height == 2 ? extendedWidth : 0) + (w.width == 2 ? extendedHeight : 0) +
                          2 * ((w.width + w.right - 1) * extendedHeight + (w.height + w.bottom - 1) * extendedWidth);
    const WideLen sums = (width + w.width + 3) * (n == 1 ? 4 : 16);
    WideLen image = n * width * elementBytes * (w.top + 1) + 64;
    const bool hasInterior = width - w.left - w.right > w.width && height - w.top - w.bottom > w.height;
    if (!hasInterior) image = std::max(image, extendedWidth * extendedHeight * n * elementBytes);
    return 4 * n * bands + sums + image + (w.top + 1) * 8;
}
inline StatusCode ownpi_BoxGetBufferSize(ImageSize roi, ImageSize mask, int type, int channels, int* bufferSize) {
    if (auto bad = firstOf({pointers(bufferSize), size(roi), maskSize(mask), dataType(type), channelCount(channels)}))
        return bad;
    const int elementBytes = type == DATATYPE_8U ? 1 : type == DATATYPE_32F ? 4 : 2;
    const WideLen bytes = boxBufferSize(roi, mask, elementBytes, channels);
    if (auto bad = fits<int>(bytes)) return bad;
    put(bufferSize, int(bytes));
    return STATUS_OK;
}

template <class Output, class T, class D, int n>
void integerWindows(Bands<T, n>& bands, Image<D> dst, Roi roi, Layout layout, Window window, const Output& output,
                    Scratch scratch) {
    const Pattern colours = Pattern::mask<D>(layout.used(), n);
    const Pattern* const kept = layout.alpha ? &colours : nullptr;
    withColumnSums<T>(window, [&](auto zero) {
        using A = decltype(zero);
        eachLine<A>(bands, roi, window, scratch, [&](Len y, const A* line) {
            if constexpr (requires { output.template putShortRow<n>(dst.data, line, roi.width); })
                if (output.fitsShort() && !kept) return output.template putShortRow<n>(dst.row(y), line, roi.width);
            const auto put = [&](auto sums) { putRow(output, dst.row(y), sums, roi.width, n, kept); };
            const LineReader<A> reader{line};
            if constexpr (sizeof(A) < 8)
                if (output.takesVectors()) return put(RowSums<LineReader<A>, n>(reader, window.width));
            put(WideRowSums(reader, window.width, n));
        });
    });
}

struct TreeMemory {
    float *line, *tree;
    BandsMemory<float> bands;
    constexpr TreeMemory(Scratch& s, Roi roi, Window window, int n, BandsUse use)
        : line(s.take<float>((WideLen(roi.width) + window.width - 1) * n)),
          tree(s.take<float>(WideLen(RowTree<float>::rowsNeeded(window.height)) * roi.width * n)),
          bands(s, roi, window, n, use) {}
};

template <class Output, int n>
void floatWindows(Bands<float, n>& bands, Image<float> dst, Roi roi, Layout layout, Window window, const Output& output,
                  Scratch scratch) {
    const Pattern colours = Pattern::mask<float>(layout.used(), n);
    const Len length = roi.width * n;
    const TreeMemory memory(scratch, roi, window, n, bands.use());
    bands.workIn(memory.bands);
    RowTree<float> tree(memory.tree, window.height, length);
    float* const home = memory.line + window.left * n;
    for (Len y = -window.top; y < roi.height + window.bottom; ++y) {
        const Len finished = std::max<Len>(0, y - window.bottom);
        const auto row = bands.row(y, finished);
        bands.eachPart([&](Len column, bool outside, Len count) {
            copyRow(home + column * n, (outside ? row.outside : row.inside) + column * n,
                    count * n * Len(sizeof(float)));
        });
        bands.fillColumns(home, bands.value());
        sumAlong(tree.nextRow(), memory.line, length, window.width, Len(n));
        tree.push();
        if (!tree.full()) continue;
        const Len result = y - window.bottom;
        bands.save(result);
        float* const to = dst.row(result);
        tree.sum([&](Len i, auto sum, int count) {
            auto value = output.value(sum);
            if (layout.alpha)  // a vector holds whole pixels
                value = (Vec<float>)select(colours.at(0), (Vec<uint8_t>)value, (Vec<uint8_t>)loadUpTo(to + i, count));
            storeUpTo(to + i, value, count);
        });
    }
}

// What has passed the checks.
template <class Output, Layout layout, class T, class D>
void boxWindows(Image<const T> src, Image<D> dst, Roi roi, Window window, int borderType, const T* value,
                uint8_t* buffer) {
    // Floats read each row once: with windows of one row, before it is overwritten.
    const bool inPlace =
        static_cast<const void*>(src.data) == dst.data && (window.height > 1 || !std::is_floating_point_v<T>);
    Bands<T, layout.channels> bands(src, roi, layout, window, borderType, value, inPlace);
    if constexpr (requires { requires Output::isByteMean; } && !layout.alpha)
        if (window.width == 3 && window.height == 3 && !inPlace && mean3x3(bands, dst, roi, window, Scratch(buffer)))
            return;
    toNearestIf<std::is_integral_v<T>>([&] {
        const Output output(window);
        if constexpr (std::is_same_v<T, float>)
            floatWindows(bands, dst, roi, layout, window, output, Scratch(buffer));
        else
            integerWindows(bands, dst, roi, layout, window, output, Scratch(buffer));
    });
}
template <class Output, Layout layout, class T, class D>
StatusCode ownpi_BoxBorder(Image<const T> src, Image<D> dst, Roi roi, ImageSize mask, int borderType, const T* value,
                           uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, dst.data, buffer), steps(src.step, dst.step), size(roi), maskSize(mask),
                            border(borderType), borderValue(borderType, value)}))
        return bad;
    boxWindows<Output, layout>(src, dst, roi, Window(mask), borderType, value, buffer);
    return STATUS_OK;
}

}  // namespace zmv
