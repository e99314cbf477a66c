// Values of an image between its pixels, at a block of points: each row of pixels under a kernel first, from left to
// right, then the rows from top to bottom, every operation rounded once.
//
// Points come in vectors and leave as base pixels and fractions; then the pixels of all points are fetched one by one,
// and then come the vectors again, when what was fetched has settled.
#pragma once

#include <algorithm>

#include "kernels/interpolation.h"
#include "kernels/readable.h"

namespace zmv {

template <class Kernel, class W, class T, int n>
class Sampler {
    using Word = Bits<W>;
    using Places = zmv::Places<W>;
    static constexpr int taps = Kernel::taps, pixel = n * int(sizeof(T)), run = taps * pixel;
    // The pixels of a row come in words of the size of a lane; the last one ends where they end, so that no other byte
    // is read.
    static constexpr int wordBytes = int(sizeof(Word)), words = (run + wordBytes - 1) / wordBytes;
    static constexpr int fewest = std::max(lanes<T>, lanes<W>);

  public:
    using V = Vec<W>;
    using Mask = Vec<Bits<W>>;
    static constexpr int most = taps * words * wordBytes * 64 <= 12288 ? std::max(64, fewest) : fewest;

    explicit Sampler(const Readable<T>& from)
        : from_(from),
          roomy_(from.right - from.left >= taps - 1 && from.bottom - from.top >= taps - 1),
          left_(Places{} + from.left),
          top_(Places{} + from.top),
          right_(Places{} + (from.right - (taps - 1))),
          bottom_(Places{} + (from.bottom - (taps - 1))) {}

    // The points of a block from `first` on, inside of what may be read wherever `chosen`; `halves` says where those
    // of the nearest pixel go up.
    ZMV_INLINE void set(int first, V x, V y, Mask chosen, Mask halves) {
        V fx, fy;
        Places bx = whole(x, fx), by = whole(y, fy);
        if constexpr (taps == 1) {
            bx -= places((Mask)(fx >= W(0.5)) & halves), by -= places((Mask)(fy >= W(0.5)) & halves);
            store(x_ + first, bx < right_ ? bx : right_);
            store(y_ + first, by < bottom_ ? by : bottom_);
        } else {
            store(fx_ + first, fx), store(fy_ + first, fy);
            bx -= Kernel::before, by -= Kernel::before;
            const Places inside = (bx >= left_) & (bx <= right_) & (by >= top_) & (by <= bottom_),
                         cut = places(chosen) & ~inside;
            store(x_ + first, inside ? bx : left_), store(y_ + first, inside ? by : top_);
            store(cut_ + first, cut), store(cutX_ + first, bx), store(cutY_ + first, by);
            anyCut_ = anyCut_ | cut;
        }
    }
    // The pixel of a point, or the first under its kernel.
    ZMV_INLINE const uint8_t* pixelOf(int point) const {
        const auto data = reinterpret_cast<const uint8_t*>(from_.image.data);
        return data + y_[point] * from_.image.step + Len(x_[point]) * pixel;
    }
    // What has been set, up to `count` points.
    void fetch(int count) {
        if (roomy_)
            for (int i = 0; i < count; ++i) take(i, pixelOf(i), from_.image.step);
        if (!anyOf(anyCut_)) return;
        for (int i = 0; i < count; ++i)
            if (cut_[i]) takeCut(i);
        anyCut_ = Places{};
    }
    // Channel c at a vector of points.
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
    // The first `used` channels of them.
    ZMV_INLINE void values(int first, int used, V* to) const {
        if constexpr (taps == 1) {
            for (int c = 0; c < used; ++c) to[c] = at(first, 0, 0, c);
        } else {
            const typename Kernel::template At<V> across(load(fx_ + first)), down(load(fy_ + first));
            for (int c = 0; c < used; ++c) to[c] = value(first, c, across, down);
        }
    }

  private:
    static Places places(Mask m) {
        if constexpr (sizeof(W) == 4)
            return (Places)m;
        else
            return __builtin_convertvector((Vec<int64_t>)m, Places);
    }
    static bool anyOf(Places v) {
        if constexpr (sizeof(v) >= 16)
            return !allZero(v);
        else
            return v[0] | v[1];
    }
    // Whole numbers and fractions of numbers from 0 to 2^31.
    static ZMV_INLINE Places whole(V v, V& fraction) {
        Places base = wholeOf(v);
        fraction = v - realOf<W>(base);
        if constexpr (sizeof(W) == 4) {
            const auto beyond = v >= W(2147483648.0);
            base ^= beyond, fraction = beyond ? V{} : fraction;
        }
        return base;
    }
    ZMV_INLINE void take(int point, const uint8_t* p, Len step) {
        unrolled<taps>([&](auto j) {
            unrolled<words>([&](auto w) {
                if constexpr (run < wordBytes) {
                    Word word = 0;
                    __builtin_memcpy(&word, p, run);
                    words_[j][w][point] = word;
                } else {
                    words_[j][w][point] =
                        get(reinterpret_cast<const Word*>(p + std::min(w * wordBytes, run - wordBytes)));
                }
            });
            p += step;
        });
    }
    // Pixels that may not be read count as the nearest that may.
    __attribute__((noinline)) void takeCut(int point) {
        uint8_t copy[taps * run];
        for (int j = 0; j < taps; ++j) {
            const auto row = reinterpret_cast<const uint8_t*>(
                from_.image.row(std::clamp(cutY_[point] + j, from_.top, from_.bottom)));
            for (int i = 0; i < taps; ++i)
                __builtin_memcpy(copy + j * run + i * pixel,
                                 row + Len(std::clamp(cutX_[point] + i, from_.left, from_.right)) * pixel, pixel);
        }
        take(point, copy, run);
    }
    // Channel c of pixel i of row j.
    ZMV_INLINE V at(int first, int j, int i, int c) const {
        const int byte = (i * n + c) * int(sizeof(T));
        const int word = byte / wordBytes, start = std::min(word * wordBytes, std::max(run - wordBytes, 0));
        const auto v = load(words_[j][word] + first);
        const int above = 8 * (wordBytes - int(sizeof(T)) - (byte - start));  // bits over the element
        if constexpr (sizeof(T) == sizeof(W))
            return (V)v;
        else if constexpr (std::is_signed_v<T>)
            return toFloat(asSigned(v << above) >> (8 * (wordBytes - int(sizeof(T)))));
        else
            return toFloat(asSigned(v << above >> (8 * (wordBytes - int(sizeof(T))))));
    }

    const Readable<T> from_;
    const bool roomy_;
    const Places left_, top_, right_, bottom_;  // of base pixels whose kernels stay inside
    Places anyCut_{};
    alignas(64) int32_t x_[most], y_[most], cut_[most], cutX_[most], cutY_[most];
    alignas(64) W fx_[most], fy_[most];
    alignas(64) Word words_[taps][words][most];
};

}  // namespace zmv
