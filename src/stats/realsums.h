// Sums of real numbers: in one order, whatever the build, the alignment and the distance of the rows.
//
// Element i of a row goes to partial sum i % 48, or i % 24 where the partial sums are double: whole pixels, and vectors
// of every build.  Partial sums of float join the totals, of double, when 2^15 elements or more have gone into them,
// which is looked at after each row and, in rows longer than 49152 elements, after each 49152.  At the end the totals
// of a channel are added one after another, from the lowest.
#pragma once

#include <limits>

#include "kernels/simd_convert.h"
#include "stats/reduce.h"

namespace zmv {

template <class R>
constexpr int partialSums = sizeof(R) == 4 ? 48 : 24;

// The vectors of R that make a group of partial sums.  Beyond the end of a row they are zero, which changes no sum.
template <class R>
using Partials = std::array<Vec<R>, partialSums<R> / lanes<R>>;
template <class R, class Step, class... T>
ZMV_INLINE void eachPartial(Len count, bool far, Step step, const T*... rows) {
    constexpr int vectors = partialSums<R> / lanes<R>;
    Len x = 0;
    for (; x + partialSums<R> <= count; x += partialSums<R>) {
        if (far) (..., fetchAhead<partialSums<R>* int(sizeof(T))>(rows + x));
        unrolled<vectors>([&](auto k) { step(k, loadWiden<R>(rows + x + k * lanes<R>)...); });
    }
    unrolled<vectors>([&](auto k) {
        if (const Len left = count - x - k * lanes<R>; left > 0)
            step(k, loadWidenUpTo<R>(rows + x + k * lanes<R>, int(std::min<Len>(left, lanes<R>)))...);
    });
}

template <class R, class Term, class... T>
PerChannel<double> realSums(Term term, Roi roi, int channels, Image<const T>... images) {
    constexpr int n = partialSums<R>;
    const bool far = (... || isFar<T>(roi, channels));
    constexpr Len stretch = 49152, settleFrom = 32768;
    static_assert(stretch % n == 0);
    Partials<R> sums{};
    double totals[n] = {};
    Len unsettled = 0;
    const auto settle = [&] {
        R partial[n];
        store(partial, sums);
        for (int i = 0; i < n; ++i) totals[i] += double(partial[i]);
        sums = {};
        unsettled = 0;
    };
    const Len count = roi.width * channels;
    for (Len y = 0; y < roi.height; ++y)
        for (Len x = 0; x < count; x += stretch) {
            const Len here = std::min(stretch, count - x);
            Partials<R> local = sums;  // in registers
            eachPartial<R>(
                here, far, [&](auto k, auto... v) { local[k] += term(v...); }, (images.row(y) + x)...);
            sums = local;
            if ((unsettled += here) >= settleFrom) settle();
        }
    settle();
    PerChannel<double> result{};
    for (int i = 0; i < n; ++i) result[i % channels] += totals[i];
    for (double& sum : result)
        if (sum != sum)
            sum = std::numeric_limits<double>::quiet_NaN();  // not one of several that the processor may choose from
    return result;
}

// The largest term, or NaN if any is.
template <class R, class Term, class... T>
PerChannel<double> realLargest(Term term, Roi roi, int channels, Image<const T>... images) {
    constexpr int n = partialSums<R>;
    const bool far = (... || isFar<T>(roi, channels));
    Partials<R> largest{};
    std::array<Vec<Bits<R>>, partialSums<R> / lanes<R>> anyNan{};
    for (Len y = 0; y < roi.height; ++y)
        eachPartial<R>(
            roi.width * channels, far,
            [&](auto k, auto... v) {
                const auto t = term(v...);
                largest[k] = Larger::of(largest[k], t);
                anyNan[k] |= (Vec<Bits<R>>)(t != t);
            },
            images.row(y)...);
    R all[n];
    Bits<R> nan[n];
    store(all, largest), store(nan, anyNan);
    PerChannel<double> result{};
    for (int i = 0; i < n; ++i) {
        double& so_far = result[i % channels];
        so_far = nan[i] ? std::numeric_limits<double>::quiet_NaN() : Larger::of(so_far, double(all[i]));
    }
    return result;
}

}  // namespace zmv
