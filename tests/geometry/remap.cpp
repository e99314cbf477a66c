// zmviRemap: a scalar rule of each kernel, in the map's type and in the order that the banner gives.
#include "geometry/taps.h"

namespace {

using namespace test;

constexpr uint32_t smoothEdge = 0x80000000u;

// Coordinates: inside, on pixels, halfway, at the region's edges and up to a pixel outside them, and what no pixel has.
template <class W>
W coordinate(Case& c, int first, int last) {
    const W edges[] = {W(first), W(last), W(first - 1), W(last + 1)};
    static const double odd[] = {NAN, INFINITY, 1e30, -0x1p31, 0x1p32, -0.0};
    const W inside = W(first) + W(last - first) * W(c.rng.below(1 << 20)) / W(1 << 20);
    switch (c.rng.below(12)) {
        case 0:
            return c.rng.oneIn(4) ? std::nextafter(W(0), W(c.rng.between(-1, 1))) : W(odd[c.rng.below(6)]);
        case 1: {
            const W edge = edges[c.rng.below(4)];
            const int to = c.rng.below(3);
            return to == 0 ? edge : std::nextafter(edge, to == 1 ? W(-1e9) : W(1e9));
        }
        case 2:
            return W(c.rng.between(first, last));
        case 3: {
            const W half = W(c.rng.between(first, last)) + W(0.5);
            return c.rng.oneIn(2) ? half : std::nextafter(half, W(c.rng.oneIn(2) ? 1e9 : -1e9));
        }
        case 4:
            return edges[c.rng.below(4)] + W(c.rng.below(1024) - 512) / W(512);
        default:
            return inside;
    }
}

template <class W>
void fillMap(Case& c, Image& map, int first, int last, bool tame) {
    for (int64_t y = 0; y < map.height; ++y)
        for (int64_t x = 0; x < map.width; ++x) {
            W v = coordinate<W>(c, first, last);
            if (tame && !(v >= W(first) && v <= W(last))) v = W(first);
            c.set(map, x, y, 0, v);
        }
}

void arrangeRemap(Case& c) {
    const int kinds[] = {INTERP_NEAREST, INTERP_LINEAR, INTERP_CUBIC_ALT, INTERP_CUBIC, INTERP_LANCZOS};
    c.arg("interpolation") = int64_t(int(uint32_t(kinds[c.rng.below(5)]) | (c.rng.oneIn(3) ? smoothEdge : 0)));
    // The whole image reaches from the region to as far as the size says; only the region can be read.
    const int w = c.rng.oneIn(3) ? c.rng.between(1, 7) : c.rng.between(1, 40);
    const int h = c.rng.between(1, c.mode == Mode::far ? 4 : 12);
    const int left = c.rng.between(0, 9), top = c.rng.between(0, 5);
    const int over = c.rng.oneIn(3) ? c.rng.between(0, 30) : 0, beyond = over ? 0 : c.rng.between(0, 3);
    Image& src = c.place("src", w, h);
    c.arg("src") = c.arg("src").a - top * c.arg("srcStep").a - int64_t(left) * src.channels * bytesOf(src.element);
    c.arg("srcSize") = Slot(left + w + beyond, top + h + beyond);
    const bool outside = c.rng.oneIn(16), below = c.rng.oneIn(2);
    c.arg("srcRoi") = Slot(left + (outside && !below ? w + beyond + over : 0),
                           top + (outside && below ? h + beyond : 0), w + over, h + over);
    c.place("dst", c.width, c.height);
    Image &x = c.place("pxMap", c.width, c.height), &y = c.place("pyMap", c.width, c.height);
    const bool tame = c.rng.oneIn(3);
    withElement(x.element, [&](auto zero) {
        if constexpr (std::is_floating_point_v<decltype(zero)>) {
            fillMap<decltype(zero)>(c, x, left, left + w - 1, tame);
            fillMap<decltype(zero)>(c, y, top, top + h - 1, tame);
        }
    });
    c.arg("dstRoiSize") = Slot(c.width, c.height);
}

// sin(pi x) sin(pi x / 3) of the window, at hundredths.
float lanczosEntry(int i) {
    if (i == 0) return 1;
    if (i % 100 == 0) return 0;
    const long double x = i / 100.0L, pi = 3.14159265358979323846264L;
    return float(3 * sinl(pi * x) * sinl(pi * x / 3) / (pi * pi * x * x));
}

// Rounded as it stands: compilers move signs in and out of products, which only rounding to nearest allows.
template <class W>
[[gnu::noinline]] W asWritten(W a, W b) {
    return a * b;
}
template <class W>
std::vector<W> weights(int kind, W f) {
    const W third = W(1) / W(3), sixth = W(1) / W(6);
    if (kind == INTERP_NEAREST) return {};
    if (kind == INTERP_LINEAR) return {f};
    if (kind == INTERP_CUBIC)
        return {((1 - asWritten(W(0.5), f)) * f - W(0.5)) * f, (W(1.5) * f - W(2.5)) * f * f + 1,
                ((2 - asWritten(W(1.5), f)) * f + W(0.5)) * f, (W(0.5) * f - W(0.5)) * f * f};
    if (kind == INTERP_CUBIC_ALT)
        return {((W(0.5) - asWritten(sixth, f)) * f - third) * f, ((W(0.5) * f - 1) * f - W(0.5)) * f + 1,
                ((W(0.5) - asWritten(W(0.5), f)) * f + 1) * f, (sixth * f * f - sixth) * f};
    std::vector<W> w;
    W sum = 0;
    for (int k = 0; k < 6; ++k) {
        const W s = W(100) * std::fabs((W(-2) - f) + W(k));
        const int i = int(s);
        const W low = lanczosEntry(i), high = lanczosEntry(i + 1);
        w.push_back(low + (s - W(i)) * (high - low));
        sum = k ? sum + w.back() : w.back();
    }
    for (W& x : w) x /= sum;
    return w;
}
template <class T, class W>
void judgeRemap(Case& c) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    const int left = int(c.arg("srcRoi").a), top = int(c.arg("srcRoi").b);
    if (left >= c.arg("srcSize").a || top >= c.arg("srcSize").b) return void(c.expected = STATUS_WARN_NO_INTERSECTION);
    const int right = left + int(src.width) - 1, bottom = top + int(src.height) - 1;
    const auto mode = uint32_t(c.arg("interpolation").a);
    const bool smooth = mode & smoothEdge;
    int kind = int(mode & ~smoothEdge);
    const int64_t side = std::min(c.arg("srcSize").a, c.arg("srcSize").b);
    if (side < 6 && kind == INTERP_LANCZOS) kind = INTERP_CUBIC_ALT;
    if (side < 4 && kind != INTERP_NEAREST) kind = INTERP_LINEAR;
    if (side == 1) kind = INTERP_NEAREST;
    const int before = kind == INTERP_LANCZOS ? 2 : kind == INTERP_NEAREST || kind == INTERP_LINEAR ? 0 : 1;

