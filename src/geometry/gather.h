// Lanes filled from anywhere in a row: each takes some taps, a pixel apart, of an element of its own.
//
// Destination pixels are looked up in runs, one table entry a vector.  Where the elements of a 16-byte lane lie within
// 16 or 32 bytes, the lane is loaded from an address of its own and put in order by byte shuffles; else, and without
// byte shuffles, the taps are loaded element by element.  What is loaded lies in the row: at its ends windows are moved
// inside, from where the shuffles find all taps; or, of more taps than a lane holds, in a copy of the row's end.
#pragma once

#include "kernels/borders.h"
#include "kernels/rows.h"
#include "kernels/scratch.h"
#include "kernels/simd_lanes.h"

namespace zmv {

enum class Reading { oneWindow, twoWindows, elements, mapped };

// The columns of a row that a tile may read in memory, and what stands for the others.
struct ReadableColumns {
    Len from, to, last, src;  // last: of all taps, inside or not; what lies behind it belongs to no tap
    int word;
    Len at(Len j) const {
        j = std::min(j, last);
        return j >= from && j < to ? j : borderAt(word, j, src);
    }
};

// Pixels from .. to of a tile, whose tables these are.
struct Run {
    Len from = 0, to = 0;
    Reading reading = Reading::elements;
    bool copied = false;  // whether it reads a copy of a part of the row, not the row
    Len origin = 0;       // the column at the start of the copy, or 0
    Len* offsets = nullptr;
    uint8_t *controls = nullptr, *copy = nullptr;
};

// U: a lane's bytes; it holds taps of T, q of them.  Vectors come by so many together.
template <class T, class U, int together = 1>
struct Gather {
    static constexpr int q = int(sizeof(U) / sizeof(T));
    static constexpr int perLane = 16 / int(sizeof(U)), perVector = vectorBytes / int(sizeof(U));
    static constexpr Len mostCopied = 1024;  // bytes; longer taps are looked up one by one where the row ends

    int n;       // channels
    Len groups;  // of q taps
    ReadableColumns columns;

    Len pixelBytes() const { return n * Len(sizeof(T)); }
    // How many pixels behind the one of its first element a 16-byte lane goes on.
    Len pixelsBehind() const { return (n == 3 ? perLane + 1 : perLane - 1) / n; }
    template <class Axis>
    Reading readingFor(const Axis& axis, Len from, Len to) const {
        if constexpr (!hasByteShuffle) return Reading::elements;
        const Len behind = std::min(pixelsBehind(), to - from - 1);
        Len most = 0;
        if constexpr (requires { axis.mostApart(behind); })
            most = axis.mostApart(behind);
        else
            for (Len x = from; x < to - behind; ++x) most = std::max(most, axis.first(x + behind) - axis.first(x));
        const Len span = (most + q) * pixelBytes();
        // Of 8-byte elements a lane has but two: two windows cost more than they do.
        return span <= 16 ? Reading::oneWindow : span <= 32 && perLane > 2 ? Reading::twoWindows : Reading::elements;
    }
    // Whether lanes are loaded as windows wherever pixels n apart are no further apart than the axis says.
    template <class Axis>
    bool fitsWindows(const Axis& axis) const {
        return hasByteShuffle && (axis.mostApart(pixelsBehind()) + q) * pixelBytes() <= 32;
    }
    // Bytes read from a pixel's first tap on.
    Len bytesRead(Reading reading) const {
        const Len last = reading == Reading::oneWindow ? 16 : reading == Reading::twoWindows ? 32 : q * pixelBytes();
        return (groups - 1) * q * pixelBytes() + last;
    }
    static constexpr Len windowBytes(Reading reading) { return reading == Reading::oneWindow ? 16 : 32; }
    // Whether windows that are moved inside at the row's ends still hold all taps.
    template <class Axis>
    bool movable(const Axis& axis, Reading reading, Len from, Len to) const {
        const Len most = windowBytes(reading),
                  outside = std::max(columns.from - axis.first(from), axis.end(to - 1) - columns.to);
        return groups == 1 && reading != Reading::elements && (columns.to - columns.from) * pixelBytes() >= most &&
               (std::max<Len>(outside, 0) + 1) * pixelBytes() <= most;
    }
    // Cuts pixels into those whose taps are in memory with all that is loaded beside them, and those at either end.
    template <class Axis>
    int cut(const Axis& axis, Reading reading, Len from, Len to, Run* runs) const {
        if (movable(axis, reading, from, to)) return runs[0] = {from, to, reading}, 1;
        const Len bytes = bytesRead(reading);
        Len a = from, b;
        while (a < to && axis.first(a) < columns.from) ++a;
        for (b = to; b > a && axis.first(b - 1) * pixelBytes() + bytes > columns.to * pixelBytes();) --b;
        int count = 0;
        const auto add = [&](Len first, Len end, bool atEnd) {
            if (first >= end) return;
            const Run copied{first, end, reading, true, axis.first(first)};
            const bool small = reading != Reading::elements && copiedBytes(axis, copied) <= mostCopied;
            runs[count++] = !atEnd ? Run{first, end, reading} : small ? copied : Run{first, end, Reading::mapped};
        };
        add(from, a, true), add(a, b, false), add(b, to, true);
        return count;
    }
    template <class Axis>
    Len copiedBytes(const Axis& axis, const Run& run) const {
        return (axis.first(run.to - 1) - run.origin) * pixelBytes() + bytesRead(run.reading);
    }

