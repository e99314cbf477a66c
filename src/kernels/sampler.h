// Values of an image between its pixels: a kernel weighs the pixels round a point, the same number in each of as many
// rows.  Points come a vector at a time, as base pixels and fractions, and values come back in lanes of W, in which all
// is computed: each row first, from left to right, then the rows from top to bottom, every operation rounded once.
#pragma once

#include <algorithm>
#include <array>

#include "kernels/lanczos.h"
#include "kernels/readable.h"
#include "kernels/simd_convert.h"

namespace zmv {

// a + b, and of two NaNs the first; there is none among integers.
template <bool real, class V>
ZMV_INLINE V sumInOrder(V a, V b) {
    if constexpr (real)
        return addInOrder(a, b);
    else
        return a + b;
}

// ---- Kernels: the pixels that they weigh along an axis, how many of them lie before the base pixel, and their weights
// at a fraction. ----

template <class V, int n>
struct Weighted {
    std::array<V, n> weight;
    template <bool real>
    ZMV_INLINE V sum(const std::array<V, n>& p) const {
        V total = weight[0] * p[0];
        unrolled<n - 1>([&](auto i) { total = sumInOrder<real>(total, weight[i + 1] * p[i + 1]); });
        return total;
    }
};
// The pixel that the point is nearest to, one half counting as nearer to the next.
struct NearestKernel {
    static constexpr int taps = 1, before = 0;
};
// On the line between two pixels; a constant stays itself exactly.
struct LinearKernel {
    static constexpr int taps = 2, before = 0;
    template <class V>
    struct At {
        V fraction;
        explicit ZMV_INLINE At(V f) : fraction(f) {}
        template <bool real>
        ZMV_INLINE V sum(const std::array<V, 2>& p) const {
            return sumInOrder<real>(p[0], (p[1] - p[0]) * fraction);
        }
    };
};
// k * x, which nobody takes for x * -k: c - k * x and c + x * -k differ where the caller does not round to nearest, and
// to compilers they are the same.
template <class V>
ZMV_INLINE V scaledBy(Element<V> k, V x) {
    return mulInOrder(x, fill<Element<V>, sizeof(V)>(k));
}
// On the cubic through two pixels whose slopes there are those between their neighbours.
struct CatmullRomKernel {
    static constexpr int taps = 4, before = 1;
    template <class V>
    struct At : Weighted<V, 4> {
        using T = Element<V>;
        explicit ZMV_INLINE At(V f)
            : Weighted<V, 4>{{((1 - scaledBy(T(0.5), f)) * f - T(0.5)) * f, (f * T(1.5) - T(2.5)) * f * f + 1,
                              ((2 - scaledBy(T(1.5), f)) * f + T(0.5)) * f, (f * T(0.5) - T(0.5)) * f * f}} {}
    };
};
// On the cubic through four pixels.
struct LagrangeKernel {
    static constexpr int taps = 4, before = 1;
    template <class V>
    struct At : Weighted<V, 4> {
        using T = Element<V>;
        static constexpr T third = T(1) / 3, sixth = T(1) / 6;
        explicit ZMV_INLINE At(V f)
            : Weighted<V, 4>{{((T(0.5) - scaledBy(sixth, f)) * f - third) * f, ((f * T(0.5) - 1) * f - T(0.5)) * f + 1,
                              ((T(0.5) - scaledBy(T(0.5), f)) * f + 1) * f, (f * sixth * f - sixth) * f}} {}
    };
};

// The Lanczos kernel of three lobes, between the entries of its table, the weights divided by their sum.
struct LanczosKernel {
    static constexpr int taps = 6, before = 2;
    template <class V>
    struct At : Weighted<V, taps> {
        explicit ZMV_INLINE At(V f) {
            using T = Element<V>;
            V sum;
            unrolled<taps>([&](auto k) {
                const V apart = (-2 - f) + T(k), s = larger(apart, -apart) * 100;
                V low, high;
                alignas(64) T place[lanesOf<V>], lows[lanesOf<V>], highs[lanesOf<V>];
                store(place, s);
                for (int i = 0; i < lanesOf<V>; ++i) {
                    const int entry = int(place[i]);
                    place[i] = T(entry), lows[i] = tblL3[size_t(entry)], highs[i] = tblL3[size_t(entry) + 1];
                }
                low = load(lows), high = load(highs);
                this->weight[k] = low + (s - load(place)) * (high - low);
                sum = k == 0 ? this->weight[k] : sum + this->weight[k];
            });
            for (V& w : this->weight) w /= sum;
        }
    };
};

// ---- Pixels ----

// The base pixels of a vector of points.
template <class W>
using Places = Vec<int32_t, lanes<W> * 4>;
template <class W>
struct BasePixels {
    Places<W> x, y;
};

// The pixels under a kernel at a vector of points: words of the size of a lane, of which a lane's pixels are cut out.
// Of a row of `run` bytes, the last word ends where the row ends, so that no other byte is read.
template <class W, class T, int n, int taps>
class Footprints {
  public:
    ZMV_INLINE void gather(const Readable<T>& from, const BasePixels<W>& base, int before) {
        const auto within = [&](Places<W> v, int first, int last) {
            return (v >= first + before) & (v <= last - (taps - 1 - before));
        };
        const auto inside = within(base.x, from.left, from.right) & within(base.y, from.top, from.bottom);
        alignas(64) int32_t x[lanes<W>], y[lanes<W>];
        store(x, base.x - before), store(y, base.y - before);
        const auto data = reinterpret_cast<const uint8_t*>(from.image.data);
        if (allOnes(inside)) {
            for (int lane = 0; lane < lanes<W>; ++lane)
                take(lane, data + y[lane] * from.image.step + Len(x[lane]) * pixel, from.image.step);
        } else {
            uint8_t copy[taps * run];
            for (int lane = 0; lane < lanes<W>; ++lane) {
                for (int j = 0; j < taps; ++j) {
                    const uint8_t* const row = data + std::clamp(y[lane] + j, from.top, from.bottom) * from.image.step;
                    for (int i = 0; i < taps; ++i)
                        __builtin_memcpy(copy + j * run + i * pixel,
                                         row + Len(std::clamp(x[lane] + i, from.left, from.right)) * pixel, pixel);
                }
                take(lane, copy, run);
            }
        }
    }

