// zmviDotProd: the sum of the products of two images.
#include "stats/norm.h"

namespace zmv {
namespace {

struct Both {
    template <class V>
    ZMV_INLINE Factors<V> operator()(V a, V b) const {
        return {a, b};
    }
};
struct Product {
    template <class V>
    ZMV_INLINE V operator()(V a, V b) const {
        return a * b;
    }
};

template <class T>
PerChannel<double> dotProduct(Image<const T> a, Image<const T> b, Roi roi, int channels, int) {
    return withChannels(channels, [&](auto n) {
        SumFold<n, T, ProductSums<T>, Both> fold;
        foldRegion<n>(fold, roi, Zeros{}, a, b);
        PerChannel<double> result{};
        for (int c = 0; c < n; ++c) result[c] = rounded(fold.totals()[c]);
        return result;
    });
}
PerChannel<double> dotProduct(Image<const float> a, Image<const float> b, Roi roi, int channels, int hint) {
    if (hint == HINT_ACCURATE) return realSums<double>(Product{}, roi, channels, a, b);
    return realSums<float>(Product{}, roi, channels, a, b);
}

// The fourth channel of AC4 is summed like the others, and nobody is told.
template <class T>
StatusCode ownpi_DotProd(Image<const T> a, Image<const T> b, Roi roi, Layout layout, double* product, int hint = 0) {
    if (auto bad = checkedPair(a, b, roi, product)) return bad;
    const auto all = dotProduct(a, b, roi, layout.channels, hint);
    for (int c = 0; c < layout.used(); ++c) put(product + c, all[c]);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/norm.def"
DOT_PRODUCT_FAMILY
