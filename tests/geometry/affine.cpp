// Affine coefficients: the formulas of the banners in plain double, sines and cosines in long double.
#include <bit>
#include <cmath>
#include <limits>

#include "harness/case.h"

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
    static const double angles[] = {0,     90,     180,     270,  360, 450, -90,
                                    1e300, 5e-324, -5e-324, 9e15, 30,  45,  89.99999999999999};
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
        const int rows = quad ? 4 : coeffs || name == "bound" ? 2 : 1;
        Image& image = c.place(name, coeffs ? 3 : name == "srcRoi" ? 4 : rows == 1 ? 1 : 2, rows);
        if (name == "srcRoi") continue;
        const double range = quad ? 500 : source && c.rng.oneIn(2) ? 200 : 2;
        for (int y = 0; y < rows; ++y)
            for (int x = 0; x < image.width; ++x) c.set(image, x, y, 0, real(c, range));
        if (!quad || p.written || c.rng.oneIn(4)) continue;
        for (int k = 0; k < 2; ++k)  // a parallelogram, up to a corner that is a little off
            put(c, "quad", 3, k,
                at(c, "quad", 0, k) + at(c, "quad", 2, k) - at(c, "quad", 1, k) + (c.rng.oneIn(3) ? 1e-12 : 0));
    }
    // Outputs may be where inputs are.
    if (!c.has("coeffs") || c.has("angle") || c.has("srcSize") || !c.rng.oneIn(4)) return;
    Image &outer = c.image(c.has("quad") ? "quad" : "coeffs"), &inner = c.image(c.has("quad") ? "coeffs" : "bound");
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
using Coefficients = std::array<std::array<double, 3>, 2>;
Coefficients coefficientsOf(Case& c) {
    const auto k = [&](int i, int j) { return at(c, "coeffs", i, j); };
    return {{{k(0, 0), k(0, 1), k(0, 2)}, {k(1, 0), k(1, 1), k(1, 2)}}};
}
Quad quadOf(Case& c, const Coefficients& coeffs) {
    const Slot& r = c.arg("srcRoi");
    const double left = double(r.a), top = double(r.b);
    const double right = left + double(r.c - 1), bottom = top + double(r.d - 1);
    Quad quad = {{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
    for (auto& [x, y] : quad) {
        const auto image = [&, x = x, y = y](size_t k) { return coeffs[k][0] * x + coeffs[k][1] * y + coeffs[k][2]; };
        x = image(0), y = image(1);
    }
    return quad;
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
void affineTransform(Case& c) {
    Quad q;
    for (size_t i = 0; i < 4; ++i) q[i] = {at(c, "quad", int(i), 0), at(c, "quad", int(i), 1)};
    if (!convex(q)) return void(c.expected = STATUS_BAD_QUAD);
    const Slot& r = c.arg("srcRoi");
    if (r.c < 2 || r.d < 2) return void(c.expected = STATUS_BAD_RECT);
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
// Of a matrix, or of a rotation's, for which the library is asked.
template <auto putResult>
void quadOrBound(Case& c) {
    Coefficients coeffs;
    if (c.has("coeffs")) {
        coeffs = coefficientsOf(c);
    } else {
        const auto transform = reinterpret_cast<StatusCode (*)(double, double, double, Coefficients*)>(
            c.library.find("zmviGetRotateTransform"));
        if (transform(bound(c, "angle"), bound(c, "xShift"), bound(c, "yShift"), &coeffs) != STATUS_OK)
            return void(c.expected = STATUS_OUT_OF_RANGE);
    }
    const Quad quad = quadOf(c, coeffs);
    putResult(c, quad);
    if (!convex(quad)) c.expected = STATUS_BAD_COEFFS;
}

void affineSrcRoi(Case& c) {
    const Coefficients coeffs = coefficientsOf(c);
    const auto& [c00, c01, c02] = coeffs[0];
    const auto& [c10, c11, c12] = coeffs[1];
    const double d = c00 * c11 - c01 * c10;
    for (const double x : {c00, c01, c02, c10, c11, c12, d})
        if (!std::isfinite(x)) return void(c.expected = STATUS_BAD_COEFFS);
    if (d == 0) return void(c.expected = STATUS_BAD_COEFFS);
    const double back[2][3] = {{c11 / d, -c01 / d, (c01 * c12 - c11 * c02) / d},
                               {-c10 / d, c00 / d, (c10 * c02 - c00 * c12) / d}};
    const Slot& to = c.arg("dstRoi");
    const int64_t lengths[] = {c.arg("srcSize").a, c.arg("srcSize").b};
    int64_t from[2], count[2];
    for (int k = 0; k < 2; ++k) {
        double least = INFINITY, greatest = -INFINITY;
        for (const double x : {double(to.a), double(to.a) + double(to.c - 1)})
            for (const double y : {double(to.b), double(to.b) + double(to.d - 1)}) {
                const double at = back[k][0] * x + (back[k][1] * y + back[k][2]);
                if (at != at) return void(c.expected = STATUS_WARN_NO_INTERSECTION);
                least = std::min(least, at), greatest = std::max(greatest, at);
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

}  // namespace

extern const Family test_zmviGetRotateTransform = {.arrange = arrangeAffine, .oracle = rotateTransform};
extern const Family test_zmviGetRotateShift = {.arrange = arrangeAffine, .oracle = rotateShift};
extern const Family test_zmviGetAffineTransform = {.arrange = arrangeAffine, .oracle = affineTransform};
extern const Family test_zmviGetAffineQuad = {.arrange = arrangeAffine, .oracle = quadOrBound<putQuad>};
extern const Family test_zmviGetAffineBound = {.arrange = arrangeAffine, .oracle = quadOrBound<putBound>};
extern const Family test_zmviGetAffineSrcRoi = {.arrange = arrangeAffine, .oracle = affineSrcRoi};
extern const Family test_zmviGetRotateQuad = {.arrange = arrangeAffine, .oracle = quadOrBound<putQuad>};
extern const Family test_zmviGetRotateBound = {.arrange = arrangeAffine, .oracle = quadOrBound<putBound>};
