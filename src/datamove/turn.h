// Rows in another order: of channels inside the pixels, of pixels inside the row, or both.
#pragma once

#include "kernels/rows.h"

namespace zmv {

// The first `used` of n channels in another order; reversed, the last pixel comes first and keeps the order of its
// channels.  Vectors are put together from few others that lie near: with a byte shuffle, from those that reach as far
// back and ahead as a pixel does; without one, from those at the distance of each channel, under masks.  Rows do not
// overlap.
template <class T, int n, int used, bool reversed>
class ChannelShuffle {
  public:
    constexpr explicit ChannelShuffle(const int* order) {
        for (int term = 0; term < terms; ++term) {
            // All elements change order when a row is reversed, so that pixels must be turned round for it.
            const auto distance = [&](int c) { return ((reversed ? n - 1 - order[c] : order[c]) - c) * size; };
            offsets_[term] = !hasByteShuffle ? distance(term) : term == 0 ? -reach : reach;
            for (int at = 0; at < 48; ++at) {
                const int c = at / size % n, in = at % 16 + (c < used ? distance(c) : 0);
                const bool first = in + reach < 16;
                const int index = c >= used || first != (term == 0) ? 128 : first ? in + reach : in - reach;
                // The elements of a lane, too, get their opposite order by the shuffle.
                const int to = reversed && hasByteShuffle ? at ^ (16 - size) : at;
                tables_[term][to] = uint8_t(hasByteShuffle ? index : c == term ? 255 : 0);
            }
            for (int at = 48; at < tableBytes; ++at) tables_[term][at] = tables_[term][at - 48];
        }
    }
    void row(T* dst, const T* src, Len pixels) const {
        const auto to = reinterpret_cast<uint8_t*>(dst);
        const auto from = reinterpret_cast<const uint8_t*>(src);
        const Len bytes = pixels * n * size;
        const auto target = [&](Len at) { return to + (reversed ? bytes - vectorBytes - at : at); };
        if (bytes < vectorBytes) {
            uint8_t around[3 * vectorBytes] = {};
            const Len first = reversed ? bytes - vectorBytes : 0;
            std::memcpy(around + vectorBytes, from, size_t(bytes));
            const V v = gathered<false>(tables(reversed ? -1 : 0), around + vectorBytes + first, from, from);
            return storePart(to, blended(v, loadPart(to, int(bytes))), int(bytes));
        }
        const auto edge = [&](Len at, const Tables& tables) __attribute__((always_inline)) {
            store(target(at), blended(gathered<true>(tables, from + at, from, from + bytes), load(target(at))));
        };
        edge(0, tables(0));
        const Tables period[3] = {tables(1), tables(2), tables(3)};
        Len done = eachVector(vectorBytes, bytes - reach, [&](Len at, auto k) {
            const V v = gathered<false>(period[k], from + at, from, from);
            store(target(at), blended(v, used < n ? load(target(at)) : v));
        });
        if (bytes - done > vectorBytes) edge(done, tables(done / vectorBytes)), done += vectorBytes;
        if (bytes > done) edge(bytes - vectorBytes, tables(-1));
    }

