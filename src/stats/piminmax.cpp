// zmviMin, zmviMax, zmviMinMax, zmviMinIndx, zmviMaxIndx, zmviMinEvery, zmviMaxEvery, zmviBlockMinMax.
#include "kernels/pointwise.h"
#include "kernels/rounding.h"
#include "stats/extremes.h"

namespace zmv {
namespace {

template <class Pick, class T>
PerChannel<T> extremes(Image<const T> src, Roi roi, int channels) {
    return withChannels(channels, [&](auto n) {
        const auto found = [&](auto fold) {
            foldRegion<n>(fold, roi, Pattern(bits(src.data), Layout{n}), src);
            return fold.extremes();
        };
        auto ranks = found(FastFold<n, Pick, T>());
        if (inDoubt<Pick, T>(ranks, n)) ranks = found(RankFold<n, Pick, T>());
        PerChannel<T> result{};
        for (int c = 0; c < n; ++c) result[c] = fromRank<Pick, T>(ranks[c]);
        return result;
    });
}

template <class Pick, class T>
StatusCode ownpi_Extreme(Image<const T> src, Roi roi, Layout layout, T* extreme) {
    if (auto bad = firstOf({pointers(src.data, extreme), size(roi)})) return bad;
    const auto all = extremes<Pick>(src, roi, layout.channels);
    for (int c = 0; c < layout.used(); ++c) put(extreme + c, all[c]);
    return STATUS_OK;
}

template <class T>
StatusCode ownpi_MinMax(Image<const T> src, Roi roi, Layout layout, T* least, T* most) {
    if (auto bad = firstOf({pointers(src.data, least, most), size(roi)})) return bad;
    withChannels(layout.channels, [&](auto n) {
        struct Ranks {
            PerChannel<RankOf<T>> least, most;
        };
        const auto found = [&](auto fold) {
            foldRegion<n>(fold, roi, Pattern(bits(src.data), Layout{n}), src);
            return Ranks{fold.least(), fold.most()};
        };
        Ranks ranks = found(BothFolds<FastFold<n, Smaller, T>, FastFold<n, Larger, T>>());
        if (inDoubt<Smaller, T>(ranks.least, n) || inDoubt<Larger, T>(ranks.most, n))
            ranks = found(BothFolds<RankFold<n, Smaller, T>, RankFold<n, Larger, T>>());
        for (int c = 0; c < layout.used(); ++c) {
            put(least + c, fromRank<Smaller, T>(ranks.least[c]));
            put(most + c, fromRank<Larger, T>(ranks.most[c]));
        }
    });
    return STATUS_OK;
}

// Where each channel has its value first, by rows, and what stands there: of floats -0 and 0 are equal.
template <class T>
class FirstPlaces {
  public:
    FirstPlaces(Layout layout, PerChannel<T>& values) : layout_(layout), values_(values) {
        for (int c = 0; c < layout.used(); ++c) awaited_[c] = Bits<T>(~Bits<T>(0));
    }
    void find(Image<const T> src, Roi roi) {
        const Pattern values(bits(values_.data()), layout_);
        Pattern awaited(awaited_, layout_);
        const Len count = roi.width * layout_.channels;
        for (Len y = 0; y < roi.height; ++y)
            for (Len x = 0; (x = nextHit(src.row(y), x, count, values, awaited)) < count; x += lanes<T>) {
                if (!note(src.row(y), x, std::min(x + lanes<T>, count), y)) return;
                awaited = Pattern(awaited_, layout_);
            }
    }
    int x[4] = {}, y[4] = {};

  private:
    // The start of the first vector from x on that has an awaited value, or the end of the row.
    static Len nextHit(const T* row, Len x, Len count, const Pattern& values, const Pattern& awaited) {
        const auto hit = [&](Vec<T> v, Len at) {
            return (Vec<uint8_t>)(v == (Vec<T>)values.at(at * Len(sizeof(T)))) & awaited.at(at * Len(sizeof(T)));
        };
        for (; x + lanes<T> <= count; x += lanes<T>)
            if (!allZero(hit(load(row + x), x))) return x;
        if (x < count && !allZero(hit(loadPart(row + x, int(count - x)), x))) return x;
        return count;
    }
    // Notes what is found in elements from .. to of row atY; whether something is still awaited.
    bool note(const T* row, Len from, Len to, Len atY) {
        for (Len i = from; i < to; ++i) {
            const int c = int(i % layout_.channels);
            const T found = get(row + i);
            if (!awaited_[c] || !(found == values_[c])) continue;
            values_[c] = found, x[c] = int(i / layout_.channels), y[c] = int(atY), awaited_[c] = 0;
        }
        return awaited_[0] || awaited_[1] || awaited_[2] || awaited_[3];
    }

