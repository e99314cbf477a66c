// The 3 x 3 mean of bytes, the smallest and commonest window, with its sums in registers: two rows of results at a
// time, from the sums of three neighbours in the two rows above them, which a short line keeps, and in two new rows.
#pragma once

#include "kernels/bands.h"

namespace zmv {

// Where a vector's pixels are, and their neighbours to the left and to the right.
struct Neighbours {
    const uint8_t *before, *at, *after;
    Neighbours operator+(Len offset) const { return {before + offset, at + offset, after + offset}; }
};

// Sums of three neighbours along a row, those of a vector's even and those of its odd bytes.
struct Triples {
    Vec<uint16_t> even, odd;
};
template <int n>
ZMV_INLINE Triples triplesAt(Neighbours p) {
    const auto before = loadAs<Vec<uint16_t>>(p.before), after = loadAs<Vec<uint16_t>>(p.after);
    if constexpr (n == 1) {
        const auto two = pairSums(load(p.at));
        return {two + (before & 255), two + (after >> 8)};
    } else {
        const auto at = loadAs<Vec<uint16_t>>(p.at);
        return {(before & 255) + (at & 255) + (after & 255), (before >> 8) + (at >> 8) + (after >> 8)};
    }
}

// Rows of more than a few vectors keep their line in the work buffer, which is many times as large; columns are worked
// in strips of so many vectors.
constexpr Len mean3x3Strip = 4096 / vectorBytes, mean3x3Few = 8;
struct Mean3x3Memory {
    Triples (*line)[2];
    BandsMemory<uint8_t> bands;
    constexpr Mean3x3Memory(Scratch& s, Roi roi, Window window, int n, bool constant)
        : line(nullptr), bands(s, roi, window, n, {constant, false}) {
        const Len vectors = (roi.width * n - 1) / vectorBytes + 1;
        if (vectors > mean3x3Few) line = s.take<Triples[2], vectorBytes>(std::min(vectors, mean3x3Strip));
    }
};

template <int n>
class Mean3x3 {
  public:
    Mean3x3(const Bands<uint8_t, n>& bands, Image<uint8_t> dst, Roi roi)
        : bands_(bands),
          dst_(dst),
          roi_(roi),
          bytes_(roi.width * n),
          head_((bytes_ - 1) % vectorBytes + 1),
          vectors_((bytes_ - 1) / vectorBytes + 1),
          left_(bands.column(-1)),
          right_(bands.column(roi.width)) {}

    void run(Triples (*line)[2]) const {
        Triples ours[mean3x3Few][2];
        if (!line) line = ours;
        for (Len from = 0; from < vectors_; from += strip) runStrip(line, from, std::min(vectors_, from + strip));
    }

  private:
    // Rows are worked in batches: their ends, with what the border makes of the pixels beyond, are laid out well before
    // they are read, since a load that spans recent stores waits for them.
    static constexpr Len strip = mean3x3Strip;
    static constexpr int batch = 16;
    struct Ends {
        const uint8_t* row;
        // Of rows up to two vectors, all of it, with a pixel more on both sides.  Else the first vector with a pixel
        // before it, and the last one with a pixel behind it.
        uint8_t bytes[4 * vectorBytes];
        static constexpr int last = 2 * vectorBytes;
    };

    void runStrip(Triples (*line)[2], Len from, Len to) const {
        Ends rows[batch];
        const Len pairs = (roi_.height + 3) / 2;
        for (Len pair = 0; pair < pairs; ++pair) {
            const int slot = int(2 * pair % batch);
            if (slot == 0)
                for (int k = 0; k < batch; ++k) layOut(rows[k], std::min(2 * pair - 1 + k, roi_.height));
            // Behind the last row of an odd number, the second result is there to be overwritten.
            const Len y = 2 * pair - 2;
            const auto to0 = pair == 0 ? nullptr : dst_.row(y);
            const auto to1 = pair == 0 || y + 1 == roi_.height ? to0 : dst_.row(y + 1);
            eachOfRow(line, from, to, rows[slot], rows[slot + 1], to0, to1);
        }
    }

