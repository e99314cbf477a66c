// Medians of fixed shapes: crosses, the weighted middle of 3 x 3, three planes.
#include "filter/fixedmask.h"
#include "filter/mediannetwork.h"
#include "kernels/pointwise.h"

namespace zmv {
namespace {

// A rule for windows in memory: Shape makes a vector of results of read(i, j), the neighbour in row i and column j.
template <class T, class Shape>
class ShapeFilter {
  public:
    using Result = T;
    using Memory = NoMemory;
    static constexpr int rows = 1, step = lanes<T>;
    static constexpr Len longest = longestStrip, mostRows = 5;
    ShapeFilter(Memory, Len distance, const Pattern* kept, Shape shape)
        : distance_(distance), kept_(kept), shape_(shape) {}

    __attribute__((noinline)) void operator()(const T* const* row, T* const* dst, Len count) const {
        const auto put = [&](Len x, int n, auto load) __attribute__((always_inline)) {
            const auto read = [&](int i, int j) __attribute__((always_inline)) {
                return load(row[i] + x + j * distance_);
            };
            putRanks(dst[0] + x, shape_(read), n, kept_);
        };
        if (count < step)
            return put(
                0, int(count), [&](const T* p) __attribute__((always_inline)) { return loadPart(p, int(count)); });
        eachVectorOf<step>(
            count, [&](Len, Len x, int n) __attribute__((always_inline)) {
                put(
                    x, n, [](const T* p) __attribute__((always_inline)) { return load(p); });
            });
    }

  private:
    Len distance_;
    const Pattern* kept_;
    Shape shape_;
};
template <Layout layout, class T, class Shape>
void filterShape(Image<const T> src, Image<T> dst, Roi roi, int side, Shape shape) {
    constexpr int n = layout.channels;
    const Window window({side, side});
    const Bands<T, n> bands(src, roi, layout, window, BORDER_IN_MEM, nullptr, false);
    const Pattern colours = Pattern::mask<T>(layout.used(), n);
    walk<ShapeFilter<T, Shape>>(bands, dst, roi, window, Scratch(), Len(n), layout.alpha ? &colours : nullptr, shape);
}

// The pixel's row and its column.
template <int side>
struct Cross {
    template <class Read>
    ZMV_INLINE auto operator()(const Read& read) const {
        constexpr int middle = side / 2;
        decltype(read(0, 0)) values[2 * side - 1];
        unrolled<side>([&](auto k) __attribute__((always_inline)) {
            values[k] = read(k, middle);
            if constexpr (k != middle) values[side + k - (k > middle)] = read(middle, k);
        });
        return resultOf<middleOfAny<2 * side - 1>>(values);
    }
};
template <Layout layout, class T>
StatusCode ownpi_MedianCross(Image<const T> src, Image<T> dst, Roi roi, int mask) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), maskCode(mask, true), steps(src.step, dst.step)}))
        return bad;
    if (mask == MASK_3X3)
        filterShape<layout>(src, dst, roi, 3, Cross<3>());
    else
        filterShape<layout>(src, dst, roi, 5, Cross<5>());
    return STATUS_OK;
}

// The middle counts `weight` times among 8 + weight: it is the median itself, unless more than half lie on one side of
// it.  Then the median is the neighbour that has just enough before it: number `low` or `high` of the eight, none at
// -1.
struct Weighted {
    int low, high;
    explicit Weighted(int weight) : low((7 + weight) / 2 - weight), high((7 + weight) / 2) {}
    template <class Read>
    ZMV_INLINE auto operator()(const Read& read) const {
        Vec<uint8_t> all[8];
        unrolled<8>([&](auto k) __attribute__((always_inline)) {
            constexpr int at = k + (k > 3);
            all[k] = read(at / 3, at % 3);
        });
        run<sorting<8>>(all);
        const auto number = [&](int wanted) __attribute__((always_inline)) {
            Vec<uint8_t> v{};
            unrolled<8>([&](auto k) __attribute__((always_inline)) {
                if (wanted == k) v = all[sorting<8>.results.at[k]];
            });
            return v;
        };
        return lesser(greater(read(1, 1), number(low)), number(high));
    }
};
StatusCode ownpi_MedianWeightedCenter3x3(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, int weight) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), refuse(weight < 1, STATUS_OUT_OF_RANGE),
                            steps(src.step, dst.step)}))
        return bad;
    if (weight > 8)
        for (Len y = 0; y < roi.height; ++y) copyRow(dst.row(y), src.row(y), roi.width);
    else
        filterShape<C1>(src, dst, roi, 3, Weighted(weight));
    return STATUS_OK;
}

struct MiddleOfThree {
    template <class V>
    ZMV_INLINE V operator()(V a, V b, V c) const {
        return greater(lesser(a, b), lesser(greater(a, b), c));
    }
};
StatusCode ownpi_MedianOfPlanes(const uint8_t* const* src, int srcStep, Image<uint8_t> dst, Roi roi) {
    if (auto bad = firstOf({pointers(src, dst.data), src ? pointers(get(src), get(src + 1), get(src + 2)) : STATUS_OK,
                            size(roi), steps(srcStep, dst.step)}))
        return bad;
    pointwise(MiddleOfThree(), dst, roi, C1, false, image(get(src), srcStep), image(get(src + 1), srcStep),
              image(get(src + 2), srcStep));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/median.def"
MEDIAN_CROSS_FAMILY
MEDIAN_WEIGHTED_FAMILY
MEDIAN_PLANES_FAMILY