  private:
    using V = Vec<uint8_t>;
    static constexpr int size = int(sizeof(T));
    static constexpr bool inLanes = hasByteShuffle && n == 4;  // pixels do not reach over the ends of lanes
    static constexpr int reach = inLanes ? 0 : (n - 1) * size, terms = inLanes ? 1 : hasByteShuffle ? 2 : used;
    static constexpr int tableBytes = 32 + vectorBytes;
    struct IsUsed {
        static constexpr bool at(int i) { return i % n < used; }
    };
    struct Tables {
        V of[terms];
        std::array<Len, terms> offsets;  // beside them, so that no store can change them
    };
    // Of a vector so many vectors behind the start of the row, or before its end.  Rows are whole pixels, and every
    // third lane begins with the same channel.
    ZMV_INLINE Tables tables(Len vector) const {
        const Len lane = vector * (vectorBytes / 16) % 3;
        Tables result;
        for (int term = 0; term < terms; ++term)
            result.of[term] = load(tables_[term] + 16 * (lane < 0 ? lane + 3 : lane));
        result.offsets = offsets_;
        return result;
    }
    template <bool edge>
    static ZMV_INLINE V gathered(const Tables& tables, const uint8_t* p, const uint8_t* begin, const uint8_t* end) {
        V merged{};
        for (int term = 0; term < terms; ++term) {
            const uint8_t* const at = p + tables.offsets[term];
            const V v = edge ? loadWithin(at, begin, end) : loadAs<V>(at);
            if constexpr (hasByteShuffle)
                merged |= shuffleBytes(v, tables.of[term]);
            else
                merged |= v & tables.of[term];
        }
        constexpr int unit = hasByteShuffle ? 16 : size;
        if constexpr (reversed) return opposite<unit>(merged);
        return merged;
    }
    static ZMV_INLINE V blended(V v, [[maybe_unused]] V old) {
        if constexpr (used < n) return select((V)maskWhere<IsUsed, Vec<T>>(), v, old);
        return v;
    }

    alignas(64) uint8_t tables_[terms][tableBytes] = {};
    std::array<Len, terms> offsets_ = {};
};

// Rows of pixels of n channels, the last pixel first.  The rows do not overlap.
template <class T, int n>
class RowReverser {
  public:
    void operator()(T* dst, const T* src, Len pixels) const {
        if constexpr (n == 3)
            threes.row(dst, src, pixels);
        else
            reverse(reinterpret_cast<uint8_t*>(dst), reinterpret_cast<const uint8_t*>(src), pixels * pixel);
    }
    // Whole lines, past the caches.
    void lines(T* dst, const T* src, Len pixels) const {
        static_assert(n != 3);
        const auto to = reinterpret_cast<uint8_t*>(dst);
        const uint8_t* const end = reinterpret_cast<const uint8_t*>(src) + pixels * pixel;
        for (Len at = 0; at < pixels * pixel; at += lineBytes)
            streamLine(to + at,
                       [&](int i) { return opposite<pixel>(loadAs<Vec<uint8_t>>(end - at - (i + 1) * vectorBytes)); });
    }

  private:
    static constexpr int pixel = n * int(sizeof(T));
    static constexpr int kept[3] = {0, 1, 2};
    struct None {
        constexpr explicit None(const int*) {}
    };
    static constexpr std::conditional_t<n == 3, ChannelShuffle<T, 3, 3, true>, None> threes{kept};

    static void reverse(uint8_t* dst, const uint8_t* src, Len bytes) {
        if (bytes >= vectorBytes) return vectors<vectorBytes>(dst, src, bytes);
        if (pixel == 16 || bytes >= 16) return vectors<16>(dst, src, bytes);
        for (Len at = 0; at < bytes; at += pixel) copyPixel<pixel>(dst + at, src + bytes - pixel - at);
    }
    template <int size>
    static void vectors(uint8_t* dst, const uint8_t* src, Len bytes) {
        using V = Vec<uint8_t, size>;
        uint8_t* const last = dst + bytes - size;
        const auto at = [&](Len offset) { store(last - offset, opposite<pixel>(loadAs<V>(src + offset))); };
        at(0);
        // From here on at multiples of the vector's size, as far as whole pixels allow.
        const Len beyond = Len(reinterpret_cast<uintptr_t>(last) % size);
        Len done = (beyond ? beyond : size) / pixel * pixel;
        for (; bytes - done >= 4 * size; done += 4 * size)
            at(done), at(done + size), at(done + 2 * size), at(done + 3 * size);
        for (; bytes - done >= size; done += size) at(done);
        if (done < bytes) at(bytes - size);
    }
};

}  // namespace zmv
