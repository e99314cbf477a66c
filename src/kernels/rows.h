// Rows: joining gapless ones, copying and filling them, and the block walker of irregular kernels.
#pragma once

#include <algorithm>
#include <array>

#include "kernels/simd_order.h"

namespace zmv {

// A region whose rows follow each other without a gap in every image is one long row.
inline Roi joinRows(Roi roi, bool gapless) { return gapless ? Roi(roi.width * roi.height, 1) : roi; }
template <class T>
bool gapless(Image<T> image, Len width, int channels) {
    return image.step == width * channels * Len(sizeof(T));
}

// The addresses between the first and the last byte of an image.
struct Addresses {
    uintptr_t from, to;
    bool meets(Addresses other) const { return from < other.to && other.from < to; }
};
template <class T>
Addresses addressesOf(Image<T> image, Len height, Len rowBytes) {
    const auto top = reinterpret_cast<uintptr_t>(image.row(0)),
               bottom = reinterpret_cast<uintptr_t>(image.row(height - 1));
    return {std::min(top, bottom), std::max(top, bottom) + uintptr_t(rowBytes)};
}

// Bytes that are written past the caches from here on do not sweep the caller's data out of them.
constexpr Len largeCopy = 1048577;

// The operands may overlap, as rows do where a step is shorter than a row: then dst holds anything, and nothing else
// changes.
inline void copyRow(void* dst, const void* src, Len bytes) {
    using V = Vec<uint8_t>;
    constexpr Len callPays = 1024;  // below this the C library's choice among its methods costs more than the copy
    if (bytes < vectorBytes || bytes >= callPays) return (void)std::memmove(dst, src, size_t(bytes));
    const auto to = static_cast<uint8_t*>(dst);
    const auto from = static_cast<const uint8_t*>(src);
    const V last = loadAs<V>(from + bytes - vectorBytes);
    for (Len i = 0; i < bytes - vectorBytes; i += vectorBytes) store(to + i, loadAs<V>(from + i));
    store(to + bytes - vectorBytes, last);
}

// One pixel of so many bytes.  The operands may overlap here, too.
template <int bytes>
ZMV_INLINE void copyPixel(void* dst, const void* src) {
    store(dst, loadAs<std::array<uint8_t, bytes>>(src));
}

// ---- Past the caches ----
// A line of memory whose bytes all come from streaming stores, one behind the other, leaves as it is; one that ordinary
// stores touch too goes there and back, at several times the cost of either.  So whole lines are streamed, and the part
// lines at the two ends of a row are stored like anything else.  fence() when all rows are done.

constexpr Len lineBytes = 64;
constexpr int lineVectors = int(lineBytes) / vectorBytes;

// The vectors vectorAt(0), vectorAt(1).. of the line at `to`, all made before the first is stored.
template <class VectorAt>
ZMV_INLINE void streamLine(uint8_t* to, const VectorAt& vectorAt) {
    Vec<uint8_t> line[lineVectors];
    unrolled<lineVectors>([&](auto i) { line[i] = (Vec<uint8_t>)vectorAt(i); });
    complete(line);
    unrolled<lineVectors>([&](auto i) { stream(to + i * vectorBytes, line[i]); });
}
// A row taken apart: part(at, n) for the bytes of the part lines at its ends, lines(at, n) for all whole lines.
template <class Part, class Lines>
ZMV_INLINE void splitAtLines(const void* row, Len bytes, const Part& part, const Lines& lines) {
    const Len head = std::min(bytes, Len(-reinterpret_cast<uintptr_t>(row) % lineBytes)),
              whole = (bytes - head) / lineBytes * lineBytes, tail = head + whole;
    if (head > 0) part(Len(0), head);
    if (whole > 0) lines(head, whole);
    if (tail < bytes) part(tail, bytes - tail);
}

inline void streamRow(void* dst, const void* src, Len bytes) {
    const auto to = static_cast<uint8_t*>(dst);
    const auto from = static_cast<const uint8_t*>(src);
    splitAtLines(
        to, bytes, [&](Len at, Len n) { copyRow(to + at, from + at, n); },
        [&](Len at, Len n) {
            for (const Len end = at + n; at < end; at += lineBytes)
                streamLine(to + at, [&](int i) { return loadAs<Vec<uint8_t>>(from + at + i * vectorBytes); });
        });
}

// roi.width counts bytes here.
template <class T>
void copyRows(Image<const T> src, Image<T> dst, Roi roi, bool pastCache) {
    roi = joinRows(roi, src.step == roi.width && dst.step == roi.width);
    for (Len y = 0; y < roi.height; ++y) (pastCache ? streamRow : copyRow)(dst.row(y), src.row(y), roi.width);
    if (pastCache) fence();
}

// One value a channel, repeated from pixel to pixel, so that a vector can be read at any distance from a row's start.
class Pattern {
  public:
    // values: one a channel; the fourth channel of AC4 is zero.
    template <class T>
    Pattern(const T* values, Layout layout) {
        using V = Vec<T, 16>;
        const auto channel = [&](int c) { return fill<T, 16>(c < layout.used() ? get(values + c) : T(0)); };
        Block<V, 3> period{channel(0), channel(0), channel(0)};
        if (layout.channels == 3) period = pixelsOf(Block<V, 3>{channel(0), channel(1), channel(2)});
        if (layout.channels == 4) period.fill(pixelsOf(Block<V, 4>{channel(0), channel(1), channel(2), channel(3)})[0]);
        for (int i = 0; i < units; ++i) store(bytes_ + 16 * i, period[i % 3]);
    }
    // All ones in the first `used` of `channels` channels of T, zero in the others.
    template <class T>
    static Pattern mask(int used, int channels) {
        Bits<T> values[4] = {};
        for (int c = 0; c < used; ++c) values[c] = Bits<T>(~0u);
        return Pattern(values, Layout{channels});
    }
    Vec<uint8_t> at(Len offset) const { return loadAs<Vec<uint8_t>>(bytes_ + offset % period); }
    // Whether it is one byte all through, and which.
    bool isOneByte() const { return allZero(at(0) ^ at(1)); }
    int firstByte() const { return bytes_[0]; }

