// The 3 x 3 mean of bytes, the smallest and commonest window, with its sums in registers: two rows of results at a
// time, from the sums of three neighbours in the two rows above them, which a short line keeps, and in two new rows.
#pragma once

#include "kernels/bands.h"
#include "kernels/simd_order.h"

namespace zmv {

// Sums of three neighbours along a row, those of a vector's even and those of its odd bytes.
template <int size>
struct Triples {
    Vec<uint16_t, size> even, odd;
};

// Rows of more than a few vectors keep their line in the work buffer, which is many times as large; columns are worked
// in strips of so many vectors.
constexpr Len mean3x3Strip = 4096 / vectorBytes, mean3x3Few = 8;
struct Mean3x3Memory {
    Triples<vectorBytes> (*line)[2];
    BandsMemory<uint8_t> bands;
    constexpr Mean3x3Memory(Scratch& s, Roi roi, Window window, int n, bool constant)
        : line(nullptr), bands(s, roi, window, n, {constant, false}) {
        const Len vectors = (roi.width * n - 1) / vectorBytes + 1;
        if (vectors > mean3x3Few) line = s.take<Triples<vectorBytes>[2], vectorBytes>(std::min(vectors, mean3x3Strip));
    }
};

// By vectors of so many bytes: one that is the row, or more, of which the last one is moved back to end with the row.
// The smallest also take shorter rows.
template <int n, int size>
class Mean3x3 {
  public:
    static bool suits(Roi roi) {
        const Len bytes = roi.width * n;
        return bytes == size || bytes >= size + n || (size == 16 && bytes < 16);
    }
    using Sums = Triples<size>;

    Mean3x3(const Bands<uint8_t, n>& bands, Image<uint8_t> dst, Roi roi)
        : dst_(dst),
          roi_(roi),
          last_((roi.width * n - 1) / size),
          end_(roi.width * n - size),
          back_(std::max(Len(0), last_ * size + n - roi.width * n)),
          above_(bands.row(-1, 0).inside),
          below_(bands.row(roi.height, 0).inside),
          rows_(image(bands.row(0, 0).inside,
                      bands.row(std::min<Len>(1, roi.height - 1), 0).inside - bands.row(0, 0).inside)),
          left_(bands, -1),
          right_(bands, roi.width) {}

    void run(Sums (*line)[2]) const {
        Sums ours[mean3x3Few][2];
        if (!line) line = ours;
        LaidOut laidOut;
        for (Len from = 0; from <= last_; from += strip) {
            const Len to = std::min(last_ + 1, from + strip);
            mixRows<false>(line, from, to, laidOut.of(*this, -1), laidOut.of(*this, 0), nullptr, nullptr);
            // Behind the last row of an odd number, the second result is there to be overwritten.
            for (Len y = 0; y < roi_.height; y += 2)
                mixRows<true>(line, from, to, laidOut.of(*this, y + 1), laidOut.of(*this, std::min(y + 2, roi_.height)),
                              dst_.row(y), dst_.row(std::min(y + 1, roi_.height - 1)));
        }
    }

  private:
    using V = Vec<uint8_t, size>;
    static constexpr Len strip = mean3x3Strip * vectorBytes / size;

    // The pixel beyond an end of a row: in the row, or the constant.
    class Beyond {
      public:
        Beyond(const Bands<uint8_t, n>& bands, Len x)
            : constant_(bands.column(x) == bands.none ? bands.value() : nullptr),
              offset_(constant_ ? 0 : bands.column(x) * n) {}
        ZMV_INLINE Vec<uint64_t, 16> of(const uint8_t* row) const {
            return loadFewBytes((constant_ ? constant_ : row) + offset_, n);
        }

      private:
        const uint8_t* constant_;
        Len offset_;
    };
    const uint8_t* row(Len y) const { return y < 0 ? above_ : y < roi_.height ? rows_.row(y) : below_; }
    // Rows shorter than a vector are laid out with a pixel more on both sides, in batches: well before they are read,
    // since a load that spans recent stores waits for them.
    class LaidOut {
      public:
        ZMV_INLINE const uint8_t* of(const Mean3x3& mean, Len y) {
            if constexpr (size == 16)
                if (mean.end_ < 0) {
                    if ((y + 1) % rows == 0)
                        for (Len k = 0; k < rows; ++k) layOut(mean, mean.row(y + k), pixels_[k]);
                    return pixels_[(y + 1) % rows] + n;
                }
            return mean.row(y);
        }

