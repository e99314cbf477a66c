// zmviFilterBoxBorder, zmviSumWindow, their size queries, zmviSumWindowRow, zmviSumWindowColumn, zmviFilterBox.
#include "filter/box.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

namespace test {

int64_t behindBorder(int64_t x, int64_t n, int word, bool memoryBefore, bool memoryBehind) {
    if ((x >= 0 && x < n) || (x < 0 ? memoryBefore : memoryBehind)) return x;
    if ((word & 15) == BORDER_CONST) return INT64_MIN;
    if ((word & 15) == BORDER_REPL || n == 1) return x < 0 ? 0 : n - 1;
    const int64_t period = 2 * n - 2, p = ((x % period) + period) % period;
    return p < n ? p : period - p;
}

}  // namespace test

namespace {

using namespace test;

constexpr SizeRow boxSizes[] = {{1, 1, 1, 1, DATATYPE_8U, 1, 93},
                                {640, 480, 3, 3, DATATYPE_8U, 1, 30920},
                                {100, 50, 5, 7, DATATYPE_16U, 3, 34752},
                                {33, 17, 2, 2, DATATYPE_16S, 4, 5104},
                                {64, 64, 2, 9, DATATYPE_32F, 1, 9340},
                                {7, 300, 10, 4, DATATYPE_32F, 4, 216208},
                                {9, 9, 20, 1, DATATYPE_16U, 1, 2728},
                                {1920, 1080, 31, 31, DATATYPE_8U, 3, 3428416},
                                {65075255, 3, 3, 3, DATATYPE_8U, 1, 2147483633},
                                {65075256, 3, 3, 3, DATATYPE_8U, 1, -1},
                                {40, 26843409, 2, 5, DATATYPE_32F, 4, 2147483640},
                                {40, 26843410, 2, 5, DATATYPE_32F, 4, -1},
                                {INT_MAX, INT_MAX, INT_MAX, INT_MAX, DATATYPE_8U, 1, -1}};

// Windows with a border.

void arrangeWindow(Case& c) {
    int64_t w = c.width, h = c.height, mw = c.rng.between(1, 6), mh = c.rng.between(1, 6);
    const bool tall = c.rng.oneIn(3);  // room for bands and an inner part
    if (tall) h = c.rng.between(6, 24);
    switch (c.rng.below(10)) {
        case 0:
            mw = 1;
            break;
        case 1:
            mh = 1;
            break;
        case 2:
        case 3:
            mw = c.rng.between(1, 40), mh = c.rng.between(1, 30);
            break;
        case 4:
            mw = c.width + c.rng.between(0, 5);
            break;
        case 5:
        case 6:
            mw = mh = 3;  // has code of its own
            break;
    }
    const bool huge = c.mode == Mode::usual && c.rng.oneIn(40);  // sums beyond 2^32
    if (huge)
        w = c.rng.between(1, 4), h = c.rng.between(1, 3), mw = c.rng.between(200, 330), mh = c.rng.between(200, 330);
    if (mw == 3 && mh == 3 && c.rng.oneIn(3)) w = c.rng.between(3900, 9000) / c.member.to.channels, h = 3;
    if (c.mode == Mode::far) h = 4, mh = c.rng.between(1, 3);

    const int rules[] = {BORDER_REPL, BORDER_MIRROR, BORDER_CONST};
    int word = rules[c.rng.below(3)];
    if (c.rng.oneIn(2)) word |= 16 * c.rng.below(16);
    if (c.rng.oneIn(12)) word = BORDER_IN_MEM;
    if (c.mode == Mode::controls) word |= BORDER_CONST, word &= ~(BORDER_REPL);  // so that every check can fail
    const Reach reach(mw, mh);
    const auto readable = [&](int flag, int64_t pixels) { return word & flag ? pixels : 0; };
    c.place("src", w, h,
            {readable(BORDER_IN_MEM_LEFT, reach.left), readable(BORDER_IN_MEM_RIGHT, reach.right),
             readable(BORDER_IN_MEM_TOP, reach.top), readable(BORDER_IN_MEM_BOTTOM, reach.bottom)});
    const bool inPlace = c.member.source == c.member.destination && c.mode == Mode::usual && c.rng.oneIn(4);
    inPlace ? c.alias("dst", "src") : void(c.place("dst", w, h));
    if ((word & 15) == BORDER_CONST)
        c.placeValue("borderValue", c.member.to.used());
    else
        c.arg("borderValue") = nullptr;
    if (c.member.source == Element::f32) {
        fillFloats<float>(c, c.image("src"));
        if (c.hasImage("borderValue")) fillFloats<float>(c, c.image("borderValue"));
    } else if (huge || c.rng.oneIn(8)) {  // the largest sums
        const Image& src = c.image("src");
        withElement(src.element, [&](auto zero) {
            using T = decltype(zero);
            const T most = c.rng.oneIn(4) ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
            for (int64_t y = -src.readable.top; y < h + src.readable.bottom; ++y)
                for (int64_t x = -src.readable.left; x < w + src.readable.right; ++x)
                    for (int k = 0; k < src.channels; ++k) c.set(src, x, y, k, most);
        });
    }
    c.arg("roiSize") = {w, h};
    c.arg("maskSize") = {mw, mh};
    c.arg("borderType") = word;
    c.placeBuffer("buffer", c.bufferSize());
}

// The mean of an integer window, halves upward; of bytes each step in single precision, as the contract has it.
template <class T>
T mean(int64_t sum, int64_t area) {
    if constexpr (sizeof(T) == 2) return T(std::floor((long double)(2 * sum + area) / (2 * area)));
    const float reciprocal = float(1.0L / area);
    const float product = float(sum) * reciprocal;
    return T(product + 0.5f);
}
template <class D>
D sumOf(int64_t sum) {
    if constexpr (std::is_integral_v<D>)
        return D(std::min<int64_t>(sum, INT32_MAX));
    else
        return D(sum);
}

// Exact column sums, then sums along the row.
template <class T, class D>
void integerWindows(Case& c, bool wantsMean) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    const int64_t mw = c.arg("maskSize").a, mh = c.arg("maskSize").b;
    const Reach reach(mw, mh);
    const Extended<T> pixel{c, src};
    std::vector<D> results;
    for (int k = 0; k < c.member.to.used(); ++k)
        for (int64_t y = 0; y < src.height; ++y) {
            std::vector<int64_t> before = {0};  // sums of all columns before each
            for (int64_t x = -reach.left; x < src.width + reach.right; ++x) {
                int64_t column = 0;
                for (int64_t i = 0; i < mh; ++i) column += pixel(x, y - reach.top + i, k);
                before.push_back(before.back() + column);
            }
            for (int64_t x = 0; x < src.width; ++x) {
                const int64_t sum = before[size_t(x + mw)] - before[size_t(x)];
                results.push_back(wantsMean ? D(mean<T>(sum, mw * mh)) : sumOf<D>(sum));
            }
        }
    const D* next = results.data();  // in place, sources are needed until the last sum
    for (int k = 0; k < c.member.to.used(); ++k)
        for (int64_t y = 0; y < src.height; ++y)
            for (int64_t x = 0; x < src.width; ++x) c.set(dst, x, y, k, *next++);
}

