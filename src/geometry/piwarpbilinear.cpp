// Bilinear warps.  Backward a row is a line whose slopes change from row to row; forward each pixel solves a quadratic
// equation.
#include "geometry/warp.h"
#include "kernels/simd_convert.h"

namespace zmv {
namespace {

// The map as it is given: x y, x, y and 1 of either axis; forward, with coordinates that count from the region's first
// pixel, so that regions far from the origin lose nothing.
struct Equations {
    double a[4], b[4];
    double k, aa, g;  // the Jacobian is k + g x + aa y
    explicit Equations(const double* c, double x, double y) {
        for (int i = 0; i < 2; ++i, c += 4) {
            double* const to = i ? b : a;
            to[0] = c[0], to[1] = c[1] + c[0] * y, to[2] = c[2] + c[0] * x;
            to[3] = ((c[0] * x) * y + c[1] * x) + (c[2] * y + c[3]);
        }
        k = a[1] * b[2] - a[2] * b[1], aa = a[0] * b[2] - a[2] * b[0], g = a[1] * b[0] - a[0] * b[1];
    }
    double jacobian(double x, double y) const { return (k + g * x) + aa * y; }
    // Of a box, the smallest size of the Jacobian if it has one sign: then with that sign, else 0.
    double least(double left, double right, double top, double bottom) const {
        const double all[] = {jacobian(left, top), jacobian(right, top), jacobian(left, bottom),
                              jacobian(right, bottom)};
        const double low = *std::min_element(all, all + 4), high = *std::max_element(all, all + 4);
        return low > 0 ? low : high < 0 ? high : 0;
    }
};

struct BilinearWarp {
    static constexpr WarpKind kind = bilinearWarp;
    static constexpr int numbers = 8;
    static bool form(const double* c, WarpHeader& h) {
        const bool solves = h.forward && !h.empty();
        const Equations e(c, solves ? double(h.left) : 0, solves ? double(h.top) : 0);
        std::memcpy(h.map, solves ? e.a : c, 32), std::memcpy(h.map + 4, solves ? e.b : c + 4, 32);
        h.map[8] = e.k, h.map[9] = e.aa, h.map[10] = e.g, h.exact = !h.forward;
        if (!isFinite(e.k) || !isFinite(e.aa) || !isFinite(e.g) || (e.k == 0 && e.aa == 0 && e.g == 0)) return false;
        const double least = e.least(0, double(h.width - 1), 0, double(h.height - 1));
        h.map[11] = least > 0 ? 1 : -1;
        return !solves || least != 0;
    }

    static WarpLines lines(const WarpHeader& h, Len y) {
        const auto line = [&](const double* c) {
            return WarpLine{c[0] * double(y) + c[1], c[2] * double(y) + c[3] + 0.0};
        };
        return {line(h.map), line(h.map + 4), {}};
    }
    static void solvedPoints(const WarpHeader& h, Len x, Len y, int count, double* xs, double* ys) {
        using V = Vec<double>;
        const double *const a = h.map, *const b = h.map + 4;
        const double k = h.map[8], aa = h.map[9], sign = h.map[11], v = double(y) - b[3];
        const double vb = v * a[0], vc = v * a[1], left = double(h.left), top = double(h.top);
        const auto size = [](V of) { return (V)((Vec<uint64_t>)of & ~0ull >> 1); };
        eachVectorOfPixels(x, count, [&](int i, V at) {
            const V u = at - a[3], linear = (u * b[0] - vb) + k, rest = u * b[1] - vc;
            const V root = sign * squareRoot(linear * linear - (4 * aa) * rest);
            const auto same = sign * linear > 0;
            const V from = (same ? -2 * rest : root - linear) / (same ? linear + root : fill(2 * aa));
            const V p = a[0] * from + a[1], q = b[0] * from + b[1];
            const auto first = size(p) >= size(q);
            const V along = (first ? u - a[2] * from : v - b[2] * from) / (first ? p : q);
            store(xs + i, along + left), store(ys + i, from + top);
        });
    }

