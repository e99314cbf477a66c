// zmviWinBartlett, zmviWinHamming: images faded out towards their edges.
#include "core/streaming.h"
#include "kernels/pointwise_in.h"
#include "kernels/simd_trig.h"

namespace zmv {
namespace {

// The weights of pixels 0 to `last` of an axis; the two halves are equal to the bit.
template <class Shape>
struct Weight {
    double last;
    ZMV_INLINE Vec<double> operator()(Vec<double> i) const {
        const Vec<double> j = smaller(i, last - i);
        return Shape::of(j + j, fill(last));
    }
};
struct Bartlett {
    static ZMV_INLINE Vec<double> of(Vec<double> twice, Vec<double> last) { return twice / last; }
};
struct Hamming {
    static ZMV_INLINE Vec<double> of(Vec<double> twice, Vec<double> last) {
        return 0.54 - 0.46 * cosineOfPi(twice, last);
    }
};

// The weights of a tile: one a column, times that of the row.
struct Weights : ComputedRows {
    // Wide, since memory likes long rows; on the stack all the same.  What makes a vector of bytes may read four.
    static constexpr Len columns = 2048, rows = 1024;
    alignas(64) float across[columns + 4 * lanes<float>], down[rows];

    struct Row {
        const float* across;
        float down;
        Vec<float> at(Len x) const { return load(across + x) * down; }
        Vec<float> part(Len x, Len) const { return at(x); }
    };
    Row rowAt(Len y, Len x, Len) const { return {across + x, down[y]}; }

    // Of n pixels from one of `all` on.
    template <class Shape>
    static void compute(float* weights, Len from, Len n, Len all) {
        if (all == 1) return void(*weights = 1);
        const bool whole = n == all;  // its second half is the first, turned round
        pointwiseIn<double>(Weight<Shape>{double(all - 1)}, image(weights, 0), Roi(whole ? (n + 1) / 2 : n, 1), C1,
                            false, Columns<double>(from));
        for (Len i = 0; whole && i < n / 2; ++i) weights[n - 1 - i] = weights[i];
    }
};

template <class Shape, class T>
StatusCode ownpi_Win(Image<const T> src, Image<T> dst, Roi roi) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    const bool pastCache = src.data != dst.data && regionPastCache(roi, C1, 2 * sizeof(T));
    Weights weights;
    const auto product = [](Vec<float> weight, Vec<float> pixel) { return weight * pixel; };
    for (Len x = 0; x < roi.width; x += Weights::columns) {
        const Len n = std::min(Weights::columns, roi.width - x);
        Weights::compute<Shape>(weights.across, x, n, roi.width);
        for (Len y = 0; y < roi.height; y += Weights::rows) {
            const Len m = std::min(Weights::rows, roi.height - y);
            Weights::compute<Shape>(weights.down, y, m, roi.height);
            pointwiseIn<float>(product, dst.at(x, y), Roi(n, m), C1, pastCache, weights, src.at(x, y));
        }
    }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "generate/generate.def"
WINDOW_FAMILY(Bartlett)
WINDOW_FAMILY(Hamming)
