// zmviLUTPalette: pixels of few bits as entries of a palette.
#include "kernels/lookup.h"

namespace zmv {
namespace {

// An entry for each byte: those of the caller's table, again and again.
template <class Entry>
const Entry* repeated(Entry* all, const Entry* table, int bits) {
    Len n = Len(1) << bits;
    if (n == 256) return table;
    for (std::memcpy(all, table, size_t(n) * sizeof(Entry)); n < 256; n *= 2)
        std::memcpy(all + n, all, size_t(n) * sizeof(Entry));
    return all;
}

// Entries of three bytes, which take as many as memory has: the widened copy may be read in words.
class Triples {
  public:
    Triples(const uint8_t* table, int bits) : mask_((1 << bits) - 1) {
        for (int i = 0; i <= mask_; ++i)
            entries_[i] = get(reinterpret_cast<const uint16_t*>(table + 3 * i)) | uint64_t(table[3 * i + 2]) << 16;
    }
    void lookUp(Image<const uint8_t> src, Image<uint8_t> dst, Roi roi) const {
        roi = joinRows(roi, gapless(src, roi.width, 1) && gapless(dst, roi.width, 3));
        for (Len y = 0; y < roi.height; ++y) row(src.row(y), dst.row(y), roi.width);
    }

  private:
    uint64_t at(const uint8_t* pixel) const { return entries_[*pixel & mask_]; }
    void row(const uint8_t* from, uint8_t* to, Len count) const {
        for (; count >= 8; count -= 8, from += 8, to += 24) {
            const uint64_t third = at(from + 2), sixth = at(from + 5);
            const auto words = reinterpret_cast<uint64_t*>(to);
            put(words, at(from) | at(from + 1) << 24 | third << 48);
            put(words + 1, third >> 16 | at(from + 3) << 8 | at(from + 4) << 32 | sixth << 56);
            put(words + 2, sixth >> 8 | at(from + 6) << 16 | at(from + 7) << 40);
        }
        for (; count > 0; --count, ++from, to += 3) {
            const uint64_t entry = at(from);
            put(reinterpret_cast<uint16_t*>(to), uint16_t(entry)), to[2] = uint8_t(entry >> 16);
        }
    }
    int mask_;
    uint32_t entries_[256];
};

template <int bytes, Layout layout, class Entry>
StatusCode ownpi_LUTPalette(Image<const uint8_t> src, Image<Entry> dst, Roi roi, const Entry* const* tables, int bits) {
    constexpr int n = layout.channels;
    if (auto bad = firstOf({pointers(src.data, dst.data), planePointers(tables, layout.used()), size(roi),
                            refuse(bits < 1 || bits > 8, STATUS_OUT_OF_RANGE), rowStep(src.step, roi.width * n),
                            rowStep(dst.step, roi.width * n * bytes)}))
        return bad;
    if constexpr (bytes == 3) {
        Triples(tables[0], bits).lookUp(src, dst, roi);
    } else {
        Entry memory[layout.used()][256];
        const Entry* each[layout.used()];
        for (int c = 0; c < layout.used(); ++c) each[c] = repeated(memory[c], get(tables + c), bits);
        if constexpr (bytes == 1)
            lookUpBytes<n>(src, dst, roi, layout, each, bits <= 4);
        else
            lookUpEntries<n>(src, dst, roi, layout, each);
    }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "stats/lut.def"
LUT_PALETTE_FAMILY
