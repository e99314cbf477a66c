// Pixels against the mean of those round them: of a box, or with Gaussian weights.
//
// Both means are sums of pixels with whole weights over the sum of the weights: 1 and maskSize^2 for the box; for the
// Gaussian, products of a row's and a column's weight, which add up to 2^22 each.  So a pixel s is above its level,
// s > sum / weights - delta, exactly where sum - weights * s < weights * delta; and since the left side is an integer,
// where it is below the right side rounded up.  No step rounds, whatever the build, the tiling or the control word.
#pragma once

#include <bit>

#include "kernels/pointwise_in.h"
#include "kernels/window_sums.h"

namespace zmv {

struct Answers {
    float delta;
    uint8_t gt, le;
};
using Pixels = Bands<uint8_t, 1>;

// A float as an integer times 2^exponent, from its bits: a processor told to take small numbers for zero would lose it.
struct ExactFloat {
    int64_t integer;
    int exponent;
    explicit ExactFloat(float x) {
        const auto bits = std::bit_cast<uint32_t>(x);
        const int biased = bits >> 23 & 255;
        const int64_t magnitude = (bits & 0x7fffff) | (biased ? 0x800000 : 0);
        integer = bits >> 31 ? -magnitude : magnitude;
        exponent = std::max(biased, 1) - 150;
    }
};
// weights * delta rounded up, for |delta| <= 255.
inline Len roundedUp(Len weights, float delta) {
    const ExactFloat exact(delta);
    return Len(-(-(__int128(weights) * exact.integer) >> std::min(-exact.exponent, 127)));
}

// The rule, in lanes of W that hold 255 * weights of either sign.
template <class W>
struct Above {
    W weights, limit;
    Vec<W> gt, le;
    Above(Len sumOfWeights, Answers a)
        : weights(W(sumOfWeights)), limit(W(roundedUp(sumOfWeights, a.delta))), gt(fill(W(a.gt))), le(fill(W(a.le))) {}
    ZMV_INLINE Vec<W> operator()(Vec<W> sum, Vec<W> s) const { return sum - s * weights < limit ? gt : le; }
};
// The same for up to 255 pixels: 16 bits hold their sum, and a level beyond these bits is beyond every sum.
struct AboveShort {
    uint16_t weights, up, down;
    Vec<int16_t> gt, le;
    AboveShort(Len area, Answers a) : weights(uint16_t(area)), gt(fill(int16_t(a.gt))), le(fill(int16_t(a.le))) {
        const Len limit = roundedUp(area, a.delta);
        up = uint16_t(std::max<Len>(limit, 0)), down = uint16_t(std::max<Len>(-limit, 0));
    }
    ZMV_INLINE Vec<int16_t> operator()(Vec<int16_t> sum, Vec<int16_t> s) const {
        const auto level = subSaturated(addSaturated(asUnsigned(s) * weights, fill(up)), fill(down));
        return level > asUnsigned(sum) ? gt : le;
    }
};

// ---- Sums over the box ----

// Sums of `width` columns of a line, formed where they are wanted.
template <class Width>
struct ShortSums {
    const uint16_t* line;
    Width width;
    Vec<int16_t> at(Len x) const {
        return asSigned(sumOf([&](Len k) { return load(line + x + k); }, width));
    }
    Vec<int16_t> part(Len x, Len n) const { return n > 0 ? at(x) : Vec<int16_t>{}; }
};
struct ReadySums {
    const uint32_t* sums;
    Vec<int32_t> at(Len x) const { return loadAs<Vec<int32_t>>(sums + x); }
    Vec<int32_t> part(Len x, Len) const { return at(x); }
};

// A row of results from a line of column sums, whose first one belongs to the first window.
template <class A>
void boxRow(const uint8_t* src, uint8_t* dst, const A* line, Len pixels, Len mask, Answers answers) {
    const Len area = mask * mask;
    if constexpr (sizeof(A) == 2)
        if (mask <= shortWidth) {
            static_assert(shortWidth * shortWidth <= 255);
            const AboveShort rule(area, answers);
            const auto put = [&](auto width) {
                pointwiseRowIn<int16_t>(rule, dst, pixels, ShortSums<decltype(width)>{line, width},
                                        ImageRowIn<int16_t, uint8_t>{src});
            };
            return mask <= directWidth ? withWidth(mask, put) : put(mask);
        }
    if (sumsFit<uint8_t>(area, INT32_MAX)) {
        const Above<int32_t> rule(area, answers);
        RowSums<LineReader<A>, 1> rowSums({line}, mask);
        for (Len x = 0; x < pixels; x += chunkElements) {
            const int count = int(std::min<Len>(chunkElements, pixels - x));
            Chunk<uint32_t> sums;
            rowSums.next(sums, count);
            pointwiseRowIn<int32_t>(rule, dst + x, count, ReadySums{sums}, ImageRowIn<int32_t, uint8_t>{src + x});
        }
        return;
    }
    const Len limit = roundedUp(area, answers.delta);
    Len sum = 0;
    for (Len k = 0; k < mask - 1; ++k) sum += get(line + k);
    for (Len x = 0; x < pixels; ++x) {
        sum += get(line + x + mask - 1);
        dst[x] = sum - area * src[x] < limit ? answers.gt : answers.le;
        sum -= get(line + x);
    }
}

inline void boxMeans(Pixels& bands, Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, Window window,
                     Answers answers, Scratch scratch) {
    const auto run = [&](auto zero) {
        using A = decltype(zero);
        eachLine<A>(bands, roi, window, scratch, [&](Len y, const A* line) {
            boxRow(src.row(y), dst.row(y), line, roi.width, window.width, answers);
        });
    };
    if (sumsFit<uint8_t>(window.height, UINT16_MAX)) return run(uint16_t(0));
    run(int32_t(0));  // of masks whose columns pass these, no work buffer's size fits an int
}

// ---- Gaussian sums ----

constexpr int weightBits = 22;  // so many that sums of a whole window are exact in double: 8 + 2 * 22 <= 53
constexpr double wholeWeight = 1 << weightBits;

// The weight of a pixel i columns, or rows, from the middle one.
struct TableWeights {
    const float* table;
    Len radius;
    double operator[](Len i) const { return get(table + radius + i) * wholeWeight; }
};

// Weighted sums of columns: rows[radius] is the middle one; weights[i] is that of both rows i away from it.
inline void weighColumns(double* line, const uint8_t* const* rows, const uint32_t* weights, Len radius, Len count) {
    const auto put = [&](Len x, int n, auto pixels) {
        auto sums = pixels(rows[radius] + x) * weights[0];
        for (Len i = 1; i <= radius; ++i)
            sums += (pixels(rows[radius - i] + x) + pixels(rows[radius + i] + x)) * weights[i];
        int32_t results[lanes<uint32_t>];
        store(results, sums);
        for (int k = 0; k < n; k += lanes<double>)
            storeUpTo(line + x + k, loadWiden<double>(results + k), std::min(lanes<double>, n - k));
    };
    Len x = 0;
    for (; x + lanes<uint32_t> <= count; x += lanes<uint32_t>)
        put(x, lanes<uint32_t>, [](const uint8_t* p) { return loadWiden<uint32_t>(p); });
    if (const int rest = int(count - x))
        put(x, rest, [&](const uint8_t* p) { return loadWidenPart<uint32_t>(p, rest); });
}

// Weighted sums along a line, whose first element belongs to the first window.
struct WeighedLine {
    const double* line;
    const double* weights;
    Len radius;
    Vec<double> at(Len x) const {
        const double* const middle = line + radius + x;
        auto sum = load(middle) * weights[0];
        for (Len i = 1; i <= radius; ++i) sum += (load(middle - i) + load(middle + i)) * weights[i];
        return sum;
    }
    Vec<double> part(Len x, Len n) const { return n > 0 ? at(x) : Vec<double>{}; }
};

struct GaussMemory {
    double *line, *rowWeights;
    const uint8_t** rows;
    uint32_t* columnWeights;
    BandsMemory<uint8_t> bands;
    constexpr GaussMemory(Scratch& s, Roi roi, Window window, BandsUse use)
        : line(s.take<double, alignof(double)>(WideLen(roi.width) + window.width - 1)),
          rowWeights(s.take<double>(window.left + 1)),
          rows(s.take<const uint8_t*>(window.height)),
          columnWeights(s.take<uint32_t>(window.left + 1)),
          bands(s, roi, window, 1, use) {}
};

inline void gaussMeans(Pixels& bands, Image<const uint8_t> src, Image<uint8_t> dst, Roi roi, Window window,
                       TableWeights given, Answers answers, Scratch scratch) {
    const Len radius = window.left;
    const auto [line, rowWeights, rows, columnWeights, saved] = GaussMemory(scratch, roi, window, bands.use());
    bands.workIn(saved);
    for (Len i = 0; i <= radius; ++i) rowWeights[i] = given[i], columnWeights[i] = uint32_t(int32_t(given[i]));
    const double constant = bands.value()[0] * wholeWeight;
    const Above<double> rule(Len(1) << 2 * weightBits, answers);

    for (Len y = 0; y < roi.height; ++y) {
        bands.eachPart([&](Len column, bool outside, Len count) {
            for (Len i = 0; i < window.height; ++i) {
                const auto row = bands.row(y - window.top + i, y);
                rows[i] = (outside ? row.outside : row.inside) + column;
            }
            weighColumns(line + window.left + column, rows, columnWeights, radius, count);
        });
        bands.fillColumns(line + window.left, &constant);
        bands.save(y);
        pointwiseRowIn<double>(rule, dst.row(y), roi.width, WeighedLine{line, rowWeights, radius},
                               ImageRowIn<double, uint8_t>{src.row(y)});
    }
}

}  // namespace zmv