    // A box where the Jacobian keeps its sign becomes a convex quadrangle, of which a row is one piece, between two of
    // its edges; and edges stay straight.  To be sure of what solving makes of pixels beside it, the box is a pixel
    // larger than asked, which is more than all errors of what is solved for points in it.
    static Span solvedWithin(const WarpHeader& h, Len y, Span span, const Box& box, bool surely) {
        const double more = surely ? 0 : 1;
        const double left = box.left - double(h.left) - more, right = box.right - double(h.left) + more,
                     top = box.top - double(h.top) - more, bottom = box.bottom - double(h.top) + more;
        const double *const a = h.map, *const b = h.map + 4;
        if (span.empty()) return span;
        const Span unknown = surely ? Span{span.from, span.from} : span;
        if (!solvesWell(h, y, span, left, right, top, bottom)) return unknown;
        double first = std::numeric_limits<double>::infinity(), last = -first;
        const auto meet = [&](double atX, double atY, bool on) {
            if (!on) return;
            const double u = (a[0] * atX * atY + a[1] * atX) + (a[2] * atY + a[3]);
            first = std::min(first, u), last = std::max(last, u);
        };
        for (const double x : {left, right}) {
            const double at = (double(y) - (b[1] * x + b[3])) / (b[0] * x + b[2]);
            meet(x, at, at >= top && at <= bottom);
        }
        for (const double v : {top, bottom}) {
            const double at = (double(y) - (b[2] * v + b[3])) / (b[0] * v + b[1]);
            meet(at, v, at >= left && at <= right);
        }
        if (!(first <= last)) return {span.from, span.from};
        const double less = surely ? 1 : 0, from = roundedUp(first) + less, to = roundedDown(last) + 1 - less;
        const auto place = [&](double v) {
            return v > double(span.from) ? (v < double(span.to) ? Len(v) : span.to) : span.from;
        };
        return {place(from), place(to)};
    }
    // Whether what is solved along a row, for points in a box, is wrong by much less than a pixel: y by its share of
    // the quadratic's rounding errors in the Jacobian, x by what follows of it.
    static bool solvesWell(const WarpHeader& h, Len y, Span span, double left, double right, double top,
                           double bottom) {
        const double *const a = h.map, *const b = h.map + 4;
        Equations e(a, 0, 0);
        e.k = h.map[8], e.aa = h.map[9], e.g = h.map[10];
        const double jacobian = magnitude(e.least(left, right, top, bottom));
        if (!(jacobian > 0) || !(right < 0x1p40 && bottom < 0x1p40)) return false;
        const double u = magnitude(a[3]) + double(span.to), v = magnitude(b[3]) + double(y);
        const double linear = u * magnitude(b[0]) + v * magnitude(a[0]) + magnitude(e.k),
                     rest = u * magnitude(b[1]) + v * magnitude(a[1]);
        const double side = std::max(bottom, right) + 1, slope = std::max(magnitude(a[0]), magnitude(b[0])) * side +
                                                                 std::max(magnitude(a[2]), magnitude(b[2]));
        const double error = 0x1p-40 * (linear * side + rest + magnitude(e.aa) * side * side) / jacobian;
        return error * (1 + 2 * slope * slope / jacobian) < 0.5;
    }
};
constexpr WarpMap bilinearMap{
    bilinearWarp, false, false, BilinearWarp::lines, BilinearWarp::solvedPoints, BilinearWarp::solvedWithin};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "geometry/warp.def"
BILINEAR_NEAREST_INIT_FAMILY
BILINEAR_LINEAR_INIT_FAMILY
BILINEAR_CUBIC_INIT_FAMILY
WARP_BILINEAR_NEAREST_FAMILY
WARP_BILINEAR_LINEAR_FAMILY
WARP_BILINEAR_CUBIC_FAMILY
