// zmviSum and zmviMean.
#include "kernels/rounding.h"
#include "stats/realsums.h"

namespace zmv {
namespace {

struct Itself {
    template <class V>
    ZMV_INLINE V operator()(V v) const {
        return v;
    }
};
// Signed numbers, counted from the smallest on.
struct AboveLowest {
    template <class V>
    ZMV_INLINE auto operator()(V v) const {
        return asUnsigned(v ^ std::numeric_limits<Element<V>>::min());
    }
};

template <class T>
PerChannel<double> sums(Image<const T> src, Roi roi, int channels, int) {
    constexpr auto lowest = std::numeric_limits<T>::min();
    using Term = std::conditional_t<lowest == 0, Itself, AboveLowest>;
    constexpr T nothing[4] = {lowest, lowest, lowest, lowest};
    return withChannels(channels, [&](auto n) {
        SumFold<n, T, Sums<std::make_unsigned_t<T>>, Term> fold;
        foldRegion<n>(fold, roi, nothing, src);
        PerChannel<double> result{};
        for (int c = 0; c < n; ++c) result[c] = rounded(fold.totals()[c] + __int128(lowest) * roi.width * roi.height);
        return result;
    });
}
PerChannel<double> sums(Image<const float> src, Roi roi, int channels, int hint) {
    if (hint == HINT_ACCURATE) return realSums<double>(Itself{}, roi, channels, src);
    return realSums<float>(Itself{}, roi, channels, src);
}

// Every step will do.
template <class T>
StatusCode ownpi_Sum(Image<const T> src, Roi roi, int channels, double* sum, int hint = 0) {
    if (auto bad = firstOf({pointers(src.data, sum), size(roi)})) return bad;
    const RoundingControl control(RoundingControl::toNearestEven);
    const auto all = sums(src, roi, channels, hint);
    for (int c = 0; c < channels; ++c) put(sum + c, all[c]);
    return STATUS_OK;
}

template <class T>
StatusCode ownpi_Mean(Image<const T> src, Roi roi, int channels, double* mean, int hint = 0) {
    if (auto bad = pointers(mean)) return bad;
    double sum[4];
    if (auto bad = ownpi_Sum(src, roi, channels, sum, hint)) return bad;
    const RoundingControl control(RoundingControl::toNearestEven);
    for (int c = 0; c < channels; ++c) put(mean + c, sum[c] / double(roi.width * roi.height));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "stats/norm.def"
SUM_FAMILY(Sum, sum)
SUM_FAMILY(Mean, mean)
