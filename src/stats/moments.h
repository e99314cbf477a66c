// Moments: m(p, q) = the sum of X^p Y^q f for p + q <= 3.  Of integers they are exact, of any region anywhere.
//
// No power is formed of a pixel's place.  Along a row running sums of running sums are kept, a lane each:
//     a0 += f,  a1 += a0,  a2 += a1,  a3 += a2,
// and after the last step a pixel has been added to a1 as often as t, the steps since it came, to a2 as often as
// t (t + 1) / 2, to a3 as often as t (t + 1) (t + 2) / 6.  Down a tile the same is done with the a's of its rows.
// Tiles are so small that no lane overflows: one of 64 bits holds a tile's largest moment, and one of 32 a row's.
#pragma once

#include "core/spec.h"
#include "stats/realsums.h"
#include "stats/widesum.h"

namespace zmv {

// What is kept of a channel, by its orders: p goes first.
template <class S>
struct Moments {
    static constexpr int count = 10;
    S all[count] = {};
    static constexpr int index(int p, int q) { return q * (9 - q) / 2 + p; }
    S& operator()(int p, int q) { return all[index(p, q)]; }
    const S& operator()(int p, int q) const { return all[index(p, q)]; }
    Moments& operator+=(const Moments& other) {
        for (int i = 0; i < count; ++i) all[i] += other.all[i];
        return *this;
    }

    // f(m) for every row or column of orders: m(k) is that of order k.
    template <class F>
    void alongX(F f) {
        for (int q = 0; q < 4; ++q) f([&](int p) -> S& { return (*this)(p, q); }, 3 - q);
    }
    template <class F>
    void alongY(F f) {
        for (int p = 0; p < 4; ++p) f([&](int q) -> S& { return (*this)(p, q); }, 3 - p);
    }
    // Of the same pixels x to the right and y down.
    Moments& move(int64_t x, int64_t y) {
        const auto along = [](int64_t by) {
            return [by](auto m, int most) {
                const S zero = m(0) * by, one = most >= 2 ? m(1) * by : S();
                if (most >= 3) m(3) += m(2) * by * 3, m(3) += one * by * 3, m(3) += zero * by * by;
                if (most >= 2) m(2) += one * 2, m(2) += zero * by;
                if (most >= 1) m(1) += zero;
            };
        };
        alongX(along(x)), alongY(along(y));
        return *this;
    }
    // Of running sums of running sums: those of the steps t since each was added.
    Moments& ofSteps() {
        const auto along = [](auto m, int most) {
            if (most >= 3) m(3) = m(3) * 6 + m(2) * -6 + m(1);
            if (most >= 2) m(2) = m(2) * 2 + m(1) * -1;
        };
        alongX(along), alongY(along);
        return *this;
    }
    // Of coordinates multiplied.
    Moments& scale(int64_t x, int64_t y) {
        const auto along = [](int64_t by) {
            return [by](auto m, int most) {
                for (int64_t k = 1, power = by; k <= most; ++k, power *= by) m(int(k)) = m(int(k)) * power;
            };
        };
        alongX(along(x)), alongY(along(y));
        return *this;
    }
};

// What the rows of a tile come to.  Sums are formed modulo 2^64, and fit.
template <class T, int n>
class TileSums {
    static constexpr int vectors = n == 3 ? 3 : 1, elements = vectors * lanes<uint32_t>;
    using V = Vec<uint32_t>;
    using W = Vec<uint64_t>;

  public:
    // (2^8 - 1) times the binomial of 131 over 4 is below 2^32, and so are 2^16 - 1 times that of 35, 2^15 twice.
    static constexpr Len steps = sizeof(T) == 1 ? 128 : 32, width = steps * elements / n, height = 512;

    void addRow(const T* row, Len pixels) {
        V a[vectors][4] = {};
        const Len count = pixels * n;
        const auto add = [&](auto k, V f) { a[k][0] += f, a[k][1] += a[k][0], a[k][2] += a[k][1], a[k][3] += a[k][2]; };
        Len x = 0;
        for (; x + elements <= count; x += elements)
            unrolled<vectors>([&](auto k) { add(k, loadWiden<uint32_t>(row + x + k * lanes<uint32_t>)); });
        if (x < count)
            unrolled<vectors>([&](auto k) {
                const Len left = count - x - k * lanes<uint32_t>;
                add(k, loadWidenUpTo<uint32_t>(row + x + k * lanes<uint32_t>, int(left)));
            });
        unrolled<vectors>([&](auto k) {
            addDown<0>(sums_[k][0], a[k]);
            addDown<1>(sums_[k][1], a[k]);
        });
    }
    // Adds what the tile has come to, by channel, from its first pixel on; starts anew.
    void settle(Moments<uint64_t>* channels, Len pixels, Len rows) {
        const Len taken = (pixels * n + elements - 1) / elements, column = elements / n;
        for (int i = 0; i < elements; ++i) {
            const int lane = i % lanes<uint32_t>, half = lane / 2 % 2, at = lane / 4 * 2 + lane % 2;
            Moments<uint64_t> m;
            for (int k = 0; k < m.count; ++k) m.all[k] = sums_[i / lanes<uint32_t>][half].all[k][at];
            m.ofSteps().scale(-column, -1).move(taken * column + i / n, rows);
            channels[i % n] += m;
        }
        for (auto& vector : sums_) vector[0] = vector[1] = {};
    }

