// Moving channels between layouts: n channel streams in, n out, each a first element and a distance from pixel to
// pixel.  Planes and pixels differ in nothing else.
#pragma once

#include "kernels/rows.h"

namespace zmv {

template <class T, int n>
struct Channels {
    T* first[n];   // of each channel, in the first row
    int distance;  // from pixel to pixel, in elements
    Len step;
    T* row(int c, Len y) const { return Image<T>{first[c], step}.row(y); }
};
template <int n, class T>
Channels<T, n> inPixels(Image<T> image, int distance) {
    Channels<T, n> channels{{}, distance, image.step};
    for (int c = 0; c < n; ++c) channels.first[c] = image.data + c;
    return channels;
}

template <class T, int n>
bool overlaps(const Channels<const T, n>& src, const Channels<T, n>& dst, Roi roi) {
    const auto range = [&](const auto& channels, int c) {
        return addressesOf(image(channels.first[c], channels.step), roi.height,
                           rowBytes<T>(roi.width, 1, channels.distance));
    };
    for (int i = 0; i < n; ++i)
        for (int k = 0; k < n; ++k)
            if (range(src, i).meets(range(dst, k))) return true;
    return false;
}

// Where source and destination overlap, the order of the elements is part of the result: rows top to bottom, pixels
// left to right, channels in order, each element reading what those before it wrote.
template <class T, int n>
void moveElements(const Channels<const T, n>& src, const Channels<T, n>& dst, Roi roi) {
    for (Len y = 0; y < roi.height; ++y)
        for (Len x = 0; x < roi.width; ++x)
            for (int c = 0; c < n; ++c)
                std::memcpy(dst.row(c, y) + x * dst.distance, src.row(c, y) + x * src.distance, sizeof(T));
}

// The vector path: n channels out of pixels of `from` channels into pixels of `to` channels; 1 means planes.
template <int n, int from, int to, bool streaming, class T>
struct ChannelMover {
    using V = Vec<T>;
    static constexpr int block = lanes<T>;

    // A channel that lies inside larger pixels may end before its last pixel does.  The last block of a row takes it
    // for the last channel of its pixels instead of the first, and so ends where the row ends.
    static constexpr bool endsInsidePixel = n == 1 && (from > 1 || to > 1);
    static constexpr int position(int distance, bool last) { return endsInsidePixel && last ? distance - 1 : 0; }

    template <int at>
    static ZMV_INLINE Block<V, n> channelsAt(const T* const* src, Len x) {
        Block<V, n> channels;
        if constexpr (from == 1) {
            for (int c = 0; c < n; ++c) channels[c] = load(src[c] + x);
        } else if constexpr (n == 1 && from == 4 && at == 0) {
            channels[0] = loadFirstOfFour(src[0] + x * from);
        } else {
            const auto planes = planesOf(loadPixels<from>(src[0] + x * from - at));
            for (int c = 0; c < n; ++c) channels[c] = planes[at + c];
        }
        return channels;
    }

    template <int v, int first>
    struct IsMoved {  // whether element i of vector v of a block of pixels belongs to a channel that moves
        static constexpr int channel(int i) { return (v * InLanes<V>::perLane + InLanes<V>::inLane(i)) % to; }
        static constexpr bool at(int i) { return channel(i) >= first && channel(i) < first + n; }
    };

    template <int first, int... v>
    static ZMV_INLINE void storeAt(T* const* dst, Len x, const Block<V, n>& channels,
                                   std::integer_sequence<int, v...>) {
        if constexpr (to == 1) {
            (..., storeLanes<streaming>(dst[v] + x, channels[v], 16));
        } else {
            T* const p = dst[0] + x * to - first;
            Block<V, to> planes;
            for (int c = 0; c < to; ++c) planes[c] = channels[c >= first && c < first + n ? c - first : 0];
            auto pixels = pixelsOf(planes);
            if constexpr (n < to) {
                const auto old = loadPixels<to>(p);
                ((pixels[v] = select(maskWhere<IsMoved<v, first>, V>(), pixels[v], old[v])), ...);
            }
            storePixels<to, streaming>(p, pixels);
        }
    }
    template <bool last>
    static ZMV_INLINE void moveBlock(const T* const* src, T* const* dst, Len x) {
        storeAt<position(to, last)>(dst, x, channelsAt<position(from, last)>(src, x),
                                    std::make_integer_sequence<int, (to == 1 ? n : to)>{});
    }

    // A row shorter than a block goes through a padded one.
    static void moveShort(const T* const* src, T* const* dst, Len width) {
        constexpr int sources = from == 1 ? n : 1, targets = to == 1 ? n : 1;
        T in[sources][block * from] = {}, out[targets][block * to];
        const T* inRows[sources];
        T* outRows[targets];
        const auto inBytes = size_t(rowBytes<T>(width, from == 1 ? 1 : n, from));
        const auto outBytes = size_t(rowBytes<T>(width, to == 1 ? 1 : n, to));
        for (int c = 0; c < sources; ++c) std::memcpy(in[c], src[c], inBytes), inRows[c] = in[c];
        for (int c = 0; c < targets; ++c) std::memcpy(out[c], dst[c], outBytes), outRows[c] = out[c];
        ChannelMover<n, from, to, false, T>::template moveBlock<false>(inRows, outRows, 0);
        for (int c = 0; c < targets; ++c) std::memcpy(dst[c], out[c], outBytes);
    }

    // Source and destination do not overlap, so the last block may move some pixels a second time.
    static void moveRow(const T* const* src, T* const* dst, Len width) {
        if (width < block + endsInsidePixel) return moveShort(src, dst, width);
        Len x = 0;
        for (; x + block < width; x += block) moveBlock<false>(src, dst, x);
        ChannelMover<n, from, to, false, T>::template moveBlock<true>(src, dst, width - block);
    }
};

// The n channels of src into dst, by whichever path the addresses allow.
template <int n, int from, int to, class T>
void moveChannels(const Channels<const T, n>& src, const Channels<T, n>& dst, Roi roi, bool pastCache = false) {
    if (overlaps(src, dst, roi)) return moveElements(src, dst, roi);
    roi = joinRows(roi, src.step == roi.width * from * Len(sizeof(T)) && dst.step == roi.width * to * Len(sizeof(T)));
    for (Len y = 0; y < roi.height; ++y) {
        const T* s[n];
        T* d[n];
        bool streaming = pastCache;
        for (int c = 0; c < n; ++c) {
            s[c] = src.row(c, y), d[c] = dst.row(c, y);
            streaming = streaming && (to > 1 || canStream(d[c]));
        }
        streaming = streaming && canStream(d[0]);
        (streaming ? ChannelMover<n, from, to, true, T>::moveRow : ChannelMover<n, from, to, false, T>::moveRow)(
            s, d, roi.width);
    }
    if (pastCache) fence();
}

}  // namespace zmv
