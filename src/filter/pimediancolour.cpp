// zmviFilterMedianColor: the vector median, the pixel of a window that is nearest to all the others.
#include <algorithm>

#include "filter/fixedmask.h"
#include "kernels/rounding.h"
#include "kernels/rows.h"
#include "kernels/simd_convert.h"
#include "kernels/smallwindow.h"

namespace zmv {
namespace {

template <class T, int n, int side>
class ColourMedian {
    using S = std::conditional_t<std::is_floating_point_v<T>, float, int32_t>;
    using V = Vec<S>;
    static constexpr int area = side * side, channels = 3;
    static constexpr Len most = 64;  // pixels whose windows are laid out at a time
    using Plane = S[most + side - 1 + lanes<S>];

  public:
    using Result = T;
    using Memory = NoMemory;
    static constexpr int rows = 1, step = lanes<T>;
    static constexpr Len longest = 4032, mostRows = side;  // a multiple of a pixel of three and of four
    explicit ColourMedian(Memory) {}

    __attribute__((noinline)) void operator()(const T* const* row, T* const* dst, Len count) const {
        Plane planes[channels][side];
        for (Len from = 0; from < count / n; from += most) {
            const Len pixels = std::min(most, count / n - from);
            for (int i = 0; i < side; ++i)
                for (int c = 0; c < channels; ++c) {
                    const Len end = pixels + side - 1;
                    for (Len x = 0; x < end; ++x) planes[c][i][x] = S(get(row[i] + (from + x) * n + c));
                    std::fill_n(planes[c][i] + end, lanes<S>, S(0));  // the rest of a vector
                }
            for (Len x = 0; x < pixels; x += lanes<S>) {
                int32_t best[lanes<S>];
                store(best, nearest(planes, x));
                for (Len k = 0; k < std::min<Len>(lanes<S>, pixels - x); ++k)
                    copyPixel<channels * sizeof(T)>(dst[0] + (from + x + k) * n,
                                                    row[best[k] / side] + (from + x + k + best[k] % side) * n);
            }
        }
    }

  private:
    // The numbers, in raster order, of the pixels with the least sum of distances: the middle one's if another has as
    // much, then the first one's.
    ZMV_INLINE static Vec<int32_t> nearest(const Plane (&planes)[channels][side], Len x) {
        V sums[area] = {};
        for (int a = 0; a < area; ++a)
            for (int b = a + 1; b < area; ++b) {
                const auto difference = [&](int c) __attribute__((always_inline)) {
                    const V d = load(planes[c][a / side] + x + a % side) - load(planes[c][b / side] + x + b % side);
                    if constexpr (std::is_floating_point_v<T>)
                        return (V)((Vec<int32_t>)d & INT32_MAX);
                    else
                        return d < 0 ? -d : d;
                };
                const V distance = difference(0) + difference(1) + difference(2);
                sums[a] += distance, sums[b] += distance;
            }
        const auto numbers = [](V v) __attribute__((always_inline)) {
            if constexpr (std::is_floating_point_v<T>) v = v == v ? v : fill(std::numeric_limits<S>::infinity());
            return v;
        };
        V least = numbers(sums[area / 2]);
        auto best = fill(int32_t(area / 2));
        for (int a = 0; a < area; ++a) {
            const V sum = numbers(sums[a]);
            best = sum < least ? fill(int32_t(a)) : best;
            least = sum < least ? sum : least;
        }
        return best;
    }
};

template <Layout layout, class T>
StatusCode ownpi_MedianColor(Image<const T> src, Image<T> dst, Roi roi, int mask) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), maskCode(mask, true), steps(src.step, dst.step)}))
        return bad;
    constexpr int n = layout.channels;
    const auto go = [&]<int side>() {
        const Window window({side, side});
        const Bands<T, n> bands(src, roi, layout, window, BORDER_IN_MEM, nullptr, false);
        walk<ColourMedian<T, n, side>>(bands, dst, roi, window, Scratch());
    };
    if (mask == MASK_3X3)
        go.template operator()<3>();
    else
        go.template operator()<5>();
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "filter/median.def"
MEDIAN_COLOUR_FAMILY
