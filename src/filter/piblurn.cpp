// zmviFilterBoxBorder: the mean of a window, with borders.  zmviFilterBox: the same from memory, in double precision.
// zmviFilterHipassBorder: what is left of a pixel without the mean.
#include <bit>

#include "filter/boxborder.h"
#include "filter/fixedmask.h"
#include "kernels/pointwise.h"

namespace zmv {
namespace {

template <class T>
constexpr WideLen lineBytes(Roi roi, Window window, int n) {
    return withColumnSums<T>(window, [&](auto zero) {
        return scratchBytes<LineMemory<decltype(zero), T>>(roi, window, n, BandsUse{true, true});
    });
}
constexpr bool memoryFits(ImageSize roi, ImageSize mask) {
    const Window w(mask);
    for (int n : {1, 3, 4}) {
        const auto fits = [&](int elementBytes, WideLen bytes) {
            return bytes <= boxBufferSize(roi, mask, elementBytes, n);
        };
        if (!fits(1, lineBytes<uint8_t>(roi, w, n)) || !fits(2, lineBytes<uint16_t>(roi, w, n)) ||
            !fits(4, scratchBytes<TreeMemory>(roi, w, n, BandsUse{true, w.height > 1})) ||
            (w.width == 3 && w.height == 3 && !fits(1, scratchBytes<Mean3x3Memory>(roi, w, n, true))))
            return false;
    }
    return true;
}
static_assert(fitsEverywhere(memoryFits));

// Quotients of whole numbers up to `largest`, exactly, rounded down: products with the reciprocal in fixed point,
// rounded up, whose error stays below one unit.  x * factor / 2^(bits of U + shift) is the quotient; where U has no
// such reciprocal, and for the divisor 1, the factor is zero.
template <class U>
struct Reciprocal {
    U factor = 0;
    int shift = 0;
    Reciprocal() = default;
    Reciprocal(uint64_t divisor, uint64_t largest, bool tryUnshifted = false) {
        using Wide = std::conditional_t<sizeof(U) == 8, unsigned __int128, uint64_t>;
        constexpr uint64_t most = std::numeric_limits<U>::max();
        if (largest > most || divisor == 1) return;
        const int finest = finestShift(divisor);
        for (int n : {tryUnshifted ? 0 : finest, finest}) {
            const Wide one = Wide(1) << (8 * sizeof(U) + size_t(n)), up = roundedUp(one, divisor);
            if (up > most || (up * divisor - one) * largest >= one) continue;
            factor = U(up), shift = n;
            return;
        }
    }
    // What makes the factor use all bits of U.
    static int finestShift(uint64_t divisor) { return int(std::bit_width(divisor - 1)) - 1; }

  private:
    static uint64_t roundedUp(uint64_t dividend, uint64_t divisor) { return (dividend + divisor - 1) / divisor; }
    // Of 2^64 * n, n below the divisor: bit by bit, as the processor would need the compiler's library for more.
    static unsigned __int128 roundedUp(unsigned __int128 dividend, uint64_t divisor) {
        auto rest = uint64_t(dividend >> 64);
        uint64_t quotient = 0;
        for (int bit = 0; bit < 64; ++bit) {
            const bool carry = rest >> 63;
            rest <<= 1, quotient <<= 1;
            if (carry || rest >= divisor) rest -= divisor, ++quotient;
        }
        return (unsigned __int128)(quotient) + (rest != 0);
    }
};

// The mean of 16-bit integers: the exact sum over the area, rounded once, halves upward.
template <class T, class D>
class BoxMean {
  public:
    explicit BoxMean(Window window) : area_(window.area()), plus_(offset * area_ + area_ / 2) {
        if (sumsFit<T>(window.height, INT32_MAX)) vectors_ = {uint64_t(area_), largest()};
        if (!takesVectors()) any_ = {uint64_t(area_), largest()};
    }
    bool takesVectors() const { return area_ == 1 || vectors_.factor; }

