// zmviSwapChannels: the channels of each pixel in another order, between pixels of three and of four.
#include "datamove/turn.h"

namespace zmv {
namespace {

// Pixels of `from` channels into pixels of `to`, one of them three and the other four: twelve bytes of the one are
// sixteen of the other, and change into them inside a lane.
template <class T, int from, int to>
class LayoutChange {
  public:
    explicit LayoutChange(const int* order) {
        constexpr int bytes = int(sizeof(T));
        uint8_t index[16], written[16];
        for (int i = 0; i < 16; ++i) {
            const int pixel = i / (to * bytes), channel = order[i / bytes % to];
            index[i] = uint8_t((pixel * from + channel % from) * bytes + i % bytes);
            written[i] = channel < from ? 255 : 0;
            all_ = all_ && channel < from;
        }
        for (int c = 0; c < to; ++c) order_[c] = order[c] % from;
        index_ = loadLanes(index, 0);
        written_ = loadLanes(written, 0);
    }
    void row(T* dst, const T* src, Len width) const {
        all_ ? blocks<true>(dst, src, width) : blocks<false>(dst, src, width);
    }

  private:
    using V = Vec<uint8_t>;
    static constexpr int block = lanes<T>;              // pixels
    static constexpr int beyond = 16 / int(sizeof(T));  // elements that a block may touch behind its last pixel

    template <bool all>
    void blocks(T* dst, const T* src, Len width) const {
        Len x = 0;
        for (; x + block + beyond / 2 < width; x += block) blockAt<all>(dst + x * to, src + x * from);
        for (; x < width; x += block) {
            const auto count = size_t(std::min<Len>(block, width - x)) * sizeof(T);
            T in[block * from + beyond], out[block * to + beyond];
            std::memcpy(in, src + x * from, count * from);
            std::memcpy(out, dst + x * to, count * to);
            blockAt<all>(out, in);
            std::memcpy(dst + x * to, out, count * to);
        }
    }
    template <bool all>
    ZMV_INLINE void blockAt(T* dst, const T* src) const {
        const auto to8 = reinterpret_cast<uint8_t*>(dst);
        const auto from8 = reinterpret_cast<const uint8_t*>(src);
        const auto put = [&](int at, V v) { store(to8 + at, all ? v : select(written_, v, load(to8 + at))); };
        if constexpr (shufflesBytes) {
            constexpr int less = width / 4 * 3;
            for (int i = 0; i < 4; ++i)
                if constexpr (to == 4)
                    put(i * width, shuffleBytes(threesToLanes(load(from8 + i * less)), index_));
                else
                    put(i * less, lanesToThrees(shuffleBytes(load(from8 + i * width), index_)));
        } else {
            const auto planes = planesOf(loadPixels<from>(src));
            Block<Vec<T>, to> chosen;
            for (int c = 0; c < to; ++c) chosen[c] = planes[size_t(order_[c])];
            chosen = pixelsOf(chosen);
            for (int i = 0; i < to; ++i) put(i * width, (V)chosen[i]);
        }
    }

    V index_, written_;
    int order_[to];
    bool all_ = true;
};

// A row onto itself goes through a block that stays in the nearest cache.
template <class T, int n, int used>
void reorderInPlace(const ChannelOrder<T, n, used>& order, T* row, Len pixels) {
    constexpr Len block = 48 * width / (n * Len(sizeof(T)));
    T copy[block * n];
    for (Len x = 0; x < pixels; x += block) {
        const Len count = std::min(block, pixels - x);
        copyRow(copy, row + x * n, count * n * Len(sizeof(T)));
        reorderRow<false>(order, row + x * n, copy, count);
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
    const bool inPlace = src.data == dst.data;
    roi = joinRows(roi, gapless(src, roi.width, from.channels) && gapless(dst, roi.width, to.channels));
    if constexpr (from.channels != to.channels) {
        const LayoutChange<T, from.channels, to.channels> change(order);
        for (Len y = 0; y < roi.height; ++y) change.row(dst.row(y), src.row(y), roi.width);
    } else {
        const ChannelOrder<T, to.channels, entries> change(order);
        for (Len y = 0; y < roi.height; ++y)
            if (inPlace)
                reorderInPlace(change, dst.row(y), roi.width);
            else
                reorderRow<false>(change, dst.row(y), src.row(y), roi.width);
    }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "datamove/turn.def"
SWAP_FAMILY
