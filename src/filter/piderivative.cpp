// The filters that differentiate: Sobel, Scharr, Prewitt and Roberts, with borders; the magnitude of Sobel's gradient.
#include "filter/bytekernel.h"
#include "kernels/rounding.h"

namespace zmv {
namespace {

// The quickest kernel for a product.
template <class Finish, class... Products, class T, class D>
void choose(Kernel<T, D>& kernel) {
    if constexpr (sizeof(T) == 1)
        kernel = byteKernel<Finish, Products...>;
    else
        kernel = InLines<1, false, Finish, Products...>::template run<T, D>;
}

// A family: its kernel of 3 x 3 and, if it has one, of 5 x 5.
template <class ThreeByThree, class... FiveByFive>
struct Separable {
    static constexpr bool takes5x5 = sizeof...(FiveByFive) > 0;
    template <class T, class D>
    static void pick(Kernel<T, D>& kernel, int code) {
        if (code == MASK_3X3) return choose<AsItIs, ThreeByThree>(kernel);
        (..., choose<AsItIs, FiveByFive>(kernel));
    }
};
template <int row, int column, int offRow, int offColumn>
struct Difference {
    static constexpr bool takes5x5 = false;
    template <class At>
    ZMV_INLINE auto operator()(At at) const {
        return minus(at(row, column), at(offRow, offColumn));
    }
    template <class T, class D>
    static void pick(Kernel<T, D>& kernel, int) {
        kernel = neighbours<1, false, Difference, T, D>;
    }
};

using Smooth3 = Weights<1, 2, 1>;
using Smooth5 = Weights<1, 4, 6, 4, 1>;
using Second3 = Weights<1, -2, 1>;
using Second5 = Weights<1, 0, -2, 0, 1>;
// Later row minus earlier row, but earlier column minus later column.
using Down3 = Weights<-1, 0, 1>;
using Down5 = Weights<-1, -2, 0, 2, 1>;
using Left3 = Weights<1, 0, -1>;
using Left5 = Weights<1, 2, 0, -2, -1>;
using Even5 = Weights<1, 1, 1, 1, 1>;

using SobelHoriz = Separable<Product<Down3, Smooth3>, Product<Down5, Smooth5>>;
using SobelVert = Separable<Product<Smooth3, Left3>, Product<Smooth5, Left5>>;
using SobelSecondHoriz = Separable<Product<Second3, Smooth3>, Product<Second5, Smooth5>>;
using SobelSecondVert = Separable<Product<Smooth3, Second3>, Product<Smooth5, Second5>>;
using SobelSecondCross = Separable<Product<Down3, Left3>, Product<Down5, Left5>>;
using ScharrHoriz = Separable<Product<Down3, Weights<3, 10, 3>>>;
using ScharrVert = Separable<Product<Weights<3, 10, 3>, Left3>>;
using PrewittHoriz = Separable<Product<Down3, Weights<1, 1, 1>>, Product<Weights<-2, -1, 0, 1, 2>, Even5>>;
using PrewittVert = Separable<Product<Weights<1, 1, 1>, Left3>, Product<Even5, Weights<2, 1, 0, -1, -2>>>;
using RobertsHoriz = Difference<2, 2, 1, 1>;
using RobertsVert = Difference<2, 1, 1, 2>;

template <class Family, class T, class D>
StatusCode ownpi_DerivativeBorder(Image<const T> src, Image<D> dst, Roi roi, int code, int borderType, T value,
                                  uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src.data, dst.data, buffer), size(roi),
                            refuse(dst.step % Len(sizeof(D)) != 0, STATUS_BAD_STEP_ALIGNMENT),
                            maskCode(code, Family::takes5x5), border(borderType)}))
        return bad;
    Kernel<T, D> kernel;
    Family::pick(kernel, code);
    const Window window(maskOf(code));
    applyKernel(Bands<T, 1>(src, roi, C1, window, borderType, &value, false), dst, roi, window, kernel);
    return STATUS_OK;
}

template <class Family>
StatusCode ownpi_DerivativeGetBufferSize(ImageSize roi, int code, int from, int to, int channels, int* size) {
    const bool paired =
        to == DATATYPE_32F ? from == to : to == DATATYPE_16S && (from == DATATYPE_8U || from == DATATYPE_16S);
    if (auto bad = firstOf({pointers(size), zmv::size(roi), maskCode(code, Family::takes5x5),
                            refuse(!paired, STATUS_BAD_DATATYPE), refuse(channels != 1, STATUS_BAD_CHANNELS)}))
        return bad;
    return answerSize(fixedBufferSize(roi, code, from, 1), size);
}

// sqrt(h^2 + v^2), of integers the nearest one.
struct Magnitude {
    template <class V>
    ZMV_INLINE V operator()(V h, V v) const {
        if constexpr (std::is_floating_point_v<Element<V>>) {
            return squareRoot(plus(h * h, v * v));
        } else {
            const auto low = interleaveLow(h, v), high = interleaveHigh(h, v);
            return narrow<int16_t>(root(pairProducts(low, low)), root(pairProducts(high, high)));
        }
    }

  private:
    // In single precision the root errs by less than one.  The nearest integer r has r^2 - r < square <= r^2 + r.
    ZMV_INLINE static Vec<int32_t> root(Vec<int32_t> square) {
        const auto near = roundToInt(squareRoot(toFloat(square)));
        const auto its = pairProducts((Vec<int16_t>)near, (Vec<int16_t>)near);
        return near - (square > its + near) + ((square <= its - near) & (near != 0));
    }
};
template <class T, class D>
StatusCode ownpi_FilterSobel(Image<const T> src, Image<D> dst, Roi roi, int code) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), maskCode(code, true), steps(src.step, dst.step)}))
        return bad;
    Kernel<T, D> kernel;
    code == MASK_3X3 ? choose<Magnitude, Product<Down3, Smooth3>, Product<Smooth3, Left3>>(kernel)
                     : choose<Magnitude, Product<Down5, Smooth5>, Product<Smooth5, Left5>>(kernel);
    const Window window(maskOf(code));
    const Bands<T, 1> bands(src, roi, C1, window, BORDER_IN_MEM, nullptr, false);
    toNearestIf<std::is_integral_v<T>>([&] { applyKernel(bands, dst, roi, window, kernel); });
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/fixed.def"
DERIVATIVES(DERIVATIVE_SIZE_FAMILY)
DERIVATIVES(DERIVATIVE_FAMILY)
SOBEL_FAMILY
