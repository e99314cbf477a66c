// Medians of large windows of any element type: without a sort of each window, and without a bin for each value.
//
// The elements that a tile of results depends on are sorted once, and each becomes its place in that order.  A set of
// places, a bit each, is moved over the tile to and fro: it takes what enters the window and gives up what leaves it,
// and knows how many lie before a word of the set, which follows the median about.  Only there bits are counted.
#pragma once

#include "filter/mediannetwork.h"

namespace zmv {

// Tiles are larger than the window, so that most of what is sorted serves many results, and small enough for the nearer
// caches.
constexpr Len tileSide(Len side) { return std::clamp<Len>(2 * side, 32, 128); }

template <class T>
struct RanksMemory {
    static constexpr int wordBits = 64;
    using Key = std::make_unsigned_t<RankOf<T>>;
    Key* keys;
    uint32_t *places, *order, *other;
    uint64_t* words;
    constexpr RanksMemory(Scratch& s, Roi roi, Window window) {
        const WideLen n = (std::min(roi.width, tileSide(window.width)) + window.width - 1) *
                          WideLen(std::min(roi.height, tileSide(window.height)) + window.height - 1);
        keys = s.take<Key, alignof(Key)>(n);
        places = s.take<uint32_t, alignof(uint32_t)>(n);
        order = s.take<uint32_t, alignof(uint32_t)>(n);
        other = s.take<uint32_t, alignof(uint32_t)>(n);
        words = s.take<uint64_t, alignof(uint64_t)>((n >> 6) + 1);
    }
};

// Of a word.  Builds whose processors have no instruction for it would have the compiler call a function of its own.
inline int bitCount(uint64_t word) {
#if defined(__POPCNT__)
    return std::popcount(word);
#else
    const auto pairs = word - (word >> 1 & 0x5555555555555555);
    const auto nibbles = (pairs & 0x3333333333333333) + (pairs >> 2 & 0x3333333333333333);
    return int(((nibbles + (nibbles >> 4)) & 0x0f0f0f0f0f0f0f0f) * 0x0101010101010101 >> 56);
#endif
}

// The places of the elements that are in the window.
class RankSet {
  public:
    RankSet(uint64_t* words, Len n) : words_(words) { std::memset(words, 0, size_t((n >> 6) + 1) * sizeof *words); }
    ZMV_INLINE void add(uint32_t place) {
        words_[place >> 6] |= uint64_t(1) << (place & 63);
        before_ += (place >> 6) < at_;
    }
    ZMV_INLINE void remove(uint32_t place) {
        words_[place >> 6] &= ~(uint64_t(1) << (place & 63));
        before_ -= (place >> 6) < at_;
    }
    // Number k of them.
    uint32_t ofRank(Len k) {
        while (before_ > k) before_ -= bitCount(words_[--at_]);
        for (int here; before_ + (here = bitCount(words_[at_])) <= k; ++at_) before_ += here;
        uint64_t word = words_[at_];
        for (Len i = before_; i < k; ++i) word &= word - 1;
        return at_ * 64 + uint32_t(std::countr_zero(word));
    }

  private:
    uint64_t* words_;
    uint32_t at_ = 0;  // a word, and how many lie before it
    Len before_ = 0;
};

// One channel of pixels of n.
template <class T, int n>
class RankMedian {
    using Memory = RanksMemory<T>;
    using Key = typename Memory::Key;

  public:
    RankMedian(const Bands<T, n>& bands, int channel, Image<T> dst, Roi roi, Window window)
        : bands_(bands), channel_(channel), dst_(dst), roi_(roi), window_(window) {}

    void run(Scratch scratch) const {
        const Memory memory(scratch, roi_, window_);
        const Len w = tileSide(window_.width), h = tileSide(window_.height);
        for (Len y = 0; y < roi_.height; y += h)
            for (Len x = 0; x < roi_.width; x += w)
                tile(memory, x, y, {std::min(w, roi_.width - x), std::min(h, roi_.height - y)});
    }

  private:
    // Keys are ranks without a sign.
    static constexpr Key flip = std::is_signed_v<RankOf<T>> ? Key(Key(1) << (8 * sizeof(Key) - 1)) : Key(0);
    static Key keyOf(T element) { return Key(rankOf(element, rankOfNan<T>())) ^ flip; }

    void tile(const Memory& memory, Len x0, Len y0, Roi results) const {
        const Len width = results.width + window_.width - 1, height = results.height + window_.height - 1;
        for (Len y = 0; y < height; ++y)
            readRow(memory.keys + y * width, x0 - window_.left, y0 + y - window_.top, width);
        const uint32_t* const order = sort(memory, width * height);
        for (Len k = 0; k < width * height; ++k) memory.places[order[k]] = uint32_t(k);

        RankSet set(memory.words, width * height);
        const auto column = [&](Len x, Len y, auto change) {
            for (Len i = 0; i < window_.height; ++i) change(memory.places[(y + i) * width + x]);
        };
        const auto row = [&](Len x, Len y, auto change) {
            for (Len j = 0; j < window_.width; ++j) change(memory.places[y * width + x + j]);
        };
        const auto add = [&](uint32_t place) __attribute__((always_inline)) { set.add(place); };
        const auto remove = [&](uint32_t place) __attribute__((always_inline)) { set.remove(place); };
        const Len middle = (window_.area() - 1) / 2;
        for (Len i = 0; i < window_.height; ++i) row(0, i, add);
        Len x = 0;
        for (Len y = 0;; ++y) {
            T* const dst = dst_.row(y0 + y) + x0 * n + channel_;
            const auto put = [&] {
                const Key rank = memory.keys[order[set.ofRank(middle)]] ^ flip;
                zmv::put(dst + x * n, ofRank<T>(RankOf<T>(rank)));
            };
            put();
            const bool forward = x == 0;
            for (Len k = 1; k < results.width; ++k, put())
                if (forward)
                    column(x + window_.width, y, add), column(x++, y, remove);
                else
                    column(--x, y, add), column(x + window_.width, y, remove);
            if (y + 1 == results.height) return;
            row(x, y + window_.height, add), row(x, y, remove);
        }
    }
    void readRow(Key* to, Len first, Len y, Len width) const {
        const T* const row = bands_.row(y, 0).inside;
        for (Len x = 0; x < width; ++x) {
            const Len column = row ? bands_.column(first + x) : bands_.none;
            to[x] = keyOf(column == bands_.none ? bands_.value()[channel_] : get(row + column * n + channel_));
        }
    }
    // The numbers of keys in their order, the lowest byte first; bytes that are all the same need no pass.
    static const uint32_t* sort(const Memory& memory, Len count) {
        uint32_t *from = memory.order, *to = memory.other;
        for (Len k = 0; k < count; ++k) from[k] = uint32_t(k);
        for (int shift = 0; shift < int(8 * sizeof(Key)); shift += 8) {
            uint32_t starts[257] = {};
            for (Len k = 0; k < count; ++k) ++starts[(memory.keys[k] >> shift & 255) + 1];
            if (starts[(memory.keys[0] >> shift & 255) + 1] == count) continue;
            for (int b = 0; b < 256; ++b) starts[b + 1] += starts[b];
            for (Len k = 0; k < count; ++k) to[starts[memory.keys[from[k]] >> shift & 255]++] = from[k];
            std::swap(from, to);
        }
        return from;
    }

    const Bands<T, n>& bands_;
    int channel_;
    Image<T> dst_;
    Roi roi_;
    Window window_;
};

}  // namespace zmv
