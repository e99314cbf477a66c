// zmviSet: a constant into every pixel, every pixel of a mask, or one channel.
#include "core/streaming.h"
#include "kernels/masked.h"

namespace zmv {
namespace {

// Steps are not checked in this family: any step, zero and negative ones too, walks the rows.

// The first `used` of `channels` channels; what lies between them stays.
template <class T>
void setChannels(const Pattern& values, Image<T> dst, Roi roi, int used, int channels) {
    const Pattern written = Pattern::mask<T>(used, channels);
    for (Len y = 0; y < roi.height; ++y)
        blendRow(dst.row(y), fromPattern(values), written, rowBytes<T>(roi.width, used, channels));
}

template <Layout layout, class T>
StatusCode ownpi_Set(const T* value, Image<T> dst, Roi roi) {
    if (auto bad = firstOf({pointers(value, dst.data), size(roi)})) return bad;
    const Pattern values(value, layout);
    if (layout.alpha) return setChannels(values, dst, roi, 3, 4), STATUS_OK;
    const bool pastCache = regionPastCache(roi, layout, sizeof(T));
    roi = joinRows(roi, gapless(dst, roi.width, layout.channels));
    const Len bytes = roi.width * layout.channels * Len(sizeof(T));
    for (Len y = 0; y < roi.height; ++y)
        if (pastCache)
            streamFill(dst.row(y), values, bytes);
        else
            fillRow(dst.row(y), values, bytes);
    if (pastCache) fence();
    return STATUS_OK;
}

template <Layout layout, class T>
StatusCode ownpi_SetChannel(const T* value, Image<T> dst, Roi roi) {
    if (auto bad = firstOf({pointers(dst.data), size(roi)})) return bad;
    setChannels(Pattern(value, C1), dst, roi, 1, layout.channels);
    return STATUS_OK;
}

template <class T, int n>
struct ConstantSource {
    Block<Vec<T>, n> pixels;
    const Block<Vec<T>, n>& operator()(Len) const { return pixels; }
    const Block<Vec<T>, n>& operator()(Len, int) const { return pixels; }
};

template <Layout layout, class T>
StatusCode ownpi_SetMasked(const T* value, Image<T> dst, Roi roi, Image<const uint8_t> mask) {
    if (auto bad = firstOf({pointers(value, dst.data, mask.data), size(roi)})) return bad;
    Block<Vec<T>, layout.channels> planes{};
    for (int c = 0; c < layout.used(); ++c) planes[c] = fill(get(value + c));
    const ConstantSource<T, layout.channels> source{pixelsOf(planes)};
    writeMasked<layout>(
        dst, roi, mask, [&](Len) -> const auto& { return source; });
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/copy.def"
SET_FAMILY
