// The Laplacian, and sharpening by it.
#include "filter/fixedkernel.h"

namespace zmv {
namespace {

template <class At>
ZMV_INLINE auto cross(At at) {
    return plus(plus(at(0, 1), at(2, 1)), plus(at(1, 0), at(1, 2)));
}
struct Laplacian {
    template <class At>
    ZMV_INLINE auto operator()(At at) const {
        return minus(cross(at), at(1, 1) * 4);
    }
};
struct Sharpened {
    template <class At>
    ZMV_INLINE auto operator()(At at) const {
        return minus(at(1, 1) * 5, cross(at));
    }
};
// Ties to even: what is added is one short of half, and one more where the quotient would be odd.
struct SumOver64 {
    template <class V>
    ZMV_INLINE V operator()(V a, V b) const {
        const V sum = plus(a, b);
        if constexpr (std::is_floating_point_v<Element<V>>)
            return sum * (1.0f / 64);
        else
            return (sum + 31 + (sum >> 6 & 1)) >> 6;
    }
};

template <Layout layout, class T>
StatusCode apply(Image<const T> src, Image<T> dst, Roi roi, int code, int borderType, const T* value,
                 Kernel<T, T> kernel) {
    constexpr int n = layout.channels;
    const Window window(maskOf(code));
    applyKernel(Bands<T, n>(src, roi, layout, window, neededBorder(borderType), value, false), dst, roi, window,
                kernel);
    return STATUS_OK;
}

template <Layout layout, class T>
StatusCode ownpi_LaplaceBorder(Image<const T> src, Image<T> dst, Roi roi, int code, int borderType, const T* value,
                               uint8_t* buffer) {
    if (auto bad = sameTypeChecks(src, dst, roi, code, true, borderType, value, buffer)) return bad;
    using Smooth = Weights<1, 4, 6, 4, 1>;
    using Second = Weights<1, 0, -2, 0, 1>;
    using Large = InLines<layout.channels, layout.alpha, SumOver64, Product<Second, Smooth>, Product<Smooth, Second>>;
    return apply<layout>(
        src, dst, roi, code, borderType, value,
        code == MASK_3X3 ? neighbours<layout.channels, layout.alpha, Laplacian, T, T> : Large::template run<T, T>);
}
template <Layout layout, class T>
StatusCode ownpi_SharpenBorder(Image<const T> src, Image<T> dst, Roi roi, int code, int borderType, const T* value,
                               uint8_t* buffer) {
    if (auto bad = sameTypeChecks(src, dst, roi, code, false, borderType, value, buffer)) return bad;
    return apply<layout>(src, dst, roi, code, borderType, value,
                         neighbours<layout.channels, layout.alpha, Sharpened, T, T>);
}

StatusCode ownpi_LaplaceGetBufferSize(ImageSize roi, int code, int from, int to, int channels, int* size) {
    if (auto bad = sameTypeQuery(roi, code, true, from, to, channels, size)) return bad;
    return answerSize(fixedBufferSize(roi, code, from, channels), size);
}
StatusCode ownpi_SharpenGetBufferSize(ImageSize roi, int code, int from, int to, int channels, int* size) {
    if (auto bad = sameTypeQuery(roi, code, false, from, to, channels, size)) return bad;
    return answerSize(fixedBufferSize(roi, code, from, channels), size);
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/fixed.def"
SAME_TYPE_SIZE_FAMILY(Laplace)
SAME_TYPE_FAMILY(Laplace)
SAME_TYPE_SIZE_FAMILY(Sharpen)
SAME_TYPE_FAMILY(Sharpen)
