// Sums over windows of floating-point numbers, each formed in one order that depends on the window alone: by doubling,
// sums of 1, 2, 4, .. neighbours, of which those that the window's size asks for are added.  Nothing is ever taken off
// a sum, so that errors do not run along, and a NaN stays in the windows that contain it.
#pragma once

#include "kernels/rows.h"
#include "kernels/simd_convert.h"

namespace zmv {

// step(i, read, write) for each vector of n elements, whose last may be a part of one.
template <class T, class Step>
ZMV_INLINE void eachPartOf(Len n, Step step) {
    Len i = 0;
    for (; i + lanes<T> <= n; i += lanes<T>)
        step(
            i, [](const T* p) { return load(p); }, [](T* p, Vec<T> v) { store(p, v); }, lanes<T>);
    if (const int rest = int(n - i))
        step(
            i, [=](const T* p) { return loadPart(p, rest); }, [=](T* p, Vec<T> v) { storePart(p, v, rest); }, rest);
}
// to = a + b for n elements.
template <class T>
void addRows(T* to, const T* a, const T* b, Len n) {
    eachPartOf<T>(n, [&](Len i, auto read, auto write, int) { write(to + i, addInOrder(read(a + i), read(b + i))); });
}

// out[i] = the sum of row[i + k * distance], k = 0 .. terms - 1, for i < count.  The row has count + (terms - 1) *
// distance elements and is used up.
template <class T>
void sumAlong(T* out, T* row, Len count, Len terms, Len distance) {
    Len done = 0, length = count + (terms - 1) * distance;
    for (Len block = 1; block <= terms; block *= 2) {
        if (terms & block) {
            const T* const from = row + done * distance;
            if (done == 0)
                std::memcpy(out, from, size_t(count) * sizeof(T));
            else
                addRows(out, out, from, count);
            done += block;
        }
        if (2 * block > terms) break;
        length -= block * distance;
        addRows(row, row, row + block * distance, length);
    }
}

// Sums of `terms` successive rows, for rows that come one by one: a ring of rows for each power of two.
template <class T>
class RowTree {
  public:
    static constexpr Len rowsNeeded(Len terms) {
        Len rows = 0;
        for (int level = 0; Len(1) << level <= terms; ++level) rows += ringSize(level, terms);
        return rows;
    }
    RowTree(T* memory, Len terms, Len rowLength) : terms_(terms), length_(rowLength) {
        for (; Len(1) << levels_ <= terms; ++levels_) {
            rings_[levels_] = memory;
            memory += ringSize(levels_, terms) * rowLength;
        }
    }
    // Where the next row goes; then push() it.
    T* nextRow() const { return row(0, pushed_); }
    void push() {
        const Len newest = pushed_++;
        for (int level = 1; level < levels_; ++level) {
            const Len half = Len(1) << (level - 1), start = newest - 2 * half + 1;
            if (start < 0) break;
            addRows(row(level, start), row(level - 1, start), row(level - 1, start + half), length_);
        }
    }
    bool full() const { return pushed_ >= terms_; }
    // The sum of the last `terms` rows: result(i, vector, n) takes n elements from i on.
    template <class Result>
    void sum(Result result) const {
        const T* blocks[maxLevels];
        int count = 0;
        Len start = pushed_ - terms_;
        for (int level = levels_ - 1; level >= 0; --level) {
            if (!(terms_ >> level & 1)) continue;
            blocks[count++] = row(level, start);
            start += Len(1) << level;
        }
        eachPartOf<T>(length_, [&](Len i, auto read, auto, int n) {
            auto sum = read(blocks[0] + i);
            for (int b = 1; b < count; ++b) sum = addInOrder(sum, read(blocks[b] + i));
            result(i, sum, n);
        });
    }

  private:
    static constexpr int maxLevels = 32;
    // A ring keeps what the next level adds, or what a window still takes after its larger blocks are complete.
    static constexpr Len ringSize(int level, Len terms) {
        const Len block = Len(1) << level;
        return 2 * block <= terms ? block + 1 : terms - block + 1;
    }
    T* row(int level, Len start) const { return rings_[level] + start % ringSize(level, terms_) * length_; }
    Len terms_, length_;
    int levels_ = 0;
    Len pushed_ = 0;
    T* rings_[maxLevels] = {};
};

}  // namespace zmv
