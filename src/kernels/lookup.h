// The walkers of tables: each element of the result is the entry that an element of the source chooses in the table of
// its channel.
#pragma once

#include "kernels/pointwise.h"
#include "kernels/simd_lookup.h"

namespace zmv {

// A load an element.
template <int n, class Entry, class Index>
void lookUpByLoads(const Entry* const* tables, const Index* src, Entry* dst, Len count) {
    constexpr int block = n == 3 ? 6 : 8;
    Len x = 0;
    for (; count - x >= block; x += block)
        unrolled<block>([&](auto k) { put(dst + x + k, get(tables[k % n] + get(src + x + k))); });
    for (; x < count; ++x) put(dst + x, get(tables[x % n] + get(src + x)));
}

// In n vectors of pixels every place of a vector holds another channel in each: of three channels as they lie, since no
// vector is a multiple of three bytes long, of four when vector k has each pixel turned round by k bytes.
template <class V, int turn>
struct PixelTurned {
    static constexpr int at(int i) { return i / 4 * 4 + (i + turn) % 4; }
};
template <int turn, class V>
ZMV_INLINE V pixelsTurned(V v) {
    return permute<PixelTurned<V, turn>>(v, v);
}
// Where vector v holds the channel.
template <int n, int v, int channel>
struct HoldsChannel {
    static constexpr bool at(int i) { return (n == 3 ? (v * vectorBytes + i) % 3 : (v + i) % 4) == channel; }
};
// Vector c takes each byte from the vector that has it in channel c, where the other way round is the same.
template <int n, bool back, class V>
ZMV_INLINE Block<V, n> channelsChanged(const Block<V, n>& block) {
    Block<V, n> result;
    unrolled<n>([&](auto to) {
        result[to] = block[0];
        unrolled<n>([&](auto from) {
            using Holds = HoldsChannel<n, back ? to : from, back ? from : to>;
            if constexpr (from > 0) result[to] = select(maskWhere<Holds, V>(), block[from], result[to]);
        });
    });
    return result;
}

// `used` of n channels, each through its table; the others, which the caller leaves out, through any.
template <int n, class Table>
class BytesThrough {
  public:
    BytesThrough(const uint8_t* const* tables, int used)
        : BytesThrough(tables, used, std::make_integer_sequence<int, n>{}) {}
    ZMV_INLINE void block(const uint8_t* src, uint8_t* dst) const {
        Block<V, n> pixels;
        unrolled<n>([&](auto k) {
            pixels[k] = load(src + k * vectorBytes);
            if constexpr (n == 4) pixels[k] = pixelsTurned<k>(pixels[k]);
        });
        auto channels = channelsChanged<n, false>(pixels);
        unrolled<n>([&](auto c) { channels[c] = tables_[c].at(channels[c]); });
        pixels = channelsChanged<n, true>(channels);
        unrolled<n>([&](auto k) {
            if constexpr (n == 4) pixels[k] = pixelsTurned<(4 - k) % 4>(pixels[k]);
            store(dst + k * vectorBytes, pixels[k]);
        });
    }
    void row(const uint8_t* src, uint8_t* dst, Len count) const {
        constexpr Len whole = n * vectorBytes;
        for (; count >= whole; count -= whole, src += whole, dst += whole) block(src, dst);
        if (count == 0) return;
        uint8_t rest[whole] = {};
        std::memcpy(rest, src, size_t(count));
        block(rest, rest);
        std::memcpy(dst, rest, size_t(count));
    }

  private:
    using V = Vec<uint8_t>;
    template <int... c>
    BytesThrough(const uint8_t* const* tables, int used, std::integer_sequence<int, c...>)
        : tables_{Table(tables[c < used ? c : 0])...} {}
    Table tables_[n];
};

// Calls row(from, to, count) for the elements of each row.  Stores go to the caches: reading the tables takes longer.
template <class Index, class Entry, class Row>
void eachLookUp(Image<const Index> src, Image<Entry> dst, Roi roi, Layout layout, Row row) {
    const auto elements = [&](Entry* to, Len y, Len x, Len count) { row(src.row(y) + x, to, count); };
    eachRow(dst, joinOperands(roi, layout, dst, src), layout, false, elements, elements);
}

// dst = tables[channel][src] for elements of any width, from tables that have an entry for every index.
template <int n, class Entry, class Index>
void lookUpEntries(Image<const Index> src, Image<Entry> dst, Roi roi, Layout layout, const Entry* const* tables) {
    const Entry* each[n];
    for (int c = 0; c < n; ++c) each[c] = tables[c < layout.used() ? c : 0];
    eachLookUp(src, dst, roi, layout,
               [&](const Index* from, Entry* to, Len count) { lookUpByLoads<n>(each, from, to, count); });
}

// The same for bytes; where tables are short, their first 16 entries repeat.
template <int n>
void lookUpBytes(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, Layout layout, const uint8_t* const* tables,
                 bool areShort) {
    constexpr Len vectorsPay = 256;  // bytes; below, making a table ready costs more than it saves
    if constexpr (hasByteShuffle) {
        const auto inVectors = [&]<class Table>(std::type_identity<Table>) {
            const BytesThrough<n, Table> through(tables, layout.used());
            eachLookUp(src, dst, roi, layout,
                       [&](const uint8_t* from, uint8_t* to, Len count) { through.row(from, to, count); });
        };
        if (areShort) return inVectors(std::type_identity<ShortTable>{});
        if (roi.width * roi.height * n >= vectorsPay) return inVectors(std::type_identity<ByteTable>{});
    }
    lookUpEntries<n>(src, dst, roi, layout, tables);
}

}  // namespace zmv