    // Channel c of pixel i of row j.
    ZMV_INLINE Vec<W> at(int j, int i, int c) const {
        const int byte = (i * n + c) * int(sizeof(T));
        const int word = byte / wordBytes, start = std::min(word * wordBytes, std::max(run - wordBytes, 0));
        const auto v = load(words_[j][word]);
        const int above = 8 * (wordBytes - int(sizeof(T)) - (byte - start));  // bits over the element
        if constexpr (sizeof(T) == sizeof(W))
            return (Vec<W>)v;
        else if constexpr (std::is_signed_v<T>)
            return toFloat(asSigned(v << above) >> (8 * (wordBytes - int(sizeof(T)))));
        else
            return toFloat(asSigned(v << above >> (8 * (wordBytes - int(sizeof(T))))));
    }

  private:
    using Word = Bits<W>;
    static constexpr int pixel = n * int(sizeof(T)), run = taps * pixel, wordBytes = int(sizeof(Word));
    static constexpr int words = (run + wordBytes - 1) / wordBytes;

    static ZMV_INLINE bool allOnes(Places<W> v) {
        if constexpr (sizeof(v) >= 16)
            return allZero(~v);
        else
            return (v[0] & v[1]) == -1;
    }
    ZMV_INLINE void take(int lane, const uint8_t* p, Len step) {
        for (int j = 0; j < taps; ++j, p += step) {
            if constexpr (run < wordBytes) {
                Word word = 0;
                __builtin_memcpy(&word, p, run);
                words_[j][0][lane] = word;
            } else {
                unrolled<words>([&](auto w) {
                    words_[j][w][lane] =
                        get(reinterpret_cast<const Word*>(p + std::min(w * wordBytes, run - wordBytes)));
                });
            }
        }
    }

    alignas(64) Word words_[taps][words][lanes<W>];
};

// The first `used` of n channels of an image at a vector of points.
template <class Kernel, class W, int n, class T>
void sample(const Readable<T>& from, const BasePixels<W>& base, Vec<W> fx, Vec<W> fy, int used, Vec<W>* values) {
    constexpr int taps = Kernel::taps;
    constexpr bool real = std::is_floating_point_v<T>;
    Footprints<W, T, n, taps> pixels;
    pixels.gather(from, base, Kernel::before);
    if constexpr (taps == 1) {
        for (int c = 0; c < used; ++c) values[c] = pixels.at(0, 0, c);
    } else {
        const typename Kernel::template At<Vec<W>> across(fx), down(fy);
        for (int c = 0; c < used; ++c) {
            std::array<Vec<W>, taps> rows;
            for (int j = 0; j < taps; ++j) {
                std::array<Vec<W>, taps> row;
                unrolled<taps>([&](auto i) { row[i] = pixels.at(j, i, c); });
                rows[size_t(j)] = across.template sum<real>(row);
            }
            values[c] = down.template sum<real>(rows);
        }
    }
}

}  // namespace zmv
