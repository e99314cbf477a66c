// zmviMoments: moments of a region, gathered in a state object, and what follows from them.
#include "stats/moments.h"

namespace zmv {
namespace {

MomentsSpec headerFor(int type, int channels) { return {MomentsSpec::itsTag, type, channels, 0}; }

StatusCode ownpi_MomentsGetSize(int type, int channels, int* size) {
    if (auto bad = firstOf({pointers(size), dataType(type), channelCount(channels)})) return bad;
    const MomentsSpec header = headerFor(type, channels);
    put(size, withSums(header, [&](auto zero) { return int(MomentsParts<decltype(zero)>(header).blockBytes()); }));
    return STATUS_OK;
}

StatusCode ownpi_MomentsInit(int type, int channels, uint8_t* state) {
    if (auto bad = firstOf({pointers(state), dataType(type), channelCount(channels)})) return bad;
    const MomentsSpec header = headerFor(type, channels);
    uint8_t* const object = objectIn(state);
    store(object, header);
    withSums(header, [&](auto zero) {
        using S = decltype(zero);
        auto* const sums = MomentsParts<S>(header).channels.in(object);
        for (int c = 0; c < channels; ++c) put(sums + c, Moments<S>());
    });
    return STATUS_OK;
}

template <class T>
constexpr int typeOf = std::is_same_v<T, float>     ? DATATYPE_32F
                       : std::is_same_v<T, uint8_t> ? DATATYPE_8U
                       : std::is_signed_v<T>        ? DATATYPE_16S
                                                    : DATATYPE_16U;

template <int n, class T>
StatusCode ownpi_Moments(Image<const T> src, Roi roi, ImagePoint offset, uint8_t* state) {
    uint8_t* const object = objectIn(state);
    const auto header = headerOf<MomentsSpec>(object);
    if (auto bad = firstOf({pointers(src.data, state), size(roi), steps(src.step),
                            refuse(header != headerFor(typeOf<T>, n), STATUS_CONTEXT_MISMATCH)}))
        return bad;
    using S = std::conditional_t<std::is_same_v<T, float>, double, WideSum>;
    Moments<S> channels[n];
    auto* const sums = MomentsParts<S>(header).channels.in(object);
    for (int c = 0; c < n; ++c) channels[c] = get(sums + c);
    if constexpr (std::is_same_v<T, float>)
        addMoments<n>(src, roi, offset, channels);
    else
        addMoments<T, n>(src, roi, offset, channels);
    for (int c = 0; c < n; ++c) put(sums + c, channels[c]);
    return STATUS_OK;
}

StatusCode ownpi_MomentsMerge(const uint8_t* state, uint8_t* other) {
    const uint8_t* const from = objectIn(state);
    uint8_t* const to = objectIn(other);
    const auto header = headerOf<MomentsSpec>(from), same = headerOf<MomentsSpec>(to);
    if (auto bad = firstOf({pointers(state, other), tagged(header), refuse(header != same, STATUS_CONTEXT_MISMATCH)}))
        return bad;
    withSums(header, [&](auto zero) {
        using S = decltype(zero);
        const auto sums = MomentsParts<S>(header).channels;
        for (int c = 0; c < header.channels; ++c) {
            auto all = get(sums.in(to) + c);
            all += get(sums.in(from) + c);
            if constexpr (std::is_same_v<S, double>)
                for (double& sum : all.all) sum = withOneNan(sum);
            put(sums.in(to) + c, all);
        }
    });
    return STATUS_OK;
}

// ---- What follows ----

double roundedSum(double sum) { return sum; }
double roundedSum(const WideSum& sum) { return sum.rounded(); }
template <class S>
Moments<double> roundedSums(const Moments<S>& sums) {
    Moments<double> result;
    for (int i = 0; i < result.count; ++i) result.all[i] = roundedSum(sums.all[i]);
    return result;
}

// About a whole number near the centroid where sums are exact: nothing is lost by then, however far it is from zero.
void moveToCentroid(Moments<double>&) {}
void moveToCentroid(Moments<WideSum>& m) {
    const double area = m(0, 0).rounded(), x = m(1, 0).rounded() / area, y = m(0, 1).rounded() / area;
    constexpr double most = 1ll << 40, places = 6755399441055744.0;  // 1.5 * 2^52: what is added to it becomes whole
    if (x >= -most && x <= most && y >= -most && y <= most)
        m.move(-int64_t(x + places - places), -int64_t(y + places - places));
}

// Central moments, each operation rounded in the order in which it is written.
Moments<double> central(const Moments<double>& m) {
    const double x = m(1, 0) / m(0, 0), y = m(0, 1) / m(0, 0);
    Moments<double> mu;
    mu(0, 0) = m(0, 0);
    mu(2, 0) = m(2, 0) - x * m(1, 0);
    mu(1, 1) = m(1, 1) - x * m(0, 1);
    mu(0, 2) = m(0, 2) - y * m(0, 1);
    mu(3, 0) = m(3, 0) - 3 * x * m(2, 0) + 2 * (x * x) * m(1, 0);
    mu(2, 1) = m(2, 1) - 2 * x * m(1, 1) - y * m(2, 0) + 2 * (x * x) * m(0, 1);
    mu(1, 2) = m(1, 2) - 2 * y * m(1, 1) - x * m(0, 2) + 2 * (y * y) * m(1, 0);
    mu(0, 3) = m(0, 3) - 3 * y * m(0, 2) + 2 * (y * y) * m(0, 1);
    return mu;
}
Moments<double> normalized(Moments<double> mu) {
    const double area = mu(0, 0), ofOrder[4] = {area, 1, area * area, area * area * __builtin_sqrt(area)};
    for (int q = 0; q < 4; ++q)
        for (int p = 0; p + q < 4; ++p) mu(p, q) /= ofOrder[p + q];
    return mu;
}
void invariants(const Moments<double>& e, double (&hu)[7]) {
    const double a = e(3, 0) - 3 * e(1, 2), b = 3 * e(2, 1) - e(0, 3), c = e(3, 0) + e(1, 2), d = e(2, 1) + e(0, 3);
    const double difference = e(2, 0) - e(0, 2), cc = c * c, dd = d * d;
    hu[0] = e(2, 0) + e(0, 2);
    hu[1] = difference * difference + 4 * (e(1, 1) * e(1, 1));
    hu[2] = a * a + b * b;
    hu[3] = cc + dd;
    hu[4] = a * c * (cc - 3 * dd) + b * d * (3 * cc - dd);
    hu[5] = difference * (cc - dd) + 4 * e(1, 1) * (c * d);
    hu[6] = b * c * (cc - 3 * dd) - a * d * (3 * cc - dd);
}

enum class Kind { spatial, central, normalized };
// A channel's moments of a kind, from an object that has passed the checks.
template <Kind kind>
Moments<double> momentsOf(const uint8_t* object, const MomentsSpec& header, int channel) {
    return withSums(header, [&](auto zero) {
        using S = decltype(zero);
        auto sums = get(MomentsParts<S>(header).channels.in(object) + channel);
        if constexpr (kind != Kind::spatial) moveToCentroid(sums);
        const auto m = roundedSums(sums);
        if constexpr (kind == Kind::spatial) return m;
        if constexpr (kind == Kind::central) return central(m);
        return normalized(central(m));
    });
}
// Writes values of them, which are NaN where there is no area.
template <Kind kind, class Values>
StatusCode answer(const uint8_t* state, int p, int q, int channel, double* to, int count, Values values) {
    const uint8_t* const object = objectIn(state);
    const auto header = headerOf<MomentsSpec>(object);
    const bool known = p >= 0 && q >= 0 && p <= 3 && q <= 3 - p && channel >= 0 && channel < header.channels;
    if (auto bad = firstOf({pointers(state, to), tagged(header), refuse(!known, STATUS_OUT_OF_RANGE)})) return bad;
    const auto m = momentsOf<kind>(object, header, channel);
    const bool none = kind != Kind::spatial && momentsOf<Kind::spatial>(object, header, channel)(0, 0) == 0;
    double found[7];
    values(m, found);
    for (int i = 0; i < count; ++i) put(to + i, none ? __builtin_nan("") : withOneNan(found[i]));
    return none ? STATUS_WARN_DIV_BY_ZERO : STATUS_OK;
}
template <Kind kind>
StatusCode ownpi_MomentsGet(const uint8_t* state, int p, int q, int channel, double* value) {
    return answer<kind>(state, p, q, channel, value, 1, [&](const auto& m, double* found) { *found = m(p, q); });
}
StatusCode ownpi_MomentsGetHu(const uint8_t* state, int channel, double* hu) {
    return answer<Kind::normalized>(state, 0, 0, channel, hu, 7,
                                    [&](const auto& m, double(&found)[7]) { invariants(m, found); });
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/moments.def"
MOMENTS_SIZE_FAMILY
MOMENTS_INIT_FAMILY
MOMENTS_FAMILY
MOMENTS_MERGE_FAMILY
MOMENTS_GET_FAMILY(Spatial, spatial)
MOMENTS_GET_FAMILY(Central, central)
MOMENTS_GET_FAMILY(NormalizedCentral, normalized)
MOMENTS_HU_FAMILY
