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

PixelRange ownpi_WarpAffineRect(Roi image, const AffineMap& map, Corners to) {
    const double d = map.determinant();
    const AffineMap back{map.yy / d,  -map.xy / d, (map.xy * map.y0 - map.yy * map.x0) / d,
                         -map.yx / d, map.xx / d,  (map.yx * map.x0 - map.xx * map.y0) / d};
    const auto source = [&](Point p) {
        return Point{back.xx * p.x + (back.xy * p.y + back.x0), back.yx * p.x + (back.yy * p.y + back.y0)};
    };
    const Bound bound = ownpi_GetQuadrangleBound(Quad(source, to));
    return {std::max(roundedDown(bound.least.x), 0.0), std::max(roundedDown(bound.least.y), 0.0),
            std::min(roundedUp(bound.greatest.x), double(image.width - 1)),
            std::min(roundedUp(bound.greatest.y), double(image.height - 1))};
}

}  // namespace zmv
