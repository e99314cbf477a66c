// Medians of windows of any size, with borders: the driver, and the size of its work buffer.
#pragma once

#include "filter/medianhistogram.h"
#include "filter/medianranks.h"

namespace zmv {

inline StatusCode oddMask(ImageSize mask) {
    return refuse(mask.width < 1 || mask.height < 1 || mask.width % 2 == 0 || mask.height % 2 == 0,
                  STATUS_BAD_MASK_SIZE);
}

// use(WindowMiddle<..>()) where windows of this size have a network.
template <class Use>
constexpr bool withNetwork(Window window, Use use) {
    bool found = false;
    const auto offer = [&]<int width, int height>() {
        if (found || window.width != width || window.height != height) return;
        found = true;
        use(std::integral_constant<int, width>{}, std::integral_constant<int, height>{});
    };
    const auto offerRows = [&]<int height>() {
        offer.template operator()<3, height>(), offer.template operator()<5, height>();
    };
    offer.template operator()<1, 3>(), offer.template operator()<1, 5>();
    offerRows.template operator()<1>(), offerRows.template operator()<3>(), offerRows.template operator()<5>();
    offer.template operator()<7, 7>();
    return found;
}
constexpr bool hasNetwork(Window window) {
    return withNetwork(window, [](auto, auto) {});
}

// ---- Sizes ----

// Of bytes with a histogram of 256 bins a column, the larger ones in strips and bands beside the region, and rows.  The
// counters are those of a method that gives all of a window's histogram one type; ours are narrower and have coarse
// bins beside them.
constexpr WideLen bandBytes(Roi roi, Window mask, WideLen elementBytes) {
    const WideLen width = roi.width, height = roi.height, mw = mask.width, mh = mask.height;
    const bool whole = mw >= width || mh >= height;
    const WideLen strips = whole ? WideLen(0) : roundUp(2 * height * mask.left, 64) + roundUp(2 * width * mask.top, 64);
    const WideLen extended = whole ? (mh + height - 1) * (mw + width - 1)
                                   : std::max((mask.top + mh) * (width + mw - 1), (mask.left + mw) * (height + mh - 1));
    return (strips + roundUp(width, 32) * mh * 2 + roundUp(extended, 32)) * elementBytes;
}
constexpr WideLen histogramBytes(Roi roi, Window mask) {
    const WideLen columns = mask.width + roi.width;
    const Len side = std::max(mask.width, mask.height);
    if (side >= 257) return columns * 1024;
    if (side >= 17) return columns * 512;
    if (side >= 7) return columns * 256;
    if (side <= 5 && mask.area() > 1 && (mask.width == 1 || mask.height == 1 || mask.width == mask.height)) return 0;
    return roundUp(mask.area() * 4, 32);
}
constexpr WideLen byteBuffer(Roi roi, Window mask) { return bandBytes(roi, mask, 1) + histogramBytes(roi, mask); }
static_assert(fitsEverywhere([](ImageSize roi, ImageSize mask) {
    const Window window({mask.width | 1, mask.height | 1});
    const WideLen bytes = byteBuffer(Roi(roi), window);
    const bool small = window.width < 7 && window.height < 7;
    return small || bytes > INT32_MAX || withCounters(window, [&](auto c, auto) {
               return scratchBytes<HistogramMemory<decltype(c)>>(window.width) <= bytes;
           });
}));

template <class T>
constexpr WideLen bufferSize(Roi roi, Window mask, int channels) {
    if constexpr (sizeof(T) == 1)
        return byteBuffer(roi, mask) * channels;
    else
        return bandBytes(roi, mask, WideLen(sizeof(T)) * channels) +
               (hasNetwork(mask) ? WideLen(0) : scratchBytes<RanksMemory<T>>(roi, mask));
}

// ---- The filters ----

// Small windows need no buffer: what lies beyond the region is laid out here.
template <class T, int n, int width, int height>
void networkMedian(const Bands<T, n>& bands, Image<T> dst, Roi roi, Window window, const Pattern* kept) {
    using Rule = MedianNetwork<T, width, height>;
    constexpr Window constant({width, height});
    constexpr auto bytes = size_t(scratchBytes<WindowMemory<T, Rule>>(Roi(1, 1), constant, n));
    static_assert(bytes <= 14500);
    uint8_t memory[bytes];
    walk<Rule>(bands, dst, roi, window, Scratch(memory), Len(n), kept);
}

template <class T, int n>
void anyMedian(const Bands<T, n>& bands, Image<T> dst, Roi roi, Layout layout, Window window, uint8_t* buffer) {
    for (int c = 0; c < layout.used(); ++c)
        if constexpr (sizeof(T) == 1)
            withCounters(window, [&](auto column, auto sum) {
                HistogramMedian<decltype(column), decltype(sum), n>(bands, c, dst, roi, window)
                    .run(Scratch(buffer), Len(byteBuffer(roi, window)));
            });
        else
            RankMedian<T, n>(bands, c, dst, roi, window).run(Scratch(buffer));
}

template <class T>
void copyColours(Image<const T> src, Image<T> dst, Roi roi, Layout layout) {
    if (src.data == dst.data) return;
    for (Len y = 0; y < roi.height; ++y)
        if (layout.alpha)
            for (Len x = 0; x < roi.width; ++x) copyPixel<3 * sizeof(T)>(dst.row(y) + x * 4, src.row(y) + x * 4);
        else
            copyRow(dst.row(y), src.row(y), roi.width * layout.channels * Len(sizeof(T)));
}

template <Layout layout, class T>
StatusCode ownpi_MedianBorder(Image<const T> src, Image<T> dst, Roi roi, ImageSize mask, int borderType, const T* value,
                              uint8_t* buffer) {
    constexpr int n = layout.channels;
    const int word = neededBorder(borderType);
    if (auto bad = firstOf({pointers(src.data, dst.data, buffer), size(roi), oddMask(mask),
                            unmirroredBorder(borderType), borderValue(word, value)}))
        return bad;
    const Window window(mask);
    if (window.area() == 1) return copyColours(src, dst, roi, layout), STATUS_OK;
    const Bands<T, n> bands(src, roi, layout, window, word, value, false);
    const Pattern colours = Pattern::mask<T>(layout.used(), n);
    const auto network = [&](auto width, auto height) {
        networkMedian<T, n, width, height>(bands, dst, roi, window, layout.alpha ? &colours : nullptr);
    };
    if (!withNetwork(window, network)) anyMedian<T, n>(bands, dst, roi, layout, window, buffer);
    return STATUS_OK;
}

}  // namespace zmv
