// zmviConvert to integers with a rounding mode, and a scale factor.
#include "kernels/pointwise_in.h"

namespace zmv {
namespace {

// The financial mode adds one half and cuts toward zero.  Rounded toward zero, the sum never crosses an integer.
RoundingControl::Mode cutRoundingOf(int roundMode) {
    return roundMode == ROUND_NEAR ? RoundingControl::toNearestEven : RoundingControl::towardZero;
}
bool isFinancial(int roundMode) { return roundMode != ROUND_NEAR && roundMode != ROUND_ZERO; }

template <bool financial>
struct Rounded {
    RoundingControl::Mode rounding;
    ZMV_INLINE Vec<float> operator()(Vec<float> v) const { return financial ? v + 0.5f : v; }
};

template <class D>
StatusCode ownpi_ConvertRounded(Image<const float> src, Image<D> dst, Roi roi, Layout layout, int roundMode) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    // With registers of 16 bytes, saturating to unsigned 16-bit numbers takes longer than memory.
    constexpr bool streams = !(vectorBytes == 16 && std::is_same_v<D, uint16_t>);
    const bool pastCache = regionPastCache(roi, layout, sizeof(float) + sizeof(D)) && streams;
    const auto run = [&](const auto& rule) { pointwiseIn<float>(rule, dst, roi, layout, pastCache, src); };
    if (isFinancial(roundMode))
        run(Rounded<true>{cutRoundingOf(roundMode)});
    else
        run(Rounded<false>{cutRoundingOf(roundMode)});
    return STATUS_OK;
}

// v * 2^-factor + half.  In two steps, since one power of two may lie beyond the range: what the first loses is far
// below one half.
struct Scaled {
    RoundingControl::Mode rounding;
    double first, second, half;
    Scaled(int factor, int roundMode) : rounding(cutRoundingOf(roundMode)), half(isFinancial(roundMode) ? 0.5 : 0.0) {
        constexpr int most = 2 * 1022;  // there every result saturates, or vanishes
        const int n = std::clamp(factor, -most, most);
        first = powerOfTwo(-(n / 2));
        second = powerOfTwo(-(n - n / 2));
    }
    ZMV_INLINE Vec<double> operator()(Vec<double> v) const { return v * first * second + half; }
};

template <class S, class D>
StatusCode ownpi_ConvertScaled(Image<const S> src, Image<D> dst, Roi roi, int roundMode, int factor) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    pointwiseIn<double>(Scaled(factor, roundMode), dst, roi, C1, false, src);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/convert.def"
CONVERT_ROUNDED_TYPES
