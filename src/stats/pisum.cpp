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

// What counts as nothing.
template <class T>
auto nothing([[maybe_unused]] int channels) {
    if constexpr (std::is_unsigned_v<T>) {
        return Zeros{};
    } else {
        constexpr T lowest = std::numeric_limits<T>::min(), values[4] = {lowest, lowest, lowest, lowest};
        return Pattern(bits(values), Layout{channels});
    }
}

template <class T>
PerChannel<double> sums(Image<const T> src, Roi roi, int channels, int) {
    using Term = std::conditional_t<std::is_unsigned_v<T>, Itself, AboveLowest>;
    constexpr __int128 lowest = std::numeric_limits<T>::min();
    return withChannels(channels, [&](auto n) {
        SumFold<n, T, Sums<std::make_unsigned_t<T>>, Term> fold;
        foldRegion<n>(fold, roi, nothing<T>(n), src);
        PerChannel<double> result{};
        for (int c = 0; c < n; ++c) result[c] = rounded(fold.totals()[c] + lowest * roi.width * roi.height);
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
    const auto all = sums(src, roi, channels, hint);
    for (int c = 0; c < channels; ++c) put(sum + c, all[c]);
    return STATUS_OK;
}

template <class T>
StatusCode ownpi_Mean(Image<const T> src, Roi roi, int channels, double* mean, int hint = 0) {
    if (auto bad = pointers(mean)) return bad;
    double sum[4];
    if (auto bad = ownpi_Sum(src, roi, channels, sum, hint)) return bad;
    for (int c = 0; c < channels; ++c) put(mean + c, sum[c] / double(roi.width * roi.height));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/norm.def"
SUM_FAMILY(Sum, sum)
SUM_FAMILY(Mean, mean)
