// zmviFilterBorder and zmviFilter, their queries and the spec object.
#include "filter/convolve.h"

#include <bit>
#include <cmath>

#include "arith/arith.h"
#include "harness/spec.h"

namespace {

using namespace test;

// ---- Rounding ----

// sum / divisor, rounded once.
__int128 quotient(int64_t sum, int divisor, int mode) {
    const __int128 n = divisor < 0 ? -__int128(sum) : sum, d = divisor < 0 ? -int64_t(divisor) : divisor;
    if (mode == ROUND_ZERO) return divisor > 0 && (d & (d - 1)) == 0 ? floorOver(n, d) : n / d;
    const __int128 q = floorOver(2 * n + d, 2 * d);
    return mode == ROUND_NEAR && (2 * n + d) % (2 * d) == 0 && q % 2 != 0 ? q - 1 : q;
}
template <class T>
T rounded(float v, int mode) {
    if (!(v == v)) return 0;
    const double x =
        std::clamp(double(v), double(std::numeric_limits<T>::min()), double(std::numeric_limits<T>::max()));
    const double down = std::floor(x);
    if (mode == ROUND_ZERO) return T(std::trunc(x));
    if (mode == ROUND_FINANCIAL) return T(std::floor(x + 0.5));
    return T(x - down > 0.5 || (x - down == 0.5 && std::fmod(down, 2) != 0) ? down + 1 : down);
}

// ---- The spec object ----

// What a filter is told by the spec object of this case.
struct Told {
    int kw, kh, divisor = 1, mode = ROUND_NEAR, offset = 0;
    bool integers = false;
    std::vector<int16_t> whole;
    std::vector<float> single;
    std::vector<double> real;
} told;

bool keepsIntegers(int type, int channels, int kw, int kh) {
    return type == DATATYPE_8U || (type == DATATYPE_16S && channels < 3 && kw >= 3 && kh >= 2);
}
__int128 specBytes(int64_t kw, int64_t kh, int type, int kernelType, int channels) {
    const auto up = [](__int128 n) { return (n + 63) / 64 * 64; };
    const __int128 w = kw, h = kh;
    if (type == DATATYPE_64F) return up(8 * w * h) + 191;
    const bool single = kernelType == DATATYPE_32F || type == DATATYPE_16U ||
                        (type == DATATYPE_16S && !keepsIntegers(type, channels, int(kw), int(kh)));
    return up(h * ((w + 1) & ~1) * 80) + up(h * w * (single ? 4 : 2)) + (single ? up(h * w * 16) : 0) + 191;
}
__int128 bandBytes(int64_t kw, int64_t kh, int64_t w, int64_t h, int element, int channels) {
    using Wide = __int128;
    Wide cells = (Wide(kh) + h - 1) * (Wide(kw) + w - 1);
    if (kw < w && kh < h) {
        const Wide a = kh - ((kh - 1) >> 1) - (kh != 2), b = kw == 2 ? 2 : kw - (kw + 1) / 2;
        const Wide rows = a > 0 ? (kh + a - 1) * (Wide(kw) + w - 1) : 0;
        cells = b > 0 ? std::max((kw - 1 + b) * (Wide(kh) - 1 + h), rows) : rows;
    }
    return ((cells * element * channels + 31) & ~31) + 32;
}

// A kernel of any kind, at the limits of what could make it quicker to use.
void tellKernel(Case& c, int kw, int kh, bool integers) {
    told = {};
    told.kw = kw, told.kh = kh, told.integers = integers;
    const int kind = c.rng.below(6), area = kw * kh;
    const int most = kind == 0 ? 32767 : kind == 1 ? 200 : 12;
    std::vector<int> taps(size_t(area), 0);
    for (int& tap : taps) tap = c.rng.oneIn(5) ? 0 : c.rng.between(-most, most);
    if (kind == 0 && c.rng.oneIn(3)) std::fill(taps.begin(), taps.end(), -32768);
    if (kind == 2) {  // so much in all, or one more
        int left = 127 + c.rng.below(3);
        for (int& tap : taps) tap = left ? c.rng.below(std::min(left, 9) + 1) : 0, left -= tap;
        taps[size_t(c.rng.below(area))] += left;
        if (c.rng.oneIn(4)) std::transform(taps.begin(), taps.end(), taps.begin(), std::negate<>());
    } else if (kind == 3) {  // a column times a row, or a unit away from it
        std::vector<int> row(static_cast<size_t>(kw));
        const int sizes[] = {5, 40, 180}, size = sizes[c.rng.below(3)], least = c.rng.oneIn(2) ? 1 : -size;
        for (int& r : row) r = c.rng.between(-size, size);
        for (int i = 0; i < kh; ++i)
            for (int j = 0, f = c.rng.between(least, size); j < kw; ++j) taps[size_t(i * kw + j)] = f * row[size_t(j)];
        if (c.rng.oneIn(4)) taps[size_t(c.rng.below(area))] += 1;
        for (int& tap : taps) tap = std::max(-32768, std::min(32767, tap));
    }
    const float unit = c.rng.oneIn(2) ? std::ldexp(1.0f, -c.rng.below(12)) : 1 / float(c.rng.between(1, 99));
    for (const int tap : taps) {
        told.whole.push_back(int16_t(tap));
        const float rare = c.rng.oneIn(2) ? std::bit_cast<float>(0x7fc00000 | c.rng.below(1 << 22)) : INFINITY;
        told.single.push_back(c.rng.oneIn(200) && kind == 1 ? rare : float(tap) * unit);
        told.real.push_back(tap / 3.0);
    }
    if (kind == 4 && c.rng.oneIn(3)) told.single[0] = -0.0f, told.real[0] = -0.0;
}

// The object of that kernel, in a block of the size that the query reports.
void placeFilter(Case& c, int type, int channels) {
    const Library& l = c.library;
    const ImageSize kernel{told.kw, told.kh};
    const int kernelType = type == DATATYPE_64F ? DATATYPE_64F : told.integers ? DATATYPE_16S : DATATYPE_32F;
    int size = 0, unused = 0;
    FIND(l, zmviFilterBorderGetSize)(kernel, {1, 1}, type, kernelType, channels, &size, &unused);
    const int hint = c.rng.oneIn(4) ? ROUND_HINT_ACCURATE : 0;
    told.mode = type == DATATYPE_64F ? ROUND_NEAR : c.rng.below(3);
    told.divisor = c.rng.oneIn(4) ? 1 << c.rng.below(11) : divisors[c.rng.below(int(std::size(divisors)))];
    const bool moves = (type == DATATYPE_16U || type == DATATYPE_8U) && c.rng.oneIn(2);
    const int ends[] = {INT_MAX, INT_MIN, 32768, -32768};
    if (moves) told.offset = c.rng.oneIn(6) ? ends[c.rng.below(4)] : c.rng.between(-400, 400);
    const int mode = told.mode | hint, modeHint = c.rng.below(3);
    placeObject(c, "pSpec", size, [&](uint8_t* block) {
        const StatusCode status =
            type == DATATYPE_64F
                ? FIND(l, zmviFilterBorderInit_64f)(told.real.data(), kernel, type, channels, mode, block)
            : told.integers
                ? FIND(l, zmviFilterBorderInit_16s)(told.whole.data(), kernel, told.divisor, type, channels, mode,
                                                    block)
                : FIND(l, zmviFilterBorderInit_32f)(told.single.data(), kernel, type, channels, mode, block);
        return moves ? FIND(l, zmviFilterBorderSetMode)(modeHint, told.offset, block) : status;
    });
}

// ---- zmviFilterBorder ----

int channelsOf(const Case& c) { return c.member.to.channels; }

void arrangeFilter(Case& c) {
    int64_t w = c.width, h = c.mode != Mode::far && c.rng.oneIn(3) ? c.rng.between(6, 24) : c.height;
    const bool large = c.rng.oneIn(8) && c.mode != Mode::far;
    const int kw = large ? c.rng.between(1, 40) : c.rng.between(1, 9);
    const int kh = c.mode == Mode::far ? c.rng.between(1, 3) : large ? c.rng.between(1, 40) : c.rng.between(1, 9);
    if (c.mode == Mode::usual && c.rng.oneIn(16)) w = c.rng.between(900, 9000) / channelsOf(c), h = c.rng.between(1, 3);
    const Element type = c.member.source;
    tellKernel(c, kw, kh, type != Element::f32 && type != Element::f64 && c.rng.oneIn(2));
    placeFilter(c, dataTypeOf(type), channelsOf(c));

    const int rules[] = {BORDER_REPL, BORDER_MIRROR, BORDER_CONST};
    int word = c.mode == Mode::controls ? int(BORDER_CONST) : rules[c.rng.below(3)];
    if (c.rng.oneIn(2)) word |= 16 * c.rng.below(16);
    if (c.rng.oneIn(12) && c.mode != Mode::controls) word = BORDER_IN_MEM;
    c.mask = {kw, kh};
    const Reach reach(kw, kh);
    const auto readable = [&](int flag, int64_t pixels) { return word & flag ? pixels : 0; };
    c.place("src", w, h,
            {readable(BORDER_IN_MEM_LEFT, reach.left), readable(BORDER_IN_MEM_RIGHT, reach.right),
             readable(BORDER_IN_MEM_TOP, reach.top), readable(BORDER_IN_MEM_BOTTOM, reach.bottom)});
    if (type == Element::u8 && c.rng.oneIn(3)) {  // bright, so that sums come to their limits
        const Image& src = c.image("src");
        const int least = c.rng.oneIn(2) ? 255 : 192;
        for (int64_t y = -src.readable.top; y < h + src.readable.bottom; ++y)
            for (int64_t x = -src.readable.left; x < w + src.readable.right; ++x)
                for (int k = 0; k < src.channels; ++k)
                    c.set(src, x, y, k, uint8_t(c.get<uint8_t>(src, x, y, k) | least));
    }
    c.rowsApart = true;
    c.place("dst", w, h);
    c.arg("borderValue") = nullptr;
    if ((word & 15) == BORDER_CONST) c.placeValue("borderValue", channelsOf(c));
    for (const char* name : {"src", "borderValue"})
        if (c.hasImage(name)) {
            if (type == Element::f32) fillFloats<float>(c, c.image(name));
            if (type == Element::f64) fillFloats<double>(c, c.image(name));
        }
    c.arg("dstRoiSize") = {w, h};
    c.arg("borderType") = word;
    int unused = 0, bytes = 0;
    const int code = dataTypeOf(type);
    FIND(c.library, zmviFilterBorderGetSize)
    ({kw, kh}, {int(w), int(h)}, code, code == DATATYPE_64F ? code : DATATYPE_32F, channelsOf(c), &unused, &bytes);
    // A tile may ask for more than the whole: for no more than all of its pixels.
    c.placeBuffer("buffer", bytes + (c.mode == Mode::tiles ? (kw + w) * (kh + h) * 8 * channelsOf(c) : 0));
    const int none[] = {0, 2, 4, 15, 0x30, 0xf2, 0x101, -1, 241};
    if (c.mode == Mode::usual && c.rng.oneIn(20))
        c.arg("borderType") = none[c.rng.below(8)], c.expected = STATUS_BAD_BORDER;
}

template <class T>
T filtered(const Told& t, int type, int channels, auto pixel) {
    const auto turned = [&](const auto& taps) {
        return [&](int64_t i, int64_t j) { return taps[size_t((t.kh - 1 - i) * t.kw + t.kw - 1 - j)]; };
    };
    if constexpr (std::is_same_v<T, double>) {
        return realSum<double>(t.kh, t.kw, turned(t.real), pixel);
    } else if constexpr (std::is_same_v<T, float>) {
        return realSum<float>(t.kh, t.kw, turned(t.single), pixel);
    } else {
        if (t.integers && keepsIntegers(type, channels, t.kw, t.kh)) {
            const int32_t sum = int32_t(uint32_t(wholeSum(t.kh, t.kw, turned(t.whole), pixel)));
            return saturated<T>(saturated<int16_t>(quotient(sum, t.divisor, t.mode) + t.offset));
        }
        std::vector<float> taps = t.single;
        for (size_t k = 0; k < taps.size() && t.integers; ++k) taps[k] = float(t.whole[k] * (1.0 / t.divisor));
        const float sum =
            realSum<float>(t.kh, t.kw, turned(taps), [&](int64_t i, int64_t j) { return float(pixel(i, j)); });
        return rounded<T>(sum + float(t.offset), t.mode);
    }
}

void judgeFilter(Case& c) {
    if (c.expected < 0) return;
    const Image &src = c.image("src"), &dst = c.image("dst");
    const Reach reach(told.kw, told.kh);
    withElement(src.element, [&](auto zero) {
        using T = decltype(zero);
        const Extended<T> extended{c, src};
        for (int k = 0; k < src.channels; ++k)
            for (int64_t y = 0; y < src.height; ++y)
                for (int64_t x = 0; x < src.width; ++x)
                    c.set(dst, x, y, k,
                          filtered<T>(told, dataTypeOf(src.element), src.channels, [&](int64_t i, int64_t j) {
                              return extended(x - reach.left + j, y - reach.top + i, k);
                          }));
    });
}

// ---- zmviFilter ----

void arrangeDirect(Case& c) {
    const int kw = c.rng.between(1, 9), kh = c.mode == Mode::far ? 2
                                             : c.rng.oneIn(5)    ? c.rng.between(30, 70)
                                                                 : c.rng.between(1, 9);
    const int64_t ax = c.rng.between(-1, kw), ay = c.mode == Mode::far ? 0 : c.rng.between(-1, kh);
    tellKernel(c, kw, kh, false);
    const auto beyond = [](int64_t n) { return std::max<int64_t>(0, n); };
    c.place("src", c.width, c.height, {beyond(kw - 1 - ax), beyond(ax), beyond(kh - 1 - ay), beyond(ay)});
    c.rowsApart = true;
    c.place("dst", c.width, c.height);
    fillFloats<double>(c, c.image("src"));
    const Image& kernel = c.place("pKernel", kw * kh, 1);
    for (int k = 0; k < kw * kh; ++k) c.set(kernel, k, 0, 0, told.real[size_t(k)]);
    c.arg("dstRoiSize") = {c.width, c.height};
    c.arg("kernelSize") = {kw, kh};
    c.arg("anchor") = {ax, ay};
    c.arg("buffer") = nullptr;
}
void judgeDirect(Case& c) {
    const Slot anchor = c.arg("anchor");
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t x = 0; x < c.width; ++x)
            c.set(c.image("dst"), x, y, 0, filtered<double>(told, DATATYPE_64F, 1, [&](int64_t i, int64_t j) {
                      return c.get<double>(c.image("src"), x + anchor.a - (told.kw - 1 - j),
                                           y + anchor.b - (told.kh - 1 - i));
                  }));
}

