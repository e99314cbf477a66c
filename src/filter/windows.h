// Sums over windows of integers: exact, at a cost that does not depend on the mask.
//
// A line of column sums moves down the region: the row that enters the window is added, the one that leaves is taken
// off.  Along the line, narrow windows are summed directly, wide ones by a running sum: a prefix sum of what enters
// minus what leaves, so that no chain of additions runs from pixel to pixel.
#pragma once

#include <limits>

#include "filter/bands.h"

namespace zmv {

// Windows up to this width are summed directly.
constexpr Len directWidth = 7;

// Sums of this many pixels are formed, then turned into results.
constexpr int chunkPixels = 64;
using ChunkSums = int32_t[chunkPixels * 4 + lanes<int32_t>];

// line += enter, or line += enter - leave, for count elements.  The last vector may reach beyond the line, where it
// adds zeros; the line is followed by at least a vector of the caller's buffer.
template <class A, class T>
inline void moveColumns(A* line, const T* enter, const T* leave, Len count) {
    if constexpr (sizeof(A) == 8) {  // for masks of more than 2^31 / 65535 rows: no vector of this many widths
        for (Len i = 0; i < count; ++i) put(line + i, get(line + i) + get(enter + i) - (leave ? get(leave + i) : 0));
    } else {
        Len i = 0;
        for (; i + lanes<A> <= count; i += lanes<A>) {
            auto sum = load(line + i) + loadWiden<A>(enter + i);
            if (leave) sum -= loadWiden<A>(leave + i);
            store(line + i, sum);
        }
        if (const int rest = int(count - i)) {
            auto sum = load(line + i) + loadWidenPart<A>(enter + i, rest);
            if (leave) sum -= loadWidenPart<A>(leave + i, rest);
            store(line + i, sum);
        }
    }
}
template <class A, class T>
inline void addColumns(A* line, const T* enter, Len count) {
    moveColumns(line, enter, static_cast<const T*>(nullptr), count);
}

// Where the sums along a row come from: lines of column sums, which may be read a vector beyond their end, or rows of
// the caller's, which may not.
template <class A>
struct LineReader {
    const A* line;
    Vec<int32_t> at(Len i) const { return loadWiden<int32_t>(line + i); }
    Vec<int32_t, 16> fewAt(Len i) const { return loadWiden<int32_t, A, 16>(line + i); }
    int64_t one(Len i) const { return get(line + i); }
};
template <class T>
struct RowReader {
    const T* row;
    Len count;
    Vec<int32_t> at(Len i) const {
        return i + lanes<int32_t> <= count ? loadWiden<int32_t>(row + i) : loadWidenPart<int32_t>(row + i, int(count - i));
    }
    Vec<int32_t, 16> fewAt(Len i) const {
        if (i + 4 <= count) return loadWiden<int32_t, T, 16>(row + i);
        T few[4] = {};
        std::memcpy(few, row + i, size_t(count - i) * sizeof(T));
        return loadWiden<int32_t, T, 16>(few);
    }
    int64_t one(Len i) const { return get(row + i); }
};

// The sums of windows of `width` pixels of n channels along a row, in int32_t, chunk by chunk from the left.
template <class Reader>
class RowSums {
  public:
    RowSums(Reader reader, Len windowWidth, int n) : reader_(reader), width_(windowWidth), n_(n) {}

    // The next chunk: the sums of `pixels` pixels.
    void next(int32_t* sums, int pixels) {
        if (width_ <= directWidth) direct(sums, pixels * n_);
        else if (n_ == 1) running(sums, pixels);
        else runningPixels(sums, pixels);
        done_ += pixels * n_;
    }

  private:
    void direct(int32_t* sums, int count) const {
        for (int i = 0; i < count; i += lanes<int32_t>) {
            auto sum = reader_.at(done_ + i);
            for (Len k = 1; k < width_; ++k) sum += reader_.at(done_ + i + k * n_);
            store(sums + i, sum);
        }
    }
    int32_t firstSum(int channel) const {
        int32_t sum = 0;
        for (Len k = 0; k < width_; ++k) sum += int32_t(reader_.one(k * n_ + channel));
        return sum;
    }
    // Each sum is the one before it, plus the column that enters, minus the one that leaves.
    void running(int32_t* sums, int count) {
        int i = 0;
        if (done_ == 0) sums[i++] = firstSum(0), last_ = fill(sums[0]);
        for (; i < count; i += lanes<int32_t>) {
            const auto change = prefixSum(reader_.at(done_ + i + width_ - 1) - reader_.at(done_ + i - 1));
            store(sums + i, last_ + change);
            last_ += spreadLast(change);
        }
        last_ = fill(sums[count - 1]);
    }
    void runningPixels(int32_t* sums, int pixels) {
        int i = 0;
        if (done_ == 0) {
            for (int c = 0; c < n_; ++c) lastPixel_[c] = firstSum(c);
            store(sums, lastPixel_);
            i = 1;
        }
        for (; i < pixels; ++i) {
            const Len at = done_ + i * n_;
            lastPixel_ += reader_.fewAt(at + (width_ - 1) * n_) - reader_.fewAt(at - n_);
            store(sums + i * n_, lastPixel_);
        }
    }

