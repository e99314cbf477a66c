// zmviSwapChannels: the channels of each pixel in another order, between pixels of three and of four.
#include "datamove/turn.h"

namespace zmv {
namespace {

// Pixels of `from` channels as pixels of `to`, one of them three and the other four; a channel whose entry names none
// stays as it was.  Twelve bytes of the one are as many pixels as sixteen of the other, and change into them inside a
// lane.
template <class T, int from, int to>
class LayoutChange {
  public:
    explicit LayoutChange(const int* order) {
        for (int i = 0; i < 16; ++i) {
            const int entry = order[i / size % to];
            index_[i] = uint8_t((i / (to * size) * from + entry % from) * size + i % size);
            written_[i] = entry < from ? 255 : 0;
            all_ = all_ && entry < from;
        }
        for (int c = 0; c < to; ++c) order_[c] = order[c] % from;
    }
    void row(T* dst, const T* src, Len pixels) const {
        all_ ? steps<true>(reinterpret_cast<uint8_t*>(dst), reinterpret_cast<const uint8_t*>(src), pixels)
             : steps<false>(reinterpret_cast<uint8_t*>(dst), reinterpret_cast<const uint8_t*>(src), pixels);
    }

  private:
    using V = Vec<uint8_t>;
    static constexpr int size = int(sizeof(T)), pixelIn = from * size, pixelOut = to * size;
    static constexpr int step = (hasByteShuffle ? vectorBytes / 4 : vectorBytes) / size;  // pixels
    static constexpr int slack = size == 1 ? 2 : 1;  // pixels that the fourth word of a lane reaches

    template <bool all>
    void steps(uint8_t* dst, const uint8_t* src, Len pixels) const {
        const V index = loadLanes(index_, 0), written = loadLanes(written_, 0);
        // Through memory of its own, so that no other byte is touched.
        const auto edge = [&](Len x, auto count) {
            uint8_t in[step * pixelIn + 16], out[step * pixelOut + 16];
            std::memcpy(in, src + x * pixelIn, size_t(count * pixelIn));
            if constexpr (!all) std::memcpy(out, dst + x * pixelOut, size_t(count * pixelOut));
            stepAt<all>(out, in, index, written);
            std::memcpy(dst + x * pixelOut, out, size_t(count * pixelOut));
        };
        if (pixels < step) return edge(0, pixels);
        Len x = 0;
        for (; x + step + slack <= pixels; x += step)
            stepAt<all>(dst + x * pixelOut, src + x * pixelIn, index, written);
        for (; x < pixels; x += step) edge(std::min(x, pixels - step), std::integral_constant<Len, step>{});
    }
    template <bool all>
    ZMV_INLINE void stepAt(uint8_t* dst, const uint8_t* src, V index, V written) const {
        const auto put = [&](int at, V v) { store(dst + at, all ? v : select(written, v, load(dst + at))); };
        if constexpr (hasByteShuffle) {
            const V v = shuffleBytes(loadLanes(src, 4 * from), index);
            if constexpr (to == 4)
                put(0, v);
            else
                storeLanes(dst, v, 12);  // each lane over the four bytes too many of the one before
        } else {
            const auto planes = planesOf(loadPixels<from>(reinterpret_cast<const T*>(src)));
            Block<Vec<T>, to> chosen;
            for (int c = 0; c < to; ++c) chosen[c] = planes[size_t(order_[c])];
            chosen = pixelsOf(chosen);
            for (int i = 0; i < to; ++i) put(i * vectorBytes, (V)chosen[i]);
        }
    }

    uint8_t index_[16], written_[16];
    int order_[to];
    bool all_ = true;
};

// A row onto itself goes through a block that stays in the nearest cache.
template <int n, class Order, class T>
void reorderInPlace(const Order& order, T* row, Len pixels) {
    constexpr Len block = 48 * vectorBytes / (n * Len(sizeof(T)));
    T copy[block * n];
    for (Len x = 0; x < pixels; x += block) {
        const Len count = std::min(block, pixels - x);
        copyRow(copy, row + x * n, count * n * Len(sizeof(T)));
        order.row(row + x * n, copy, count);
    }
}

template <Layout from, Layout to, class T>
StatusCode ownpi_SwapChannels(Image<const T> src, Image<T> dst, Roi roi, const int* dstOrder) {
    // Negative steps are accepted here, but not zero.
    if (auto bad = firstOf({pointers(src.data, dst.data, dstOrder), size(roi),
                            refuse(src.step == 0 || dst.step == 0, STATUS_BAD_STEP)}))
        return bad;
    constexpr int entries = to.used(), sources = from.used();
    constexpr bool mayLeaveOut = sources < entries;
    int order[entries];
    for (int c = 0; c < entries; ++c) {
        order[c] = get(dstOrder + c);
        if (order[c] < 0 || (!mayLeaveOut && order[c] >= sources)) return STATUS_BAD_CHANNEL_ORDER;
    }
    roi = joinRows(roi, gapless(src, roi.width, from.channels) && gapless(dst, roi.width, to.channels));
    using Change = std::conditional_t<from.channels == to.channels, ChannelShuffle<T, to.channels, entries, false>,
                                      LayoutChange<T, from.channels, to.channels>>;
    const Change change(order);
    for (Len y = 0; y < roi.height; ++y)
        if (from.channels == to.channels && src.data == dst.data)
            reorderInPlace<to.channels>(change, dst.row(y), roi.width);
        else
            change.row(dst.row(y), src.row(y), roi.width);
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/turn.def"
SWAP_FAMILY