// ---- Queries and makers ----

void arrangeSizes(Case& c) {
    const int types[] = {DATATYPE_8U, DATATYPE_16U, DATATYPE_16S, DATATYPE_32F, DATATYPE_64F};
    const int type = types[c.mode == Mode::controls ? 0 : c.rng.below(5)];
    c.arg("kernelSize") = {anyLength(c, 31), anyLength(c, 31)};
    c.arg("dstRoiSize") = {anyLength(c, 31), anyLength(c, 31)};
    c.arg("dataType") = type;
    c.arg("kernelType") = type == DATATYPE_64F ? type : c.rng.oneIn(2) ? DATATYPE_16S : DATATYPE_32F;
    c.arg("numChannels") = type == DATATYPE_64F ? 1 : c.rng.between(1, 4);
    const Slot k = c.arg("kernelSize");
    if (type == DATATYPE_16S && keepsIntegers(type, int(c.arg("numChannels").a), int(k.a), int(k.b)) && c.rng.oneIn(3))
        c.arg("kernelType") = DATATYPE_64F;
    c.place("pSpecSize", 1, 1), c.place("pBufferSize", 1, 1);
}
void answerSizes(Case& c) {
    const Slot k = c.arg("kernelSize"), roi = c.arg("dstRoiSize");
    const int type = int(c.arg("dataType").a), channels = int(c.arg("numChannels").a);
    const __int128 spec = specBytes(k.a, k.b, type, int(c.arg("kernelType").a), channels);
    const int element = type == DATATYPE_64F ? 8 : type == DATATYPE_32F ? 4 : type == DATATYPE_8U ? 1 : 2;
    const __int128 bands = bandBytes(k.a, k.b, roi.a, roi.b, element, channels);
    const int buffer = c.result<int>(c.image("pBufferSize"), 0, 0);
    // What is asked for beyond the bands must be enough where it is used; it must not grow with the region.
    int one = 0, unused = 0;
    FIND(c.library, zmviFilterBorderGetSize)
    ({int(k.a), int(k.b)}, {1, 1}, type, int(c.arg("kernelType").a), channels, &unused, &one);
    const __int128 work = type == DATATYPE_64F ? 126 : one - bandBytes(k.a, k.b, 1, 1, element, channels);
    const bool refused = spec > INT_MAX || bands + work > INT_MAX || one == 0;
    if (refused) c.expected = STATUS_SIZE_EXCEEDS_INT;
    if (!refused && buffer != bands + work && buffer != 64 * ((k.a + 3) / 4) * k.b)
        c.fail("the wrong size of the buffer");
    if (!refused) c.set(c.image("pSpecSize"), 0, 0, 0, int(spec));
    c.set(c.image("pBufferSize"), 0, 0, 0, refused ? 0 : buffer);
}

