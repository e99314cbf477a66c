// Norms of images: what pinorm8u, pinorm16u and pinorm32f share.
#pragma once

#include <limits>

#include "kernels/rounding.h"
#include "stats/realsums.h"

namespace zmv {

// The terms of a norm brought together: the largest, their sum, or the sum of their squares.
struct Norm_Inf {};
struct Norm_L1 {};
struct Norm_L2 {};

struct Squared {
    template <class V>
    ZMV_INLINE V operator()(V a) const {
        return a * a;
    }
    template <class V>
    ZMV_INLINE V operator()(V a, V b) const {
        return (a - b) * (a - b);
    }
};

// Of integers, exactly, and then rounded once.
template <class Norm, class Term, class T, class... S>
PerChannel<double> measured(Roi roi, int channels, int, Image<const T> first, S... more) {
    using U = std::make_unsigned_t<T>;
    return withChannels(channels, [&](auto n) {
        PerChannel<double> result{};
        if constexpr (std::is_same_v<Norm, Norm_Inf>) {
            ExtremeFold<n, T, U, Term, Larger> fold(0);
            foldRegion<n>(fold, roi, Zeros{}, first, more...);
            const auto largest = fold.extremes();
            for (int c = 0; c < n; ++c) result[c] = double(largest[c]);
        } else {
            SumFold<n, T, std::conditional_t<std::is_same_v<Norm, Norm_L1>, Sums<U>, SquareSums<U>>, Term> fold;
            foldRegion<n>(fold, roi, Zeros{}, first, more...);
            for (int c = 0; c < n; ++c) result[c] = rounded(fold.totals()[c]);
        }
        return result;
    });
}

// Of real numbers.  The largest distance and all accurate sums are formed in double.
template <class Norm, class Term, class... S>
PerChannel<double> measured(Roi roi, int channels, int hint, Image<const float> first, S... more) {
    if constexpr (std::is_same_v<Norm, Norm_Inf>) {
        using R = std::conditional_t<sizeof...(more) == 0, float, double>;
        return realLargest<R>(Term{}, roi, channels, first, more...);
    } else {
        using Summed = std::conditional_t<std::is_same_v<Norm, Norm_L1>, Term, Squared>;
        if (hint == HINT_ACCURATE) return realSums<double>(Summed{}, roi, channels, first, more...);
        return realSums<float>(Summed{}, roi, channels, first, more...);
    }
}

template <class Norm>
double finished(double measure) {
    return std::is_same_v<Norm, Norm_L2> ? __builtin_sqrt(measure) : measure;
}

template <class Norm, class T>
StatusCode ownpi_Norm(Image<const T> src, Roi roi, int channels, double* value, int hint = 0) {
    if (auto bad = firstOf({pointers(src.data, value), size(roi), steps(src.step)})) return bad;
    const auto norm = measured<Norm, Magnitude>(roi, channels, hint, src);
    for (int c = 0; c < channels; ++c) put(value + c, finished<Norm>(norm[c]));
    return STATUS_OK;
}

template <class T>
StatusCode checkedPair(Image<const T> src1, Image<const T> src2, Roi roi, const double* value) {
    return firstOf({pointers(src1.data, src2.data, value), size(roi), steps(src1.step, src2.step)});
}
template <class Norm, class T>
StatusCode ownpi_NormDiff(Image<const T> src1, Image<const T> src2, Roi roi, int channels, double* value,
                          int hint = 0) {
    if (auto bad = checkedPair(src1, src2, roi, value)) return bad;
    const auto norm = measured<Norm, Distance>(roi, channels, hint, src1, src2);
    for (int c = 0; c < channels; ++c) put(value + c, finished<Norm>(norm[c]));
    return STATUS_OK;
}

// The norm of the difference over that of the second image.  Less than the smallest normal number counts as zero.
template <class Norm, class T>
StatusCode ownpi_NormRel(Image<const T> src1, Image<const T> src2, Roi roi, int channels, double* value, int hint = 0) {
    if (auto bad = checkedPair(src1, src2, roi, value)) return bad;
    const auto distance = measured<Norm, Distance>(roi, channels, hint, src1, src2);
    const auto norm = measured<Norm, Magnitude>(roi, channels, hint, src2);
    constexpr double smallest = std::numeric_limits<double>::min();
    StatusCode status = STATUS_OK;
    for (int c = 0; c < channels; ++c) {
        double ratio = distance[c] / norm[c];
        if (norm[c] < smallest) {
            status = STATUS_WARN_DIV_BY_ZERO;
            ratio = distance[c] >= smallest ? std::numeric_limits<double>::infinity()
                                            : std::numeric_limits<double>::quiet_NaN();
        }
        put(value + c, finished<Norm>(ratio));
    }
    return status;
}

}  // namespace zmv
