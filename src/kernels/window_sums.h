// Sums over windows of integers: exact, at a cost that does not depend on the mask.
//
// A line of column sums moves down the region: the row that enters the window is added, the one that leaves is taken
// off.  Along the line, narrow windows are summed directly, wide ones by a running sum: a prefix sum of what enters
// minus what leaves, so that no chain of additions runs from pixel to pixel.
#pragma once

#include <limits>

#include "kernels/bands.h"
#include "kernels/simd_convert.h"

namespace zmv {

// Windows up to this width are summed directly, by loops that know the width.
constexpr Len directWidth = 7;
template <Len width = directWidth, class Loop>
ZMV_INLINE void withWidth(Len windowWidth, Loop loop) {
    if (windowWidth == width) return loop(std::integral_constant<Len, width>{});
    if constexpr (width > 1) withWidth<width - 1>(windowWidth, loop);
}
// The same windows, and some that are wider, are summed directly in 16 bits; beyond, running sums are cheaper.
constexpr Len shortWidth = vectorBytes == 16 ? 7 : 11;
// The sum of terms(0) .. terms(width - 1); the width may be a constant.
template <class Terms, class Width>
ZMV_INLINE auto sumOf(Terms terms, Width width) {
    auto sum = terms(0);
    for (Len k = 1; k < width; ++k) sum += terms(k);
    return sum;
}

// So many sums are formed, of pixels with n channels, then turned into results.
constexpr int chunkElements = 256;
constexpr int chunkPixels(int n) { return chunkElements / n; }
template <class S>
using Chunk = S[chunkElements + lanes<uint32_t>];

// to = from + enter - leave for count elements; without leave, to = from + enter.  Lines may be read, but not written,
// a vector beyond their end: the buffer goes on for at least that.
template <class A, class T>
__attribute__((noinline)) void moveColumns(A* to, const A* from, const T* enter, const T* leave, Len count) {
    if constexpr (sizeof(A) == 8) {  // for masks of more than 2^31 / 65535 rows: no vector of this many widths
        for (Len i = 0; i < count; ++i) put(to + i, get(from + i) + get(enter + i) - (leave ? get(leave + i) : 0));
    } else {
        Len i = 0;
        for (; i + lanes<A> <= count; i += lanes<A>) {
            auto sum = load(from + i) + loadWiden<A>(enter + i);
            if (leave) sum -= loadWiden<A>(leave + i);
            store(to + i, sum);
        }
        if (const int rest = int(count - i)) {
            auto sum = load(from + i) + loadWidenPart<A>(enter + i, rest);
            if (leave) sum -= loadWidenPart<A>(leave + i, rest);
            storePart(to + i, sum, rest);
        }
    }
}
template <class A, class T>
inline void addColumns(A* line, const T* enter, Len count) {
    moveColumns(line, line, enter, static_cast<const T*>(nullptr), count);
}

// Where the sums along a row come from: lines of column sums may be read a vector beyond their end.
template <class A>
struct LineReader {
    const A* line;
    Vec<uint32_t> at(Len i) const { return loadWiden<uint32_t>(line + i); }
    Vec<uint32_t, 16> fewAt(Len i) const { return loadWiden<uint32_t, A, 16>(line + i); }
    int64_t one(Len i) const { return get(line + i); }
};
// The sums of windows of some pixels of n channels along a row, chunk by chunk from the left.  They fit 32 bits;
// lanes that are nobody's may wrap, so that they are formed without a sign.
template <class Reader, int n>
class RowSums {
  public:
    using Sum = uint32_t;
    RowSums(Reader reader, Len windowWidth) : reader_(reader), width_(windowWidth) {}

    // The next chunk: the sums of `pixels` pixels.
    __attribute__((noinline)) void next(uint32_t* sums, int pixels) {
        // To the compiler, `sums` could lie in *this: what loops use is in variables.
        if (width_ <= directWidth)
            direct(sums, pixels * n, reader_, done_);
        else if constexpr (n == 1)
            running(sums, pixels, reader_, done_, width_);
        else
            runningPixels(sums, pixels, reader_, done_, width_);
        done_ += pixels * n;
    }

  private:
    ZMV_INLINE void direct(uint32_t* sums, int count, const Reader reader, const Len done) const {
        withWidth(width_, [=](auto width) {
            for (int i = 0; i < count; i += lanes<uint32_t>)
                store(sums + i, sumOf([=](Len k) { return reader.at(done + i + k * n); }, width));
        });
    }
    uint32_t firstSum(int channel) const {
        uint32_t sum = 0;
        for (Len k = 0; k < width_; ++k) sum += uint32_t(reader_.one(k * n + channel));
        return sum;
    }
    // Each sum is the one before it, plus the column that enters, minus the one that leaves.
    ZMV_INLINE void running(uint32_t* sums, int count, const Reader reader, const Len done, const Len width) {
        int i = 0;
        if (done == 0) sums[i++] = last_ = firstSum(0);
        auto last = fill(last_);
        for (; i < count; i += lanes<uint32_t>) {
            const auto change = prefixSum(reader.at(done + i + width - 1) - reader.at(done + i - 1));
            store(sums + i, last + change);
            last += spreadLast(change);
        }
        last_ = sums[count - 1];
    }
    // The same with a pixel in each vector, the last lane of three channels being nobody's.
    ZMV_INLINE void runningPixels(uint32_t* sums, int pixels, const Reader reader, const Len done, const Len width) {
        int i = 0;
        if (done == 0) {
            for (int c = 0; c < n; ++c) lastPixel_[c] = firstSum(c);
            store(sums, lastPixel_);
            i = 1;
        }
        auto last = lastPixel_;
        for (; i < pixels; ++i) {
            const Len at = done + i * n;
            last += reader.fewAt(at + (width - 1) * n) - reader.fewAt(at - n);
            store(sums + i * n, last);
        }
        lastPixel_ = last;
    }

