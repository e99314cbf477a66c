// zmviCountInRange.
#include "kernels/rounding.h"
#include "stats/reduce.h"

namespace zmv {
namespace {

// What lies outside is counted: to fill up vectors with there is always a bound, which is inside.
struct OutOfRange {
    template <class V>
    ZMV_INLINE auto operator()(V v, V low, V high) const {
        using Ones = Vec<Bits<Element<V>>>;
        if constexpr (std::is_integral_v<Element<V>>)
            return (Ones)(v - low > high - low) & 1;
        else
            return (Ones) ~((v >= low) & (v <= high)) & 1;
    }
};

template <int n, class T>
struct OutOfRangeFold : SumFold<n, T, Counts<Bits<T>>, OutOfRange> {
    Group<n, Vec<T>> low, high;
    OutOfRangeFold(const Pattern& lows, const Pattern& highs) {
        for (int k = 0; k < groupVectors<n>; ++k)
            low[k] = (Vec<T>)lows.at(k * vectorBytes), high[k] = (Vec<T>)highs.at(k * vectorBytes);
    }
    using Sums = SumFold<n, T, Counts<Bits<T>>, OutOfRange>;
    ZMV_INLINE void add(typename Sums::Vectors& counts, const Group<n, Vec<T>>& group) const {
        Sums::add(counts, group, low, high);
    }
};

// The step is looked at before the size.
template <class T>
StatusCode ownpi_CountInRange(Image<const T> src, Roi roi, Layout layout, int* counts, const T* low, const T* high) {
    if (auto bad = firstOf({pointers(src.data, counts, low, high), steps(src.step), size(roi)})) return bad;
    for (int c = 0; c < layout.used(); ++c)
        if (!(get(low + c) <= get(high + c))) return STATUS_BAD_RANGE;  // NaN, too
    const Pattern lows(bits(low), layout), highs(bits(high), layout);
    withChannels(layout.channels, [&](auto n) {
        OutOfRangeFold<n, T> fold(lows, highs);
        foldRegion<n>(fold, roi, lows, src);
        for (int c = 0; c < layout.used(); ++c) {
            const Len count = roi.width * roi.height - Len(fold.totals()[c]);
            put(counts + c, int(std::min<Len>(count, std::numeric_limits<int>::max())));
        }
    });
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
// Small numbers count as what they are.
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/minmax.def"
COUNT_FAMILY
