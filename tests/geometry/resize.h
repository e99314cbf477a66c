// What resizing must give: a spec object as plain numbers, formed again from the sizes, and its pixels.
#pragma once

#include <climits>
#include <numeric>

#include "geometry/taps.h"

namespace test {

struct ResizeAxis {
    int64_t s = 1, d = 1;
    enum { pixel, between, weighted } kind = pixel;
    int64_t stride = 0;                  // numbers a group in the object
    std::vector<int64_t> index, first;   // what the object says, and the first tap
    std::vector<std::vector<double>> w;  // a fraction, or weights
    int64_t end(size_t i) const { return first[i] + (kind == pixel ? 1 : kind == between ? 2 : int64_t(w[i].size())); }
};

struct Resizing {
    ImageSizeL src{}, dst{};
    int interpolation = INTERP_NEAREST, lobes = 0;
    bool aa = false, real64 = false;
    float b = 0, c = 0;
    double shift[2] = {};
    ResizeAxis x, y;
    bool integers = false;  // bytes with weights of 14 bits

    int taps() const {
        return interpolation == INTERP_LINEAR    ? 2
               : interpolation == INTERP_CUBIC   ? 4
               : interpolation == INTERP_LANCZOS ? 6
                                                 : 0;
    }
    int64_t tapsInSize(int64_t s, int64_t d) const { return s <= d ? taps() : 2 * ((taps() * s + d - 1) / d); }
    int radius(const ResizeAxis& a) const {
        if (aa) return int(tapsInSize(a.s, a.d) / 2);
        return interpolation == INTERP_LANCZOS ? lobes : taps() / 2;
    }
    static double lanczos(int lobes, int i) {
        static const double pi = std::acos(-1.0);
        const double x = pi * i / 100;
        if (i == 0) return 1;
        return i % 100 == 0 || i > 100 * lobes ? 0 : float(lobes * std::sin(x) * std::sin(x / lobes) / (x * x));
    }
    template <class R>
    R table(R distance) const {
        if (!(distance < R(lobes))) return 0;
        const R s = R(100) * distance;
        const R at = R(lanczos(lobes, int(s))), next = R(lanczos(lobes, int(s) + 1));
        return at + (s - std::trunc(s)) * (next - at);
    }
    double cubic(double d) const {
        const double B = b, C = c;
        double w = 0;
        if (d < 1)
            w = ((2 - 1.5 * B - C) * d + (-3 + 2 * B + C)) * d * d + (1 - B / 3);
        else if (d < 2)
            w = (((-B / 6 - C) * d + (B + 5 * C)) * d - (8 * C + 2 * B)) * d + (4.0 / 3 * B + 4 * C);
        return std::fabs(w) < std::ldexp(1, -126) ? 0 : w;
    }
    double kept(double w) const { return real64 ? w : float(w); }
    void form(ResizeAxis& a, int64_t s, int64_t d, double moved) {
        a = {};
        a.s = s, a.d = d;
        const bool reduced = aa && s > d;
        a.stride = reduced ? tapsInSize(s, d) : taps() == 2 ? 1 : interpolation == INTERP_LANCZOS ? 2 * lobes : taps();
        const bool same = s == d && moved == 0 && !(interpolation == INTERP_CUBIC && b != 0);
        a.kind = taps() == 0 || same ? a.pixel : taps() == 2 && !reduced ? a.between : a.weighted;
        if (interpolation == INTERP_SUPER) return;
        const double r = interpolation == INTERP_LANCZOS ? lobes : taps() / 2;
        for (int64_t i = 0; i < d; ++i) {
            if (interpolation == INTERP_NEAREST) {
                const double at = (double(i) + 0.5) * (double(s) * (1 / double(d))) - 1e-10 + moved;
                a.index.push_back(std::clamp<int64_t>(int64_t(at), 0, s - 1));
                a.first.push_back(a.index.back());
                continue;
            }
            const double x = same ? double(i) : ((double(i) + 0.5) * double(s)) / double(d) - 0.5 + moved;
            const int64_t base = std::clamp<int64_t>(int64_t(std::floor(x)), -1, s - 1);
            const double f = kept(x - double(base));
            std::vector<double> w;
            if (reduced) {
                int64_t j = int64_t(x - r * double(s) / double(d)) - 3;
                const auto u = [&](int64_t at) { return (double(at) - x) * double(d) / double(s); };
                while (std::fabs(u(j)) >= r) ++j;
                a.index.push_back(j), a.first.push_back(j);
                for (; std::fabs(u(j)) < r; ++j) {
                    const double v = std::fabs(u(j));
                    w.push_back(taps() == 2 ? 1 - v : taps() == 4 ? cubic(v) : table<double>(v));
                }
                const double sum = std::accumulate(w.begin(), w.end(), 0.0);
                for (double& one : w) one = kept(one / sum);
            } else {
                a.index.push_back(base), a.first.push_back(base - (a.kind == a.pixel ? 0
                                                                   : taps() == 2     ? 0
                                                                                     : int64_t(r) - 1));
                if (taps() == 2) w = {f};
                if (taps() == 4)
                    for (int k = -1; k < 3; ++k) w.push_back(kept(cubic(std::fabs(k - f))));
                if (taps() == 6) {
                    float all[6], sum = 0;
                    for (int k = 0; k < 2 * lobes; ++k)
                        sum += all[k] = table<float>(std::fabs(float(1 - lobes) - float(f) + float(k)));
                    for (int k = 0; k < 2 * lobes; ++k) w.push_back(all[k] / sum);
                }
            }
            a.w.push_back(w);
        }
    }
    static std::vector<int> whole(const ResizeAxis& a, size_t i) {
        if (a.kind == a.pixel) return {16384};
        std::vector<double> w = a.w[i];
        if (a.kind == a.between) w = {1 - w[0], w[0]};
        std::vector<int> result;
        double over = 0;
        for (size_t k = 0; k < w.size(); ++k) {
            const double exact = 16384 * w[k] + over;
            result.push_back(int(std::nearbyint(std::clamp(exact, -1e9, 1e9))));
            over = exact - std::nearbyint(exact);
        }
        result.back() = 16384 - std::accumulate(result.begin(), result.end() - 1, 0);
        return result;
    }
    void form() {
        form(x, src.width, dst.width, shift[0]), form(y, src.height, dst.height, shift[1]);
        integers = !real64 && taps() && (taps() > 2 || aa);
        for (const ResizeAxis* a : {&x, &y})
            for (size_t i = 0; i < size_t(a->d) && integers; ++i) {
                int64_t sum = 0;
                const auto w = whole(*a, i);
                for (const int one : w) sum += std::abs(int64_t(one));
                integers = w.size() <= 16 && sum <= 32767;
            }
    }
    int64_t superEnd(const ResizeAxis& a, int64_t i) const { return ((i + 1) * a.s + a.d - 1) / a.d; }
    // What pixels from .. to of an axis take, seen from inside the source: the mirror as far inside as outside.
    std::pair<int64_t, int64_t> needed(const ResizeAxis& a, int64_t from, int64_t to) const {
        if (interpolation == INTERP_SUPER) return {from * a.s / a.d, superEnd(a, to - 1)};
        int64_t low = a.s, high = 0;
        for (int64_t i = from; i < to; ++i)
            for (int64_t j = a.first[size_t(i)]; j < a.end(size_t(i)); ++j) {
                const int64_t outside = j < 0 ? -j : std::max<int64_t>(0, j - a.s + 1);
                const int64_t near = j < 0 ? 0 : std::min(j, a.s - 1);
                const int64_t far = std::clamp<int64_t>(j < 0 ? outside : near - outside, 0, a.s - 1);
                low = std::min({low, near, outside ? far : near}),
                high = std::max({high, near + 1, (outside ? far : near) + 1});
            }
        return {low, high};
    }
    int64_t specBytes() const {
        const auto up = [](int64_t n) { return (n + 31) / 32 * 32; };
        const auto down = [](int64_t n) { return n / 128 * 128; };
        const int64_t W = up(dst.width), H = up(dst.height), e = real64 ? 8 : 4;
        const auto side = [](int64_t s, int64_t d) {
            const int64_t g = std::gcd(s, d), q = s / g / (d / g), r = s / g % (d / g);
            return (q + std::min<int64_t>(r, 2) + 1) * (d / g);
        };
        const int64_t px = side(src.width, dst.width), py = side(src.height, dst.height);
        if (interpolation == INTERP_NEAREST) return (W + H) * 4 + 400;
        if (interpolation == INTERP_SUPER) return down(4 * py + 124) + down(4 * px + 124) + (px + py) * 4 + 400;
        if (aa)
            return up(e * dst.width * tapsInSize(src.width, dst.width)) +
                   up(e * dst.height * tapsInSize(src.height, dst.height)) + (W + H) * 4 + 400;
        if (interpolation == INTERP_LINEAR) return real64 ? (W + H) * 12 + 384 : (W + H) * 8 + 400;
        const int64_t k = interpolation == INTERP_CUBIC ? 16 : 24, more = interpolation == INTERP_CUBIC ? 508 : 764;
        return down(k * dst.height + more) + down(k * dst.width + more) + (W + H) * 4 + 400;
    }
    int64_t initBytes() const {
        const int64_t sides = (dst.width + 31) / 32 * 32 + (dst.height + 31) / 32 * 32;
        return taps() == 0 || (taps() == 2 && !aa) ? 64 : sides * (aa ? 8 : 4) + 64;
    }
    __int128 bufferBytes(int64_t w, int64_t h, int n) const {
        using Size = __int128;
        const auto up = [](Size k) { return (k + 31) / 32 * 32; };
        w = std::min(w, dst.width), h = std::min(h, dst.height);
        const int64_t e = real64 ? 8 : 4;
        Size size = up(4 * Size(h)) + up(4 * Size(w)) + 64;
        const int rx = radius(x), ry = radius(y);
        if (interpolation == INTERP_SUPER) {
            const int64_t g = std::gcd(src.width, dst.width), gy = std::gcd(src.height, dst.height);
            const float columns = float(w) * float(src.width / g) / float(dst.width / g) + 3.0f;
            const int64_t sums = (std::min(src.width, int64_t(columns)) + 32) / 32 * 32;
            size += (Size(n) * sums * 4 + 8) * std::min(h, dst.height / gy) + 64;
        } else if (aa) {
            size += up(Size(n) * w * e) * 2 * std::max(rx, ry) + up(Size(e) * w * 2 * rx) + up(Size(e) * h * 2 * ry);
        } else {
            size += up(Size(n) * w * e) * 2 * rx;
        }
        return size;
    }
};
inline Resizing arrangedResizing;  // for the oracle of the same case

inline int methodOf(const std::string& name) {
    const std::pair<const char*, int> names[] = {{"Nearest", INTERP_NEAREST},
                                                 {"Linear", INTERP_LINEAR},
                                                 {"Cubic", INTERP_CUBIC},
                                                 {"Super", INTERP_SUPER},
                                                 {"Lanczos", INTERP_LANCZOS}};
    for (const auto& [part, interpolation] : names)
        if (name.find(part) != name.npos) return interpolation;
    return 0;
}

// ---- The arithmetic of pixels ----

template <class R>
std::vector<R> weightsOf(const ResizeAxis& a, size_t i) {
    return a.kind == a.pixel ? std::vector<R>() : std::vector<R>(a.w[i].begin(), a.w[i].end());
}
template <class T>
T meanOf(double total, int64_t area) {
    return T(total / double(area));
}
template <class T>
T meanOf(__int128 total, int64_t area) {  // exactly, ties to even
    total += __int128(area) << 16;        // none negative, and as even as before
    const __int128 whole = total / area, rest = 2 * (total % area);
    return T(whole + (rest > area || (rest == area && whole % 2)) - 65536);
}
inline int64_t steps14(const ResizeAxis& axis, size_t i) {
    return axis.kind == axis.pixel ? 0 : std::min<int64_t>(std::lround(16384 * axis.w[i][0]), 16383);
}
template <class At>
int64_t whole(const ResizeAxis& axis, size_t i, At at) {
    int64_t total = 0;
    const auto w = Resizing::whole(axis, i);
    for (size_t k = 0; k < w.size(); ++k) total += w[k] * at(axis.first[i] + int64_t(k));
    return total;
}
// Pixel (i, j) from at(column, row).
template <class T, class At>
T pixel(const Resizing& m, size_t i, size_t j, At at) {
    if (m.interpolation == INTERP_SUPER) {
        const auto overlap = [](const ResizeAxis& a, int64_t k, int64_t p) {
            const int64_t g = std::gcd(a.s, a.d), s = a.s / g, d = a.d / g;
            return std::min((k + 1) * s, (p + 1) * d) - std::max(k * s, p * d);
        };
        const int64_t area = m.x.s / std::gcd(m.x.s, m.x.d) * (m.y.s / std::gcd(m.y.s, m.y.d));
        const int64_t x0 = int64_t(i) * m.x.s / m.x.d, y0 = int64_t(j) * m.y.s / m.y.d;
        using Sum = std::conditional_t<std::is_integral_v<T>, __int128, double>;
        Sum total = 0;
        for (int64_t c = x0; c < m.superEnd(m.x, int64_t(i)); ++c) {
            Sum column = 0;
            for (int64_t r = y0; r < m.superEnd(m.y, int64_t(j)); ++r) {
                const Sum term = product(Sum(at(c, r)), Sum(overlap(m.y, int64_t(j), r)));
                column = r == y0 ? term : sum(column, term);
            }
            const Sum term = product(column, Sum(overlap(m.x, int64_t(i), c)));
            total = c == x0 ? term : sum(total, term);
        }
        return meanOf<T>(total, area);
    }
    if constexpr (sizeof(T) == 1) {
        if (m.interpolation == INTERP_LINEAR && !(m.aa && (m.x.s > m.x.d || m.y.s > m.y.d))) {
            const auto mix = [](int64_t a, int64_t b, int64_t f) { return a + (((b - a) * f + 8192) >> 14); };
            const auto row = [&](int64_t r) {
                const int64_t c = m.x.first[i], f = steps14(m.x, i);
                return mix(128 * at(c, r), 128 * (f ? at(c + 1, r) : 0), f);
            };
            const int64_t r = m.y.first[j], f = steps14(m.y, j);
            return T((mix(row(r), f ? row(r + 1) : 0, f) + 64) >> 7);
        }
        if (m.integers) {
            const auto row = [&](int64_t r) { return (whole(m.x, i, [&](int64_t c) { return at(c, r); }) + 128) >> 8; };
            return T(std::clamp<int64_t>((whole(m.y, j, row) + (1 << 19)) >> 20, 0, 255));
        }
    }
    using R = std::conditional_t<sizeof(T) == 8, double, float>;
    const auto wx = weightsOf<R>(m.x, i), wy = weightsOf<R>(m.y, j);
    const auto row = [&](int64_t r) { return along(wx, m.x.first[i], [&](int64_t c) { return R(at(c, r)); }); };
    return rounded<T>(along(wy, m.y.first[j], row));
}

}  // namespace test
