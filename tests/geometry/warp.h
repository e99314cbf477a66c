// What warps must give: an object as plain numbers, the point that each destination pixel comes from, by the formulas
// of the banners, one at a time.
#pragma once

#include "geometry/taps.h"
#include "harness/spec.h"

namespace test {

struct WarpPoint {
    double x, y;
};

struct Warp {
    enum Map { affine, perspective, bilinear } map = affine;
    int interpolation = INTERP_LINEAR, direction = WARP_BACKWARD, smooth = 0;
    ImageSizeL src{5, 5}, dst{5, 5};
    ImageRectL roi{0, 0, 5, 5};
    double c[3][4] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    float B = 0, C = 0.5f;

    int rows() const { return map == perspective ? 3 : 2; }
    int columns() const { return map == bilinear ? 4 : 3; }
    int numbers() const { return rows() * columns(); }
    bool empty() const { return roi.x >= src.width || roi.y >= src.height; }
    int64_t width() const { return std::min(roi.width, src.width - roi.x); }
    int64_t height() const { return std::min(roi.height, src.height - roi.y); }
    bool forward() const { return direction == WARP_FORWARD; }

    double b[3][3] = {};                  // of a matrix from destination to source
    double p0[4], p1[4], K, A, G, s = 0;  // of a bilinear map seen from the region's first pixel, and its Jacobian

    double determinant = 0;
    bool finite = true;  // all coefficients

    double jacobian(double x, double y) const { return (K + G * x) + A * y; }
    // Whether it is a map.
    bool form() {
        finite = true;
        for (int i = 0; i < numbers(); ++i) finite &= std::isfinite(c[i / columns()][i % columns()]);
        double all = 0, d = 0;  // zero where all is finite
        if (map == affine) {
            d = c[0][0] * c[1][1] - c[0][1] * c[1][0];
            const double back[2][3] = {{c[1][1] / d, -c[0][1] / d, (c[0][1] * c[1][2] - c[1][1] * c[0][2]) / d},
                                       {-c[1][0] / d, c[0][0] / d, (c[1][0] * c[0][2] - c[0][0] * c[1][2]) / d}};
            for (int i = 0; i < 6; ++i) b[i / 3][i % 3] = forward() ? back[i / 3][i % 3] : c[i / 3][i % 3];
        } else if (map == perspective) {
            double adjugate[3][3];
            for (int i = 0; i < 3; ++i)
                for (int j = 0; j < 3; ++j) {  // the cofactor of row j and column i
                    const int r = (j + 1) % 3, t = (j + 2) % 3, k = (i + 1) % 3, l = (i + 2) % 3;
                    adjugate[i][j] = c[r][k] * c[t][l] - c[r][l] * c[t][k];
                    if (forward()) all += adjugate[i][j] * 0;
                }
            d = (c[0][0] * adjugate[0][0] + c[0][1] * adjugate[1][0]) + c[0][2] * adjugate[2][0];
            for (int i = 0; i < 9; ++i) b[i / 3][i % 3] = forward() ? adjugate[i / 3][i % 3] : c[i / 3][i % 3];
        } else {
            const double xm = double(roi.x), ym = double(roi.y);
            const auto moved = [&](const double* k, double* to) {
                const bool off = forward() && !empty();
                const double x = off ? xm : 0, y = off ? ym : 0;
                to[0] = k[0], to[1] = k[1] + k[0] * y, to[2] = k[2] + k[0] * x;
                to[3] = ((k[0] * x) * y + k[1] * x) + (k[2] * y + k[3]);
            };
            moved(c[0], p0), moved(c[1], p1);
            K = p0[1] * p1[2] - p0[2] * p1[1], A = p0[0] * p1[2] - p0[2] * p1[0], G = p0[1] * p1[0] - p0[0] * p1[1];
            all = K * 0 + A * 0 + G * 0, d = K == 0 && A == 0 && G == 0 ? 0 : 1;
            if (forward() && !empty()) {
                int up = 0, down = 0;
                for (const int64_t x : {int64_t(0), width() - 1})
                    for (const int64_t y : {int64_t(0), height() - 1})
                        up += jacobian(double(x), double(y)) > 0, down += jacobian(double(x), double(y)) < 0;
                if (up != 4 && down != 4) return false;
                s = up ? 1 : -1;
            }
        }
        if (map == affine && forward())
            for (int i = 0; i < 6; ++i) all += b[i / 3][i % 3] * 0;
        determinant = d;
        return finite && all == 0 && d != 0 && std::isfinite(d);
    }

