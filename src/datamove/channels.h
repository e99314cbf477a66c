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
            for (int c = 0; c < n; ++c) put(dst.row(c, y) + x * dst.distance, get(src.row(c, y) + x * src.distance));
}

// Rows that go past the caches by way of a block that stays in the nearest cache: they are written to it like to any
// memory, and leave as whole lines.
class Stage {
  public:
    static constexpr Len room = 16 * lineBytes;  // for what is written at a time

    explicit Stage(void* row) : begin_(Len(reinterpret_cast<uintptr_t>(row) % lineBytes)), end_(begin_) {
        line_ = static_cast<uint8_t*>(row) - begin_;
    }
    // Where the row goes on.
    uint8_t* end() { return lines_ + end_; }
    // So many bytes more have been written there.
    void wrote(Len bytes, bool last) {
        end_ += bytes;
        const Len whole = last ? end_ : end_ / lineBytes * lineBytes;
        zmv::streamRow(line_ + begin_, lines_ + begin_, whole - begin_);
        if (last) return;
        for (Len i = 0; i < lineBytes; i += vectorBytes) store(lines_ + i, loadAs<Vec<uint8_t>>(lines_ + whole + i));
        line_ += whole, end_ -= whole, begin_ = 0;
    }

  private:
    alignas(64) uint8_t lines_[room + 2 * lineBytes];
    uint8_t* line_;    // of the row, where the block belongs
    Len begin_, end_;  // of what waits in the block
};

// The vector path: n channels out of pixels of `from` channels into pixels of `to` channels; 1 means planes.
template <int n, int from, int to, class T>
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
            (..., store(dst[v] + x, channels[v]));
        } else {
            T* const p = dst[0] + x * to - first;
            Block<V, to> planes;
            for (int c = 0; c < to; ++c) planes[c] = channels[c >= first && c < first + n ? c - first : 0];
            auto pixels = pixelsOf(planes);
            if constexpr (n < to) {
                const auto old = loadPixels<to>(p);
                ((pixels[v] = select(maskWhere<IsMoved<v, first>, V>(), pixels[v], old[v])), ...);
            }
            storePixels<to>(p, pixels);
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
        moveBlock<false>(inRows, outRows, 0);
        for (int c = 0; c < targets; ++c) std::memcpy(dst[c], out[c], outBytes);
    }

    // The same past the caches, where all channels of the destination's pixels move.
    static void streamRow(const T* const* src, T* const* dst, Len width) {
        static_assert(n == to || to == 1);
        constexpr int targets = to == 1 ? n : 1;
        constexpr Len part = Stage::room / (to * vectorBytes) * block;
        const auto stages = [&]<size_t... c>(std::index_sequence<c...>) {
            return std::array<Stage, targets>{Stage(dst[c])...};
        };
        auto staged = stages(std::make_index_sequence<targets>());
        for (Len x = 0; x < width; x += part) {
            const Len count = std::min(part, width - x);
            const T* s[n];
            T* d[n];
            for (int c = 0; c < n; ++c) s[c] = src[c] + x * from;
            for (int c = 0; c < targets; ++c) d[c] = reinterpret_cast<T*>(staged[c].end());
            moveRow(s, d, count);
            for (auto& stage : staged) stage.wrote(count * to * Len(sizeof(T)), x + count == width);
        }
    }

    // Source and destination do not overlap, so the last block may move some pixels a second time.
    static void moveRow(const T* const* src, T* const* dst, Len width) {
        if (width < block + endsInsidePixel) return moveShort(src, dst, width);
        Len x = 0;
        for (; x + block < width; x += block) moveBlock<false>(src, dst, x);
        moveBlock<true>(src, dst, width - block);
    }
};

// The n channels of src into dst, by whichever path the addresses allow.
template <int n, int from, int to, class T>
void moveChannels(const Channels<const T, n>& src, const Channels<T, n>& dst, Roi roi, bool pastCache = false) {
    if (overlaps(src, dst, roi)) return moveElements(src, dst, roi);
    roi = joinRows(roi, src.step == roi.width * from * Len(sizeof(T)) && dst.step == roi.width * to * Len(sizeof(T)));
    using Mover = ChannelMover<n, from, to, T>;
    for (Len y = 0; y < roi.height; ++y) {
        const T* s[n];
        T* d[n];
        for (int c = 0; c < n; ++c) s[c] = src.row(c, y), d[c] = dst.row(c, y);
        if constexpr (n == to || to == 1) {
            if (pastCache) {
                Mover::streamRow(s, d, roi.width);
                continue;
            }
        }
        Mover::moveRow(s, d, roi.width);
    }
    if (pastCache) fence();
}

}  // namespace zmv
