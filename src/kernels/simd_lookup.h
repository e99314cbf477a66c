// Bytes through a table of 256 bytes, a vector at a time, where a build has the instructions for it.
#pragma once

#include "kernels/simd_order.h"

namespace zmv {

// Every lane of 16 bytes the same, from p.
ZMV_INLINE Vec<uint8_t> sameInLanes(const uint8_t* p) { return loadLanes(p, 0); }

// Table: what at() takes.  It reads 256 bytes, and holds them in registers where there are enough.
#if defined(__AVX512BW__)
class ByteTable {
  public:
    explicit ByteTable(const uint8_t* table) {
        for (int i = 0; i < 4; ++i) quarters_[i] = loadAs<__m512i>(table + 64 * i);
    }
    // A permutation takes words from two vectors, half of the table.  So entries come in pairs, by a byte's upper seven
    // bits, those of even and of odd bytes apart; the lowest bit says which of the two it is.
    ZMV_INLINE Vec<uint8_t> at(Vec<uint8_t> bytes) const {
        const auto v = (__m512i)bytes;
        const auto pairs = [&](__m512i place, __mmask32 upper) {  // only the lowest six bits of a place count
            return _mm512_mask_blend_epi16(upper, _mm512_permutex2var_epi16(quarters_[0], place, quarters_[1]),
                                           _mm512_permutex2var_epi16(quarters_[2], place, quarters_[3]));
        };
        const auto even = pairs(_mm512_srli_epi16(v, 1), _mm512_movepi16_mask(_mm512_slli_epi16(v, 8)));
        const auto odd = pairs(_mm512_srli_epi16(v, 9), _mm512_movepi16_mask(v));
        const auto mix = [](__m512i low, __m512i high) {  // the low bytes of one, the high bytes of the other
            return _mm512_ternarylogic_epi32(_mm512_set1_epi16(255), low, high, 0xca);
        };
        return (Vec<uint8_t>)_mm512_mask_blend_epi8(_mm512_test_epi8_mask(v, _mm512_set1_epi8(1)),
                                                    mix(even, _mm512_slli_epi16(odd, 8)),
                                                    mix(_mm512_srli_epi16(even, 8), odd));
    }

  private:
    __m512i quarters_[4];
};
#else
class ByteTable {
  public:
    explicit ByteTable(const uint8_t* table) {
        for (int row = 0; row < 16; ++row) {
            const auto entries = sameInLanes(table + 16 * row);
            rows_[row] = row % 8 ? entries ^ sameInLanes(table + 16 * (row - 1)) : entries;
        }
    }
    // A shuffle looks a byte's low half up in a row of 16 entries, and gives zero where the byte is negative.  With 16
    // less from row to row bytes fall below zero behind their row, and stay there; up to it each row adds its
    // difference from the one before.
    ZMV_INLINE Vec<uint8_t> at(Vec<uint8_t> bytes) const {
        auto lower = bytes, upper = bytes ^ 128;
        auto found = shuffleBytes(rows_[0], lower) ^ shuffleBytes(rows_[8], upper);
        unrolled<7>([&](auto k) {
            lower = minus16(lower), upper = minus16(upper);
            found ^= shuffleBytes(rows_[k + 1], lower) ^ shuffleBytes(rows_[k + 9], upper);
        });
        return found;
    }

  private:
    static ZMV_INLINE Vec<uint8_t> minus16(Vec<uint8_t> v) {
#if defined(__AVX2__)
        return (Vec<uint8_t>)_mm256_subs_epi8((__m256i)v, _mm256_set1_epi8(16));
#else
        return (Vec<uint8_t>)_mm_subs_epi8((__m128i)v, _mm_set1_epi8(16));
#endif
    }
    Vec<uint8_t> rows_[16];
};
#endif

// Tables of 16 entries, which the others repeat.
class ShortTable {
  public:
    explicit ShortTable(const uint8_t* table) : row_(sameInLanes(table)) {}
    ZMV_INLINE Vec<uint8_t> at(Vec<uint8_t> bytes) const { return shuffleBytes(row_, bytes & 15); }

  private:
    Vec<uint8_t> row_;
};

}  // namespace zmv
