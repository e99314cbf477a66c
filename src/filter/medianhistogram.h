// Medians of bytes in large windows, at a cost that does not depend on the window's height: a histogram of each column,
// which takes the pixel that enters the window and loses the one that leaves it, and the sum of those that a window
// covers.
//
// Histograms have two levels: 16 coarse bins, and 16 fine ones in each.  Along a row the coarse sums are kept up to
// date; of the fine ones only those of the bin in which the median is, when it is looked for.
#pragma once

#include <cstring>

#include "kernels/bands.h"
#include "kernels/simd_convert.h"

namespace zmv {

// Sixteen counters.
template <class S>
class Counters {
    static constexpr int each = lanes<S, 16>, vectors = 16 / each;

  public:
    template <class C>
    ZMV_INLINE void add(const C* column) {
        unrolled<vectors>([&](auto k) { v_[k] += loadWiden<S, C, 16>(column + k * each); });
    }
    template <class C>
    ZMV_INLINE void subtract(const C* column) {
        unrolled<vectors>([&](auto k) { v_[k] -= loadWiden<S, C, 16>(column + k * each); });
    }
    // The first bin with which more than `rank` are counted; `before` becomes the number in bins before it.
    ZMV_INLINE int binOf(S rank, S& before) const {
        Vec<S, 16> upTo[vectors], base{};
        S ends[16];
        int bin = 0;
        unrolled<vectors>([&](auto k) {
            upTo[k] = prefixSum(v_[k]) + base;
            base = spreadLast(upTo[k]);
            store(ends + k * each, upTo[k]);
            bin += lanesAtMost(upTo[k], rank);
        });
        before = bin ? ends[bin - 1] : S(0);
        return bin;
    }

  private:
    static ZMV_INLINE int lanesAtMost(Vec<S, 16> v, S rank) {
        const auto ones = (Vec<uint8_t, 16>)(v <= rank) & uint8_t(1);
        const auto sums = byteSums(ones);
        return int(sums[0] + sums[1]) / int(sizeof(S));
    }
    Vec<S, 16> v_[vectors]{};
};

// Columns that are worked at a time, so that their histograms stay in the second cache.
constexpr Len histogramColumns = 480;

template <class C>
struct HistogramMemory {
    C *coarse, *fine;
    constexpr HistogramMemory(Scratch& s, Len columns)
        : coarse(s.take<C>(columns * WideLen(16))), fine(s.take<C>(columns * WideLen(256))) {}
};

// One channel of pixels of n.  C counts up to the window's height, S up to its area.
template <class C, class S, int n>
class HistogramMedian {
  public:
    HistogramMedian(const Bands<uint8_t, n>& bands, int channel, Image<uint8_t> dst, Roi roi, Window window)
        : bands_(bands), channel_(channel), dst_(dst), roi_(roi), window_(window) {}

    // As many columns of results at a time as a buffer of so many bytes has room for.
    void run(Scratch scratch, Len bytes) const {
        const Len columns = std::min(std::max(histogramColumns, 2 * window_.width),
                                     bytes / Len(scratchBytes<HistogramMemory<C>>(Len(1))));
        const Len most = columns - window_.width + 1;
        const HistogramMemory<C> memory(scratch, columns);
        for (Len from = 0; from < roi_.width; from += most)
            Strip{*this, memory, from, std::min(most, roi_.width - from), columns}.run();
    }

  private:
    struct Strip {
        const HistogramMedian& of;
        HistogramMemory<C> memory;
        Len from, count, columns;

        C* fine(int bin, Len column) const { return memory.fine + (bin * columns + column) * 16; }

        void run() const {
            std::memset(memory.coarse, 0, size_t(columns) * 16 * sizeof(C));
            std::memset(memory.fine, 0, size_t(columns) * 256 * sizeof(C));
            const Window& window = of.window_;
            for (Len y = -window.top; y < window.bottom; ++y) take<1>(y);
            for (Len y = 0; y < of.roi_.height; ++y) {
                take<1>(y + window.bottom);
                results(of.dst_.row(y) + from * n + of.channel_);
                take<-1>(y - window.top);
            }
        }
        // A row of pixels into the histograms, or out of them.
        template <int step>
        void take(Len y) const {
            const uint8_t* const row = of.bands_.row(y, 0).inside;
            const Len width = count + of.window_.width - 1, first = from - of.window_.left;
            const auto pixel = [&](Len x, uint8_t value) {
                memory.coarse[x * 16 + (value >> 4)] = C(memory.coarse[x * 16 + (value >> 4)] + step);
                C& counter = fine(value >> 4, x)[value & 15];
                counter = C(counter + step);
            };
            const auto outside = [&](Len x) {
                const Len column = row ? of.bands_.column(first + x) : of.bands_.none;
                pixel(x, column == of.bands_.none ? of.bands_.value()[of.channel_] : row[column * n + of.channel_]);
            };
            const Len begin = row ? std::clamp<Len>(of.bands_.firstColumn() - first, 0, width) : width;
            const Len end = row ? std::clamp<Len>(of.bands_.endColumn() - first, begin, width) : width;
            for (Len x = 0; x < begin; ++x) outside(x);
            for (Len x = begin; x < end; ++x) pixel(x, row[(first + x) * n + of.channel_]);
            for (Len x = end; x < width; ++x) outside(x);
        }
        void results(uint8_t* dst) const {
            const Len width = of.window_.width;
            const S middle = S((of.window_.area() - 1) / 2);
            Counters<S> coarse, fineOf[16];
            Len upTo[16];  // the columns before this are in the fine sums, those of the window that ends there
            for (Len& x : upTo) x = -width;
            for (Len x = 0; x < width - 1; ++x) coarse.add(memory.coarse + x * 16);
            for (Len x = 0; x < count; ++x) {
                coarse.add(memory.coarse + (x + width - 1) * 16);
                S before, unused;
                const int bin = coarse.binOf(middle, before);
                Counters<S>& sums = fineOf[bin];
                const Len end = x + width;
                if (end - upTo[bin] >= width / 2) {
                    sums = {};
                    for (Len k = x; k < end; ++k) sums.add(fine(bin, k));
                } else {
                    for (Len k = upTo[bin]; k < end; ++k) sums.add(fine(bin, k)), sums.subtract(fine(bin, k - width));
                }
                upTo[bin] = end;
                dst[x * n] = uint8_t(16 * bin + sums.binOf(S(middle - before), unused));
                coarse.subtract(memory.coarse + x * 16);
            }
        }
    };

    const Bands<uint8_t, n>& bands_;
    int channel_;
    Image<uint8_t> dst_;
    Roi roi_;
    Window window_;
};

// run(C(), S()) with the counters that a window needs.
template <class Run>
constexpr auto withCounters(Window window, Run run) {
    if (window.area() <= UINT8_MAX) return run(uint8_t(), uint8_t());
    if (window.area() <= UINT16_MAX && window.height <= UINT8_MAX) return run(uint8_t(), uint16_t());
    if (window.height <= UINT8_MAX) return run(uint8_t(), uint32_t());
    if (window.height <= UINT16_MAX) return run(uint16_t(), uint32_t());
    return run(uint32_t(), uint32_t());
}

}  // namespace zmv
