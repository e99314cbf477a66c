// zmviConvert between element types without a rounding mode: wider, narrower with saturation, negative numbers as zero.
#include "kernels/pointwise_in.h"

namespace zmv {
namespace {

// What is computed in: the wider of the two types.
template <class S, class D>
using WiderOfTwo = std::conditional_t<std::is_floating_point_v<D> || sizeof(D) >= sizeof(S), D, S>;

struct Same {
    RoundingControl::Mode rounding;
    template <class V>
    ZMV_INLINE V operator()(V v) const {
        return v;
    }
};

template <class S, class D>
StatusCode ownpi_Convert(Image<const S> src, Image<D> dst, Roi roi, Layout layout) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    const bool exact = sizeof(S) < 4 || std::is_integral_v<D>;
    const Same same{exact ? RoundingControl::callers : RoundingControl::toNearestEven};
    pointwiseIn<WiderOfTwo<S, D>>(same, dst, roi, layout, regionPastCache(roi, layout, sizeof(S) + sizeof(D)), src);
    return STATUS_OK;
}

// Overlapping rows convert element by element from the first on, whatever that makes of elements that are read later.
template <class S, class D>
void clampForward(Image<const S> src, Image<D> dst, Roi roi) {
    for (Len y = 0; y < roi.height; ++y)
        for (Len x = 0; x < roi.width; ++x) put(dst.row(y) + x, D(std::max<S>(get(src.row(y) + x), 0)));
}

template <class S, class D>
StatusCode ownpi_ConvertClamped(Image<const S> src, Image<D> dst, Roi roi) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi)})) return bad;
    const auto addresses = [&](auto image) {
        return addressesOf(image, roi.height, roi.width * Len(sizeof *image.data));
    };
    if (addresses(src).meets(addresses(dst))) return clampForward(src, dst, roi), STATUS_OK;
    using W = std::make_signed_t<D>;
    pointwiseIn<W>([](Vec<W> v) { return v > 0 ? v : Vec<W>{}; }, image(reinterpret_cast<W*>(dst.data), dst.step), roi,
                   C1, false, src);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/convert.def"
CONVERT_PLAIN_TYPES
