// zmviMirror: rows, pixels of a row, or both in the opposite order; or rows and columns changed.
#include "datamove/transpose.h"
#include "datamove/turn.h"
#include "kernels/pointwise.h"

namespace zmv {
namespace {

template <class... Images>
StatusCode checked(Roi roi, const Images&... images) {
    // Steps before the size, unlike most families.
    return firstOf({pointers(images.data...), steps(images.step...), size(roi)});
}

// Whether any row of one region shares a byte with a row of the other.  Steps are positive, so rows ascend.
bool meet(ConstBytes a, Roi aBytes, ConstBytes b, Roi bBytes) {
    for (Len i = 0, k = 0; i < aBytes.height && k < bBytes.height;) {
        const uint8_t *aEnd = a.row(i) + aBytes.width, *bEnd = b.row(k) + bBytes.width;
        if (a.row(i) < bEnd && b.row(k) < aEnd) return true;
        aEnd <= bEnd ? ++i : ++k;
    }
    return false;
}

template <Layout layout, class T>
class RowExchanger {
  public:
    explicit RowExchanger(bool reversed) : reversed_(reversed) {}
    // Two stretches of pixels that do not overlap change places.
    void operator()(T* a, T* b, Len pixels) const {
        for (Len x = 0; x < pixels; x += block) {
            const Len count = std::min(block, pixels - x);
            T* const other = b + (reversed_ ? pixels - x - count : x) * layout.channels;
            T copy[block * layout.channels];
            copyRow(copy, other, count * pixel);
            put(other, a + x * layout.channels, count);
            put(a + x * layout.channels, copy, count);
        }
    }

  private:
    static constexpr Len pixel = layout.channels * Len(sizeof(T)), block = 48 * vectorBytes / pixel;
    bool reversed_;
    RowReverser<T, layout.channels> reverse_;
    Pattern moved_ = Pattern::mask<T>(layout.used(), layout.channels);

    void put(T* dst, const T* src, Len count) const {
        if constexpr (layout.alpha) {
            T results[block * layout.channels];
            if (reversed_) reverse_(results, src, count);
            blendRow(dst, fromRow(reversed_ ? results : src), moved_, rowBytes<T>(count, 3, 4));
        } else if (reversed_) {
            reverse_(dst, src, count);
        } else {
            copyRow(dst, src, count * pixel);
        }
    }
};

template <Layout layout, class T>
StatusCode ownpi_MirrorInPlace(Image<T> image, Roi roi, int axis) {
    if (auto bad = firstOf({checked(roi, image), refuse(axis < AXIS_HORIZONTAL || axis > AXIS_BOTH, STATUS_BAD_AXIS)}))
        return bad;
    const RowExchanger<layout, T> exchange(axis != AXIS_HORIZONTAL);
    for (Len y = 0; y < roi.height; ++y) {
        const Len other = axis == AXIS_VERTICAL ? y : roi.height - 1 - y, half = roi.width / 2;
        if (y < other) exchange(image.row(y), image.row(other), roi.width);
        if (y == other && axis != AXIS_HORIZONTAL)
            exchange(image.row(y), image.row(y) + (roi.width - half) * layout.channels, half);
    }
    return STATUS_OK;
}

template <Layout layout, bool typeAsks, class T>
StatusCode ownpi_Mirror(Image<const T> src, Image<T> dst, Roi roi, int axis) {
    if (auto bad = checked(roi, src, dst)) return bad;
    constexpr int channels = layout.channels;
    constexpr bool asks = typeAsks && layout.used() == 4;
    const Len rowBytes = roi.width * channels * Len(sizeof(T));
    const auto pastCache = [&] {
        if (asks) return writesPastCache(2 * rowBytes * roi.height);
        return !layout.alpha && axis == AXIS_HORIZONTAL && rowBytes * roi.height >= largeCopy;
    };
    // The last row first, by walking backwards.
    const auto upsideDown = [](auto image, Len height) { return zmv::image(image.row(height - 1), -image.step); };

    if (axis == AXIS_DIAGONAL_A || axis == AXIS_DIAGONAL_B) {
        if (meet(bytesOf(src), {rowBytes, roi.height}, bytesOf(dst),
                 {roi.height * channels * Len(sizeof(T)), roi.width}))
            return STATUS_BAD_ARGUMENT;
        if (axis == AXIS_DIAGONAL_B) src = upsideDown(src, roi.height), dst = upsideDown(dst, roi.width);
        transpose<layout, asks>(src, dst, roi);
        return STATUS_OK;
    }
    if (axis < AXIS_HORIZONTAL || axis > AXIS_BOTH) return STATUS_BAD_AXIS;
    if (src.data == dst.data && src.step == dst.step) return ownpi_MirrorInPlace<layout>(dst, roi, axis);

    if (axis != AXIS_VERTICAL) src = upsideDown(src, roi.height);
    if (axis == AXIS_HORIZONTAL && !layout.alpha)
        return copyRows(src, dst, {rowBytes, roi.height}, pastCache()), STATUS_OK;
    const RowReverser<T, channels> reverse;
    // The pixels that elements x to x + n of a row come from, which begin with a pixel.
    const auto opposite = [&](Len y, Len x, Len n) {
        return src.row(y) + roi.width * channels - x - (n + channels - 1) / channels * channels;
    };
    eachRow(
        dst, roi, layout, pastCache() && canStream(dst, channels * sizeof(T)),
        [&](T* to, Len y, Len x, Len n) {
            if (axis == AXIS_HORIZONTAL)
                copyRow(to, src.row(y) + x, n * Len(sizeof(T)));
            else
                reverse(to, opposite(y, x, n), (n + channels - 1) / channels);
        },
        [&](T* to, Len y, Len x, Len n) {
            if constexpr (asks) reverse.lines(to, opposite(y, x, n), n / channels);
        });
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/turn.def"
MIRROR_FAMILY