void floatWindows(Case& c, bool wantsMean) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    const int64_t mw = c.arg("maskSize").a, mh = c.arg("maskSize").b;
    const Reach reach(mw, mh);
    const Extended<float> pixel{c, src};
    for (int k = 0; k < c.member.to.used(); ++k)
        for (int64_t y = 0; y < src.height; ++y) {
            std::vector<SumJudge<float>> columns(size_t(src.width + mw - 1));
            for (int64_t x = 0; x < src.width + mw - 1; ++x)
                for (int64_t j = -reach.top; j <= reach.bottom; ++j)
                    columns[size_t(x)].add(pixel(x - reach.left, y + j, k));
            for (int64_t x = 0; x < src.width; ++x) {
                SumJudge<float> judge;
                for (int64_t i = 0; i < mw; ++i) judge.add(columns[size_t(x + i)]);
                const float result = c.result<float>(dst, x, y, k), only = pixel(x, y, k);
                const bool copy = mw * mh == 1 && !std::isnan(only) && result != only;
                if (copy || !judge.accepts(result, wantsMean ? 1.0L / (mw * mh) : 1.0L))
                    return c.fail("dst: channel " + std::to_string(k) + " of pixel " + std::to_string(x) + " of row " +
                                  std::to_string(y) + " is " + std::to_string(result) +
                                  ", too far from the exact value");
            }
        }
    // Right as they are: what is left to compare is everything else.
    for (int k = 0; k < c.member.to.used(); ++k)
        for (int64_t y = 0; y < src.height; ++y)
            for (int64_t x = 0; x < src.width; ++x) c.set(dst, x, y, k, c.result<float>(dst, x, y, k));
}