      private:
        static void layOut(const Mean3x3& mean, const uint8_t* row, uint8_t* to) {
            const Len bytes = size + mean.end_;
            store(to, mean.left_.of(row));
            store(to + n, loadFewBytes(row, int(bytes)));
            store(to + n + bytes, mean.right_.of(row));
        }
        static constexpr Len rows = size == 16 ? 16 : 1;
        uint8_t pixels_[rows][3 * size];
    };
    // A vector of a row at byte x: the first one, the last one, both in one, or one between them.
    template <bool first, bool last>
    ZMV_INLINE Sums triples(const uint8_t* row, Len x) const {
        const auto at = load<uint8_t, size>(row + x);
        const bool laidOut = first && last && size == 16 && end_ < 0;
        return triples(first && !laidOut ? movedUp<n>(at, left_.of(row)) : load<uint8_t, size>(row + x - n), at,
                       last && !laidOut ? movedDown<n>(at, right_.of(row)) : load<uint8_t, size>(row + x + n));
    }
    ZMV_INLINE static Sums triples(V before, V at, V after) {
        using Pairs = Vec<uint16_t, size>;
        const auto a = (Pairs)before, b = (Pairs)at, c = (Pairs)after;
        if constexpr (n == 1) {
            const auto two = pairSums(at);
            return {two + (a & 255), two + (c >> 8)};
        } else {
            return {(a & 255) + (b & 255) + (c & 255), (a >> 8) + (b >> 8) + (c >> 8)};
        }
    }
    // A vector of two rows of results, which lie between the two rows of the line and two new ones; the new ones take
    // their places.  Without results, when the line is empty, it is only filled.
    template <bool results>
    ZMV_INLINE static void mix(Sums (&above)[2], const Sums& c, const Sums& d, uint8_t* to0, uint8_t* to1, Len x,
                               int count) {
        const Sums a{above[0].even, above[0].odd}, b{above[1].even, above[1].odd};
        above[0].even = c.even, above[0].odd = c.odd, above[1].even = d.even, above[1].odd = d.odd;
        if constexpr (results) {
            // 32768 / 9 is 3640.9: for sums of nine bytes the product rounds as the quotient does, see BoxMean.
            const auto put = [&](uint8_t* to, auto even, auto odd) {
                const auto ninth = fill<uint16_t, size>(3641);
                storeUpTo(to, (V)(mulRounded(even, ninth) | mulRounded(odd, ninth) << 8), count);
            };
            const auto even = b.even + c.even, odd = b.odd + c.odd;
            put(to1 + x, even + d.even, odd + d.odd);
            put(to0 + x, even + a.even, odd + a.odd);
        }
    }
    template <bool results>
    ZMV_INLINE void mixRows(Sums (*line)[2], Len from, Len to, const uint8_t* first, const uint8_t* second,
                            uint8_t* to0, uint8_t* to1) const {
        Len i = from;
        const auto step = [&]<bool isFirst, bool isLast>(std::bool_constant<isFirst>, std::bool_constant<isLast>, Len x)
            __attribute__((always_inline)) {
            mix<results>(line[i - from], triples<isFirst, isLast>(first, x), triples<isFirst, isLast>(second, x), to0,
                         to1, x, isFirst && isLast && end_ < 0 ? int(size + end_) : size);
            ++i;
        };
        constexpr std::true_type yes;
        constexpr std::false_type no;
        if (last_ == 0) return step(yes, yes, 0);
        if (i == 0) step(yes, no, 0);
        while (i < std::min(to, last_)) step(no, no, i * size - back_);
        if (i < to) step(no, yes, end_);
    }

    Image<uint8_t> dst_;
    Roi roi_;
    Len last_, end_;  // the last vector of a row, and where it begins
    Len back_;        // those between the first and it are so much nearer to the first, so that n bytes follow
    const uint8_t *above_, *below_;
    Image<const uint8_t> rows_;
    Beyond left_, right_;
};

// Whether there is a vector short enough for the region; then it is done.
template <int n, int size = vectorBytes>
bool mean3x3(Bands<uint8_t, n>& bands, Image<uint8_t> dst, Roi roi, Window window, Scratch scratch) {
    if (Mean3x3<n, size>::suits(roi)) {
        const Mean3x3Memory memory(scratch, roi, window, n, bands.use().constant);
        bands.workIn(memory.bands);
        // Rows so long that they have a line keep it in the longest vectors.
        return Mean3x3<n, size>(bands, dst, roi).run(reinterpret_cast<Triples<size>(*)[2]>(memory.line)), true;
    }
    if constexpr (size > 16)
        return mean3x3<n, size / 2>(bands, dst, roi, window, scratch);
    else
        return false;
}

}  // namespace zmv