  private:
    template <int half>
    static ZMV_INLINE void addDown(Moments<W>& sums, const V (&a)[4]) {
        const auto wide = [](V v) {
            V sign{};
            if constexpr (std::is_signed_v<T>) sign = (V)((Vec<int32_t>)v >> 31);
            return (W)interleaveHalf<half>(v, sign);
        };
        unrolled<4>([&](auto p) {
            W sum = wide(a[p]);
            unrolled<4 - p>([&](auto q) { sum = sums(p, q) += sum; });
        });
    }
    Moments<W> sums_[vectors][2] = {};
};

// Adds a region's to those of each channel.
template <class T, int n>
void addMoments(Image<const T> src, Roi roi, ImagePoint offset, Moments<WideSum>* channels) {
    using Tile = TileSums<T, n>;
    constexpr Len across = Len(8192 / sizeof(Tile));  // side by side, so that rows are read in long stretches
    Tile tiles[across];
    for (Len y = 0; y < roi.height; y += Tile::height)
        for (Len x = 0; x < roi.width; x += across * Tile::width) {
            const Len rows = std::min(Tile::height, roi.height - y);
            const auto each = [&](const auto& f) {  // of those that the region has pixels of
                for (Len k = 0, at = x; k < across && at < roi.width; ++k, at += Tile::width)
                    f(tiles[k], at, std::min(Tile::width, roi.width - at));
            };
            for (Len k = 0; k < rows; ++k)
                each([&](Tile& tile, Len at, Len pixels) { tile.addRow(src.row(y + k) + at * n, pixels); });
            each([&](Tile& tile, Len at, Len pixels) {
                Moments<uint64_t> sums[n];
                tile.settle(sums, pixels, rows);
                for (int c = 0; c < n; ++c) {
                    Moments<WideSum> exact;
                    for (int i = 0; i < exact.count; ++i) exact.all[i] = int64_t(sums[c].all[i]);
                    channels[c] += exact.move(offset.x + at, offset.y + y);
                }
            });
        }
}

inline double withOneNan(double x) { return x == x ? x : __builtin_nan(""); }

// Of floats: the terms X^p f of a row in 24 partial sums, as those of other sums, a vector of them after the other.
template <int n>
void addMoments(Image<const float> src, Roi roi, ImagePoint offset, Moments<double>* channels) {
    using V = Vec<double>;
    constexpr int parts = partialSums<double>, most = parts / lanes<double>;
    const Len count = roi.width * n;
    for (Len y = 0; y < roi.height; ++y) {
        const float* const row = src.row(y);
        double partial[4][parts];
        for (int k = 0; k < most; ++k) {
            double column[lanes<double>];
            for (int i = 0; i < lanes<double>; ++i) column[i] = double(offset.x) + (k * lanes<double> + i) / n;
            V x = load(column), sums[4] = {};
            const auto add = [&](V f) {
                const V square = x * x;
                sums[0] += f, sums[1] += x * f, sums[2] += square * f, sums[3] += square * x * f;
                x += double(parts / n);
            };
            Len at = k * lanes<double>;
            for (; at + lanes<double> <= count; at += parts) add(loadWiden<double>(row + at));
            if (at < count) add(loadWidenPart<double>(row + at, int(count - at)));
            for (int p = 0; p < 4; ++p) store(partial[p] + k * lanes<double>, sums[p]);
        }
        double byRow[4] = {1, double(offset.y) + double(y)};
        for (int q = 2; q < 4; ++q) byRow[q] = byRow[q - 1] * byRow[1];
        for (int p = 0; p < 4; ++p) {
            double sums[n] = {};
            for (int i = 0; i < parts; ++i) sums[i % n] += partial[p][i];
            for (int c = 0; c < n; ++c)
                for (int q = 0; p + q < 4; ++q) {
                    double& sum = channels[c](p, q);
                    sum = withOneNan(sum + byRow[q] * sums[c]);
                }
        }
    }
}

// The object: a tag, what it is for, and the sums of each channel.
struct MomentsSpec {
    static constexpr uint32_t itsTag = 0x4d4f4d54;
    uint32_t tag;
    int32_t dataType, channels, unused;
    bool real() const { return dataType == DATATYPE_32F; }
    bool operator==(const MomentsSpec&) const = default;
};
template <class S>
struct MomentsParts : SpecParts {
    Table<Moments<S>> channels;
    explicit MomentsParts(const MomentsSpec& header)
        : SpecParts(sizeof header), channels(table<Moments<S>>(header.channels, 8)) {}
};
// f(zero), zero being of the type of an object's sums.
template <class F>
auto withSums(const MomentsSpec& header, F f) {
    return header.real() ? f(0.0) : f(WideSum());
}

}  // namespace zmv