void arrangeInit(Case& c) {
    const bool real = c.has("divisor") == false, doubles = c.member.name.ends_with("64f");
    const int types[] = {DATATYPE_8U, DATATYPE_16S, DATATYPE_16U, DATATYPE_32F};
    const int type = doubles ? DATATYPE_64F : types[c.rng.below(real ? 4 : 3)],
              channels = doubles ? 1 : c.rng.between(1, 4);
    const int kw = c.rng.between(1, 6), kh = c.rng.between(1, 6);
    const int mode = doubles ? ROUND_NEAR : c.rng.below(3), flag = c.rng.oneIn(2) ? ROUND_HINT_ACCURATE : 0;
    c.place("pKernel", kw * kh, 1);
    c.arg("kernelSize") = {kw, kh};
    if (!real) c.arg("divisor") = divisors[c.rng.below(int(std::size(divisors)))];
    c.arg("dataType") = type, c.arg("numChannels") = channels, c.arg("roundMode") = mode | flag;
    // The smallest block that the query reports for the type.
    const int kernelType = doubles ? DATATYPE_64F : DATATYPE_16S;
    placeBlock(c, "pSpec", int64_t(specBytes(kw, kh, type, kernelType, channels)));
    const bool keeps = !real && keepsIntegers(type, channels, kw, kh) && channels != 2;
    if (flag && !doubles && !keeps) c.expected = STATUS_WARN_ACCURATE_IGNORED;
}
void judgeInit(Case& c) {
    const Image& place = c.image("pSpec");
    const int64_t at = -reinterpret_cast<intptr_t>(place.pointer[0]) & 63;
    const int type = int(c.arg("dataType").a);
    const std::map<int, int> singles = {
        {DATATYPE_8U, 3}, {DATATYPE_16S, 4}, {DATATYPE_16U, 5}, {DATATYPE_32F, 6}, {DATATYPE_64F, 7}};
    const Slot k = c.arg("kernelSize");
    const bool integers = c.has("divisor") && keepsIntegers(type, int(c.arg("numChannels").a), int(k.a), int(k.b));
    const int64_t due[] = {integers ? type == DATATYPE_16S : singles.at(type), k.a, k.b};
    for (int word = 0; word < 3; ++word) {
        int is = 0;
        for (int b = 0; b < 4; ++b) is |= c.result<uint8_t>(place, at + 4 * word + b, 0) << 8 * b;
        if (is != due[word]) c.fail("word " + std::to_string(word) + " of the object is " + std::to_string(is));
    }
    acceptBlock(c, "pSpec");  // its other words are seen where they are used
}

