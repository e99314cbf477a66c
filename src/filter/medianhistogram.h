// Medians of bytes in large windows, at a cost that does not depend on the window's height: a histogram of each column,
// which takes the pixel that enters the window and loses the one that leaves it, and the sum of those that a window
// covers.
//
// Histograms have two levels: 16 coarse bins, and 16 fine ones in each.  A counter counts what is in its bin and in
// those before it, so that the bin with the median is found by one comparison of all: the number of counters that are
// not above its rank.  Along a row the coarse sums are kept up to date; of the fine ones only those in the median's
// coarse bin.
#pragma once

#include <cstring>

#include "kernels/bands.h"
#include "kernels/rows.h"
#include "kernels/simd_convert.h"
#include "kernels/simd_sorted.h"

namespace zmv {

// Sixteen counters.
template <class S>
class Counters {
    static constexpr int bytes = std::min(vectorBytes, int(16 * sizeof(S))), each = lanes<S, bytes>,
                         vectors = 16 / each;

  public:
    template <class C>
    ZMV_INLINE void add(const C* column) {
        unrolled<vectors>([&](auto k) { v_[k] += loadWiden<S, C, bytes>(column + k * each); });
    }
    template <class C>
    ZMV_INLINE void subtract(const C* column) {
        unrolled<vectors>([&](auto k) { v_[k] -= loadWiden<S, C, bytes>(column + k * each); });
    }
    // The first bin up to which more than `rank` are counted.
    ZMV_INLINE int binOf(S rank) const {
        int bin = 0;
        unrolled<vectors>([&](auto k) { bin += lanesUpTo(v_[k], rank); });
        return bin;
    }
    ZMV_INLINE void storeTo(S* counters) const {
        unrolled<vectors>([&](auto k) { store(counters + k * each, v_[k]); });
    }

  private:
    Vec<S, bytes> v_[vectors]{};
};

// What an element adds to the counters of its bin and of those behind it: sixteen from 16 - bin on.
template <class C>
constexpr auto fromBinOn = [] {
    std::array<C, 32> ones{};
    for (int k = 16; k < 32; ++k) ones[size_t(k)] = 1;
    return ones;
}();

// Columns that are worked at a time, so that their histograms stay in the second cache.
constexpr Len histogramColumns = 480;

template <class C>
struct HistogramMemory {
    C *coarse, *fine;
    uint8_t *entering, *leaving;  // pixels of a row
    constexpr HistogramMemory(Scratch& s, Len columns)
        : coarse(s.take<C>(columns * WideLen(16))),
          fine(s.take<C>(columns * WideLen(256))),
          entering(s.take<uint8_t>(columns)),
          leaving(s.take<uint8_t>(columns)) {}
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

        Len apart() const { return columns * 16; }  // coarse bins of fine ones

