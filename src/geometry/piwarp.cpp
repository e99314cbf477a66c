// zmviGetRotateTransform and its neighbours: coefficients of maps, and what they do to rectangles.
#include "geometry/pigeom.h"
#include "kernels/rounding.h"

namespace zmv {
namespace {

// The angle between 0 and 360; one that leaves no place for its fraction, or its degrees, counts as 0.
double reduced(double angle) {
    double a = angle - withoutFraction(angle * 0.002777777777777778) * 360;
    if (a < 0) a += 360;
    return a < 0 || a > 360 ? 0 : a;
}
Direction directionOfDegrees(double reducedAngle) { return directionOf(reducedAngle * 0.017453292519943295); }

template <class Rect>
StatusCode rectangle(Rect r) {
    return refuse(r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1, STATUS_BAD_SIZE);
}

StatusCode ownpi_GetRotateTransform(double angle, double xShift, double yShift, double (*coeffs)[3]) {
    if (auto bad = firstOf({refuse(!isFinite(angle), STATUS_OUT_OF_RANGE), pointers(coeffs)})) return bad;
    const double a = reduced(angle);
    Direction d{0, 1};
    if (a == 90)
        d = {1, 0};
    else if (a == 180)
        d = {0, -1};
    else if (a == 270)
        d = {-1, 0};
    else if (a != 0)
        d = directionOfDegrees(a);
    // No coefficient is -0.
    AffineMap{d.cosine, d.sine, xShift, 0 - d.sine, d.cosine, yShift}.to(coeffs);
    return STATUS_OK;
}

// The shift that keeps a point where it is when the plane turns.
StatusCode ownpi_GetRotateShift(double x, double y, double angle, double* xShift, double* yShift) {
    if (auto bad = pointers(xShift, yShift)) return bad;
    const double a = reduced(angle);
    Point shift{0, 0};
    if (a == 90) {
        shift = {x - y, y + x};
    } else if (a == 180) {
        shift = {2 * x, 2 * y};
    } else if (a == 270) {
        shift = {y + x, y - x};
    } else if (a != 0) {
        const auto [s, c] = directionOfDegrees(a);
        shift = {x - (s * y + c * x), y - y * c + s * x};
    }
    putNumber(xShift, shift.x), putNumber(yShift, shift.y);
    return STATUS_OK;
}

template <auto transform, class Rect, class Numbers>
StatusCode ownpi_GetTransformOf(Rect from, const double (*quad)[2], Numbers* coeffs) {
    if (auto bad = firstOf({pointers(quad, coeffs), rectangle(from)})) return bad;
    const Quad to = Quad::from(quad);
    if (!ownpi_CheckQuad(to)) return STATUS_BAD_QUAD;
    if (from.width < 2 || from.height < 2) return STATUS_BAD_RECT;
    transform(Corners(from), to).to(coeffs);
    return STATUS_OK;
}

template <class Rect>
StatusCode ownpi_GetAffineTransformOf(Rect from, const double (*quad)[2], double (*coeffs)[3]) {
    const bool skewed = quad && !isParallelogram(Quad::from(quad));
    const StatusCode bad = ownpi_GetTransformOf<ownpi_GetAffineTransform>(from, quad, coeffs);
    return bad ? bad : skewed ? STATUS_WARN_NOT_PARALLELOGRAM : STATUS_OK;
}

template <class Map, class Rect>
StatusCode ownpi_GetQuad(Rect from, double (*quad)[2], const typename Map::Numbers* coeffs) {
    if (auto bad = firstOf({pointers(quad, coeffs), rectangle(from)})) return bad;
    const Map map = Map::from(coeffs);
    const Quad image(map, Corners(from));
    image.to(quad);
    return ownpi_CheckQuad(image) && map.faces(Corners(from)) ? STATUS_OK : STATUS_BAD_COEFFS;
}

template <class Map, class Rect>
StatusCode ownpi_GetBound(Rect from, double (*bound)[2], const typename Map::Numbers* coeffs) {
    double quad[4][2];
    const StatusCode status = bound ? ownpi_GetQuad<Map>(from, quad, coeffs) : StatusCode(STATUS_NULL_POINTER);
    if (status != STATUS_OK && status != STATUS_BAD_COEFFS) return status;
    const auto [least, greatest] = ownpi_GetQuadrangleBound(Quad::from(quad));
    const double all[] = {least.x, least.y, greatest.x, greatest.y};
    for (int i = 0; i < 4; ++i) putNumber(&bound[i / 2][i % 2], all[i]);
    return status;
}

template <class Rect>
StatusCode ownpi_GetRotateQuad(Rect from, double (*quad)[2], double angle, double xShift, double yShift) {
    double coeffs[2][3];
    const StatusCode bad = ownpi_GetRotateTransform(angle, xShift, yShift, coeffs);
    return bad ? bad : ownpi_GetQuad<AffineMap>(from, quad, coeffs);
}
template <class Rect>
StatusCode ownpi_GetRotateBound(Rect from, double (*bound)[2], double angle, double xShift, double yShift) {
    double coeffs[2][3];
    const StatusCode bad = ownpi_GetRotateTransform(angle, xShift, yShift, coeffs);
    return bad ? bad : ownpi_GetBound<AffineMap>(from, bound, coeffs);
}

template <class Map, auto rangeOf, class Size, class Rect>
StatusCode ownpi_GetSrcRoi(Size srcSize, const double (*coeffs)[3], Rect to, Rect* srcRoi) {
    if (auto bad = firstOf({pointers(coeffs, srcRoi), size(srcSize), size(Roi(to.width, to.height))})) return bad;
    const Map map = Map::from(coeffs);
    const double d = map.determinant();
    if (!map.finite() || !isFinite(d) || d == 0) return STATUS_BAD_COEFFS;
    const PixelRange range = rangeOf(srcSize, map, Corners(to));
    if (range.empty()) return STATUS_WARN_NO_INTERSECTION;
    using Index = decltype(srcSize.width);
    // The last index of the largest sizes has no double of its own.
    const auto index = [](double x, Index size) { return x < double(size - 1) ? Index(x) : size - 1; };
    const Index left = index(range.left, srcSize.width), top = index(range.top, srcSize.height);
    put(srcRoi,
        Rect{left, top, index(range.right, srcSize.width) - left + 1, index(range.bottom, srcSize.height) - top + 1});
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "geometry/affine.def"
ROTATE_TRANSFORM_FAMILY
ROTATE_SHIFT_FAMILY
AFFINE_TRANSFORM_FAMILY
AFFINE_QUAD_FAMILY
AFFINE_BOUND_FAMILY
ROTATE_QUAD_FAMILY
ROTATE_BOUND_FAMILY
AFFINE_SRC_ROI_FAMILY
PERSPECTIVE_TRANSFORM_FAMILY
PERSPECTIVE_QUAD_FAMILY
PERSPECTIVE_BOUND_FAMILY
PERSPECTIVE_SRC_ROI_FAMILY
BILINEAR_TRANSFORM_FAMILY
BILINEAR_QUAD_FAMILY
BILINEAR_BOUND_FAMILY
