// Perspective warps.
#include "geometry/warp.h"

namespace zmv {
namespace {

// The map from destination to source, as the object keeps it; of a map that is given forward a multiple.
struct PerspectiveWarp {
    static constexpr WarpKind kind = perspectiveWarp;
    static constexpr int numbers = 9;
    static bool form(const double* c, WarpHeader& h) {
        PerspectiveMap map;
        std::memcpy(map.c, c, sizeof map.c);
        const double d = map.determinant();
        const PerspectiveMap back = h.forward ? map.adjugate() : map;
        std::memcpy(h.map, back.c, sizeof back.c);
        return d != 0 && isFinite(d) && back.finite();
    }

    // What a row of the matrix is along a row of pixels, and what it may be wrong by.
    struct Line {
        double slope, rest, error;
        Line(const double* b, Len y, double farthest)
            : slope(b[0]),
              rest(b[1] * double(y) + b[2]),
              error(0x1p-48 * (magnitude(b[0]) * farthest + (magnitude(b[1] * double(y)) + magnitude(b[2])))) {}
        double at(Len x) const { return slope * double(x) + rest; }
    };
    static WarpLines lines(const WarpHeader& h, Len y) {
        const auto line = [&](const double* b) { return WarpLine{b[0], b[1] * double(y) + b[2]}; };
        return {line(h.map), line(h.map + 3), line(h.map + 6)};
    }
    // Where d keeps its sign, n / d >= v is n - v d >= 0 or the opposite, which changes once along a row.
    static Span within(const WarpHeader& h, Len y, Span span, const Box& box, bool surely) {
        if (span.empty()) return span;
        const double farthest = double(span.to);
        const Line n(h.map, y, farthest), m(h.map + 3, y, farthest), d(h.map + 6, y, farthest);
        const double first = d.at(span.from), last = d.at(span.to - 1);
        const bool front = first > d.error && last > d.error, behind = first < -d.error && last < -d.error;
        if ((!front && !behind) || !(farthest < 0x1p50)) return surely ? Span{span.from, span.from} : span;
        const auto half = [&](const Line& line, double v, double sign) {
            span = withinHalf(sign * (line.slope - v * d.slope), sign * (line.rest - v * d.rest),
                              line.error + magnitude(v) * d.error, span, surely);
        };
        const double sign = front ? 1 : -1;
        half(n, box.left, sign), half(n, box.right, -sign), half(m, box.top, sign), half(m, box.bottom, -sign);
        return span;
    }
};
constexpr WarpMap perspectiveMap{perspectiveWarp, true, true, PerspectiveWarp::lines, nullptr, PerspectiveWarp::within};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "geometry/warp.def"
PERSPECTIVE_NEAREST_INIT_FAMILY
PERSPECTIVE_LINEAR_INIT_FAMILY
PERSPECTIVE_CUBIC_INIT_FAMILY
WARP_PERSPECTIVE_NEAREST_FAMILY
WARP_PERSPECTIVE_LINEAR_FAMILY
WARP_PERSPECTIVE_CUBIC_FAMILY