    for (int64_t j = 0; j < dst.height; ++j)
        for (int64_t i = 0; i < dst.width; ++i) {
            const W x = c.get<W>(c.image("pxMap"), i, j), y = c.get<W>(c.image("pyMap"), i, j);
            const auto within = [&](W more) {
                return x >= left - more && x <= right + more && y >= top - more && y <= bottom + more;
            };
            const bool inside = within(0);
            if (!inside && !(smooth && within(1))) continue;
            const W nearX = std::min(std::max(x, W(left)), W(right)), nearY = std::min(std::max(y, W(top)), W(bottom));
            int bx = int(nearX), by = int(nearY);
            const W fx = nearX - W(bx), fy = nearY - W(by);
            if (kind == INTERP_NEAREST && inside) bx += fx >= W(0.5), by += fy >= W(0.5);
            const auto wx = weights(kind, fx), wy = weights(kind, fy);
            for (int ch = 0; ch < c.member.to.used(); ++ch) {
                W value = along(wy, by - before, [&](int64_t py) {
                    const int64_t row = std::clamp<int64_t>(py, top, bottom) - top;
                    return along(wx, bx - before, [&](int64_t px) {
                        return W(c.get<T>(src, std::clamp<int64_t>(px, left, right) - left, row, ch));
                    });
                });
                if (!inside) {
                    const W ax = x < left ? left - x : x > right ? x - right : W(0);
                    const W ay = y < top ? top - y : y > bottom ? y - bottom : W(0);
                    value = blended(value, W(c.get<T>(dst, i, j, ch)), ax, ay);
                }
                c.set(dst, i, j, ch, rounded<T>(value));
            }
        }
}
void remapOracle(Case& c) {
    withElement(c.member.source, [&](auto zero) {
        judgeRemap<decltype(zero), std::conditional_t<sizeof(zero) == 8, double, float>>(c);
    });
}

}  // namespace

extern const Family test_zmviRemap = {.arrange = arrangeRemap, .oracle = remapOracle};
