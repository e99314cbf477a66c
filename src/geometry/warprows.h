// Rows of a warp's destination: which of their pixels come from where, and what stands for those that come from outside
// the region.
#pragma once

#include "geometry/warpspec.h"
#include "kernels/borders.h"
#include "kernels/simd.h"

namespace zmv {

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

// Along a row of pixels: slope X + rest.
struct WarpLine {
    double slope, rest;
    template <class V>
    ZMV_INLINE V at(V x) const {
        return slope * x + rest;
    }
};
// Where the points of a row are: on two lines, or where these come to when divided by a third.
struct WarpLines {
    WarpLine column, row, over;
};

struct WarpMap {
    WarpKind kind;
    bool divides, steady;  // steady: the slopes of all rows are the same
    // Of maps that divide, and of others as far as their objects are exact; no rest of those is -0, nor any point.
    WarpLines (*lines)(const WarpHeader&, Len y);
    // Where there are no lines: the points of pixels x, x + 1 .. of row y, in whole groups of lanes<int32_t>.
    void (*points)(const WarpHeader&, Len x, Len y, int count, double* xs, double* ys);
    // Of objects that are not exact: all pixels of a row whose points lie in the box and some beside, or when asked
    // `surely` none but those, as far as rounding allows.
    Span (*within)(const WarpHeader&, Len y, Span row, const Box&, bool surely);
    bool hasLines(const WarpHeader& h) const { return divides || h.exact; }
};

// points(i, X) for a vector of pixels at a time, as many as a map's `points` has to give.
template <class Points>
ZMV_INLINE void eachVectorOfPixels(Len x, int count, const Points& points) {
    Vec<double> at;
    for (int k = 0; k < lanes<double>; ++k) at[k] = double(x + k);
    for (int i = 0; i < count; i += lanes<int32_t>)
        for (int k = 0; k < lanes<int32_t>; k += lanes<double>, at += lanes<double>) points(i + k, at);
}
inline void pointsOf(const WarpHeader& h, const WarpMap& map, Len x, Len y, int count, double* xs, double* ys) {
    if (!map.hasLines(h)) return map.points(h, x, y, count, xs, ys);
    const WarpLines lines = map.lines(h, y);
    eachVectorOfPixels(x, count, [&](int i, Vec<double> at) {
        Vec<double> px = lines.column.at(at), py = lines.row.at(at);
        if (map.divides) {
            const Vec<double> by = lines.over.at(at);
            px /= by, py /= by;
        }
        store(xs + i, px), store(ys + i, py);
    });
}

// The first of from .. to - 1 for which `is`, which stays true once it is; to where there is none.  Near the guess it
// takes two looks.
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
inline Span withinLine(const WarpLine& line, double least, double most, Span span) {
    const auto [slope, rest] = line;
    const auto value = [&](Len x) { return line.at(double(x)); };
    if (!isFinite(rest) || span.empty()) return {span.from, span.from};
    const auto inside = [&](Len x) { return value(x) >= least && value(x) <= most; };
    if (inside(span.from) && inside(span.to - 1)) return span;
    if (slope == 0) return {span.from, span.from};
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
    const double some = surely ? rest - error : rest + error;
    if (some + slope * double(span.from) >= 0 && some + slope * double(span.to - 1) >= 0) return span;
    const double end = -some / slope;
    const double less = roundedDown(end), more = surely ? 2 : -1;
    if (slope == 0 && rest + error < 0) return {span.from, span.from};
    if (slope > 0 && less + more > double(span.from))
        span.from = less + more < double(span.to) ? Len(less + more) : span.to;
    if (slope < 0 && less - more < double(span.to))
        span.to = less - more > double(span.from) ? Len(less - more) + 1 : span.from;
    return span;
}

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
    WarpReach(const WarpHeader& h, int word, int reach, int behind, bool fills, bool isNear) {
        const WarpAxis columns(h.left, h.width, word, reach), rows(h.top, h.height, word, reach);
        // Where the constant does not come out by itself points left and above may matter, NaN among them.
        all = word == BORDER_REPL || word == BORDER_MIRROR || (word == BORDER_CONST && !fills);
        const double more = word == BORDER_CONST ? reach : h.smoothEdge ? 1 : nearEdge;
        looked = {columns.first - more, columns.last + more, rows.first - more, rows.last + more};
        // The last pixel is not among them: its kernel wants the next.
        const double less = reach - 1;
        const auto below = [](double x) { return x > 0 ? std::bit_cast<double>(std::bit_cast<uint64_t>(x) - 1) : -1; };
        inner = {columns.first + less, below(columns.last - less - behind), rows.first + less, below(rows.last - less)};
        anyInner = isNear && inner.left <= inner.right && inner.top <= inner.bottom;
    }
    WarpRow row(const WarpHeader& h, const WarpMap& map, Len y, Span span) const {
        const WarpLines lines = h.exact ? map.lines(h, y) : WarpLines{};
        const auto within = [&](Span from, const Box& box, bool surely) {
            return clipped(h.exact ? withinLine(lines.row, box.top, box.bottom,
                                                withinLine(lines.column, box.left, box.right, from))
                                   : map.within(h, y, from, box, surely),
                           from);
        };
        const Span first = anyInner ? within(span, inner, true) : Span{span.from, span.from};
        if (first.from == span.from && first.to == span.to) return {span, span};
        const Span some = all ? span : within(span, looked, false);
        return {some, clipped(first, some)};
    }
};

}  // namespace zmv