void arrangeMode(Case& c) {
    const std::pair<int, int> kinds[] = {
        {DATATYPE_8U, 1}, {DATATYPE_16S, 1}, {DATATYPE_16U, 1}, {DATATYPE_32F, 1}, {DATATYPE_64F, 1}};
    const auto [type, channels] = kinds[c.rng.below(5)];
    tellKernel(c, 3, 3, c.rng.oneIn(2) && type != DATATYPE_32F && type != DATATYPE_64F);
    placeFilter(c, type, channels);
    const bool fixed = type != DATATYPE_8U && type != DATATYPE_16U;
    c.arg("hint") = c.rng.below(4);
    c.arg("offset") = c.mode == Mode::controls || c.rng.oneIn(3) ? 0 : c.rng.between(-9, 9);
    if (fixed && c.arg("offset").a != 0) c.expected = STATUS_BAD_ARGUMENT;
    told.integers = fixed && (c.expected != STATUS_OK || type == DATATYPE_64F);  // the object must stay as it is
}
void judgeMode(Case& c) {
    if (!told.integers) acceptBlock(c, "pSpec");
}

void arrangeNoBuffer(Case& c) {
    c.arg("kernelSize") = {anyLength(c, 31), anyLength(c, 31)};
    c.arg("roiWidth") = anyLength(c, 31);
    c.place("pSize", 1, 1);
}
void answerNoBuffer(Case& c) { c.set(c.image("pSize"), 0, 0, 0, 0); }

}  // namespace

extern const Family test_zmviFilterBorderGetSize = {.arrange = arrangeSizes, .oracle = answerSizes};
extern const Family test_zmviFilterBorderInit = {.arrange = arrangeInit, .oracle = judgeInit};
extern const Family test_zmviFilterBorderSetMode = {.arrange = arrangeMode, .oracle = judgeMode};
extern const Family test_zmviFilterBorder = {.arrange = arrangeFilter, .oracle = judgeFilter};
extern const Family test_zmviFilterGetBufSize = {.arrange = arrangeNoBuffer, .oracle = answerNoBuffer};
extern const Family test_zmviFilter = {.arrange = arrangeDirect, .oracle = judgeDirect};
