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

namespace zmv {

template <class Kernel, class T, int n>
class Sampler {
  public:
    using W = Formed<T>;
    using V = Vec<W>;

  private:
    static constexpr int taps = Kernel::taps, pixel = n * int(sizeof(T)), run = taps * pixel;
    // The pixels of a row come in words of 8 bytes, or of a lane's where they are fewer; the last one ends where they
    // end, so that no other byte is read, but for six bytes, which are read as eight.  Where all rows fit a lane they
    // share it.
    static constexpr int lane = int(sizeof(W)), filled = taps == 2 && run == 6 ? 8 : run;
    using Word = std::conditional_t<filled >= 8, uint64_t, Bits<W>>;
    static constexpr int wordBytes = int(sizeof(Word)), words = (filled + wordBytes - 1) / wordBytes;
    static constexpr bool together = taps > 1 && taps* run <= lane;
    static constexpr int fewest = std::max(lanes<T>, lanes<W>);

  public:
    static constexpr int pointBytes = (together ? 1 : taps) * words * wordBytes;
    // Of few points much of the time passes until what was fetched has settled.
    static constexpr int most = [] {
        int points = 256;
        while (points > fewest && points * pointBytes > (points == 256 ? 4096 : 8192)) points /= 2;
        return std::max(points, fewest);
    }();

    // Whether the pixel behind those under a kernel is read too.
    static constexpr bool readsBehind = filled > run;

    explicit Sampler(const Kernel& kernel) : kernel_(kernel) {}

    // A vector of points' fractions.
    ZMV_INLINE void setFractions(int first, V fx, V fy) { store(fx_ + first, fx), store(fy_ + first, fy); }
    ZMV_INLINE void setFraction(int point, W fx, W fy) { fx_[point] = fx, fy_[point] = fy; }
    // A point's pixels, from the first under the kernel on.
    ZMV_INLINE void take(int point, const uint8_t* p, Len step) {
        if constexpr (together) {
            Word word = 0;
            unrolled<taps>([&](auto j) {
                word |= Word(get(reinterpret_cast<const Run*>(p))) << (8 * run * j);
                p += step;
            });
            words_[0][0][point] = word;
        } else {
            unrolled<taps>([&](auto j) {
                unrolled<words>([&](auto w) {
                    if constexpr (filled < wordBytes) {
                        Word word = 0;
                        __builtin_memcpy(&word, p, run);
                        words_[j][w][point] = word;
                    } else {
                        words_[j][w][point] =
                            get(reinterpret_cast<const Word*>(p + std::min(w * wordBytes, filled - wordBytes)));
                    }
                });
                p += step;
            });
        }
    }
    // The same where they are not to be read as they lie: copyPixel(i, j, to) gives that of column i and row j.
    template <class CopyPixel>
    __attribute__((noinline)) void takeEach(int point, const CopyPixel& copyPixel) {
        uint8_t copy[taps * run + filled - run] = {};
        for (int j = 0; j < taps; ++j)
            for (int i = 0; i < taps; ++i) copyPixel(i, j, copy + j * run + i * pixel);
        take(point, copy, run);
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
    using Run = typename UnsignedOf<together ? run : 1>::type;

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
        const int byte = (together ? j * run : 0) + (i * n + c) * int(sizeof(T));
        const int word = together ? 0 : byte / wordBytes,
                  start = together ? 0 : std::min(word * wordBytes, std::max(filled - wordBytes, 0));
        const Word* const from = words_[together ? 0 : j][word] + first;
        Lanes v;
        if constexpr (wordBytes == lane) {
            v = (Lanes)load(from);
        } else {
            const auto low = (Lanes)load(from), high = (Lanes)load(from + lanes<Word>);
            v = byte - start < lane ? permute<Half<0>>(low, high) : permute<Half<1>>(low, high);
        }
        const int above = 8 * (lane - int(sizeof(T)) - (byte - start) % lane);  // bits over the element
        if constexpr (sizeof(T) == sizeof(W))
            return (V)v;
        else if constexpr (std::is_signed_v<T>)
            return toFloat(asSigned(v << above) >> (8 * (lane - int(sizeof(T)))));
        else
            return toFloat(asSigned(v << above >> (8 * (lane - int(sizeof(T))))));
    }

    const Kernel kernel_;
    alignas(64) W fx_[most], fy_[most];
    alignas(64) Word words_[together ? 1 : taps][words][most];
};

}  // namespace zmv
