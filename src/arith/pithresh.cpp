// zmviThreshold and its sisters: pixels beyond a level are set to it, or replaced.  A pixel at the level stays.
#include "kernels/pointwise.h"
#include "kernels/rounding.h"

namespace zmv {
namespace {

template <int op, class V>
ZMV_INLINE V replaced(V s, V level, V value) {
    if constexpr (op == CMP_GREATER)
        return s > level ? value : s;
    else
        return s < level ? value : s;
}

// A processor told to take small numbers for zero would find them equal, and write zeros.
template <class T, class F>
auto kept(const F& f) {
    return toNearestIf<std::is_floating_point_v<T>>(f);
}

template <class T, class... Level>
StatusCode checked(Image<const T> src, Image<T> dst, Roi roi, const Level*... levels) {
    return firstOf({pointers(src.data, dst.data, levels...), size(roi), steps(src.step, dst.step)});
}
StatusCode operatorOf(int cmpOp) { return refuse(cmpOp != CMP_LESS && cmpOp != CMP_GREATER, STATUS_BAD_ARGUMENT); }

template <class T, class Rule, class... Level>
StatusCode run(const Rule& rule, Image<const T> src, Image<T> dst, Roi roi, Layout layout, const Level*... levels) {
    // A line that has just been read is in the caches: to stream it back in place would only drive it out first.
    const bool pastCache = regionPastCache(roi, layout, 2 * sizeof(T)) && src.data != dst.data;
    kept<T>([&] { pointwise(rule, dst, roi, layout, pastCache, src, Constant<T>(levels, layout)...); });
    return STATUS_OK;
}

template <int op, class T>
StatusCode ownpi_Replace(Image<const T> src, Image<T> dst, Roi roi, Layout layout, const T* level, const T* value) {
    if (auto bad = checked(src, dst, roi, level, value)) return bad;
    return run([](Vec<T> s, Vec<T> l, Vec<T> v) { return replaced<op>(s, l, v); }, src, dst, roi, layout, level, value);
}
template <int op, class T>
StatusCode ownpi_Clamp(Image<const T> src, Image<T> dst, Roi roi, Layout layout, const T* level) {
    if (auto bad = checked(src, dst, roi, level)) return bad;
    return run([](Vec<T> s, Vec<T> l) { return replaced<op>(s, l, l); }, src, dst, roi, layout, level);
}

template <class T>
StatusCode ownpi_Threshold(Image<const T> src, Image<T> dst, Roi roi, Layout layout, const T* level, int cmpOp) {
    if (auto bad = firstOf({checked(src, dst, roi, level), operatorOf(cmpOp)})) return bad;
    return (cmpOp == CMP_LESS ? ownpi_Clamp<CMP_LESS, T> : ownpi_Clamp<CMP_GREATER, T>)(src, dst, roi, layout, level);
}
// Looks at the operator before anything else.
template <class T>
StatusCode ownpi_ThresholdVal(Image<const T> src, Image<T> dst, Roi roi, Layout layout, const T* level, const T* value,
                              int cmpOp) {
    if (auto bad = operatorOf(cmpOp)) return bad;
    return (cmpOp == CMP_LESS ? ownpi_Replace<CMP_LESS, T> : ownpi_Replace<CMP_GREATER, T>)(src, dst, roi, layout,
                                                                                            level, value);
}

template <class T>
StatusCode ownpi_ReplaceBothEnds(Image<const T> src, Image<T> dst, Roi roi, Layout layout, const T* low,
                                 const T* lowValue, const T* high, const T* highValue) {
    if (auto bad = checked(src, dst, roi, low, lowValue, high, highValue)) return bad;
    const bool crossed = kept<T>([&] {
        for (int c = 0; c < layout.used(); ++c)
            if (get(high + c) < get(low + c)) return true;
        return false;
    });
    if (crossed) return STATUS_BAD_THRESHOLD;
    const auto rule = [](Vec<T> s, Vec<T> l, Vec<T> lv, Vec<T> h, Vec<T> hv) {
        return s < l ? lv : replaced<CMP_GREATER>(s, h, hv);
    };
    return run(rule, src, dst, roi, layout, low, lowValue, high, highValue);
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/threshold.def"
THRESHOLD_FAMILY(Threshold)
THRESHOLD_FAMILY(Threshold_GT)
THRESHOLD_FAMILY(Threshold_LT)
THRESHOLD_FAMILY(Threshold_Val)
THRESHOLD_FAMILY_OF_4(Threshold_GTVal)
THRESHOLD_FAMILY_OF_4(Threshold_LTVal)
THRESHOLD_FAMILY(Threshold_LTValGTVal)