template <bool wantsMean>
void judgeWindow(Case& c) {
    switch (c.member.source) {
        case Element::u8:
            return c.member.destination == Element::u8 ? integerWindows<uint8_t, uint8_t>(c, wantsMean)
                                                       : integerWindows<uint8_t, int32_t>(c, wantsMean);
        case Element::u16:
            return c.member.destination == Element::u16 ? integerWindows<uint16_t, uint16_t>(c, wantsMean)
                                                        : integerWindows<uint16_t, float>(c, wantsMean);
        case Element::s16:
            return c.member.destination == Element::s16 ? integerWindows<int16_t, int16_t>(c, wantsMean)
                                                        : integerWindows<int16_t, float>(c, wantsMean);
        default:
            return floatWindows(c, wantsMean);
    }
}

// All pixels at their largest, masks of millions, and one whose columns alone take more than 31 bits: the sum of 8-bit
// pixels saturates at what 32 bits hold.
TEST(Window, SumsBeyond32Bits) {
    for (const Member& m : members()) {
        const bool window = m.row->name == "zmviFilterBoxBorder" || m.row->name == "zmviSumWindow";
        const bool bytes = m.source == Element::u8;
        if (!window || (!bytes && m.source != Element::u16) || m.to.alpha) continue;
        const int largest = bytes ? 255 : 65535;
        for (const ImageSize mask :
             {ImageSize{2900, 2901}, ImageSize{2903, 2901}, ImageSize{4200, 4001}, ImageSize{1, 40000}}) {
            if (m.to.channels > 1 && mask.width > 4000) continue;  // the buffer's size would not fit an int
            Case c(m, underTest(), 0);
            const Image &src = c.place("src", 1, 1), &dst = c.place("dst", 1, 1);
            const auto setLargest = [&](const Image& image, int k) {
                bytes ? c.set(image, 0, 0, k, uint8_t(largest)) : c.set(image, 0, 0, k, uint16_t(largest));
            };
            for (int k = 0; k < m.to.channels; ++k) setLargest(src, k);
            c.arg("roiSize") = {1, 1};
            c.arg("maskSize") = {mask.width, mask.height};
            c.arg("borderType") = BORDER_REPL;
            c.arg("borderValue") = nullptr;
            c.placeBuffer("buffer", c.bufferSize());
            c.call();
            const int64_t exact = int64_t(largest) * mask.width * mask.height;
            for (int k = 0; k < m.to.channels; ++k)
                if (m.destination == m.source)
                    setLargest(dst, k);
                else if (m.destination == Element::f32)
                    c.set(dst, 0, 0, k, float(exact));
                else
                    c.set(dst, 0, 0, k, int32_t(std::min<int64_t>(exact, INT32_MAX)));
            EXPECT_EQ(c.verdict(), "");
        }
    }
}