    // A vector of two rows of results, which lie between the two rows of the line and two new ones; the new ones take
    // their places.  Without results, when the line is empty, it is only filled.
    ZMV_INLINE static void mix(Triples (&above)[2], Neighbours first, Neighbours second, uint8_t* to0, uint8_t* to1,
                               int bytes) {
        const Triples c = triplesAt<n>(first), d = triplesAt<n>(second);
        const Triples a{above[0].even, above[0].odd}, b{above[1].even, above[1].odd};
        above[0].even = c.even, above[0].odd = c.odd, above[1].even = d.even, above[1].odd = d.odd;
        if (!to0) return;
        // 32768 / 9 is 3640.9: for sums of nine bytes the product rounds as the quotient does, see BoxMean.
        const auto put = [&](uint8_t* to, auto even, auto odd) {
            const auto ninth = fill(uint16_t(3641));
            storeUpTo(to, (Vec<uint8_t>)(mulRounded(even, ninth) | mulRounded(odd, ninth) << 8), bytes);
        };
        const auto even = b.even + c.even, odd = b.odd + c.odd;
        put(to1, even + d.even, odd + d.odd);
        put(to0, even + a.even, odd + a.odd);
    }
    static void mixVectors(Triples (*above)[2], const uint8_t* first, const uint8_t* second, uint8_t* to0, uint8_t* to1,
                           Len count) {
        const Neighbours p{first - n, first, first + n}, q{second - n, second, second + n};
        if (to0)
            for (Len i = 0; i < count; ++i) {
                const Len x = i * vectorBytes;
                mix(above[i], p + x, q + x, to0 + x, to1 + x, vectorBytes);
            }
        else
            for (Len i = 0; i < count; ++i)
                mix(above[i], p + i * vectorBytes, q + i * vectorBytes, nullptr, nullptr, vectorBytes);
    }

    void eachOfRow(Triples (*line)[2], Len from, Len to, const Ends& first, const Ends& second, uint8_t* to0,
                   uint8_t* to1) const {
        const int bytes = int(std::min<Len>(vectorBytes, bytes_));
        const auto inEnds = [&](Len i, Len x) __attribute__((always_inline)) {
            mix(line[i - from], neighbours(first, i, x), neighbours(second, i, x), at(to0, x), at(to1, x), bytes);
        };
        Len i = from;
        if (i == 0) inEnds(0, 0), ++i;
        if (i == 1 && i < vectors_ - 1 && head_ < n) inEnds(1, head_), ++i;
        const Len end = std::min(to, vectors_ - 1), x = head_ + (i - 1) * vectorBytes;
        if (i < end)
            mixVectors(line + (i - from), first.row + x, second.row + x, at(to0, x), at(to1, x), end - i), i = end;
        if (i < to) inEnds(i, bytes_ - vectorBytes);
    }
    static uint8_t* at(uint8_t* row, Len x) { return row ? row + x : nullptr; }
    Neighbours neighbours(const Ends& ends, Len i, Len x) const {
        const uint8_t *const all = ends.bytes + x, *const inRow = ends.row + x;
        if (vectors_ <= 2) return {all, all + n, all + 2 * n};
        if (i < vectors_ - 1) return {all, inRow, inRow + n};
        return {inRow - n, inRow, ends.bytes + Ends::last + n};
    }

    ZMV_INLINE void layOut(Ends& ends, Len y) const {
        const uint8_t* const row = bands_.row(y, 0).inside;
        const auto pixel = [&](Len column, uint8_t* to) {
            const uint8_t* const from = column == bands_.none ? bands_.value() : row + column * n;
            for (int c = 0; c < n; ++c) to[c] = from[c];
        };
        ends.row = row;
        uint8_t *right = ends.bytes + n + bytes_, *const inner = ends.bytes + n;
        if (vectors_ == 1) {
            store(inner, loadUpTo(row, int(bytes_)));
        } else {
            store(inner, load(row));
            const Len last = bytes_ - vectorBytes;
            if (vectors_ > 2) right = ends.bytes + Ends::last + vectorBytes;
            store(right - vectorBytes, load(row + last));
        }
        pixel(left_, ends.bytes);
        pixel(right_, right);
    }

    const Bands<uint8_t, n>& bands_;
    Image<uint8_t> dst_;
    Roi roi_;
    Len bytes_, head_, vectors_;  // of a row; the second vector starts at head_, so that the last one ends with the row
    Len left_, right_;            // the columns that stand for those beyond
};

}  // namespace zmv
