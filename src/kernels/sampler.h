// Values of an image between its pixels, at a block of points: each row of pixels under a kernel first, from left to
// right, then the rows from top to bottom, every operation rounded once.
//
// It is told where the pixels under a kernel start, and the fractions behind the base pixel; who asks knows which
// pixels those are.  The pixels of all points are fetched one by one, and then come vectors, when what was fetched has
// settled.
#pragma once

#include <algorithm>

#include "kernels/interpolation.h"
#include "kernels/readable.h"
#include "kernels/simd_whole.h"

namespace zmv {

template <class Kernel, class T, int n>
class Sampler {
  public:
    using W = Formed<T>;
    using V = Vec<W>;

  private:
    static constexpr int taps = Kernel::taps, pixel = n * int(sizeof(T)), run = taps * pixel;
    // The pixels of a row come in words of 8 bytes, of 2 bytes where they are as many, or of a lane's; the last one
    // ends where they end, so that no other byte is read, but for six bytes, which are read as eight.
    static constexpr int lane = int(sizeof(W)), filled = taps > 1 && run == 6 ? 8 : run;
    using Word = std::conditional_t<filled >= 8, uint64_t, std::conditional_t<filled == 2, uint16_t, Bits<W>>>;
    static constexpr int wordBytes = int(sizeof(Word)), words = (filled + wordBytes - 1) / wordBytes;
    static constexpr int fewest = std::max(lanes<T>, lanes<W>);

  public:
    static constexpr int pointBytes = taps * words * wordBytes;
    // Of few points much of the time passes until what was fetched has settled.
    static constexpr int most = [] {
        int points = 256;
        while (points > fewest && points * pointBytes > (points == 256 ? 4096 : 8192)) points /= 2;
        return std::max(points, fewest);
    }();

    // How many pixels behind those under a kernel are read too.
    static constexpr int readsBehind = (filled - run + pixel - 1) / pixel;

    explicit Sampler(const Kernel& kernel) : kernel_(kernel) {}

    // The fractions of some points, which may be double.
    template <class Reals>
    ZMV_INLINE void setFractions(Len first, Reals fx, Reals fy) {
        storeAs(fx_ + first, fx), storeAs(fy_ + first, fy);
    }
    ZMV_INLINE void setFraction(int point, W fx, W fy) { fx_[point] = fx, fy_[point] = fy; }

    // Where the rows of pixels under a kernel are, but for what all of a point's addresses have in common.
    using Rows = std::array<uint64_t, taps>;
    static ZMV_INLINE Rows rowsFrom(uint64_t first, Len step) {
        Rows rows;
        for (size_t j = 0; j < taps; ++j) rows[j] = first + j * uint64_t(step);
        return rows;
    }
    static ZMV_INLINE Rows rowsFrom(const uint8_t* first, Len step) {
        return rowsFrom(reinterpret_cast<uint64_t>(first), step);
    }
    // A point's pixels, the first of each row being `at` bytes behind the row.
    ZMV_INLINE void take(Len point, const Rows& rows, uint64_t at) {
        unrolled<taps>([&](auto j) {
            unrolled<words>([&](auto w) {
                const auto p = reinterpret_cast<const uint8_t*>(rows[j] + at);
                if constexpr (filled < wordBytes) {
                    Word word = 0;
                    __builtin_memcpy(&word, p, run);
                    words_[j][w][point] = word;
                } else {
                    words_[j][w][point] =
                        get(reinterpret_cast<const Word*>(p + std::min(w * wordBytes, filled - wordBytes)));
                }
            });
        });
    }
    // The same where they are not to be read as they lie: copyPixel(i, j, to) gives that of column i and row j.
    template <class CopyPixel>
    __attribute__((noinline)) void takeEach(int point, const CopyPixel& copyPixel) {
        uint8_t copy[taps * run + filled - run] = {};
        for (int j = 0; j < taps; ++j)
            for (int i = 0; i < taps; ++i) copyPixel(i, j, copy + j * run + i * pixel);
        take(point, rowsFrom(copy, run), 0);
    }
    // The first `used` channels of a vector of points.
    ZMV_INLINE void values(int first, int used, V* to) const {
        if constexpr (taps == 1) {
            for (int c = 0; c < used; ++c) to[c] = at(first, 0, 0, c);
        } else {
            const auto across = kernel_.at(load(fx_ + first)), down = kernel_.at(load(fy_ + first));
            for (int c = 0; c < used; ++c) to[c] = value(first, c, across, down);
        }
    }

  private:
    template <class Weights>
    ZMV_INLINE V value(int first, int c, const Weights& across, const Weights& down) const {
        constexpr bool real = std::is_floating_point_v<T>;
        std::array<V, taps> rows;
        for (int j = 0; j < taps; ++j) {
            std::array<V, taps> row;
            unrolled<taps>([&](auto i) { row[i] = at(first, j, i, c); });
            rows[size_t(j)] = across.template sum<real>(row);
        }
        return down.template sum<real>(rows);
    }
    // Element i of the result is the low or the high half of word i of two vectors of words.
    template <int half>
    struct Half {
        static constexpr int at(int i) { return 2 * i + half; }
    };
    // Channel c of pixel i of row j.
    ZMV_INLINE V at(int first, int j, int i, int c) const {
        using Lanes = Vec<Bits<W>>;
        const int byte = (i * n + c) * int(sizeof(T)), word = byte / wordBytes,
                  start = std::min(word * wordBytes, std::max(filled - wordBytes, 0)), below = (byte - start) % lane;
        const Word* const from = words_[j][word] + first;
        Lanes v;
        if constexpr (wordBytes <= lane) {
            v = loadWiden<Bits<W>>(from);
        } else {
            const auto low = (Lanes)load(from), high = (Lanes)load(from + lanes<Word>);
            v = byte - start < lane ? permute<Half<0>>(low, high) : permute<Half<1>>(low, high);
        }
        const int above = lane - int(sizeof(T)) - below;  // bytes over the element
        if constexpr (sizeof(T) == sizeof(W))
            return (V)v;
        else if constexpr (std::is_signed_v<T>)
            return toFloat(asSigned(v << (8 * above)) >> (8 * (lane - int(sizeof(T)))));
        else
            return toFloat(
                asSigned(above > lane - wordBytes ? v << (8 * above) >> (8 * (above + below)) : v >> (8 * below)));
    }

    const Kernel kernel_;
    alignas(64) W fx_[most], fy_[most];
    alignas(64) Word words_[taps][words][most];
};

}  // namespace zmv