    Reader reader_;
    Len width_;
    int n_;
    Len done_ = 0;
    Vec<int32_t> last_{};
    Vec<int32_t, 16> lastPixel_{};
};

// Results of a chunk of sums.  An output's put() takes a vector of sums that fit int32_t, its one() any sum.
template <class Output, class D>
void putChunk(const Output& output, D* dst, const int32_t* sums, int count) {
    constexpr int step = lanes<int32_t>;
    int i = 0;
    for (; i + step <= count; i += step) output.put(dst + i, load(sums + i));
    if (i == count) return;
    D few[step];
    output.put(few, load(sums + i));
    std::memcpy(dst + i, few, size_t(count - i) * sizeof(D));
}

// One row of results, from sums in int32_t or, where the area is too large for those, in int64_t.
template <bool wide, class Output, class Reader, class D>
void putRow(const Output& output, D* dst, const Reader& reader, Len pixels, Len windowWidth, int n,
            const Pattern* colours) {
    RowSums<Reader> rowSums(reader, windowWidth, n);
    int64_t running[4] = {};
    if constexpr (wide)
        for (Len k = 0; k < (windowWidth - 1) * n; ++k) running[k % n] += reader.one(k);
    const auto putPixels = [&](D* to, Len x, int count) {
        if constexpr (!wide) {
            ChunkSums sums;
            rowSums.next(sums, count);
            putChunk(output, to, sums, count * n);
        } else {
            for (Len i = x * n; i < (x + count) * n; ++i) {
                int64_t& sum = running[i % n];
                sum += reader.one(i + (windowWidth - 1) * n);
                put(to + i - x * n, output.one(sum));
                sum -= reader.one(i);
            }
        }
    };
    for (Len x = 0; x < pixels; x += chunkPixels) {
        const int count = int(std::min<Len>(chunkPixels, pixels - x));
        if (!colours) {
            putPixels(dst + x * n, x, count);
        } else {
            D results[chunkPixels * 4];
            putPixels(results, x, count);
            blendRow(dst + x * n, fromRow(results), *colours, rowBytes<D>(count, 3, 4));
        }
    }
}

// The largest magnitude that `terms` elements of T can sum to.
template <class T>
bool sumsFit(Len terms, int64_t limit) {
    return terms <= limit / (int64_t(std::numeric_limits<T>::max()) + std::is_signed_v<T>);
}

// Moves the line of column sums, of type A, down the region; emit(y, line) makes row y of the results, where line is
// the leftmost column of the row's first window.
template <class A, class T, class Emit>
void eachLine(Bands<T>& bands, Roi roi, Window window, int n, Scratch scratch, Emit emit) {
    A* const line = scratch.take<A>((roi.width + window.width - 1) * n);
    bands.takeMemory(scratch);
    A* const home = line + window.left * n;
    std::memset(line, 0, size_t(roi.width + window.width - 1) * size_t(n) * sizeof(A));
    A constants[4];
    for (int c = 0; c < n; ++c) constants[c] = A(bands.value()[c] * A(window.height));

    const auto part = [n](const auto& row, Len column, bool outside) {
        return (outside ? row.outside : row.inside) + column * n;
    };
    for (Len y = -window.top; y <= window.bottom; ++y) {
        const auto enter = bands.row(y, 0);
        bands.eachPart([&](Len column, bool outside, Len count) {
            addColumns(home + column * n, part(enter, column, outside), count * n);
        });
    }
    for (Len y = 0; y < roi.height; ++y) {
        bands.fillColumns(home, constants);
        bands.save(y);
        emit(y, line);
        if (y + 1 == roi.height) break;
        const auto enter = bands.row(y + 1 + window.bottom, y + 1), leave = bands.row(y - window.top, y + 1);
        bands.eachPart([&](Len column, bool outside, Len count) {
            moveColumns(home + column * n, part(enter, column, outside), part(leave, column, outside), count * n);
        });
    }
}

}  // namespace zmv