    void put(D* dst, Vec<int32_t> sums) const {
        if (area_ == 1) return storeNarrow(dst, sums);
        using Pairs = Vec<uint64_t>;
        // Sums below 2^16 * area, moved up as far as they can be: their products have the mean from bit 47 on.
        const auto moved = (asUnsigned(sums) + uint32_t(plus_)) << (15 - vectors_.shift);
        const auto factor = fill(vectors_.factor);
        // The means of even lanes in the lowest 16 bits, those of odd ones in the next.
        const Pairs even = mulEven(moved, factor) >> 47,
                    odd = mulEven((Vec<uint32_t>)((Pairs)moved >> 32), factor) >> 31 & 0xffff0000;
        constexpr uint64_t back = offset | offset << 16;  // in 16 bits, as good as minus
        storeNarrow(reinterpret_cast<uint32_t*>(dst), (even | odd) ^ back);
    }
    D one(int64_t sum) const {
        const auto product = (unsigned __int128)(any_.factor) * uint64_t(sum + plus_);
        return D(int64_t(product >> 64 >> any_.shift) - offset);
    }

  private:
    uint64_t largest() const { return uint64_t(UINT16_MAX * area_ + area_ / 2); }
    static constexpr Len offset = -Len(std::numeric_limits<T>::min());
    Len area_, plus_;  // what makes sums positive, and half the area
    Reciprocal<uint32_t> vectors_;
    Reciprocal<uint64_t> any_;
};

template <>
class BoxMean<float, float> {
  public:
    explicit BoxMean(Window window) : reciprocal_(1.0f / float(window.area())) {}
    Vec<float> value(Vec<float> sum) const { return sum * reciprocal_; }

  private:
    float reciprocal_;
};

// The mean of bytes: the exact sum, times the reciprocal of the area, plus one half, each step rounded to single
// precision, then cut down to an integer.
//
// Small odd areas need no floating point.  No such mean lies halfway between two integers, and the single-precision
// steps err by far less than 1 / (2 * area), the distance to the nearest that could: they round the exact mean to
// nearest.  So does (sum + area / 2) / area, and 16 bits hold it.
template <>
class BoxMean<uint8_t, uint8_t> {
  public:
    static constexpr bool isByteMean = true;
    explicit BoxMean(Window window)
        : takesVectors_(sumsFit<uint8_t>(window.area(), INT32_MAX)),
          reciprocal_(1.0f / float(window.area())),
          windowWidth_(window.width),
          half_(uint16_t(window.area() / 2)) {
        const Len area = window.area();
        if (area % 2 == 1 && area <= 255 && windowWidth_ <= shortWidth)
            short_ = {uint64_t(area), uint64_t(255 * area + area / 2), true};
    }
    bool takesVectors() const { return takesVectors_; }

    void put(uint8_t* dst, Vec<int32_t> sums) const { storeNarrow(dst, truncate(toFloat(sums) * reciprocal_ + 0.5f)); }
    uint8_t one(int64_t sum) const { return uint8_t(float(sum) * reciprocal_ + 0.5f); }
    bool fitsShort() const { return short_.factor != 0; }

    // line: column sums from the leftmost one of the first window on.
    template <int n>
    void putShortRow(uint8_t* dst, const uint16_t* line, Len pixels) const {
        const auto put = [&](auto width) {
            if (short_.shift == 0)
                putShort<n>(dst, line, pixels * n, width, [](auto v) { return v; });
            else
                putShort<n>(dst, line, pixels * n, width, [shift = short_.shift](auto v) { return v >> shift; });
        };
        if (windowWidth_ <= directWidth)
            withWidth(windowWidth_, put);
        else
            put(windowWidth_);
    }

  private:
    template <int n, class Width, class Shift>
    void putShort(uint8_t* dst, const uint16_t* line, Len count, Width width, Shift shifted) const {
        const auto mean = [&](Len i) {
            const auto sum = sumOf([&](Len k) { return load(line + i + k * n); }, width);
            return shifted(mulHigh(sum + half_, fill(short_.factor)));
        };
        constexpr int half = lanes<uint16_t>;
        for (Len i = 0; i < count; i += 2 * half) {
            const std::array means{asSigned(mean(i)), i + half < count ? asSigned(mean(i + half)) : Vec<int16_t>{}};
            storeUpTo(dst + i, joined<uint8_t>(means), int(std::min<Len>(2 * half, count - i)));
        }
    }

