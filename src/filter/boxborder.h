// The bordered window operations, box filter and window sums: one driver, with the result as a parameter.
#pragma once

#include "filter/mean3x3.h"
#include "filter/tree.h"
#include "filter/windows.h"

namespace zmv {

// Bytes of the work buffer.  The parts are those of a filter that builds the bands outside the region, keeps a row of
// sums, and saves rows in place; the driver below has other parts but never needs more.
inline StatusCode ownpi_BoxGetBufferSize(ImageSize roi, ImageSize mask, int type, int channels, int* bufferSize) {
    if (auto bad = firstOf({pointers(bufferSize), size(roi), maskSize(mask), dataType(type), channelCount(channels)}))
        return bad;
    const bool twoBytes = type == DATATYPE_16U || type == DATATYPE_16S;
    using Size = __int128;  // the largest arguments pass 64 bits
    const Window w(mask);
    const Size width = roi.width, height = roi.height, n = channels,
               element = twoBytes               ? 2
                         : type == DATATYPE_32F ? 4
                                                : 1;
    const Size extendedWidth = width + w.width - 1, extendedHeight = height + w.height - 1;
    const Size bands = (w.height == 2 ? extendedWidth : 0) + (w.width == 2 ? extendedHeight : 0) +
                       2 * ((w.width + w.right - 1) * extendedHeight + (w.height + w.bottom - 1) * extendedWidth);
    const Size sums = (width + w.width + 3) * (n == 1 ? 4 : 16);
    Size image = n * width * element * (w.top + 1) + 64;
    const bool hasInterior = width - w.left - w.right > w.width && height - w.top - w.bottom > w.height;
    if (!hasInterior) image = std::max(image, extendedWidth * extendedHeight * n * element);
    const Size total = 4 * n * bands + sums + image + (w.top + 1) * 8;
    if (total > INT32_MAX) return STATUS_SIZE_EXCEEDS_INT;
    *bufferSize = int(total);
    return STATUS_OK;
}

template <class Output, class T, class D, int n>
void integerWindows(Bands<T, n>& bands, Image<D> dst, Roi roi, Layout layout, Window window, const Output& output,
                    Scratch scratch) {
    const Pattern colours = Pattern::mask<D>(layout.used(), n);
    const Pattern* const kept = layout.alpha ? &colours : nullptr;
    const bool wide = !sumsFit<T>(window.area(), INT32_MAX);
    if constexpr (requires { requires Output::isByteMean; })
        if (window.width == 3 && window.height == 3 && !kept && !bands.inPlace()) {
            bands.takeMemory(scratch);
            return Mean3x3<n>(bands, dst, roi).run(scratch);
        }
    const auto run = [&](auto zero) {
        using A = decltype(zero);
        eachLine<A>(bands, roi, window, scratch, [&](Len y, const A* line) {
            if constexpr (requires { output.template putShortRow<n>(dst.data, line, roi.width); })
                if (output.fitsShort() && !kept) return output.template putShortRow<n>(dst.row(y), line, roi.width);
            const LineReader<A> reader{line};
            if (wide) return putRow<n, true>(output, dst.row(y), reader, roi.width, window.width, kept);
            if constexpr (sizeof(A) < 8) putRow<n, false>(output, dst.row(y), reader, roi.width, window.width, kept);
        });
    };
    if constexpr (sizeof(T) == 1)
        if (sumsFit<T>(window.height, UINT16_MAX)) return run(uint16_t(0));
    if (sumsFit<T>(window.height, INT32_MAX)) return run(int32_t(0));
    run(int64_t(0));
}

template <class Output, int n>
void floatWindows(Bands<float, n>& bands, Image<float> dst, Roi roi, Layout layout, Window window, const Output& output,
                  Scratch scratch) {
    const Pattern colours = Pattern::mask<float>(layout.used(), n);
    const Len length = roi.width * n;
    float* const line = scratch.take<float>((roi.width + window.width - 1) * n);
    RowTree<float> tree(scratch.take<float>(RowTree<float>::rowsNeeded(window.height) * length), window.height, length);
    bands.takeMemory(scratch);
    float* const home = line + window.left * n;
    for (Len y = -window.top; y < roi.height + window.bottom; ++y) {
        const Len finished = std::max<Len>(0, y - window.bottom);
        const auto row = bands.row(y, finished);
        bands.eachPart([&](Len column, bool outside, Len count) {
            copyRow(home + column * n, (outside ? row.outside : row.inside) + column * n,
                    count * n * Len(sizeof(float)));
        });
        bands.fillColumns(home, bands.value());
        sumAlong(tree.nextRow(), line, length, window.width, Len(n));
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

template <class Output, Layout layout, class T, class D>
StatusCode ownpi_BoxBorder(Image<const T> src, Image<D> dst, Roi roi, ImageSize mask, int borderType, const T* value,
                           uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, dst.data, buffer), steps(src.step, dst.step), size(roi), maskSize(mask),
                            border(borderType), borderValue(borderType, value)}))
        return bad;
    const Window window(mask);
    // Floats read each row once: with windows of one row, before it is overwritten.
    const bool inPlace =
        static_cast<const void*>(src.data) == dst.data && (window.height > 1 || !std::is_floating_point_v<T>);
    Bands<T, layout.channels> bands(src, roi, layout, window, borderType, value, inPlace);
    const Output output(window);
    if constexpr (std::is_same_v<T, float>)
        floatWindows(bands, dst, roi, layout, window, output, Scratch(buffer));
    else
        integerWindows(bands, dst, roi, layout, window, output, Scratch(buffer));
    return STATUS_OK;
}

}  // namespace zmv
