// What is true of quadrangles, and the maps between them and rectangles.
#include "geometry/pigeom.h"

namespace zmv {

// Whether it is convex and nowhere flat: walking round, every corner turns the same way.
bool ownpi_CheckQuad(const Quad& quad) {
    const auto edge = [&](int i) {
        const Point from = quad.corner[i & 3], to = quad.corner[(i + 1) & 3];
        return Point{to.x - from.x, to.y - from.y};
    };
    int left = 0, right = 0;
    for (int i = 0; i < 4; ++i) {
        if (!isFinite(quad.corner[i].x) || !isFinite(quad.corner[i].y)) return false;
        const Point a = edge(i), b = edge(i + 1);
        const double turn = a.x * b.y - a.y * b.x;
        left += turn > 0, right += turn < 0;
    }
    return left == 4 || right == 4;
}

Bound ownpi_GetQuadrangleBound(const Quad& quad) {
    Bound bound{quad.corner[0], quad.corner[0]};
    const auto take = [](double& least, double& greatest, double x) {
        if (x != x || least != least) x = least = greatest = __builtin_nan("");
        if (x < least) least = x;
        if (x > greatest) greatest = x;
    };
    for (const Point& p : quad.corner) {
        take(bound.least.x, bound.greatest.x, p.x);
        take(bound.least.y, bound.greatest.y, p.y);
    }
    return bound;
}

bool isParallelogram(const Quad& quad) {
    const auto differ = [](double p, double q) {
        constexpr double nothing = 1e-200, little = 1e-10;
        return magnitude(p) <= nothing ? magnitude(q) > little : magnitude((p - q) / p) > little;
    };
    const auto& [a, b, c, d] = quad.corner;
    return !differ((b.y - a.y) * (d.x - c.x), (d.y - c.y) * (b.x - a.x)) &&
           !differ((a.y - d.y) * (c.x - b.x), (c.y - b.y) * (a.x - d.x));
}

// By the first three corners.
AffineMap ownpi_GetAffineTransform(Corners from, const Quad& to) {
    const auto& [a, b, c, unused] = to.corner;
    AffineMap map{(b.x - a.x) / from.across, (c.x - b.x) / from.down, 0,
                  (b.y - a.y) / from.across, (c.y - b.y) / from.down, 0};
    map.x0 = a.x - map.xx * from.left - map.xy * from.top;
    map.y0 = a.y - map.yx * from.left - map.yy * from.top;
    return map;
}

// After Heckbert, Fundamentals of Texture Mapping and Image Warping, 1989.
PerspectiveMap ownpi_GetPerspectiveTransform(Corners from, const Quad& to) {
    const auto& [p0, p1, p2, p3] = to.corner;
    const double x1 = p1.x - p2.x, x2 = p3.x - p2.x, x3 = ((p0.x - p1.x) + p2.x) - p3.x;
    const double y1 = p1.y - p2.y, y2 = p3.y - p2.y, y3 = ((p0.y - p1.y) + p2.y) - p3.y;
    const double e = x1 * y2 - x2 * y1, g = (x3 * y2 - x2 * y3) / e, k = (x1 * y3 - x3 * y1) / e;
    const double unit[3][3] = {{p1.x - p0.x + g * p1.x, p3.x - p0.x + k * p3.x, p0.x},
                               {p1.y - p0.y + g * p1.y, p3.y - p0.y + k * p3.y, p0.y},
                               {g, k, 1}};
    PerspectiveMap map;
    for (int i = 0; i < 3; ++i) {
        const double across = unit[i][0] / from.across, down = unit[i][1] / from.down;
        const double rest = (unit[i][2] - across * from.left) - down * from.top;
        map.c[3 * i] = across, map.c[3 * i + 1] = down, map.c[3 * i + 2] = rest;
    }
    if (const double last = map.c[8]; last != 0)
        for (double& number : map.c) number /= last;
    return map;
}

BilinearMap ownpi_GetBilinearTransform(Corners from, const Quad& to) {
    BilinearMap map;
    for (int i = 0; i < 2; ++i) {
        const auto at = [&](int k) { return i ? to.corner[k].y : to.corner[k].x; };
        const double e = ((at(0) - at(1)) + at(2)) - at(3);
        const double across = (at(1) - at(0)) / from.across, down = (at(3) - at(0)) / from.down;
        const double c0 = e / (from.across * from.down);
        const double c3 = ((at(0) - across * from.left) - down * from.top) + (c0 * from.left) * from.top;
        const double all[] = {c0, across - c0 * from.top, down - c0 * from.left, c3};
        for (int k = 0; k < 4; ++k) map.c[i][k] = all[k];
    }
    return map;
}

bool PerspectiveMap::faces(const Corners& r) const {
    const double corners[] = {row(2, {r.left, r.top}), row(2, {r.right(), r.top}), row(2, {r.right(), r.bottom()}),
                              row(2, {r.left, r.bottom()})};
    int front = 0, back = 0;
    for (const double d : corners) front += d > 0, back += d < 0;
    return front == 4 || back == 4;
}

// The whole pixels round what a map makes of a rectangle.
template <class Map>
PixelRange pixelsOf(Roi image, const Map& map, Corners to) {
    const Bound bound = ownpi_GetQuadrangleBound(Quad(map, to));
    return {std::max(roundedDown(bound.least.x), 0.0), std::max(roundedDown(bound.least.y), 0.0),
            std::min(roundedUp(bound.greatest.x), double(image.width - 1)),
            std::min(roundedUp(bound.greatest.y), double(image.height - 1))};
}
PixelRange ownpi_WarpAffineRect(Roi image, const AffineMap& map, Corners to) {
    const AffineMap back = map.inverse();
    const auto source = [&](Point p) {
        return Point{back.xx * p.x + (back.xy * p.y + back.x0), back.yx * p.x + (back.yy * p.y + back.y0)};
    };
    return pixelsOf(image, source, to);
}
PixelRange ownpi_WarpPerspectiveRect(Roi image, const PerspectiveMap& map, Corners to) {
    const PerspectiveMap back = map.adjugate();
    bool finite = true;
    for (const double x : {to.left, to.right()})
        for (const double y : {to.top, to.bottom()}) finite = finite && isFinite(back.row(2, {x, y}));
    if (!finite || !back.faces(to)) return {0, 0, double(image.width - 1), double(image.height - 1)};
    return pixelsOf(image, back, to);
}

}  // namespace zmv