        void run() const {
            const Window& window = of.window_;
            std::memset(memory.coarse, 0, size_t(columns) * 16 * sizeof(C));
            std::memset(memory.fine, 0, size_t(columns) * 256 * sizeof(C));
            for (Len y = -window.top; y < window.bottom; ++y) take<false>(y);
            for (Len y = 0; y < of.roi_.height; ++y) {
                if (y == 0)
                    take<false>(window.bottom);
                else
                    take<true>(y + window.bottom);
                results(of.dst_.row(y) + from * n + of.channel_);
            }
        }
        // A row of pixels into the histograms, and the one that it takes the place of out of them.
        template <bool full>
        void take(Len y) const {
            const Len width = count + of.window_.width - 1;
            readRow(memory.entering, y, width);
            if (full) readRow(memory.leaving, y - of.window_.height, width);
            const uint8_t *const in = memory.entering, *const out = memory.leaving;
            for (Len x = 0; x < width; ++x) change(memory.coarse + x * 16, in[x] >> 4, full ? out[x] >> 4 : 16);
            // One after the other: both may be in one bin, and what has just been stored is slow to load.
            C* fine = memory.fine;
            for (Len x = 0; x < width; ++x, fine += 16) change(fine + (in[x] >> 4) * apart(), in[x] & 15, 16);
            fine = memory.fine;
            for (Len x = 0; full && x < width; ++x, fine += 16) change(fine + (out[x] >> 4) * apart(), 16, out[x] & 15);
        }
        // One more from bin `in` on, one less from bin `out` on; 16 stands for none.
        ZMV_INLINE static void change(C* counters, int in, int out) {
            constexpr int bytes = std::min(vectorBytes, int(16 * sizeof(C))), each = lanes<C, bytes>;
            for (int k = 0; k < 16; k += each) {
                const auto ones = [&](int bin) { return load<C, bytes>(fromBinOn<C>.data() + 16 - bin + k); };
                store(counters + k, load<C, bytes>(counters + k) + ones(in) - ones(out));
            }
        }
        void readRow(uint8_t* to, Len y, Len width) const {
            const uint8_t* const row = of.bands_.row(y, 0).inside;
            const Len first = from - of.window_.left, channel = of.channel_;
            const auto outside = [&](Len x) {
                const Len column = row ? of.bands_.column(first + x) : of.bands_.none;
                to[x] = column == of.bands_.none ? of.bands_.value()[channel] : row[column * n + channel];
            };
            const Len begin = row ? std::clamp<Len>(of.bands_.firstColumn() - first, 0, width) : width;
            const Len end = row ? std::clamp<Len>(of.bands_.endColumn() - first, begin, width) : width;
            for (Len x = 0; x < begin; ++x) outside(x);
            if (n == 1)
                copyRow(to + begin, row + first + begin, end - begin);
            else
                for (Len x = begin; x < end; ++x) to[x] = row[(first + x) * n + channel];
            for (Len x = end; x < width; ++x) outside(x);
        }
        // Coarse bins first, then fine ones: where the bin changes, the processor knows before it gets there.
        void results(uint8_t* dst) const {
            constexpr Len most = 64;
            const Len width = of.window_.width;
            const S middle = S((of.window_.area() - 1) / 2);
            uint8_t bins[most];
            S ranks[most];
            Counters<S> coarse, sums;
            for (Len x = 0; x < width - 1; ++x) coarse.add(memory.coarse + x * 16);
            int last = -1;
            for (Len x = 0, m; x < count; x += m) {
                m = std::min(most, count - x);
                coarseBins(coarse, memory.coarse + x * 16, width, middle, m, bins, ranks);
                last = fineBins(sums, memory.fine + x * 16, apart(), width, last, m, bins, ranks, dst + x * n);
            }
        }
        __attribute__((noinline)) static void coarseBins(Counters<S>& sums, const C* column, Len width, S middle, Len m,
                                                         uint8_t* bins, S* ranks) {
            S upTo[17] = {};
            Counters<S> coarse = sums;
            const C* entering = column + (width - 1) * 16;
            for (Len k = 0; k < m; ++k) {
                coarse.add(entering + k * 16);
                const int bin = coarse.binOf(middle);
                coarse.storeTo(upTo + 1);
                coarse.subtract(column + k * 16);
                bins[k] = uint8_t(bin), ranks[k] = S(middle - upTo[bin]);
            }
            sums = coarse;
        }
        __attribute__((noinline)) static int fineBins(Counters<S>& memory, const C* column, Len apart, Len width,
                                                      int last, Len m, const uint8_t* bins, const S* ranks,
                                                      uint8_t* dst) {
            Counters<S> sums = memory;
            for (Len k = 0; k < m; ++k, column += 16) {
                const int bin = bins[k];
                const C* const first = column + bin * apart;
                if (bin == last) {
                    sums.add(first + (width - 1) * 16), sums.subtract(first - 16);
                } else {
                    sums = {};
                    for (Len i = 0; i < width; ++i) sums.add(first + i * 16);
                    last = bin;
                }
                dst[k * n] = uint8_t(16 * bin + sums.binOf(ranks[k]));
            }
            memory = sums;
            return last;
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
