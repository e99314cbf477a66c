// The plane under maps of three kinds: corners, quadrangles, bounds.  All of it rounds to nearest, which the entries
// see to.
#pragma once

#include <algorithm>
#include <bit>

#include "kernels/sine.h"

namespace zmv {

// A real number without its fraction, however large.
inline double withoutFraction(double x) {
    const auto bits = std::bit_cast<uint64_t>(x);
    const int exponent = int(bits >> 52 & 2047) - 1023;
    if (exponent >= 52) return x;
    const uint64_t fraction = exponent < 0 ? ~0ull >> 1 : ~0ull >> (12 + exponent);
    return std::bit_cast<double>(bits & ~fraction);
}
inline double roundedDown(double x) {
    const double whole = withoutFraction(x);
    return whole > x ? whole - 1 : whole;
}
inline double roundedUp(double x) { return -roundedDown(-x); }
inline bool isFinite(double x) { return x - x == 0; }
inline double magnitude(double x) { return std::bit_cast<double>(std::bit_cast<uint64_t>(x) & ~0ull >> 1); }

// Which of two NaNs a processor passes on depends on the order of operands, which is the compiler's: results have one.
inline void putNumber(double* p, double x) { put(p, x == x ? x : __builtin_nan("")); }

struct Point {
    double x, y;
};

// (x, y) goes to (xx x + xy y + x0, yx x + yy y + y0).
struct Corners;
struct AffineMap {
    double xx, xy, x0, yx, yy, y0;
    static AffineMap from(const double (*c)[3]) {
        return {get(&c[0][0]), get(&c[0][1]), get(&c[0][2]), get(&c[1][0]), get(&c[1][1]), get(&c[1][2])};
    }
    void to(double (*c)[3]) const {
        const double all[] = {xx, xy, x0, yx, yy, y0};
        for (int i = 0; i < 6; ++i) putNumber(&c[i / 3][i % 3], all[i]);
    }
    using Numbers = double[3];
    Point operator()(Point p) const { return {xx * p.x + xy * p.y + x0, yx * p.x + yy * p.y + y0}; }
    bool finite() const {
        return isFinite(xx) && isFinite(xy) && isFinite(x0) && isFinite(yx) && isFinite(yy) && isFinite(y0);
    }
    double determinant() const { return xx * yy - xy * yx; }
    static constexpr bool faces(const Corners&) { return true; }
    AffineMap inverse() const {
        const double d = determinant();
        return {yy / d, -xy / d, (xy * y0 - yy * x0) / d, -yx / d, xx / d, (yx * x0 - xx * y0) / d};
    }
};

// The corners of a rectangle are centres of pixels, the last ones at width - 1 and height - 1.
struct Corners {
    double left, top, across, down;
    double right() const { return left + across; }
    double bottom() const { return top + down; }
    template <class Rect>
    explicit Corners(Rect r)
        : left(double(r.x)), top(double(r.y)), across(double(r.width - 1)), down(double(r.height - 1)) {}
};

// From the top left corner's image round to the bottom left one's.
struct Quad {
    Point corner[4];
    static Quad from(const double (*q)[2]) {
        Quad quad;
        for (int i = 0; i < 4; ++i) quad.corner[i] = {get(&q[i][0]), get(&q[i][1])};
        return quad;
    }
    void to(double (*q)[2]) const {
        for (int i = 0; i < 4; ++i) putNumber(&q[i][0], corner[i].x), putNumber(&q[i][1], corner[i].y);
    }
    template <class Map>
    Quad(const Map& map, Corners c)
        : corner{map({c.left, c.top}), map({c.right(), c.top}), map({c.right(), c.bottom()}),
                 map({c.left, c.bottom()})} {}

  private:
    Quad() = default;
};

// (x, y) goes to n / d, n being the first row or the second at (x, y, 1), d the third.
struct PerspectiveMap {
    double c[9];
    using Numbers = double[3];
    static PerspectiveMap from(const double (*c)[3]) {
        PerspectiveMap map;
        for (int i = 0; i < 9; ++i) map.c[i] = get(&c[i / 3][i % 3]);
        return map;
    }
    void to(double (*to)[3]) const {
        for (int i = 0; i < 9; ++i) putNumber(&to[i / 3][i % 3], c[i]);
    }
    double row(int i, Point p) const { return c[3 * i] * p.x + (c[3 * i + 1] * p.y + c[3 * i + 2]); }
    Point operator()(Point p) const { return {row(0, p) / row(2, p), row(1, p) / row(2, p)}; }
    // The map back, times the determinant.
    PerspectiveMap adjugate() const {
        return {{c[4] * c[8] - c[5] * c[7], c[2] * c[7] - c[1] * c[8], c[1] * c[5] - c[2] * c[4],
                 c[5] * c[6] - c[3] * c[8], c[0] * c[8] - c[2] * c[6], c[2] * c[3] - c[0] * c[5],
                 c[3] * c[7] - c[4] * c[6], c[1] * c[6] - c[0] * c[7], c[0] * c[4] - c[1] * c[3]}};
    }
    bool finite() const {
        bool all = true;
        for (const double x : c) all = all && isFinite(x);
        return all;
    }
    double determinant() const {
        const PerspectiveMap b = adjugate();
        return (c[0] * b.c[0] + c[1] * b.c[3]) + c[2] * b.c[6];
    }
    // Whether a rectangle lies on one side of the line that goes to infinity.
    bool faces(const Corners&) const;
};

// (x, y) goes to (c0 x y + c1 x + c2 y + c3), with numbers of its own for either axis.
struct BilinearMap {
    double c[2][4];
    using Numbers = double[4];
    static BilinearMap from(const double (*c)[4]) {
        BilinearMap map;
        for (int i = 0; i < 8; ++i) map.c[i / 4][i % 4] = get(&c[i / 4][i % 4]);
        return map;
    }
    void to(double (*to)[4]) const {
        for (int i = 0; i < 8; ++i) putNumber(&to[i / 4][i % 4], c[i / 4][i % 4]);
    }
    double row(int i, Point p) const { return (c[i][0] * p.y + c[i][1]) * p.x + (c[i][2] * p.y + c[i][3]); }
    Point operator()(Point p) const { return {row(0, p), row(1, p)}; }
    static constexpr bool faces(const Corners&) { return true; }
};

struct Bound {
    Point least, greatest;
};

bool ownpi_CheckQuad(const Quad& quad);
Bound ownpi_GetQuadrangleBound(const Quad& quad);
bool isParallelogram(const Quad& quad);
AffineMap ownpi_GetAffineTransform(Corners from, const Quad& to);
PerspectiveMap ownpi_GetPerspectiveTransform(Corners from, const Quad& to);
BilinearMap ownpi_GetBilinearTransform(Corners from, const Quad& to);
// The smallest rectangle of whole pixels of an image that holds the points which `map` takes to pixels between the
// corners `to`; empty where the image has none of them.
struct PixelRange {
    double left, top, right, bottom;
    bool empty() const { return !(left <= right && top <= bottom); }
};
PixelRange ownpi_WarpAffineRect(Roi image, const AffineMap& map, Corners to);
// All pixels where `to` does not lie on one side of the line that comes from infinity.
PixelRange ownpi_WarpPerspectiveRect(Roi image, const PerspectiveMap& map, Corners to);

}  // namespace zmv
