// zmviDiv, zmviDivC, zmviDiv_Round: the second image over the first, or the image over a constant.
#include "arith/binary.h"
#include "arith/real.h"

namespace zmv {
namespace {

// By their bits, since processors can be told to take small numbers for zero.  Zeros have either sign.
template <class B>
auto isZero(B bits, bool real) {
    return real ? bits + bits == B{} : bits == B{};
}

// An image of divisors, which remembers whether there was a zero among them.
template <class T>
struct Divisors {
    Image<const T> image;
    Pattern alpha;  // all ones in the channel that is left alone
    mutable bool zero = false;

    Divisors(Image<const T> src, Layout layout) : image(src), alpha(alphaMask(layout)) {}
    // Looks at elements x to x + n of row y.
    void look(Len y, Len x, Len n) const {
        if (zero) return;
        using B = Bits<T>;
        const auto row = reinterpret_cast<const uint8_t*>(image.row(y) + x);
        const auto skipped = (Vec<B>)alpha.at(0);  // in every vector: four elements fill it some times over
        Vec<B> found{};
        const auto lookAt = [&](Vec<B> v) {
            v |= skipped;
            found |= (Vec<B>)isZero(v, std::is_floating_point_v<T>);
        };
        const Len bytes = n * Len(sizeof(T));
        const Len done = eachVector(0, bytes, [&](Len at, auto) { lookAt(loadAs<Vec<B>>(row + at)); });
        if (done < bytes) {
            Vec<B> rest = ~Vec<B>{};
            const int left = int((bytes - done) / Len(sizeof(T)));
            storePart(&rest, loadPart(reinterpret_cast<const B*>(row + done), left), left);
            lookAt(rest);
        }
        zero = !allZero(found);
    }

  private:
    static Pattern alphaMask(Layout layout) {
        const Bits<T> values[4] = {0, 0, 0, Bits<T>(layout.alpha ? -1 : 0)};
        return Pattern(values, Layout{4});
    }
};
template <class T>
ImageRow<T> rowOf(const Divisors<T>& divisors, Len y, Len x, Len n) {
    divisors.look(y, x, n);
    return rowOf(divisors.image, y, x, n);
}
template <class W, class T>
ImageRowIn<W, T> rowIn(const Divisors<T>& divisors, Len y, Len x, Len n) {
    divisors.look(y, x, n);
    return rowIn<W>(divisors.image, y, x, n);
}
// Rows are not joined, so that one is still in the nearest caches after the look at it; but see divideImages.
template <class T>
bool operandGapless(const Divisors<T>&, Len, int) {
    return false;
}

// A zero divisor gives infinity, which saturates, or NaN, which becomes zero.
template <class F>
struct Quotient {
    RoundingControl::Mode rounding;
    F scale, half;
    ZMV_INLINE Vec<F> operator()(Vec<F> a, Vec<F> b) const { return b / a * scale + half; }
};
struct FloatQuotient {
    ZMV_INLINE Vec<float> operator()(Vec<float> a, Vec<float> b) const { return b / a; }
};

// The financial mode rounds the quotient plus one half down.
RoundingControl::Mode modeOf(int roundMode) {
    if (roundMode == ROUND_NEAR) return RoundingControl::toNearestEven;
    return roundMode == ROUND_ZERO ? RoundingControl::towardZero : RoundingControl::down;
}

// F: the type that integers are divided in.
template <class F, class T, class Divisor>
void divide(const Divisor& divisor, Image<const T> src, Image<T> dst, Roi roi, Layout layout, int roundMode, int factor,
            bool pastCache) {
    if constexpr (std::is_floating_point_v<T>) {
        pointwise(FloatQuotient{}, dst, roi, layout, pastCache, divisor, src);
    } else {
        const Quotient<F> quotient{modeOf(roundMode), scaleOf<F>(factor), roundMode == ROUND_FINANCIAL ? F(0.5) : F(0)};
        pointwiseIn<F>(quotient, dst, roi, layout, pastCache, divisor, src);
    }
}

template <class T>
StatusCode divideImages(Image<const T> src1, Image<const T> src2, Image<T> dst, Roi roi, Layout layout, int roundMode,
                        int factor) {
    const Divisors<T> divisors(src1, layout);
    constexpr Len nearest = 8192;  // bytes that stay in the nearest cache
    if (roi.width * roi.height * layout.channels * Len(sizeof(T)) <= nearest)
        roi = joinOperands(roi, layout, dst, src1, src2);
    // Integers take longer to divide than memory takes.
    const bool pastCache = std::is_floating_point_v<T> && binaryPastCache(src1, src2, dst, roi, layout);
    withPrecision<T>(factor, [&](auto zero) {
        divide<decltype(zero)>(divisors, src2, dst, roi, layout, roundMode, factor, pastCache);
    });
    return divisors.zero ? STATUS_WARN_DIV_BY_ZERO : STATUS_OK;
}
template <class T>
StatusCode ownpi_DivRound(Image<const T> src1, Image<const T> src2, Image<T> dst, Roi roi, Layout layout, int roundMode,
                          int factor) {
    if (auto bad = firstOf({pointers(src1.data, src2.data, dst.data), size(roi), steps(src1.step, src2.step, dst.step),
                            refuse(roundMode < ROUND_ZERO || roundMode > ROUND_FINANCIAL, STATUS_BAD_ROUND_MODE)}))
        return bad;
    return divideImages(src1, src2, dst, roi, layout, roundMode, factor);
}

struct Div {
    template <class T>
    static StatusCode images(Image<const T> src1, Image<const T> src2, Image<T> dst, Roi roi, Layout layout,
                             int factor) {
        if (auto bad =
                firstOf({pointers(src1.data, src2.data, dst.data), size(roi), steps(src1.step, src2.step, dst.step)}))
            return bad;
        return divideImages(src1, src2, dst, roi, layout, ROUND_NEAR, factor);
    }
    template <class T>
    static StatusCode constant(Image<const T> src, const T* value, Image<T> dst, Roi roi, Layout layout, int factor) {
        if (auto bad = firstOf({pointers(src.data, value, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
        for (int c = 0; c < layout.used(); ++c)
            if (isZero(get(bits(value) + c), std::is_floating_point_v<T>)) return STATUS_DIV_BY_ZERO;
        withPrecision<T>(factor, [&](auto zero) {
            using F = decltype(zero);
            using Value = std::conditional_t<std::is_floating_point_v<T>, Constant<T>, ConstantIn<F>>;
            divide<F>(Value(value, layout), src, dst, roi, layout, ROUND_NEAR, factor, false);
        });
        return STATUS_OK;
    }
};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/binary.def"
BINARY_FAMILY(Div)
CONSTANT_FAMILY(Div)
DIV_ROUND_FAMILY
