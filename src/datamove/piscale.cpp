// zmviScale: the range of one type brought to that of another.  zmviScaleC: times one number, plus another.
#include "kernels/lookup.h"
#include "kernels/pointwise_in.h"

namespace zmv {
namespace {

// The whole range of bytes to that of W: each byte repeated as often as W has room for it, which is v * 257 or
// v * 16843009.
template <class V>
V repeated(V v) {
    v |= v << 8;
    if constexpr (sizeof(Element<V>) == 4) v |= v << 16;
    return v;
}
// Back again: u over 257 or 16843009, to nearest.  Of 16 bits: 2^24 / 257 is 65281 less so little that the 256 times
// finer quotient is rounded down exactly.  With n = 32 bits it is 255 * u / (2^n - 1); over 2^n instead, it stays on
// the same side of each half when 128 of the last places are taken for one: what is lost is 255 units in these at most.
template <class V>
V overRepeated(V u) {
    if constexpr (sizeof(Element<V>) == 2) {
        return (mulHigh(u, fill<uint16_t, sizeof(V)>(65281)) + 128) >> 8;
    } else {
        const V over256 = ((u >> 7) + 1) >> 1;
        return ((u - over256) + (1u << 23)) >> 24;
    }
}

// What a number of T lies above the smallest of them; the other way is the same.
template <class T, class V>
V fromSmallest(V v) {
    if constexpr (std::is_signed_v<T>) v ^= Element<V>(1) << (8 * sizeof(T) - 1);
    return v;
}

template <class S, class D>
bool past(Image<const S> src, Image<D> dst, Roi roi, Layout layout) {
    const bool inPlace = static_cast<const void*>(src.data) == dst.data;
    return !inPlace && regionPastCache(roi, layout, sizeof(S) + sizeof(D));
}

template <class S, class D>
StatusCode ownpi_Scale(Image<const S> src, Image<D> dst, Roi roi, Layout layout) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    if constexpr (sizeof(S) < sizeof(D)) {
        using W = Bits<D>;
        pointwiseIn<W>([](Vec<W> v) { return fromSmallest<D>(repeated(v)); }, bits(dst.data, dst.step), roi, layout,
                       past(src, dst, roi, layout), src);
    } else {
        using W = std::make_signed_t<S>;  // quotients are small, and signed lanes narrow faster
        pointwiseIn<W>([](Vec<W> v) { return asSigned(overRepeated(fromSmallest<S>(asUnsigned(v)))); }, dst, roi,
                       layout, past(src, dst, roi, layout), src);
    }
    return STATUS_OK;
}

struct ToFloats {
    float scale, low, high;
    ToFloats(float vMin, float vMax) : scale(float((double(vMax) - vMin) / 255)), low(vMin), high(vMax) {}
    ZMV_INLINE Vec<float> operator()(Vec<float> v) const {
        return v == 255 ? fill(high) : smaller(fill(high), v * scale + low);
    }
};
struct ToBytes {
    float scale, low;
    ToBytes(float vMin, float vMax) : scale(float(255 / (double(vMax) - vMin))), low(vMin) {}
    ZMV_INLINE Vec<float> operator()(Vec<float> v) const { return (v - low) * scale; }
};

template <class S, class D>
StatusCode ownpi_Scale(Image<const S> src, Image<D> dst, Roi roi, Layout layout, float vMin, float vMax) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    constexpr float most = std::numeric_limits<float>::max();
    if (!(vMin < vMax && double(vMax) - vMin <= most)) return STATUS_BAD_RANGE;
    using Rule = std::conditional_t<std::is_same_v<D, float>, ToFloats, ToBytes>;
    pointwiseIn<float>(Rule(vMin, vMax), dst, roi, layout, past(src, dst, roi, layout), src);
    return STATUS_OK;
}

struct ScaleC {
    double factor, summand;
    ZMV_INLINE Vec<double> operator()(Vec<double> v) const {
        return addInOrder(mulInOrder(v, fill(factor)), fill(summand));
    }
};
template <class S, class D>
StatusCode ownpi_ScaleC(Image<const S> src, double mVal, double aVal, Image<D> dst, Roi roi) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    const ScaleC rule{mVal, aVal};
    // Bytes have few results: they are computed once, where bytes are looked up faster, or lanes are few.
    constexpr Len tablePays = 400;  // pixels
    const bool many = roi.width * roi.height >= tablePays;
    if constexpr (sizeof(S) == 1 && (sizeof(D) == 1 || lanes<double> == 2))
        if (many) {
            S all[256];
            for (int i = 0; i < 256; ++i) all[i] = S(i);
            Bits<D> table[256];
            const Bits<D>* const tables[] = {table};
            pointwiseIn<double>(rule, image(reinterpret_cast<D*>(table), 0), Roi(256, 1), C1, false,
                                image<const S>(all, 0));
            const auto lookUp = [&](auto look) {
                look(bits(src.data, src.step), bits(dst.data, dst.step), roi, C1, tables);
            };
            if constexpr (sizeof(D) == 1)
                lookUp([](auto... operands) { lookUpBytes<1>(operands..., false); });
            else
                lookUp([](auto... operands) { lookUpEntries<1>(operands...); });
            return STATUS_OK;
        }
    pointwiseIn<double>(rule, dst, roi, C1, false, src);  // in double precision results take longer than memory
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/scale.def"
SCALE_INTEGERS
SCALE_C_FAMILY
#undef ENTRY_OF
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
SCALE_FLOATS
