// The plane under affine maps: corners, quadrangles, bounds.  All of it rounds to nearest, which the entries see to.
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
struct AffineMap {
    double xx, xy, x0, yx, yy, y0;
    static AffineMap from(const double (*c)[3]) {
        return {get(&c[0][0]), get(&c[0][1]), get(&c[0][2]), get(&c[1][0]), get(&c[1][1]), get(&c[1][2])};
    }
    void to(double (*c)[3]) const {
        const double all[] = {xx, xy, x0, yx, yy, y0};
        for (int i = 0; i < 6; ++i) putNumber(&c[i / 3][i % 3], all[i]);
    }
    Point operator()(Point p) const { return {xx * p.x + xy * p.y + x0, yx * p.x + yy * p.y + y0}; }
    bool finite() const {
        return isFinite(xx) && isFinite(xy) && isFinite(x0) && isFinite(yx) && isFinite(yy) && isFinite(y0);
    }
    double determinant() const { return xx * yy - xy * yx; }
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

struct Bound {
    Point least, greatest;
};

bool ownpi_CheckQuad(const Quad& quad);
Bound ownpi_GetQuadrangleBound(const Quad& quad);
bool isParallelogram(const Quad& quad);
AffineMap ownpi_GetAffineTransform(Corners from, const Quad& to);
// The smallest rectangle of whole pixels of an image that holds the points which `map` takes to pixels between the
// corners `to`; empty where the image has none of them.
struct PixelRange {
    double left, top, right, bottom;
    bool empty() const { return !(left <= right && top <= bottom); }
};
PixelRange ownpi_WarpAffineRect(Roi image, const AffineMap& map, Corners to);

}  // namespace zmv
