// Medians of real numbers: zmviFilterMedianBorder_32f_C1R, and zmviFilterMedian with its queries.
#include "filter/medianborder.h"

namespace zmv {
namespace {

template <class T>
StatusCode ownpi_MedianGetBufferSize(ImageSize roi, ImageSize mask, int channels, int* bytes) {
    const bool known = sizeof(T) == 8 ? channels == 1 : channels == 3 || channels == 4;
    if (auto bad = firstOf({pointers(bytes), size(roi), maskSize(mask), refuse(!known, STATUS_BAD_CHANNELS)}))
        return bad;
    const WideLen total = scratchBytes<RanksMemory<T>>(Roi(roi), Window(mask));
    if (auto bad = fits<int>(total)) return bad;
    put(bytes, int(total));
    return STATUS_OK;
}

template <Layout layout, class T>
StatusCode ownpi_Median(Image<const T> src, Image<T> dst, Roi roi, ImageSize mask, ImagePoint anchor, uint8_t* buffer) {
    const bool outside = anchor.x < 0 || anchor.x >= mask.width || anchor.y < 0 || anchor.y >= mask.height;
    if (auto bad = firstOf({pointers(src.data, dst.data, buffer), size(roi), maskSize(mask),
                            refuse(outside, STATUS_BAD_ANCHOR), steps(src.step, dst.step)}))
        return bad;
    Window window(mask);
    window.left = anchor.x, window.right = window.width - 1 - window.left;
    window.top = anchor.y, window.bottom = window.height - 1 - window.top;
    constexpr int n = layout.channels;
    const Bands<T, n> bands(src, roi, layout, window, BORDER_IN_MEM, nullptr, false);
    // The rows of larger windows do not fit the stack.
    const auto network = [&](auto width, auto height) {
        if constexpr (width * height < 49) networkMedian<T, n, width, height>(bands, dst, roi, window, nullptr);
    };
    if (window.area() >= 49 || !withNetwork(window, network))
        for (int c = 0; c < n; ++c) RankMedian<T, n>(bands, c, dst, roi, window).run(Scratch(buffer));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/median.def"
MEDIAN_BORDER(32f, C1)
MEDIAN_SIZE_FAMILY
MEDIAN_FAMILY
