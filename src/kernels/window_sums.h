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

// Sums of this many pixels are formed, then turned into results.
constexpr int chunkPixels = 64;
using ChunkSums = uint32_t[chunkPixels * 4 + lanes<uint32_t>];

// to = from + enter - leave for count elements; without leave, to = from + enter.  Lines may be read, but not written,
// a vector beyond their end: the buffer goes on for at least that.
template <class A, class T>
inline void moveColumns(A* to, const A* from, const T* enter, const T* leave, Len count) {
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
// The sums of windows of some pixels of n channels along a row, chunk by chunk from the left.  They fit int32_t, but
// lanes that are nobody's may wrap, so that they are formed without a sign.
template <class Reader, int n>
class RowSums {
  public:
    RowSums(Reader reader, Len windowWidth) : reader_(reader), width_(windowWidth) {}

    // The next chunk: the sums of `pixels` pixels.
    void next(uint32_t* sums, int pixels) {
        if (width_ <= directWidth)
            direct(sums, pixels * n);
        else if constexpr (n == 1)
            running(sums, pixels);
        else
            runningPixels(sums, pixels);
        done_ += pixels * n;
    }

  private:
    void direct(uint32_t* sums, int count) const {
        withWidth(width_, [&](auto width) {
            for (int i = 0; i < count; i += lanes<uint32_t>)
                store(sums + i, sumOf([&](Len k) { return reader_.at(done_ + i + k * n); }, width));
        });
    }
    uint32_t firstSum(int channel) const {
        uint32_t sum = 0;
        for (Len k = 0; k < width_; ++k) sum += uint32_t(reader_.one(k * n + channel));
        return sum;
    }
    // Each sum is the one before it, plus the column that enters, minus the one that leaves.
    void running(uint32_t* sums, int count) {
        int i = 0;
        if (done_ == 0) sums[i++] = last_ = firstSum(0);
        auto last = fill(last_);
        for (; i < count; i += lanes<uint32_t>) {
            const auto change = prefixSum(reader_.at(done_ + i + width_ - 1) - reader_.at(done_ + i - 1));
            store(sums + i, last + change);
            last += spreadLast(change);
        }
        last_ = sums[count - 1];
    }
    // The same with a pixel in each vector, the last lane of three channels being nobody's.
    void runningPixels(uint32_t* sums, int pixels) {
        int i = 0;
        if (done_ == 0) {
            for (int c = 0; c < n; ++c) lastPixel_[c] = firstSum(c);
            store(sums, lastPixel_);
            i = 1;
        }
        auto last = lastPixel_;
        for (; i < pixels; ++i) {
            const Len at = done_ + i * n;
            last += reader_.fewAt(at + (width_ - 1) * n) - reader_.fewAt(at - n);
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

// The largest magnitude that `terms` elements of T can sum to.
template <class T>
bool sumsFit(Len terms, int64_t limit) {
    return terms <= limit / (int64_t(std::numeric_limits<T>::max()) + std::is_signed_v<T>);
}

// Moves the line of column sums, of type A, down the region; emit(y, line) makes row y of the results, where line is
// the leftmost column of the row's first window.
//
// The results follow the sums by two rows where the buffer has room for three lines: a load that spans the stores of a
// moment ago would wait for them.
template <class A, class T, int n, class Emit>
void eachLine(Bands<T, n>& bands, Roi roi, Window window, Scratch scratch, Emit emit) {
    const int lines = window.height > 1 && sizeof(A) < 8 ? 3 : 1, delay = lines - 1;
    const Len length = (roi.width + window.width - 1) * n;
    A* const memory = scratch.take<A>(length * lines);
    bands.takeMemory(scratch);
    // The lines of the row at hand and of the ones before it: home[k] has row y - k, from the region's first column.
    A* home[3];
    for (int k = 0; k < 3; ++k) home[k] = memory + k % lines * length + window.left * n;
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