    Layout layout_;
    PerChannel<T>& values_;
    Bits<T> awaited_[4] = {};  // all ones, or zero
};

template <class Pick, class T>
StatusCode ownpi_Indx(Image<const T> src, Roi roi, Layout layout, T* extreme, int* indexX, int* indexY) {
    if (auto bad = firstOf({pointers(src.data, extreme, indexX, indexY), size(roi)})) return bad;
    auto all = extremes<Pick>(src, roi, layout.channels);
    FirstPlaces<T> places(layout, all);
    places.find(src, roi);
    for (int c = 0; c < layout.used(); ++c)
        put(extreme + c, all[c]), put(indexX + c, places.x[c]), put(indexY + c, places.y[c]);
    return STATUS_OK;
}

// The first where it goes before the second.
template <class Pick, class T>
StatusCode ownpi_Every(Image<const T> src1, Image<const T> src2, Image<T> dst, Roi roi, Layout layout) {
    if (auto bad =
            firstOf({pointers(src1.data, src2.data, dst.data), size(roi), steps(src1.step, src2.step, dst.step)}))
        return bad;
    const bool pastCache = dst.data != src2.data && regionPastCache(roi, layout, 3 * sizeof(T));
    pointwise([](Vec<T> a, Vec<T> b) { return Pick::of(b, a); }, dst, roi, layout, pastCache, src1, src2);
    return STATUS_OK;
}

// A row of blocks, of `height` rows: blocks of a few columns by the extrema of the columns, several blocks at a time.
template <class T>
class BlockRow {
  public:
    explicit BlockRow(Len blockWidth) : blockWidth_(blockWidth) {}
    void run(Image<const T> src, Len imageWidth, Len height, T* least, T* most) {
        const bool narrow = blockWidth_ <= columns;
        const Len strip = narrow ? columns / blockWidth_ * blockWidth_ : blockWidth_;
        for (Len x = 0; x < imageWidth; x += strip) {
            const Roi roi(std::min(strip, imageWidth - x), height);
            if (narrow)
                foldColumns(src.at(x, 0), roi, least + x / blockWidth_, most + x / blockWidth_);
            else
                foldBlock(src.at(x, 0), roi, least + x / blockWidth_, most + x / blockWidth_);
        }
    }

  private:
    static constexpr Len columns = 512;

    void foldBlock(Image<const T> src, Roi roi, T* least, T* most) {
        BothFolds<RankFold<1, Smaller, T>, RankFold<1, Larger, T>> fold;
        foldRegion<1>(fold, roi, Pattern(bits(src.data), C1), src);
        put(least, fromRank<Smaller, T>(fold.least()[0]));
        put(most, fromRank<Larger, T>(fold.most()[0]));
    }
    void foldColumns(Image<const T> src, Roi roi, T* least, T* most) {
        RankOf<T> lows[columns + lanes<T>], highs[columns + lanes<T>];
        for (Len x = 0; x < roi.width; x += lanes<T>) {
            auto low = fill(lastRank<Smaller, T>), high = fill(lastRank<Larger, T>);
            const int here = int(std::min<Len>(lanes<T>, roi.width - x));
            for (Len y = 0; y < roi.height; ++y) {
                const Vec<T> v = loadUpTo(src.row(y) + x, here);
                low = Smaller::of(low, Rank<Smaller>{}(v)), high = Larger::of(high, Rank<Larger>{}(v));
            }
            store(lows + x, low), store(highs + x, high);
        }
        for (Len x = 0; x < roi.width; ++least, ++most) {
            RankOf<T> low = lows[x], high = highs[x];
            for (const Len end = std::min(x + blockWidth_, roi.width); x < end; ++x)
                low = Smaller::of(low, lows[x]), high = Larger::of(high, highs[x]);
            put(least, fromRank<Smaller, T>(low)), put(most, fromRank<Larger, T>(high));
        }
    }

    Len blockWidth_;
};

template <class T>
StatusCode ownpi_BlockMinMax(Image<const T> src, Image<T> least, Image<T> most, Roi roi, Roi block) {
    if (auto bad = firstOf({pointers(src.data, least.data, most.data), size(roi), size(block),
                            steps(src.step, least.step, most.step)}))
        return bad;
    BlockRow<T> row(block.width);
    for (Len y = 0; y < roi.height; y += block.height)
        row.run(src.at(0, y), roi.width, std::min(block.height, roi.height - y), least.row(y / block.height),
                most.row(y / block.height));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/minmax.def"
EXTREME_FAMILY(Min, Smaller, pMin)
EXTREME_FAMILY(Max, Larger, pMax)
MINMAX_FAMILY
INDX_FAMILY(MinIndx, Smaller, pMin)
INDX_FAMILY(MaxIndx, Larger, pMax)
EVERY_FAMILY(MinEvery, Smaller)
EVERY_FAMILY(MaxEvery, Larger)
BLOCK_MINMAX_FAMILY