    Reader reader_;
    Len width_;
    Len done_ = 0;
    uint32_t last_ = 0;
    Vec<uint32_t, 16> lastPixel_{};
};
// The same of windows too large for these.
template <class Reader>
class WideRowSums {
  public:
    using Sum = decltype(std::declval<Reader>().one(0));
    WideRowSums(Reader reader, Len windowWidth, int channels) : reader_(reader), width_(windowWidth), n_(channels) {
        for (Len k = 0; k < (width_ - 1) * n_; ++k) running_[k % n_] += reader.one(k);
    }
    __attribute__((noinline)) void next(Sum* sums, int pixels) {
        const Reader reader = reader_;
        const Len n = n_, done = done_, reach = (width_ - 1) * n;
        for (Len c = 0; c < n; ++c) {
            Sum sum = running_[c];
            for (Len i = c; i < pixels * n; i += n) {
                sums[i] = sum += reader.one(done + i + reach);
                sum -= reader.one(done + i);
            }
            running_[c] = sum;
        }
        done_ = done + pixels * n;
    }

  private:
    Reader reader_;
    Len width_;
    int n_;
    Len done_ = 0;
    Sum running_[4] = {};
};

// The largest magnitude that `terms` elements of T can sum to.
template <class T>
constexpr bool sumsFit(Len terms, int64_t limit) {
    return terms <= limit / (int64_t(std::numeric_limits<T>::max()) + std::is_signed_v<T>);
}
// Calls run(A()) with the type of a window's column sums.
template <class T, class Run>
constexpr auto withColumnSums(Window window, Run run) {
    if constexpr (sizeof(T) == 1)
        if (sumsFit<T>(window.height, UINT16_MAX)) return run(uint16_t(0));
    if (sumsFit<T>(window.height, INT32_MAX)) return run(int32_t(0));
    return run(int64_t(0));
}

// The results follow the sums by two rows where there are three lines: a load that spans the stores of a moment ago
// would wait for them.
template <class A>
constexpr int linesOf(Window window) {
    return window.height > 1 && sizeof(A) < 8 ? 3 : 1;
}
template <class A, class T>
struct LineMemory {
    A* lines;
    BandsMemory<T> bands;
    constexpr LineMemory(Scratch& s, Roi roi, Window window, int n, BandsUse use)
        : lines(s.take<A>((WideLen(roi.width) + window.width - 1) * n * linesOf<A>(window))),
          bands(s, roi, window, n, use) {
        s.take<uint8_t>(vectorBytes);  // lines are read beyond their end
    }
};

// Moves the line of column sums, of type A, down the region; emit(y, line) makes row y of the results, where line is
// the leftmost column of the row's first window.
template <class A, class T, int n, class Emit>
void eachLine(Bands<T, n>& bands, Roi roi, Window window, Scratch scratch, Emit emit) {
    const LineMemory<A, T> memory(scratch, roi, window, n, bands.use());
    bands.workIn(memory.bands);
    const int lines = linesOf<A>(window), delay = lines - 1;
    const Len length = (roi.width + window.width - 1) * n;
    // The lines of the row at hand and of the ones before it: home[k] has row y - k, from the region's first column.
    A* home[3];
    for (int k = 0; k < 3; ++k) home[k] = memory.lines + k % lines * length + window.left * n;
    A constants[4];
    for (int c = 0; c < n; ++c) constants[c] = A(bands.value()[c] * A(window.height));

    const auto part = [](const auto& row, Len column, bool outside) {
        return (outside ? row.outside : row.inside) + column * n;
    };
    std::memset(home[0] - window.left * n, 0, size_t(length) * sizeof(A));
    for (Len y = -window.top; y <= window.bottom; ++y) {
        const auto enter = bands.row(y, 0);
        bands.eachPart([&](Len column, bool outside, Len count) {
            addColumns(home[0] + column * n, part(enter, column, outside), count * n);
        });
    }
    for (Len y = 0; y < roi.height + delay; ++y) {
        const Len done = std::max<Len>(0, y - delay);
        if (y > 0) {
            A* const oldest = home[2];
            home[2] = home[1], home[1] = home[0], home[0] = oldest;
        }
        if (y > 0 && y < roi.height) {
            const auto enter = bands.row(y + window.bottom, done), leave = bands.row(y - 1 - window.top, done);
            bands.eachPart([&](Len column, bool outside, Len count) {
                moveColumns(home[0] + column * n, home[1] + column * n, part(enter, column, outside),
                            part(leave, column, outside), count * n);
            });
        }
        if (y < roi.height) bands.fillColumns(home[0], constants);
        if (y < delay) continue;
        bands.save(y - delay);
        emit(y - delay, home[delay] - window.left * n);
    }
}

}  // namespace zmv