    static Len vectors(const Run& run, int channels) {
        constexpr int step = perVector * together;
        return ((run.to - run.from) * channels + step - 1) / step * together;
    }
    // The memory of a run, and what stands in its tables.
    template <class Axis>
    void take(const Axis& axis, Run& run, Scratch& scratch) const {
        const Len count = vectors(run, n);
        run.offsets = scratch.take<Len, 8>(count * (isWindow(run) ? vectorBytes / 16 : perVector));
        if (isWindow(run)) run.controls = scratch.take<uint8_t, 64>(count * vectorBytes);
        if (run.copied) run.copy = scratch.take<uint8_t>(copiedBytes(axis, run));
    }
    template <class Axis>
    void form(const Axis& axis, const Run& run) const {
        if (run.copy) std::memset(run.copy, 0, size_t(copiedBytes(axis, run)));  // what no tap belongs to is read too
        const Len elements = (run.to - run.from) * n, end = vectors(run, n) * perVector;
        Len x = run.from;
        int c = 0;
        const auto next = [&](Len e) {
            if (e + 1 < elements && ++c == n) c = 0, ++x;  // lanes behind the last element repeat it
        };
        if (!isWindow(run)) {
            const bool mapped = run.reading == Reading::mapped;
            const Len apart = mapped ? 4 : pixelBytes(), size = mapped ? 1 : Len(sizeof(T));
            for (Len e = 0; e < end; next(e++)) run.offsets[e] = (axis.first(x) - run.origin) * apart + c * size;
            return;
        }
        // A control is the place of the element's first tap in every byte, and how far behind it each byte lies.
        constexpr U everyByte = U(~U(0)) / 255;
        U behind = 0;
        for (int i = 0; i < int(sizeof(U)); ++i)
            behind |= U(U(i / int(sizeof(T)) * pixelBytes() + i % int(sizeof(T))) << (8 * i));
        for (Len e = 0; e < end; e += perLane) {
            const Len left = axis.first(x) - run.origin, start = windowAt(run, left),
                      right = axis.first(std::min(x + pixelsBehind(), run.to - 1)) - run.origin;
            U* const controls = reinterpret_cast<U*>(run.controls) + e;
            run.offsets[e / perLane] = start;
            if (!run.copied && (left < columns.from || right + q > columns.to)) {
                for (Len i = e; i < e + perLane; next(i++))
                    for (int k = 0; k < int(sizeof(U)); ++k) {
                        const Len column = columns.at(axis.first(x) + k / int(sizeof(T)));
                        run.controls[i * Len(sizeof(U)) + k] =
                            uint8_t(column * pixelBytes() - start + c * Len(sizeof(T)) + k % int(sizeof(T)));
                    }
                continue;
            }
            const auto control = [&, zero = uint32_t(run.origin * pixelBytes() + start)](Len pixel, int channel) {
                const uint32_t place = uint32_t(axis.first(pixel)) * uint32_t(pixelBytes()) - zero;
                return U((place + uint32_t(channel) * sizeof(T)) * everyByte + behind);
            };
            if (n == 1 && e + perLane < elements) {
                for (int i = 0; i < perLane; ++i) controls[i] = control(x + i, 0);
                x += perLane;
            } else {
                for (int i = 0; i < perLane; next(e + i++)) controls[i] = control(x, c);
            }
        }
    }
    // Where the window of a lane starts whose first tap is this one.
    Len windowAt(const Run& run, Len first) const {
        if (run.copied) return first * pixelBytes();
        const Len end = columns.to * pixelBytes() - windowBytes(run.reading);
        return std::min(std::max(first, columns.from) * pixelBytes(), end);
    }
    static bool isWindow(const Run& run) {
        return run.reading == Reading::oneWindow || run.reading == Reading::twoWindows;
    }

