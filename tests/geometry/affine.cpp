// Coefficients of maps: the formulas of the banners in plain double, sines and cosines in long double.
#include <gtest/gtest.h>

#include <bit>

#include "geometry/warp.h"

namespace {

using namespace test;

double real(Case& c, double range) {
    static const double odd[] = {0, -0.0, 1, -1, 1e300, -1e300, 5e-324, INFINITY, -INFINITY, NAN, 1e-200, 3};
    if (c.rng.oneIn(24)) return odd[c.rng.below(int(std::size(odd)))];
    if (c.rng.oneIn(3)) return c.rng.between(-int(range), int(range));
    return (c.rng.below(1 << 30) / double(1 << 29) - 1) * range;
}
double bound(Case& c, const char* name) { return std::bit_cast<double>(c.arg(name).a); }
double at(Case& c, const char* name, int row, int column) { return c.get<double>(c.image(name), column, row); }
// NaN has one form.
void put(Case& c, const char* name, int row, int column, double value) {
    c.set(c.image(name), column, row, 0, value == value ? value : NAN);
}
// A value that need only be near: what the library wrote, if it is.
void putNear(Case& c, const char* name, int row, int column, long double value, long double error) {
    const double given = c.result<double>(c.image(name), column, row);
    if (!(fabsl(given - value) <= error)) c.fail("is too far from " + std::to_string(double(value)));
    put(c, name, row, column, given);
}

// Numbers where all outputs and inputs are, rectangles near the limits, angles of every kind.
void arrangeAffine(Case& c) {
    // Of the last -152 is left.
    static const double angles[] = {
        0, 90, 180, 270, 360, 450, -90, 1e300, 5e-324, -5e-324, 9e15, 30, 45, 89.99999999999999, 3.32821536696692e18};
    const int64_t far = c.member.large ? INT64_MAX / 2 : INT32_MAX;
    const auto length = [&] {
        return c.rng.oneIn(8) ? far - c.rng.below(3) : c.rng.between(1, c.rng.oneIn(4) ? 2 : 300);
    };
    const auto place = [&](bool negative) {
        return negative ? c.rng.between(-300, 300) : c.rng.oneIn(8) ? far - c.rng.below(3) : c.rng.below(300);
    };
    for (const Parameter& p : c.member.params) {
        const std::string& name = p.name;
        const bool source = c.has("srcSize");  // what a rectangle of the destination comes from
        if (p.role == Role::size) c.arg(name) = {length(), length()};
        if (p.role == Role::rectangle) c.arg(name) = {place(source), place(source), length(), length()};
        if (p.type == "double" && !p.pointer)
            c.arg(name) = std::bit_cast<int64_t>(
                name == "angle" && c.rng.oneIn(2) ? angles[c.rng.below(int(std::size(angles)))] : real(c, 5000));
        if (!p.pointer) continue;
        const bool quad = name == "quad", coeffs = name == "coeffs";
        const bool perspective = c.member.name.find("Persp") != std::string::npos;
        const int rows = quad ? 4 : coeffs && perspective ? 3 : coeffs || name == "bound" ? 2 : 1;
        const int columns = c.member.name.find("Bilinear") != std::string::npos ? 4 : 3;
        Image& image = c.place(name, coeffs ? columns : name == "srcRoi" ? 4 : rows == 1 ? 1 : 2, rows);
        if (name == "srcRoi") continue;
        const double range = quad ? 500 : source && c.rng.oneIn(2) ? 200 : 2;
        for (int y = 0; y < rows; ++y)
            for (int x = 0; x < image.width; ++x) c.set(image, x, y, 0, real(c, range));
        if (rows == 3 && !c.rng.oneIn(4)) {  // no vanishing line near
            put(c, "coeffs", 2, 0, real(c, 1) / 4096), put(c, "coeffs", 2, 1, real(c, 1) / 4096);
            put(c, "coeffs", 2, 2, c.rng.oneIn(2) ? 1 : -1);
        }
        if (columns == 4 && coeffs && !c.rng.oneIn(4))
            for (int y = 0; y < 2; ++y) put(c, "coeffs", y, 0, real(c, 1) / 1024);
        if (!quad || p.written || c.rng.oneIn(4)) continue;
        for (int k = 0; k < 2; ++k)  // a parallelogram, up to a corner that is a little off
            put(c, "quad", 3, k,
                at(c, "quad", 0, k) + at(c, "quad", 2, k) - at(c, "quad", 1, k) + (c.rng.oneIn(3) ? 1e-12 : 0) +
                    (c.rng.oneIn(3) ? real(c, 100) : 0));
    }
    // Outputs may be where inputs are.
    if (!c.has("coeffs") || c.has("angle") || c.has("srcSize") || !c.rng.oneIn(4)) return;
    const bool large = c.image("coeffs").height == 3;  // which holds the other
    Image &outer = c.image(c.has("quad") && !large ? "quad" : "coeffs"), &inner = c.image(!c.has("quad") ? "bound"
                                                                                          : large        ? "quad"
                                                                                                         : "coeffs");
    inner.block[0] = outer.block[0], inner.first[0] = outer.first[0], inner.pointer[0] = outer.pointer[0];
    c.arg(inner.name) = inner.pointer[0];
}

double reduced(double angle) {
    double a = angle - std::trunc(angle * 0.002777777777777778) * 360;
    if (a < 0) a += 360;
    return a < 0 || a > 360 ? 0 : a;
}
long double ulpOf(long double x) { return std::nextafter(std::fabs(double(x)), INFINITY) - std::fabs(double(x)); }
void rotateTransform(Case& c) {
    const double angle = bound(c, "angle");
    if (!std::isfinite(angle)) return void(c.expected = STATUS_OUT_OF_RANGE);
    const double a = reduced(angle), r = a * 0.017453292519943295;
    const int quarter = a == 0 ? 0 : a == 90 ? 1 : a == 180 ? 2 : a == 270 ? 3 : -1;
    const long double s = quarter < 0 ? sinl(r) : quarter == 1 ? 1 : quarter == 3 ? -1 : 0;
    const long double k = quarter < 0 ? cosl(r) : quarter == 0 ? 1 : quarter == 2 ? -1 : 0;
    const long double inexact = quarter < 0;
    putNear(c, "coeffs", 0, 0, k, inexact * ulpOf(k)), putNear(c, "coeffs", 1, 1, k, inexact * ulpOf(k));
    putNear(c, "coeffs", 0, 1, s, inexact * ulpOf(s)), putNear(c, "coeffs", 1, 0, -s, inexact * ulpOf(s));
    const double cosine = at(c, "coeffs", 0, 0), sine = at(c, "coeffs", 0, 1);
    if (cosine != at(c, "coeffs", 1, 1) || sine != -at(c, "coeffs", 1, 0)) c.fail("is no rotation");
    if (std::fabs(sine * sine + cosine * cosine - 1) > 4e-16) c.fail("stretches");
    put(c, "coeffs", 0, 2, bound(c, "xShift")), put(c, "coeffs", 1, 2, bound(c, "yShift"));
}
void rotateShift(Case& c) {
    const double angle = bound(c, "angle"), x = bound(c, "xCenter"), y = bound(c, "yCenter"), a = reduced(angle);
    const auto both = [&](double dx, double dy) { put(c, "xShift", 0, 0, dx), put(c, "yShift", 0, 0, dy); };
    if (!std::isfinite(angle)) return both(NAN, NAN);
    if (a == 0) return both(0, 0);
    if (a == 90) return both(x - y, y + x);
    if (a == 180) return both(2 * x, 2 * y);
    if (a == 270) return both(y + x, y - x);
    const double r = a * 0.017453292519943295;
    if (!std::isfinite(x - y))
        return both(x - (double(sinl(r)) * y + double(cosl(r)) * x), y - y * double(cosl(r)) + double(sinl(r)) * x);
    const long double error = 4 * ulpOf(fabsl(x) + fabsl(y));
    putNear(c, "xShift", 0, 0, x - (sinl(r) * y + cosl(r) * x), error);
    putNear(c, "yShift", 0, 0, y - y * cosl(r) + sinl(r) * x, error);
}

using Quad = std::array<std::array<double, 2>, 4>;
Quad cornersOf(const Slot& r) {
    const double left = double(r.a), top = double(r.b), right = left + double(r.c - 1), bottom = top + double(r.d - 1);
    return {{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
}
// The map of the coefficients that are given, or of a rotation, for which the library is asked.
Warp mapOf(Case& c) {
    Warp w;
    w.direction = c.has("srcSize") ? WARP_FORWARD : WARP_BACKWARD;
    double turned[2][3] = {};
    if (!c.has("coeffs")) {
        const auto transform = FIND(c.library, zmviGetRotateTransform);
        c.expected = transform(bound(c, "angle"), bound(c, "xShift"), bound(c, "yShift"), turned);
    } else if (c.image("coeffs").width == 4) {
        w.map = Warp::bilinear;
    } else if (c.image("coeffs").height == 3) {
        w.map = Warp::perspective;
    }
    for (int i = 0; i < w.rows(); ++i)
        for (int j = 0; j < w.columns(); ++j) w.c[i][j] = c.has("coeffs") ? at(c, "coeffs", i, j) : turned[i][j];
    return w.form(), w;
}
// Where a map takes corners, and whether they are seen from one side.
bool takeCorners(const Warp& w, Quad& quad) {
    int front = 0, behind = 0;
    for (auto& [x, y] : quad) {
        const double d = w.line(2, x, y);
        const bool counts = std::isfinite(d) || !w.forward();
        front += d > 0 && counts, behind += d < 0 && counts;
        const WarpPoint p = w.at(x, y);
        x = p.x, y = p.y;
    }
    return w.map != Warp::perspective || front == 4 || behind == 4;
}
bool convex(const Quad& q) {
    int left = 0, right = 0;
    for (size_t i = 0; i < 4; ++i) {
        const auto &a = q[i], &b = q[(i + 1) % 4], &d = q[(i + 2) % 4];
        if (!std::isfinite(a[0]) || !std::isfinite(a[1])) return false;
        const double turn = (b[0] - a[0]) * (d[1] - b[1]) - (b[1] - a[1]) * (d[0] - b[0]);
        left += turn > 0, right += turn < 0;
    }
    return left == 4 || right == 4;
}
Quad givenQuad(Case& c) {
    Quad q;
    for (size_t i = 0; i < 4; ++i) q[i] = {at(c, "quad", int(i), 0), at(c, "quad", int(i), 1)};
    const Slot& r = c.arg("srcRoi");
    c.expected = !convex(q) ? STATUS_BAD_QUAD : r.c < 2 || r.d < 2 ? STATUS_BAD_RECT : STATUS_OK;
    return q;
}
void affineTransform(Case& c) {
    const Quad q = givenQuad(c);
    if (c.expected != STATUS_OK) return;
    const Slot& r = c.arg("srcRoi");
    const auto differ = [](double p, double d) {
        return std::fabs(p) <= 1e-200 ? std::fabs(d) > 1e-10 : std::fabs((p - d) / p) > 1e-10;
    };
    if (differ((q[1][1] - q[0][1]) * (q[3][0] - q[2][0]), (q[3][1] - q[2][1]) * (q[1][0] - q[0][0])) ||
        differ((q[0][1] - q[3][1]) * (q[2][0] - q[1][0]), (q[2][1] - q[1][1]) * (q[0][0] - q[3][0])))
        c.expected = STATUS_WARN_NOT_PARALLELOGRAM;
    for (int k = 0; k < 2; ++k) {
        const size_t axis = size_t(k);
        const double across = (q[1][axis] - q[0][axis]) / double(r.c - 1);
        const double down = (q[2][axis] - q[1][axis]) / double(r.d - 1);
        put(c, "coeffs", k, 0, across), put(c, "coeffs", k, 1, down);
        put(c, "coeffs", k, 2, (q[0][axis] - across * double(r.a)) - down * double(r.b));
    }
}
void putQuad(Case& c, const Quad& quad) {
    for (int i = 0; i < 4; ++i)
        for (int k = 0; k < 2; ++k) put(c, "quad", i, k, quad[size_t(i)][size_t(k)]);
}
void putBound(Case& c, const Quad& quad) {
    for (size_t k = 0; k < 2; ++k) {
        double least = INFINITY, greatest = -INFINITY;
        for (const auto& corner : quad) least = std::min(least, corner[k]), greatest = std::max(greatest, corner[k]);
        for (const auto& corner : quad)
            if (corner[k] != corner[k]) least = greatest = NAN;
        put(c, "bound", 0, int(k), least), put(c, "bound", 1, int(k), greatest);
    }
}
template <auto putResult>
void quadOrBound(Case& c) {
    const Warp w = mapOf(c);
    if (c.expected != STATUS_OK) return;
    Quad quad = cornersOf(c.arg("srcRoi")), image = quad;
    const bool oneSide = takeCorners(w, image);
    for (size_t i = 0; i < 4 && w.map == Warp::affine; ++i)  // in the order of its banner
        for (size_t k = 0; k < 2; ++k) image[i][k] = w.c[k][0] * quad[i][0] + w.c[k][1] * quad[i][1] + w.c[k][2];
    putResult(c, image);
    if (!convex(image) || !oneSide) c.expected = STATUS_BAD_COEFFS;
}

// ---- Maps with four numbers more, or two ----

void perspectiveTransform(Case& c) {
    const auto q = givenQuad(c);
    if (c.expected != STATUS_OK) return;
    const Slot& r = c.arg("srcRoi");
    const double w = double(r.c - 1), h = double(r.d - 1);
    const auto X = [&](size_t i) { return q[i][0]; };
    const auto Y = [&](size_t i) { return q[i][1]; };
    const double x1 = X(1) - X(2), x2 = X(3) - X(2), x3 = ((X(0) - X(1)) + X(2)) - X(3);
    const double y1 = Y(1) - Y(2), y2 = Y(3) - Y(2), y3 = ((Y(0) - Y(1)) + Y(2)) - Y(3);
    const double e = x1 * y2 - x2 * y1, g = (x3 * y2 - x2 * y3) / e, k = (x1 * y3 - x3 * y1) / e;
    double rows[3][3] = {{X(1) - X(0) + g * X(1), X(3) - X(0) + k * X(3), X(0)},
                         {Y(1) - Y(0) + g * Y(1), Y(3) - Y(0) + k * Y(3), Y(0)},
                         {g, k, 1}};
    for (auto& [l, m, n] : rows) l /= w, m /= h, n = (n - l * double(r.a)) - m * double(r.b);
    const double last = rows[2][2];
    for (int i = 0; i < 9; ++i)
        put(c, "coeffs", i / 3, i % 3, last != 0 ? rows[i / 3][i % 3] / last : rows[i / 3][i % 3]);
}
void bilinearTransform(Case& c) {
    const auto q = givenQuad(c);
    if (c.expected != STATUS_OK) return;
    const Slot& r = c.arg("srcRoi");
    const double w = double(r.c - 1), h = double(r.d - 1), x = double(r.a), y = double(r.b);
    for (size_t k = 0; k < 2; ++k) {
        const double e = ((q[0][k] - q[1][k]) + q[2][k]) - q[3][k], f = q[1][k] - q[0][k], g = q[3][k] - q[0][k];
        const double c0 = e / (w * h);
        const double all[] = {c0, f / w - c0 * y, g / h - c0 * x,
                              ((q[0][k] - (f / w) * x) - (g / h) * y) + (c0 * x) * y};
        for (int i = 0; i < 4; ++i) put(c, "coeffs", int(k), i, all[i]);
    }
}
void putSrcRoi(Case& c, const Quad& corners) {
    const int64_t lengths[] = {c.arg("srcSize").a, c.arg("srcSize").b};
    int64_t from[2], count[2];
    for (size_t k = 0; k < 2; ++k) {
        double least = INFINITY, greatest = -INFINITY;
        for (const auto& corner : corners) {
            if (corner[k] != corner[k]) return void(c.expected = STATUS_WARN_NO_INTERSECTION);
            least = std::min(least, corner[k]), greatest = std::max(greatest, corner[k]);
        }
        const double end = double(lengths[k] - 1), first = std::max(std::floor(least), 0.0),
                     last = std::min(std::ceil(greatest), end);
        if (first > last) return void(c.expected = STATUS_WARN_NO_INTERSECTION);
        const auto index = [&](double x) { return x == end ? lengths[k] - 1 : int64_t(x); };
        from[k] = index(first), count[k] = index(last) - from[k] + 1;
    }
    const int64_t all[] = {from[0], from[1], count[0], count[1]};
    for (int i = 0; i < 4; ++i)
        if (c.member.large)
            c.set(c.image("srcRoi"), i, 0, 0, all[i]);
        else
            c.set(c.image("srcRoi"), i, 0, 0, int32_t(all[i]));
}
void srcRoi(Case& c) {
    const Warp w = mapOf(c);
    if (!w.finite || w.determinant == 0 || !std::isfinite(w.determinant)) return void(c.expected = STATUS_BAD_COEFFS);
    Quad corners = cornersOf(c.arg("dstRoi"));
    const double right = double(c.arg("srcSize").a - 1), bottom = double(c.arg("srcSize").b - 1);
    if (!takeCorners(w, corners)) corners = {{{0, 0}, {right, 0}, {right, bottom}, {0, bottom}}};
    putSrcRoi(c, corners);
}

// Products that cancel where both are infinite: one corner is none, and the first one is not it.
TEST(Affine, BoundOfACornerThatIsNone) {
    constexpr int64_t far = INT64_MAX / 2;
    const double coeffs[2][3] = {{1e300, -1e300, 0}, {1, 0, 0}};
    for (const Library& library : builds()) {
        double bound[2][2] = {};
        EXPECT_EQ(FIND(library, zmviGetAffineBound_L)({1, 1, far, far}, bound, coeffs), STATUS_BAD_COEFFS);
        EXPECT_TRUE(bound[0][0] != bound[0][0] && bound[1][0] != bound[1][0]) << library.build;
        EXPECT_EQ(bound[0][1], 1) << library.build;
        EXPECT_EQ(bound[1][1], double(far)) << library.build;
    }
}

}  // namespace

#define TESTED(name, ...) extern const Family test_zmviGet##name = {.arrange = arrangeAffine, .oracle = __VA_ARGS__};
#define CORNERS(map) TESTED(map##Quad, quadOrBound<putQuad>) TESTED(map##Bound, quadOrBound<putBound>)
TESTED(RotateTransform, rotateTransform)
TESTED(RotateShift, rotateShift) CORNERS(Rotate) TESTED(AffineTransform, affineTransform) TESTED(AffineSrcRoi, srcRoi)
    CORNERS(Affine) TESTED(PerspectiveTransform, perspectiveTransform) TESTED(PerspectiveSrcRoi, srcRoi)
        CORNERS(Perspective) TESTED(BilinearTransform, bilinearTransform) CORNERS(Bilinear)
