// zmviFilterBoxBorder: the mean of a window, with borders.  zmviFilterBox: the same from memory, in double precision.
#include "filter/boxborder.h"

namespace zmv {
namespace {

// The mean of integers: the exact sum, times the reciprocal of the area, plus one half, each step rounded to single
// precision, then cut down to an integer (signed types: rounded down).
template <class D>
class RoundedMean {
  public:
    explicit RoundedMean(Window window) : reciprocal_(1.0f / float(window.area())) {}

    void put(D* dst, Vec<int32_t> sums) const {
        const auto mean = toFloat(sums) * reciprocal_ + 0.5f;
        storeNarrow(dst, std::is_signed_v<D> ? floorToInt(mean) : truncate(mean));
    }
    D one(int64_t sum) const {
        const float mean = float(sum) * reciprocal_ + 0.5f;
        const int cut = int(mean);
        return D(cut - (std::is_signed_v<D> && float(cut) > mean));
    }

  private:
    float reciprocal_;
};

template <class T, class D>
class BoxMean : public RoundedMean<D> {
    using RoundedMean<D>::RoundedMean;
};

template <>
class BoxMean<float, float> {
  public:
    explicit BoxMean(Window window) : reciprocal_(1.0f / float(window.area())) {}
    Vec<float> value(Vec<float> sum) const { return sum * reciprocal_; }

  private:
    float reciprocal_;
};

// 8-bit means of small odd areas need no floating point.  No such mean lies halfway between two integers, and the
// single-precision steps err by far less than 1 / (2 * area), the distance to the nearest that could: they round the
// exact mean to nearest.  So does (sum + area / 2) / area, and 16 bits hold it.
template <>
class BoxMean<uint8_t, uint8_t> : public RoundedMean<uint8_t> {
  public:
    static constexpr bool isByteMean = true;
    explicit BoxMean(Window window) : RoundedMean(window), windowWidth_(window.width) {
        const Len area = window.area();
        if (area % 2 == 0 || area == 1 || area > 255 || windowWidth_ > shortWidth) return;
        // sum / area as a product with the reciprocal rounded up: exact while the error stays below one unit.
        const Len largest = 255 * area + area / 2;
        for (int shift = 0; area >> shift; ++shift) {
            const Len one = Len(1) << (16 + shift), factor = (one + area - 1) / area;
            if (factor > UINT16_MAX || (factor * area - one) * largest >= one) continue;
            factor_ = uint16_t(factor), half_ = uint16_t(area / 2), shift_ = shift;
            return;
        }
    }
    bool fitsShort() const { return factor_ != 0; }

    // line: column sums from the leftmost one of the first window on.
    template <int n>
    void putShortRow(uint8_t* dst, const uint16_t* line, Len pixels) const {
        const auto put = [&](auto width) {
            if (shift_ == 0)
                putShort<n>(dst, line, pixels * n, width, [](auto v) { return v; });
            else
                putShort<n>(dst, line, pixels * n, width, [shift = shift_](auto v) { return v >> shift; });
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
            return shifted(mulHigh(sum + half_, fill(factor_)));
        };
        constexpr int half = lanes<uint16_t>;
        for (Len i = 0; i < count; i += 2 * half) {
            const std::array means{asSigned(mean(i)), i + half < count ? asSigned(mean(i + half)) : Vec<int16_t>{}};
            storeUpTo(dst + i, joined<uint8_t>(means), int(std::min<Len>(2 * half, count - i)));
        }
    }

    Len windowWidth_;
    int shift_ = 0;
    uint16_t factor_ = 0, half_ = 0;
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

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/box.def"
BOX_BORDER_SIZE_FAMILY
BOX_BORDER_FAMILY
BOX_64F_FAMILY