    bool takesVectors_;
    float reciprocal_;
    Len windowWidth_;
    uint16_t half_;
    Reciprocal<uint16_t> short_;
};

// The mean in double precision straight from memory, in tiles whose rings fit on the stack.  A larger mask is cut into
// parts, whose sums meet in the destination; the order of additions depends on the mask alone.
StatusCode ownpi_FilterBox(Image<const double> src, Image<double> dst, Roi roi, ImageSize mask, ImagePoint anchor) {
    const bool outside = anchor.x < 0 || anchor.y < 0 || anchor.x >= mask.width || anchor.y >= mask.height;
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), maskSize(mask), refuse(outside, STATUS_BAD_ANCHOR),
                            steps(src.step, dst.step)}))
        return bad;
    constexpr Len partSize = 32, memory = 1500;
    const double area = double(Len(mask.width) * mask.height);
    for (Len top = 0; top < mask.height; top += partSize) {
        for (Len left = 0; left < mask.width; left += partSize) {
            const Len partHeight = std::min<Len>(partSize, mask.height - top);
            const Len partWidth = std::min<Len>(partSize, mask.width - left);
            const bool first = top == 0 && left == 0;
            const bool last = top + partHeight == mask.height && left + partWidth == mask.width;
            const Len tileWidth = (memory - partWidth) / (RowTree<double>::rowsNeeded(partHeight) + 1);
            for (Len x = 0; x < roi.width; x += tileWidth) {
                double block[memory];
                const Len width = std::min(tileWidth, roi.width - x), lineLength = width + partWidth - 1;
                RowTree<double> tree(block + lineLength, partHeight, width);
                for (Len y = 0; y < roi.height + partHeight - 1; ++y) {
                    copyRow(block, src.row(y - anchor.y + top) + x - anchor.x + left, lineLength * Len(sizeof(double)));
                    sumAlong(tree.nextRow(), block, width, partWidth, Len(1));
                    tree.push();
                    if (!tree.full()) continue;
                    double* const to = dst.row(y - partHeight + 1) + x;
                    tree.sum([&](Len i, auto sum, int count) {
                        if (!first) sum = addInOrder(loadUpTo(to + i, count), sum);
                        if (last) sum /= area;
                        storeUpTo(to + i, sum, count);
                    });
                }
            }
        }
    }
    return STATUS_OK;
}

struct Without {
    template <class V>
    ZMV_INLINE V operator()(V pixel, V mean) const {
        if constexpr (std::is_floating_point_v<Element<V>>)
            return subInOrder(pixel, mean);
        else
            return subSaturated(pixel, mean);
    }
};
template <Layout layout, class T>
StatusCode ownpi_HipassBorder(Image<const T> src, Image<T> dst, Roi roi, int code, int borderType, const T* value,
                              uint8_t* buffer) {
    if (auto bad = sameTypeChecks(src, dst, roi, code, true, borderType, value, buffer)) return bad;
    Window window(maskOf(code));
    // Or the compiler would know the area, and round its reciprocal to nearest whatever the caller's control word.
    apart([&] { boxWindows<BoxMean<T, T>, layout>(src, dst, roi, window, neededBorder(borderType), value, buffer); });
    pointwise(Without(), dst, roi, layout, false, src, Image<const T>(dst));
    return STATUS_OK;
}
StatusCode ownpi_HipassGetBufferSize(ImageSize roi, int code, int from, int to, int channels, int* size) {
    if (auto bad = sameTypeQuery(roi, code, true, from, to, channels, size)) return bad;
    return answerSize(boxBufferSize(roi, maskOf(code), bytesOfType(from), channels), size);
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/box.def"
BOX_BORDER_SIZE_FAMILY
BOX_BORDER_FAMILY
BOX_64F_FAMILY
#include "filter/fixed.def"
SAME_TYPE_SIZE_FAMILY(Hipass)
SAME_TYPE_FAMILY(Hipass)
