// What the tests of the box filter, of window sums and of adaptive thresholds share.
#pragma once

#include <xmmintrin.h>

#include <climits>
#include <cmath>
#include <iterator>
#include <limits>

#include "harness/case.h"

namespace test {

// The size of the work buffer that the contract promises; above INT_MAX it is refused.
// What a query has to say of its work buffer, word for word; -1 where an int is too small for it.
struct SizeRow {
    int width, height, maskWidth, maskHeight, type, channels;
    int64_t bytes;
};
template <const auto& rows>
void arrangeSize(Case& c) {
    const SizeRow& row = rows[c.seed % std::size(rows)];
    c.arg("roiSize") = {row.width, row.height};
    c.arg("maskSize") = {row.maskWidth, row.maskHeight};
    c.arg("dataType") = row.type;
    c.arg("numChannels") = row.channels;
    for (const char* name : {"pSpecSize", "pBufferSize"})
        if (c.has(name)) c.place(name, 1, 1);
}
template <const auto& rows>
void answerSize(Case& c) {
    const SizeRow& row = rows[c.seed % std::size(rows)];
    if (row.bytes < 0) return void(c.expected = STATUS_SIZE_EXCEEDS_INT);
    c.set(c.image("pBufferSize"), 0, 0, 0, int(row.bytes));
    if (c.has("pSpecSize")) c.set(c.image("pSpecSize"), 0, 0, 0, 4 * row.maskWidth + 40);
}

// The pixels round (x, y) that a mask covers.
struct Reach {
    int64_t left, top, right, bottom;
    Reach(int64_t mw, int64_t mh)
        : left((mw - 1) >> 1), top((mh - 1) >> 1), right(mw - 1 - left), bottom(mh - 1 - top) {}
};

// The column (or row) that stands for x beyond a region of n; INT64_MIN for the constant.
int64_t behindBorder(int64_t x, int64_t n, int word, bool memoryBefore, bool memoryBehind);

// Pixel values of the extended region, as the border word says.
template <class T>
struct Extended {
    Case& c;
    const Image& src;
    const int word = c.has("borderType") ? int(c.arg("borderType").a) : int(BORDER_IN_MEM);
    const Image* constant = c.hasImage("borderValue") ? &c.image("borderValue") : nullptr;

    T operator()(int64_t x, int64_t y, int channel) const {
        x = behindBorder(x, src.width, word, word & BORDER_IN_MEM_LEFT, word & BORDER_IN_MEM_RIGHT);
        y = behindBorder(y, src.height, word, word & BORDER_IN_MEM_TOP, word & BORDER_IN_MEM_BOTTOM);
        if (x == INT64_MIN || y == INT64_MIN) return c.get<T>(*constant, 0, 0, channel);
        return c.get<T>(src, x, y, channel);
    }
};

// What nobody reads may be missing.
inline void leaveOutValue(Case& c) {
    if ((c.arg("borderType").a & BORDER_IN_MEM) == BORDER_IN_MEM && c.member.points("borderValue"))
        c.arg("borderValue") = nullptr;
}

// Every element that may be read becomes value().
template <class Value>
void fillReadable(Case& c, const Image& image, Value value) {
    for (int64_t y = -image.readable.top; y < image.height + image.readable.bottom; ++y)
        for (int64_t x = -image.readable.left; x < image.width + image.readable.right; ++x)
            for (int k = 0; k < image.channels; ++k) c.set(image, x, y, k, value());
}

// Floats of one magnitude or of many, in some cases with NaNs and infinities here and there.
template <class T>
void fillFloats(Case& c, const Image& image) {
    const bool wide = c.rng.oneIn(2), special = c.rng.oneIn(4);
    const T specials[] = {T(NAN), T(INFINITY), -T(INFINITY), T(-0.0), std::numeric_limits<T>::denorm_min()};
    fillReadable(c, image, [&] {
        const T value = T(c.rng.between(-1000000, 1000000)) / 1024;
        const T scaled = wide ? std::ldexp(value, c.rng.between(-20, 20)) : value;
        return special && c.rng.oneIn(150) ? specials[c.rng.below(5)] : scaled;
    });
}

// What a filter with a border rule makes of bytes in one channel; D is the type of its results.
template <class D, class Mask>
std::vector<D> filterBytes(const Library& l, const std::string& name, const std::vector<uint8_t>& image, int width,
                           Mask mask) {
    using Filter = StatusCode (*)(const uint8_t*, int, D*, int, ImageSize, Mask, int, uint8_t, uint8_t*);
    std::vector<D> results(image.size());
    std::vector<uint8_t> buffer(1 << 20);
    reinterpret_cast<Filter>(l.find(name))(image.data(), width, results.data(), width * int(sizeof(D)),
                                           {width, int(image.size()) / width}, mask, BORDER_REPL, 0, buffer.data());
    return results;
}

// Judges the sum of a window, times scale, against exact arithmetic: as accurate as adding one by one in T, with NaN
// and infinity where the window has them.  Returns what is wrong, or nothing.
template <class T>
class SumJudge {
  public:
    void add(T x) {
        sum_ += x;
        magnitude_ += std::fabs(static_cast<long double>(x));
        ++count_;
    }
    void add(const SumJudge& other) {
        sum_ += other.sum_;
        magnitude_ += other.magnitude_;
        count_ += other.count_;
    }
    // Under the control word in force.  Sums that are rounded down are nowhere above the exact ones.
    bool accepts(T result, long double scale) const {
        if (std::isnan(sum_)) return std::isnan(result);
        if (std::isinf(sum_)) return result == T(sum_);
        constexpr unsigned flushed = 0x8040;  // small numbers are taken, or written, as zero
        const unsigned mode = _MM_GET_ROUNDING_MODE();
        const long double unit = std::numeric_limits<T>::epsilon() / (mode == _MM_ROUND_NEAREST ? 2 : 1);
        const long double tiny = std::numeric_limits<T>::min() * (_mm_getcsr() & flushed ? 2.0L * count_ : 1.0L);
        const long double slack = ((long double)(count_ + 3) * unit * magnitude_) * scale + tiny;
        const long double error = result - sum_ * scale, ours = tiny + magnitude_ * 0x1p-60L;
        const bool wrongSide =
            scale == 1 && ((mode == _MM_ROUND_DOWN && error > ours) || (mode == _MM_ROUND_UP && error < -ours));
        return !wrongSide && std::fabs(error) <= slack;
    }

  private:
    long double sum_ = 0, magnitude_ = 0;
    int64_t count_ = 0;
};

}  // namespace test