    // What a run at the row's end reads instead of the row.
    template <class Axis>
    const uint8_t* copyOf(const Axis& axis, const Run& run, const uint8_t* row) const {
        const Len size = pixelBytes();
        const Len first = run.origin, end = axis.end(run.to - 1);
        const Len inside = std::max(first, columns.from), outside = std::min(end, columns.to);
        const auto mapped = [&](Len j) {
            std::memcpy(run.copy + (j - first) * size, row + columns.at(j) * size, size_t(size));
        };
        for (Len j = first; j < std::min(inside, end); ++j) mapped(j);
        if (outside > inside)
            copyRow(run.copy + (inside - first) * size, row + inside * size, (outside - inside) * size);
        for (Len j = std::max(outside, first); j < end; ++j) mapped(j);
        return run.copy;
    }

    // Group g of the taps of vector v of a run; base: what it reads.
    template <Reading reading>
    ZMV_INLINE Vec<U> at(const Run& run, const uint8_t* base, Len v, Len g) const {
        base += g * q * pixelBytes();
        if constexpr (reading == Reading::oneWindow || reading == Reading::twoWindows) {
            const Len* const offsets = run.offsets + v * (vectorBytes / 16);
            const auto control = load(run.controls + v * vectorBytes);
            const auto low = loadLanesAt<Vec<uint8_t>>(base, offsets);
            if constexpr (reading == Reading::oneWindow) {
                return (Vec<U>)shuffleBytes(low, control);
            } else {  // a control byte with its highest bit set gives zero
                const auto high = loadLanesAt<Vec<uint8_t>>(base + 16, offsets);
                return (Vec<U>)(shuffleBytes(low, control + 0x70) | shuffleBytes(high, control - 16));
            }
        } else {
            const Len* const offsets = run.offsets + v * perVector;
            Vec<U> lanes{};
            unrolled<perVector>([&](auto lane) __attribute__((always_inline)) {
                lanes[int(lane)] = element<reading>(base, offsets[int(lane)], g);
            });
            return lanes;
        }
    }

  private:
    template <class Tap>
    ZMV_INLINE static U tapsOf(Tap tap) {
        U taps = 0;
        for (int k = 0; k < q; ++k) taps |= U(U(tap(k)) << (8 * int(sizeof(T)) * k % (8 * int(sizeof(U)))));
        return taps;
    }
    template <Reading reading>
    ZMV_INLINE U element(const uint8_t* base, Len offset, Len g) const {
        if constexpr (reading == Reading::mapped) return mappedElement(base, offset, g);
        if (n == 1) return get(reinterpret_cast<const U*>(base + offset));
        return tapsOf([&](int k) __attribute__((always_inline)) {
            return get(reinterpret_cast<const Bits<T>*>(base + offset + k * pixelBytes()));
        });
    }
    // Seldom, and long: a call of its own.
    __attribute__((noinline)) U mappedElement(const uint8_t* base, Len offset, Len g) const {
        return tapsOf([&](int k) __attribute__((always_inline)) {
            const Len column = columns.at((offset >> 2) + g * q + k);
            return get(reinterpret_cast<const Bits<T>*>(base - g * q * pixelBytes() + column * pixelBytes()) +
                       (offset & 3));
        });
    }
};

}  // namespace zmv
