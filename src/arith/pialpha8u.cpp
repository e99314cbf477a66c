// zmviAlphaComp, zmviAlphaCompC: one picture over, in, out of another, by the alphas of its pixels or one for all.
// zmviAlphaPremul, zmviAlphaPremulC: colours times alpha.
#include "arith/alpha.h"
#include "arith/alphalanes.h"
#include "kernels/pointwise.h"

namespace zmv {
namespace {

// Steps are not checked in these families: any step, zero and negative ones too, walks the rows.

// Three planes of colours and one of alphas.
template <class T>
struct Planes {
    T* const* first;
    Len step;
    Image<T> operator[](int c) const { return {get(first + c), step}; }
};
template <class T>
struct Packed {
    T* first;
    Len step;
    Layout layout = C1;
    operator Image<T>() const { return {first, step}; }
};
template <class T>
StatusCode given(Planes<T> image) {
    return planePointers(image.first, 4);
}
template <class T>
StatusCode given(Packed<T> image) {
    return pointers(image.first);
}
template <class... Operand>
StatusCode checked(Roi roi, int alphaType, Operand... operands) {
    return firstOf({given(operands)..., size(roi), knownAlphaType(alphaType)});
}

// Alphas alone, under the weights that they give each other.
template <class T>
void compositeAlphas(Image<const T> a, Image<const T> b, Image<T> dst, Roi roi, int alphaType) {
    compositing<T>(ofAlphas(alphaType), [&](auto op) {
        const auto rule = [&](Vec<T> x, Vec<T> y) __attribute__((always_inline)) { return op.alphas(x, y); };
        pointwise(rule, dst, roi, C1, false, a, b);
    });
}

template <class T>
StatusCode ownpi_AlphaComp_AC1(Packed<const T> a, Packed<const T> b, Packed<T> dst, Roi roi, int alphaType) {
    if (auto bad = checked(roi, alphaType, a, b, dst)) return bad;
    compositeAlphas<T>(a, b, dst, roi, alphaType);
    return STATUS_OK;
}
template <class T>
StatusCode ownpi_AlphaComp_AC4(Packed<const T> a, Packed<const T> b, Packed<T> dst, Roi roi, int alphaType) {
    if (auto bad = checked(roi, alphaType, a, b, dst)) return bad;
    compositing<T>(alphaType, [&](auto op) {
        const auto rule = [&](Vec<T> x, Vec<T> y) __attribute__((always_inline)) { return op.pixels(x, y); };
        pointwise<T>(rule, dst, roi, C4, false, Image<const T>(a), Image<const T>(b));
    });
    return STATUS_OK;
}
template <class T>
StatusCode ownpi_AlphaComp_AP4(Planes<const T> a, Planes<const T> b, Planes<T> dst, Roi roi, int alphaType) {
    if (auto bad = checked(roi, alphaType, a, b, dst)) return bad;
    compositing<T>(alphaType, [&](auto op) {
        const auto rule = [&](Vec<T> x, Vec<T> y, Vec<T> alphaA, Vec<T> alphaB) __attribute__((always_inline)) {
            return op.of(op.weights(alphaA, alphaB), x, y);
        };
        for (int c = 0; c < 3; ++c) pointwise(rule, dst[c], roi, C1, false, a[c], b[c], a[3], b[3]);
    });
    compositeAlphas<T>(a[3], b[3], dst[3], roi, alphaType);  // last: in place, it is what the colours were weighed by
    return STATUS_OK;
}

template <class T, class Rule>
void eachColour(const Rule& rule, Roi roi, Planes<T> dst, auto... operands) {
    for (int c = 0; c < 3; ++c) pointwise(rule, dst[c], roi, C1, false, operands[c]...);
}
template <class T, class Rule>
void eachColour(const Rule& rule, Roi roi, Packed<T> dst, auto... operands) {
    pointwise<T>(rule, dst, roi, dst.layout, false, Image<const T>(operands)...);
}

template <class T, template <class> class Operand>
StatusCode compositeWithConstants(Operand<const T> a, T alphaA, Operand<const T> b, T alphaB, Operand<T> dst, Roi roi,
                                  int alphaType) {
    if (auto bad = checked(roi, alphaType, a, b, dst)) return bad;
    compositing<T>(alphaType, [&](auto op) {
        const auto weights = op.weights(fill(alphaA), fill(alphaB));
        eachColour(
            [&](Vec<T> x, Vec<T> y) __attribute__((always_inline)) { return op.of(weights, x, y); }, roi, dst, a, b);
    });
    return STATUS_OK;
}
template <class T>
StatusCode ownpi_AlphaCompC(Packed<const T> a, T alphaA, Packed<const T> b, T alphaB, Packed<T> dst, Roi roi,
                            int type) {
    return compositeWithConstants<T, Packed>(a, alphaA, b, alphaB, dst, roi, type);
}
template <class T>
StatusCode ownpi_AlphaCompC(Planes<const T> a, T alphaA, Planes<const T> b, T alphaB, Planes<T> dst, Roi roi,
                            int type) {
    return compositeWithConstants<T, Planes>(a, alphaA, b, alphaB, dst, roi, type);
}

// The product over the largest number, rounded to nearest.
template <class V>
ZMV_INLINE V premultiplied(V colour, V alpha) {
    using T = Element<V>;
    return narrow<T>(overLargest<T>(product<0>(colour, alpha)), overLargest<T>(product<1>(colour, alpha)));
}

template <class T>
StatusCode ownpi_AlphaPremul_AC4(Packed<const T> src, Packed<T> dst, Roi roi) {
    if (auto bad = firstOf({given(src), given(dst), size(roi)})) return bad;
    const auto rule = [](Vec<T> x, Vec<T> old) { return withFourth(premultiplied(x, fourthOf(x)), old); };
    pointwise<T>(rule, dst, roi, C4, false, Image<const T>(src), Image<const T>(Image<T>(dst)));
    return STATUS_OK;
}
template <class T>
StatusCode ownpi_AlphaPremul_AP4(Planes<const T> src, Planes<T> dst, Roi roi) {
    if (auto bad = firstOf({given(src), given(dst), size(roi)})) return bad;
    const auto rule = [](Vec<T> x, Vec<T> alpha) { return premultiplied(x, alpha); };
    for (int c = 0; c < 3; ++c) pointwise(rule, dst[c], roi, C1, false, src[c], src[3]);
    return STATUS_OK;
}
template <class T, template <class> class Operand>
StatusCode premultiplyByConstant(Operand<const T> src, T alpha, Operand<T> dst, Roi roi) {
    if (auto bad = firstOf({given(src), given(dst), size(roi)})) return bad;
    eachColour([alpha = fill(alpha)](Vec<T> x) { return premultiplied(x, alpha); }, roi, dst, src);
    return STATUS_OK;
}
template <class T>
StatusCode ownpi_AlphaPremulC(Packed<const T> src, T alpha, Packed<T> dst, Roi roi) {
    return premultiplyByConstant<T, Packed>(src, alpha, dst, roi);
}
template <class T>
StatusCode ownpi_AlphaPremulC(Planes<const T> src, T alpha, Planes<T> dst, Roi roi) {
    return premultiplyByConstant<T, Planes>(src, alpha, dst, roi);
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/alpha.def"
ALPHA_COMP_FAMILY
ALPHA_COMP_C_FAMILY
ALPHA_PREMUL_FAMILY
ALPHA_PREMUL_C_FAMILY