// Sums along a row or a column.

void arrangeLine(Case& c) {
    const bool row = c.member.name.find("Row_") != std::string::npos;
    int64_t w = c.width, h = c.height, mask = c.rng.between(1, 20);
    if (c.rng.oneIn(8)) mask = c.rng.between(250, 300);
    if (c.mode == Mode::usual && c.rng.oneIn(64)) mask = 70000, w = c.rng.between(1, 3), h = c.rng.between(1, 3);
    if (c.mode == Mode::far) mask = c.rng.between(1, row ? 20 : 3);
    const int64_t anchor = c.rng.below(int(mask)), after = mask - 1 - anchor;
    c.place("src", w, h, row ? Margins{anchor, after, 0, 0} : Margins{0, 0, anchor, after});
    c.rowsApart = true;  // results may be written column by column
    c.place("dst", w, h);
    if (c.mode == Mode::usual && c.rng.oneIn(16)) {  // no error: nothing to do
        (c.rng.oneIn(2) ? w : h) = -c.rng.below(3);
    }
    c.arg("roiSize") = {w, h};
    c.arg("maskSize") = mask;
    c.arg("anchor") = anchor;
}

template <bool row>
void sumLines(Case& c) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    const int64_t mask = c.arg("maskSize").a, anchor = c.arg("anchor").a;
    withElement(src.element, [&](auto zero) {
        using T = decltype(zero);
        for (int64_t y = 0; y < c.arg("roiSize").b; ++y)
            for (int64_t x = 0; x < c.arg("roiSize").a; ++x)
                for (int k = 0; k < src.channels; ++k) {
                    int64_t sum = 0;
                    for (int64_t i = -anchor; i < mask - anchor; ++i)
                        sum += int64_t(row ? c.get<T>(src, x + i, y, k) : c.get<T>(src, x, y + i, k));
                    c.set(dst, x, y, k, float(sum));
                }
    });
}

// The mean in double precision, its neighbourhood in the caller's memory.

void arrangeBox64f(Case& c) {
    arrangeByRoles(c);
    fillFloats<double>(c, c.image("src"));
}

void judgeBox64f(Case& c) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    const Slot mask = c.arg("maskSize"), anchor = c.arg("anchor");
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t x = 0; x < c.width; ++x) {
            SumJudge<double> judge;
            for (int64_t j = 0; j < mask.b; ++j)
                for (int64_t i = 0; i < mask.a; ++i) judge.add(c.get<double>(src, x - anchor.a + i, y - anchor.b + j));
            const double result = c.result<double>(dst, x, y);
            if (!judge.accepts(result, 1.0L / (mask.a * mask.b)))
                c.fail("dst: pixel " + std::to_string(x) + " of row " + std::to_string(y) + " is " +
                       std::to_string(result) + ", too far from the exact value");
            c.set(dst, x, y, 0, result);
        }
}

}  // namespace

extern const Family test_zmviFilterBoxBorderGetBufferSize = {.arrange = arrangeSize<boxSizes>,
                                                             .oracle = answerSize<boxSizes>};
extern const Family test_zmviSumWindowGetBufferSize = {.arrange = arrangeSize<boxSizes>,
                                                       .oracle = answerSize<boxSizes>};
extern const Family test_zmviFilterBoxBorder = {.arrange = arrangeWindow, .oracle = judgeWindow<true>};
extern const Family test_zmviSumWindow = {.arrange = arrangeWindow, .oracle = judgeWindow<false>};
extern const Family test_zmviSumWindowRow = {.arrange = arrangeLine, .oracle = sumLines<true>};
extern const Family test_zmviSumWindowColumn = {.arrange = arrangeLine, .oracle = sumLines<false>};
extern const Family test_zmviFilterBox = {.arrange = arrangeBox64f, .oracle = judgeBox64f};
