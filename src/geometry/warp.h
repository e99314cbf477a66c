// What all warps share: the spec object, the checks, what lies outside the region, and the walk from a map to kernels.
// A map adds what its object holds and two functions of a destination row: where its pixels come from, and which of
// them can come from a box.
#pragma once

#include "geometry/pigeom.h"
#include "kernels/borders.h"
#include "kernels/interpolation.h"
#include "kernels/rounding.h"
#include "kernels/scratch.h"
#include "kernels/simd.h"

namespace zmv {

enum WarpKind : uint32_t { affineWarp = 1, perspectiveWarp, bilinearWarp };

struct WarpHeader {
    static constexpr uint32_t itsTag = 0x50524157;
    static constexpr Len blockBytes = 512;
    uint32_t tag, kind, interpolation, smoothEdge;
    uint32_t forward, exact;  // exact: the map tells exactly which pixels of a row come from a box
    int64_t srcWidth, srcHeight, dstWidth, dstHeight;
    int64_t left, top, width, height;  // the region inside of the source; width and height are 0 where there is none
    double map[20];                    // the map's own
    double weights[4][4];              // of a cubic kernel
    bool empty() const { return width == 0; }
};
static_assert(sizeof(WarpHeader) + objectAlignment - 1 <= WarpHeader::blockBytes);

// Rectangles and points of both widths.
struct Region {
    Len x, y, width, height;
    Region(ImageRect r) : x(r.x), y(r.y), width(r.width), height(r.height) {}
    Region(ImageRectL r) : x(r.x), y(r.y), width(r.width), height(r.height) {}
};
struct Place {
    Len x, y;
    Place(ImagePoint p) : x(p.x), y(p.y) {}
    Place(ImagePointL p) : x(p.x), y(p.y) {}
};

constexpr Len longestSide = Len(1) << 53;  // what coordinates can count
inline StatusCode warpSize(Roi r) {
    return firstOf({size(r), refuse(std::max(r.width, r.height) > longestSide, STATUS_BAD_SIZE)});
}
inline bool areFinite(const double* from, int count) {
    bool all = true;
    for (int i = 0; i < count; ++i) all = all && isFinite(from[i]);
    return all;
}

// ---- Initialisation ----

struct CubicParameters {
    double b = 0, c = 0.5;
};
struct WarpWanted {
    Roi src;
    Region region;
    Roi dst;
    int direction, smoothEdge;
    uint32_t interpolation;
    CubicParameters cubic = {};
};
// A map that is made of numbers, in doubles: it has `kind`, how many `numbers` it takes, and
// bool form(const double* c, WarpHeader&), which says no to numbers that make no map.
template <class Map>
StatusCode ownpi_WarpInit(const WarpWanted& w, const double* coeffs, WarpSpec* spec) {
    const Region& r = w.region;
    const auto badFlag = [](int flag) { return refuse(flag != 0 && flag != 1, STATUS_BAD_ARGUMENT); };
    if (auto bad = firstOf({pointers(coeffs, spec), warpSize(w.src), warpSize(Roi(r.width, r.height)),
                            refuse(r.x < 0 || r.y < 0 || std::max(r.x, r.y) > longestSide, STATUS_BAD_SIZE),
                            warpSize(w.dst), badFlag(w.direction), badFlag(w.smoothEdge),
                            refuse(!isFinite(w.cubic.b) || !isFinite(w.cubic.c), STATUS_BAD_ARGUMENT)}))
        return bad;
    WarpHeader h = {};
    h.tag = h.itsTag, h.kind = Map::kind, h.interpolation = w.interpolation, h.smoothEdge = uint32_t(w.smoothEdge);
    h.forward = w.direction == WARP_FORWARD;
    h.srcWidth = w.src.width, h.srcHeight = w.src.height, h.dstWidth = w.dst.width, h.dstHeight = w.dst.height;
    if (r.x < w.src.width && r.y < w.src.height) {
        h.left = r.x, h.width = std::min(r.width, w.src.width - r.x);
        h.top = r.y, h.height = std::min(r.height, w.src.height - r.y);
    }
    double numbers[Map::numbers];
    for (int i = 0; i < Map::numbers; ++i) numbers[i] = get(coeffs + i);
    if (!areFinite(numbers, Map::numbers) || !Map::form(numbers, h)) return STATUS_BAD_COEFFS;
    const auto [b, c] = w.cubic;
    const double weights[4][4] = {{-b / 6 - c, b / 2 + 2 * c, -b / 2 - c, b / 6},
                                  {2 - 1.5 * b - c, -3 + 2 * b + c, 0, 1 - b / 3},
                                  {-2 + 1.5 * b + c, 3 - 2.5 * b - 2 * c, b / 2 + c, b / 6},
                                  {b / 6 + c, -c, 0, 0}};
    std::memcpy(h.weights, weights, sizeof weights);
    std::memcpy(objectIn(reinterpret_cast<uint8_t*>(spec)), &h, sizeof h);
    return h.empty() ? STATUS_WARN_NO_INTERSECTION : STATUS_OK;
}

// ---- Rows ----

// The pixels from .. to - 1.
struct Span {
    Len from, to;
    bool empty() const { return from >= to; }
};
inline Span clipped(Span s, Span to) {
    const Len from = std::clamp(s.from, to.from, to.to);
    return {from, std::clamp(s.to, from, to.to)};
}
// Points of the source, their bounds among them.
struct Box {
    double left, right, top, bottom;
};

struct WarpMap {
    WarpKind kind;
    // The points of pixels x, x + 1 .. of row y, in whole groups of lanes<int32_t>.
    void (*points)(const WarpHeader&, Len x, Len y, int count, double* xs, double* ys);
    // Pixels of a row whose points lie in the box: exactly those where the object says that it tells; elsewhere all of
    // those and some beside, or when asked `surely` none but those, as far as rounding allows.
    Span (*within)(const WarpHeader&, Len y, Span row, const Box&, bool surely);
};

// points(i, X) for a vector of pixels at a time, as many as a map's `points` has to give.
template <class Points>
ZMV_INLINE void eachVectorOfPixels(Len x, int count, const Points& points) {
    Vec<double> at;
    for (int k = 0; k < lanes<double>; ++k) at[k] = double(x + k);
    for (int i = 0; i < count; i += lanes<int32_t>)
        for (int k = 0; k < lanes<int32_t>; k += lanes<double>, at += lanes<double>) points(i + k, at);
}

// The first of from .. to - 1 for which `is`, which stays true once it is; to where there is none.  Near the guess
// it takes two looks.
template <class Is>
Len firstWhere(Len from, Len to, double guess, const Is& is) {
    Len low = from, high = to;
    Len at = guess > double(from) ? (guess < double(to) ? Len(guess) : to) : from;
    if (at == high || is(at)) {
        high = at;
        for (Len step = 1; low < high; step += step) {
            const Len next = std::max(low, high - step);
            if (!is(next)) {
                low = next + 1;
                break;
            }
            high = next;
        }
    } else {
        low = at + 1;
        for (Len step = 1; low < high; step += step) {
            const Len next = std::min(high - 1, low + step - 1);
            if (is(next)) {
                high = next;
                break;
            }
            low = next + 1;
        }
    }
    while (low < high) {
        const Len middle = low + (high - low) / 2;
        if (is(middle))
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}
// The numbers X of a span for which slope * X + rest, as it is rounded, lies from least to most: products and sums
// never change their order by being rounded, so that these are neighbours.
inline Span withinLine(double slope, double rest, double least, double most, Span span) {
    const auto value = [&](Len x) { return slope * double(x) + rest; };
    if (!isFinite(rest) || span.empty()) return {span.from, span.from};
    if (slope == 0) return value(span.from) >= least && value(span.from) <= most ? span : Span{span.from, span.from};
    const double inverse = 1 / slope, atLeast = (least - rest) * inverse, atMost = (most - rest) * inverse;
    const bool up = slope > 0;
    const Len from = firstWhere(span.from, span.to, (up ? atLeast : atMost) + 1,
                                [&](Len x) { return up ? value(x) >= least : value(x) <= most; });
    return {from, firstWhere(from, span.to, (up ? atMost : atLeast) + 1,
                             [&](Len x) { return up ? !(value(x) <= most) : !(value(x) >= least); })};
}

// The numbers X of a span for which slope * X + rest is not negative, but for an error of both: some more, or when
// asked `surely` some less.  What is no number says nothing.
inline Span withinHalf(double slope, double rest, double error, Span span, bool surely) {
    const double end = -(surely ? rest - error : rest + error) / slope;
    const double less = roundedDown(end), more = surely ? 2 : -1;
    if (slope == 0 && rest + error < 0) return {span.from, span.from};
    if (slope > 0 && less + more > double(span.from))
        span.from = less + more < double(span.to) ? Len(less + more) : span.to;
    if (slope < 0 && less - more < double(span.to))
        span.to = less - more > double(span.from) ? Len(less - more) + 1 : span.from;
    return span;
}

// ---- What lies outside ----

constexpr double nearEdge = 0x1p-20;  // what counts as inside: points that come back from where they were sent to

// An axis of the region, and what a border word makes of it.
struct WarpAxis {
    double first, last;  // pixels of it
    Len count;
    int word, reach;
    WarpAxis(Len from, Len size, int borderWord, int kernelReach)
        : first(double(from)), last(double(from + size - 1)), count(size), word(borderWord), reach(kernelReach) {}

    bool within(double v, double more) const { return v >= first - more && v <= last + more; }
    double outside(double v) const { return within(v, nearEdge) ? 0 : v < first ? first - v : v - last; }
    // Where a point is looked for.
    double placed(double v) const {
        const bool beyond = word == BORDER_REPL || word == BORDER_CONST;
        if (word == BORDER_MIRROR) v = count == 1 ? first : mirrored(v);
        const double low = beyond ? first - reach : first, high = beyond ? last + reach : last;
        return (v > low ? (v < high ? v : high) : low) + 0.0;  // no negative zero
    }
    // The pixel of the region that stands for one, counted from its first; -1 where the constant does.
    Len pixel(Len i) const {
        if (word == BORDER_MIRROR) return MirrorRule::at(i, count);
        if (word == BORDER_CONST && (i < 0 || i >= count)) return -1;
        return ReplicateRule::at(i, count);
    }

  private:
    double mirrored(double v) const {
        const double size = last - first, period = 2 * size, t = v - first;
        const double turns = roundedDown(t / period), in = t - period * turns;
        return first + (in > size ? period - in : in);
    }
};

// Of a row: what is looked at, the rest being left alone or constant, and the pixels whose kernels lie inside.
struct WarpRow {
    Span looked, inner;
};
// Which points a kernel of some reach is asked about, and which need no care.
struct WarpReach {
    Box looked, inner;
    bool anyInner, all;
    WarpReach(const WarpHeader& h, int word, int reach, bool fills, bool isNear) {
        const WarpAxis columns(h.left, h.width, word, reach), rows(h.top, h.height, word, reach);
        all = word == BORDER_REPL || word == BORDER_MIRROR;
        const double more = word == BORDER_CONST ? reach : h.smoothEdge ? 1 : nearEdge;
        looked = {columns.first - more, columns.last + more, rows.first - more, rows.last + more};
        if (word == BORDER_CONST && !fills) looked.left = looked.top = -std::numeric_limits<double>::infinity();
        // The last pixel is not among them: its kernel wants the next.
        const double less = reach - 1;
        const auto below = [](double x) { return x > 0 ? std::bit_cast<double>(std::bit_cast<uint64_t>(x) - 1) : -1; };
        inner = {columns.first + less, below(columns.last - less), rows.first + less, below(rows.last - less)};
        anyInner = isNear && inner.left <= inner.right && inner.top <= inner.bottom;
    }
    WarpRow row(const WarpHeader& h, const WarpMap& map, Len y, Span span) const {
        const Span some = all ? span : clipped(map.within(h, y, span, looked, false), span);
        return {some, anyInner ? clipped(map.within(h, y, some, inner, true), some) : Span{some.from, some.from}};
    }
};

// ---- Executions ----

// One call, its arguments checked: a tile of the destination and the source from its first pixel on.
template <class T>
struct WarpJob {
    const WarpHeader& header;
    const WarpMap& map;
    Image<const T> src;
    Image<T> dst;
    Layout layout;
    Place offset;
    Roi size;
    int word;
    const T* borderValue;
    uint8_t* buffer;
    void run() const;
};

// What a tile needs.
struct WarpMemory {
    static constexpr Len points = 1024;
    WarpRow* rows;
    double *x, *y;
    constexpr WarpMemory(Scratch& s, Len height)
        : rows(s.take<WarpRow, objectAlignment>(height)), x(s.take<double>(points)), y(s.take<double>(points)) {}
};
constexpr WideLen warpBufferBytes(Len height) { return 64 + 32 * WideLen(height) + 16384; }
static_assert(scratchBytes<WarpMemory>(Len(1)) <= warpBufferBytes(1) &&
              scratchBytes<WarpMemory>(longestSide) <= warpBufferBytes(longestSide));

inline StatusCode warpBorder(uint32_t word, bool smooth) {
    const bool known = word == BORDER_REPL || word == BORDER_MIRROR || word == BORDER_CONST;
    return refuse(word != BORDER_TRANSPARENT && (!known || smooth), STATUS_BAD_BORDER);
}

template <class T>
StatusCode ownpi_Warp(const WarpMap& map, uint32_t interpolation, Layout layout, Image<const T> src, Image<T> dst,
                      Place offset, Roi tile, uint32_t word, const T* borderValue, const WarpSpec* spec,
                      uint8_t* buffer) {
    const auto block = reinterpret_cast<const uint8_t*>(spec);
    const auto h = headerOf<WarpHeader>(block ? objectIn(block) : nullptr);
    const bool otherKind = h.kind != map.kind || h.interpolation != interpolation;
    const bool outside = offset.x < 0 || offset.y < 0 || offset.x >= h.dstWidth || offset.y >= h.dstHeight;
    if (auto bad = firstOf({pointers(src.data, dst.data, spec, buffer), size(tile), steps(src.step, dst.step),
                            tagged(h), refuse(otherKind, STATUS_CONTEXT_MISMATCH), refuse(outside, STATUS_OUT_OF_RANGE),
                            warpBorder(word, h.smoothEdge), zmv::borderValue(int(word), borderValue)}))
        return bad;
    if (h.empty()) return STATUS_WARN_NO_INTERSECTION;
    const Roi size(std::min(tile.width, h.dstWidth - offset.x), std::min(tile.height, h.dstHeight - offset.y));
    WarpJob<T>{h, map, src, dst, layout, offset, size, int(word), borderValue, buffer}.run();
    return tile.width > h.dstWidth || tile.height > h.dstHeight ? STATUS_WARN_SIZE_CLIPPED : STATUS_OK;
}

}  // namespace zmv
