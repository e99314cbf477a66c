// zmviCompColorKey: the second image where the first has a chosen colour.  zmviAlphaCompColorKey: the same colour as
// nothing, and both composited.
#include "arith/alphalanes.h"
#include "kernels/masked.h"
#include "kernels/pointwise.h"

namespace zmv {
namespace {

// Pixels of one, two, four or eight bytes are numbers: all channels are compared at once.  `compared` has ones in the
// channels that count.
template <class P>
struct Key {
    Vec<P> key, compared;
    Key(P pixel, P ofWhich) : key(fill(pixel)), compared(fill(ofWhich)) {}
    ZMV_INLINE Vec<P> found(Vec<P> pixels) const { return (Vec<P>)((pixels & compared) == key); }
};
template <class P, class T>
Key<P> keyOf(const T* values, int used) {
    P pixel = 0, compared = 0;
    for (int c = used - 1; c >= 0; --c) {
        pixel = P(pixel << 8 * sizeof(T) % (8 * sizeof(P)) | get(values + c));
        compared = P(compared << 8 * sizeof(T) % (8 * sizeof(P)) | T(~0u));
    }
    return {pixel, compared};
}
template <class P, class T>
auto asPixels(Image<T> image) {
    using Pixel = std::conditional_t<std::is_const_v<T>, const P, P>;
    return Image<Pixel>{reinterpret_cast<Pixel*>(image.data), image.step};
}

// Steps are not checked: any step, zero and negative ones too, walks the rows.
template <Layout layout, class T>
void keyed(Image<const T> a, Image<const T> b, Image<T> dst, Roi roi, const T* values) {
    using P = Bits<std::array<T, size_t(layout.channels)>>;
    const auto key = keyOf<P>(values, layout.used());
    const auto colours = [&](Vec<P> x, Vec<P> y) __attribute__((always_inline)) { return select(key.found(x), y, x); };
    const auto kept = [&](Vec<P> x, Vec<P> y, Vec<P> old) __attribute__((always_inline)) {
        return select(key.compared, colours(x, y), old);
    };
    const Image<const P> pixelsA = asPixels<P>(a), pixelsB = asPixels<P>(b);
    const Image<P> to = asPixels<P>(dst);
    if constexpr (layout.alpha)
        pointwise(kept, to, roi, C1, false, pixelsA, pixelsB, Image<const P>(to));
    else
        pointwise(colours, to, roi, C1, false, pixelsA, pixelsB);
}

// Three channels have no such number: planes are compared, and what is found of a pixel is spread over its elements.
template <class V, int v>
struct OfPixel {
    static constexpr int at(int i) { return InLanes<V>::of(i, (v * InLanes<V>::perLane + InLanes<V>::inLane(i)) / 3); }
};
template <class V>
ZMV_INLINE Block<V, 3> spread(V found) {
    if constexpr (byPerfectShuffles<V>)
        return pixelsOf(Block<V, 3>{found, found, found});
    else
        return {permute<OfPixel<V, 0>>(found, found), permute<OfPixel<V, 1>>(found, found),
                permute<OfPixel<V, 2>>(found, found)};
}
template <class T>
using Pixels = Block<Vec<T>, 3>;
template <class T>
ZMV_INLINE Pixels<T> keyedBlock(const T* a, const T* b, const Pixels<T>& key) {
    const auto first = loadPixels<3>(a), second = loadPixels<3>(b);
    const auto planes = planesOf(first);
    const auto found =
        spread((Vec<T>)(planes[0] == key[0]) & (Vec<T>)(planes[1] == key[1]) & (Vec<T>)(planes[2] == key[2]));
    Pixels<T> result;
    for (int i = 0; i < 3; ++i) result[i] = select(found[i], second[i], first[i]);
    return result;
}
template <class T>
void keyedTriples(Image<const T> a, Image<const T> b, Image<T> dst, Roi roi, const T* values) {
    constexpr int block = lanes<T>;
    Pixels<T> key;
    for (int c = 0; c < 3; ++c) key[c] = fill(get(values + c));
    roi = joinRows(roi, gapless(a, roi.width, 3) && gapless(b, roi.width, 3) && gapless(dst, roi.width, 3));
    for (Len y = 0; y < roi.height; ++y) {
        const T *const rowA = a.row(y), *const rowB = b.row(y);
        T* const to = dst.row(y);
        Len x = 0;
        for (; x + block <= roi.width; x += block)
            storePixels<3>(to + 3 * x, keyedBlock(rowA + 3 * x, rowB + 3 * x, key));
        const size_t rest = size_t(roi.width - x) * 3 * sizeof(T);
        if (rest == 0) continue;
        T pixelsA[3 * block] = {}, pixelsB[3 * block] = {}, results[3 * block];
        std::memcpy(pixelsA, rowA + 3 * x, rest);
        std::memcpy(pixelsB, rowB + 3 * x, rest);
        storePixels<3>(results, keyedBlock<T>(pixelsA, pixelsB, key));
        std::memcpy(to + 3 * x, results, rest);
    }
}

template <Layout layout, class T>
StatusCode ownpi_CompColorKey(Image<const T> a, Image<const T> b, Image<T> dst, Roi roi, const T* key) {
    if (auto bad = firstOf({pointers(a.data, b.data, dst.data, key), size(roi)})) return bad;
    if constexpr (layout.channels == 3)
        keyedTriples(a, b, dst, roi, key);
    else
        keyed<layout>(a, b, dst, roi, key);
    return STATUS_OK;
}

StatusCode ownpi_AlphaCompColorKey(Image<const uint8_t> a, Image<const uint8_t> b, Image<uint8_t> dst, Roi roi,
                                   const uint8_t* values, int alphaType) {
    if (auto bad = firstOf({pointers(a.data, b.data, dst.data, values), size(roi), knownAlphaType(alphaType)}))
        return bad;
    const auto key = keyOf<uint32_t>(values, 3);
    compositing<uint8_t>(alphaType, [&](auto op) {
        using V = Vec<uint8_t>;
        const auto rule = [&](V x, V y) __attribute__((always_inline)) {
            return op.pixels(x & ~(V)key.found((Vec<uint32_t>)x), y);
        };
        pointwise(rule, dst, roi, C4, false, a, b);
    });
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/alpha.def"
COLOR_KEY_FAMILY
ALPHA_COLOR_KEY_FAMILY