  private:
    static constexpr int period = 48;  // a multiple of every pixel's size: 1, 2, 3, 4, 6, 8, 12 and 16 bytes
    static constexpr int units = (vectorBytes + period) / 16;
    alignas(64) uint8_t bytes_[16 * units];
};

// Calls step(offset, k) for each whole vector of a row from `done` on, k counting 0, 1, 2 round the three vectors that
// make a period of every pattern, and returns where it stopped.
template <class Step>
ZMV_INLINE Len eachVector(Len done, Len bytes, Step step) {
    for (; bytes - done >= 3 * vectorBytes; done += 3 * vectorBytes)
        step(done, std::integral_constant<int, 0>{}), step(done + vectorBytes, std::integral_constant<int, 1>{}),
            step(done + 2 * vectorBytes, std::integral_constant<int, 2>{});
    if (bytes - done >= vectorBytes) step(done, std::integral_constant<int, 0>{}), done += vectorBytes;
    if (bytes - done >= vectorBytes) step(done, std::integral_constant<int, 1>{}), done += vectorBytes;
    return done;
}

// `bytes` bytes of the pattern from one of its bytes on.
inline void fillRow(void* row, const Pattern& pattern, Len bytes, Len from = 0) {
    const auto dst = static_cast<uint8_t*>(row);
    if (bytes < vectorBytes) {
        if (bytes > 0) storePart(dst, pattern.at(from), int(bytes));
        return;
    }
    constexpr Len callPays = 4096;  // the C library may fill whole cache lines without reading them
    if (bytes >= callPays && pattern.isOneByte()) return (void)std::memset(dst, pattern.firstByte(), size_t(bytes));
    store(dst, pattern.at(from));
    const Len head = vectorBytes - Len(reinterpret_cast<uintptr_t>(dst) % vectorBytes);
    const Vec<uint8_t> period[3] = {pattern.at(from + head), pattern.at(from + head + vectorBytes),
                                    pattern.at(from + head + 2 * vectorBytes)};
    eachVector(head, bytes, [&](Len at, auto k) { store(dst + at, period[k]); });
    store(dst + bytes - vectorBytes, pattern.at(from + bytes - vectorBytes));
}
// The same past the caches, from its first byte on.
inline void streamFill(void* row, const Pattern& pattern, Len bytes) {
    const auto dst = static_cast<uint8_t*>(row);
    splitAtLines(
        dst, bytes, [&](Len at, Len n) { fillRow(dst + at, pattern, n, at); },
        [&](Len at, Len n) {
            const Vec<uint8_t> period[3] = {pattern.at(at), pattern.at(at + vectorBytes),
                                            pattern.at(at + 2 * vectorBytes)};
            const auto line = [&](auto first) {  // the first of the period
                streamLine(dst + at, [&](auto i) { return period[(first + i) % 3]; });
                at += lineBytes, n -= lineBytes;
            };
            constexpr std::integral_constant<int, 0> first;
            constexpr std::integral_constant<int, lineVectors % 3> second;
            constexpr std::integral_constant<int, 2 * lineVectors % 3> third;
            while (n >= 3 * lineBytes) line(first), line(second), line(third);
            if (n > 0) line(first);
            if (n > 0) line(second);
        });
}

// One value over `count` elements, for short runs: no pattern is worth building.
template <class T>
inline void fillShort(T* row, T value, Len count) {
    const auto v = fill(value);
    Len i = 0;
    for (; i + lanes<T> <= count; i += lanes<T>) store(row + i, v);
    if (i < count) storePart(row + i, v, int(count - i));
}

// dst = source where the mask has ones; source(offset) gives a vector, source(offset, n) the first n bytes of one.
template <class Source>
inline void blendRow(void* row, const Source& source, const Pattern& mask, Len bytes) {
    const auto dst = static_cast<uint8_t*>(row);
    const Vec<uint8_t> period[3] = {mask.at(0), mask.at(vectorBytes), mask.at(2 * vectorBytes)};
    const Len done = eachVector(0, bytes, [&](Len at, auto k) {
        store(dst + at, select(period[k], source(at), loadAs<Vec<uint8_t>>(dst + at)));
    });
    if (const int rest = int(bytes - done))
        storePart(dst + done, select(mask.at(done), source(done, rest), loadPart(dst + done, rest)), rest);
}
inline auto fromRow(const void* row) {
    struct {
        const uint8_t* src;
        Vec<uint8_t> operator()(Len at) const { return loadAs<Vec<uint8_t>>(src + at); }
        Vec<uint8_t> operator()(Len at, int n) const { return loadPart(src + at, n); }
    } source{static_cast<const uint8_t*>(row)};
    return source;
}
inline auto fromPattern(const Pattern& pattern) {
    struct {
        const Pattern& pattern;
        Vec<uint8_t> operator()(Len at) const { return pattern.at(at); }
        Vec<uint8_t> operator()(Len at, int) const { return pattern.at(at); }
    } source{pattern};
    return source;
}

// The bytes of a row of `width` pixels from the first to the last channel used, and nothing beyond.
template <class T>
Len rowBytes(Len width, int used, int channels) {
    return ((width - 1) * channels + used) * Len(sizeof(T));
}

}  // namespace zmv