    double line(int i, double X, double Y) const { return b[i][0] * X + (b[i][1] * Y + b[i][2]); }
    WarpPoint at(double X, double Y) const {
        const double x1 = line(0, X, Y), y1 = line(1, X, Y), d1 = line(2, X, Y);
        if (map == affine) return {x1, y1};
        if (map == perspective) return {x1 / d1, y1 / d1};
        if (!forward()) {
            const auto one = [&](const double* k) { return (k[0] * Y + k[1]) * X + (k[2] * Y + k[3]); };
            return {one(c[0]), one(c[1])};
        }
        const double u = X - p0[3], v = Y - p1[3];
        const double bb = (u * p1[0] - v * p0[0]) + K, cc = u * p1[1] - v * p0[1];
        const double r = s * std::sqrt(bb * bb - (4 * A) * cc);
        const double y = s * bb > 0 ? (-2 * cc) / (bb + r) : (r - bb) / (2 * A);
        const double p = p0[0] * y + p0[1], q = p1[0] * y + p1[1];
        const double x = std::fabs(p) >= std::fabs(q) ? (u - p0[2] * y) / p : (v - p1[2] * y) / q;
        return {x + double(roi.x), y + double(roi.y)};
    }

    // What a fraction makes the taps of the method count.
    template <class W>
    std::vector<W> weights(W f) const {
        if (interpolation == INTERP_NEAREST) return {};
        if (interpolation == INTERP_LINEAR) return {f};
        const double b3 = B, c3 = C;
        const double polynomials[4][4] = {{-b3 / 6 - c3, b3 / 2 + 2 * c3, -b3 / 2 - c3, b3 / 6},
                                          {2 - 1.5 * b3 - c3, -3 + 2 * b3 + c3, 0, 1 - b3 / 3},
                                          {-2 + 1.5 * b3 + c3, 3 - 2.5 * b3 - 2 * c3, b3 / 2 + c3, b3 / 6},
                                          {b3 / 6 + c3, -c3, 0, 0}};
        std::vector<W> w;
        for (const auto& p : polynomials) w.push_back(((W(p[0]) * f + W(p[1])) * f + W(p[2])) * f + W(p[3]));
        return w;
    }
};
inline Warp arrangedWarp;  // for the oracle of the same case

inline constexpr const char* warpMaps[] = {"Affine", "Perspective", "Bilinear"};
inline constexpr int64_t warpSpecBytes = 512;
inline std::string nameOf(const Warp& w) {
    const std::string map = warpMaps[w.map];
    return map + (w.interpolation == INTERP_NEAREST  ? "Nearest"
                  : w.interpolation == INTERP_LINEAR ? "Linear"
                                                     : "Cubic");
}
inline StatusCode makeWarp(const Library& library, const Warp& w, void* block) {
    const bool wide = w.map != Warp::bilinear;
    double k[12];
    for (int i = 0; i < w.numbers(); ++i) k[i] = w.c[i / w.columns()][i % w.columns()];
    void* const init = library.find("zmviWarp" + nameOf(w) + "Init" + (wide ? "_L" : ""));
    const auto call = [&](auto src, auto roi, auto dst) {
        using Size = decltype(src);
        using Rect = decltype(roi);
        if (w.interpolation != INTERP_CUBIC)
            return reinterpret_cast<StatusCode (*)(Size, Rect, Size, const double*, int, int, void*)>(init)(
                src, roi, dst, k, w.direction, w.smooth, block);
        return reinterpret_cast<StatusCode (*)(Size, Rect, Size, const double*, int, int, float, float, void*)>(init)(
            src, roi, dst, k, w.direction, w.smooth, w.B, w.C, block);
    };
    if (wide) return call(w.src, w.roi, w.dst);
    const auto& r = w.roi;
    return call(ImageSize{int(w.src.width), int(w.src.height)},
                ImageRect{int(r.x), int(r.y), int(r.width), int(r.height)},
                ImageSize{int(w.dst.width), int(w.dst.height)});
}

}  // namespace test
