// zmviCopy and zmviDup: copies between all layouts.
#include "core/streaming.h"
#include "datamove/channels.h"
#include "kernels/masked.h"

namespace zmv {
namespace {

// Steps are not checked in this family: any step, zero and negative ones too, walks the rows.

template <int used, int from, int to, class T>
StatusCode ownpi_CopyChannels(Image<const T> src, Image<T> dst, Roi roi) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi)})) return bad;
    const auto s = inPixels<used>(src, from);
    const auto d = inPixels<used>(dst, to);
    if constexpr (from != to) {
        moveChannels<used, from, to>(s, d, roi);
    } else if (overlaps(s, d, roi)) {
        moveElements(s, d, roi);
    } else {
        const Pattern moved = Pattern::mask<T>(used, to);
        const Len bytes = rowBytes<T>(roi.width, used, to);
        for (Len y = 0; y < roi.height; ++y) blendRow(dst.row(y), fromRow(src.row(y)), moved, bytes);
    }
    return STATUS_OK;
}

template <class T>
StatusCode ownpi_Copy(Image<const T> src, Image<T> dst, Roi roi, Layout layout) {
    if (layout.alpha) return ownpi_CopyChannels<3, 4, 4>(src, dst, roi);
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi)})) return bad;
    const Len rowBytes = roi.width * layout.channels * Len(sizeof(T));
    copyRows(src, dst, {rowBytes, roi.height}, rowBytes * roi.height >= largeCopy);
    return STATUS_OK;
}

template <class T, int n>
struct MaskedSource {
    const T* row;
    Block<Vec<T>, n> operator()(Len x) const { return loadPixels<n>(row + x * n); }
    Block<Vec<T>, n> operator()(Len x, int count) const {
        T pixels[lanes<T> * n] = {};
        std::memcpy(pixels, row + x * n, size_t(count) * n * sizeof(T));
        return loadPixels<n>(pixels);
    }
};

template <Layout layout, class T>
StatusCode ownpi_CopyMasked(Image<const T> src, Image<T> dst, Roi roi, Image<const uint8_t> mask) {
    if (auto bad = firstOf({pointers(src.data, dst.data, mask.data), size(roi)})) return bad;
    writeMasked<layout>(dst, roi, mask, [&](Len y) { return MaskedSource<T, layout.channels>{src.row(y)}; });
    return STATUS_OK;
}

// Planar copies write past the caches when they move more than these hold; of 8-bit ones only the widest does.
template <class T>
bool planarPastCache(Roi roi, int channels, bool fromPlanes) {
    const bool asks = sizeof(T) > 1 || (fromPlanes && channels == 4);
    return asks && writesPastCache(2 * roi.width * roi.height * channels * Len(sizeof(T)));
}

template <int n, class T, class E>
StatusCode ownpi_CopyToPlanes(Image<const T> src, E* const* dst, Len dstStep, Roi roi) {
    if (auto bad = firstOf({pointers(src.data), planePointers(dst, n), size(roi)})) return bad;
    Channels<T, n> planes{{}, 1, dstStep};
    for (int c = 0; c < n; ++c) planes.first[c] = bits(get(dst + c));
    moveChannels<n, n, 1>(inPixels<n>(src, n), planes, roi, planarPastCache<T>(roi, n, false));
    return STATUS_OK;
}

template <int n, class T, class E>
StatusCode ownpi_CopyFromPlanes(const E* const* src, Len srcStep, Image<T> dst, Roi roi) {
    if (auto bad = firstOf({planePointers(src, n), pointers(dst.data), size(roi)})) return bad;
    Channels<const T, n> planes{{}, 1, srcStep};
    for (int c = 0; c < n; ++c) planes.first[c] = bits(get(src + c));
    moveChannels<n, 1, n>(planes, inPixels<n>(dst, n), roi, planarPastCache<T>(roi, n, true));
    return STATUS_OK;
}

// The same plane in every channel.
template <int n>
StatusCode ownpi_Dup(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi)})) return bad;
    Channels<const uint8_t, n> planes{{}, 1, src.step};
    for (auto& plane : planes.first) plane = src.data;
    moveChannels<n, 1, n>(planes, inPixels<n>(dst, n), roi);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/copy.def"
COPY_FAMILY
DUP_FAMILY
