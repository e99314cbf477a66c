// Sums over windows of floating-point numbers, each formed in one order that depends on the window alone: by doubling,
// sums of 1, 2, 4, .. neighbours, of which those that the window's size asks for are added.  Nothing is ever taken off
// a sum, so that errors do not run along, and a NaN stays in the windows that contain it.
#pragma once

#include "kernels/rows.h"

namespace zmv {

// out[i] = the sum of row[i + k * distance], k = 0 .. terms - 1, for i < count.  The row has count + (terms - 1) *
// distance elements and is used up.
template <class T>
void sumAlong(T* out, T* row, Len count, Len terms, Len distance) {
    const auto each = [](Len n, auto step) {
        Len i = 0;
        for (; i + lanes<T> <= n; i += lanes<T>)
            step(
                i, [](const T* p) { return load(p); }, [](T* p, Vec<T> v) { store(p, v); });
        if (const int rest = int(n - i))
            step(
                i, [=](const T* p) { return loadPart(p, rest); }, [=](T* p, Vec<T> v) { storePart(p, v, rest); });
    };
    Len done = 0, length = count + (terms - 1) * distance;
    for (Len block = 1; block <= terms; block *= 2) {
        if (terms & block) {
            const T* const from = row + done * distance;
            if (done == 0)
                each(count, [&](Len i, auto read, auto write) { write(out + i, read(from + i)); });
            else
                each(count, [&](Len i, auto read, auto write) { write(out + i, read(out + i) + read(from + i)); });
            done += block;
        }
        if (2 * block > terms) break;
        length -= block * distance;
        each(length,
             [&](Len i, auto read, auto write) { write(row + i, read(row + i) + read(row + i + block * distance)); });
    }
}

// Sums of `terms` successive rows, for rows that come one by one: a ring of rows for each power of two.
template <class T>
class RowTree {
  public:
    static Len rowsNeeded(Len terms) {
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
            addRows(row(level, start), row(level - 1, start), row(level - 1, start + half));
        }
    }
    bool full() const { return pushed_ >= terms_; }
    // The sum of the last `terms` rows: result(i, vector, n) takes n elements from i on.
    template <class Result>
    void sum(Result result) const {
        const T* blocks[64];
        int count = 0;
        Len start = pushed_ - terms_;
        for (int level = levels_ - 1; level >= 0; --level) {
            if (!(terms_ >> level & 1)) continue;
            blocks[count++] = row(level, start);
            start += Len(1) << level;
        }
        Len i = 0;
        for (; i + lanes<T> <= length_; i += lanes<T>) {
            auto sum = load(blocks[0] + i);
            for (int b = 1; b < count; ++b) sum += load(blocks[b] + i);
            result(i, sum, lanes<T>);
        }
        if (const int rest = int(length_ - i)) {
            auto sum = loadPart(blocks[0] + i, rest);
            for (int b = 1; b < count; ++b) sum += loadPart(blocks[b] + i, rest);
            result(i, sum, rest);
        }
    }

  private:
    // A ring keeps what the next level adds, or what a window still takes after its larger blocks are complete.
    static Len ringSize(int level, Len terms) {
        const Len block = Len(1) << level;
        return 2 * block <= terms ? block + 1 : terms - block + 1;
    }
    T* row(int level, Len start) const { return rings_[level] + start % ringSize(level, terms_) * length_; }
    void addRows(T* to, const T* a, const T* b) const {
        Len i = 0;
        for (; i + lanes<T> <= length_; i += lanes<T>) store(to + i, load(a + i) + load(b + i));
        if (const int rest = int(length_ - i)) storePart(to + i, loadPart(a + i, rest) + loadPart(b + i, rest), rest);
    }

    Len terms_, length_;
    int levels_ = 0;
    Len pushed_ = 0;
    T* rings_[32] = {};
};

}  // namespace zmv
