// Warps: objects made and refused, and tiles by the formulas, pixel by pixel.
#include "geometry/warp.h"

#include <climits>
#include <limits>

namespace {

using namespace test;

const ObjectKind anyWarp([](uint8_t* block) { return makeWarp(builds().front(), Warp{}, block); });
const Check noWarp = notOne("spec", STATUS_CONTEXT_MISMATCH, anyWarp);
constexpr int methods[] = {INTERP_NEAREST, INTERP_LINEAR, INTERP_CUBIC};

void nameWarp(Case& c, Warp& w) {
    const auto named = [&](const char* part) { return c.member.name.find(part) != std::string::npos; };
    w = {};
    w.map = named("Bilinear") ? Warp::bilinear : named("Perspective") ? Warp::perspective : Warp::affine;
    w.interpolation = named("Nearest") ? INTERP_NEAREST : named("Cubic") ? INTERP_CUBIC : INTERP_LINEAR;
    const float pairs[][2] = {{0, 0.5f}, {1, 0}, {0.5f, 0.3f}, {1 / 3.f, 1 / 3.f}, {0, 1}, {-1, 2.5f}, {3e38f, -3e38f}};
    const auto& pair = pairs[c.rng.oneIn(4) ? c.rng.below(7) : c.rng.below(4)];
    w.B = pair[0], w.C = pair[1];
}

double anyNumber(Case& c) {
    static const double odd[] = {0, -0.0, 1e300, -1e300, 1e-300, 1.7e308, -1.7e308, 5e-324, 1e18, 3, -1, 0x1p-20};
    return odd[c.rng.below(12)];
}
double unit(Case& c) { return c.rng.below(1 << 20) / double(1 << 19) - 1; }

// Coefficients that take the middle of a rectangle to that of another.
void anyMap(Case& c, Warp& w, WarpPoint from, WarpPoint to, double size) {
    const auto& k = w.c;
    static const double turns[][2] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    const int kind = c.rng.below(6);
    const double angle = unit(c) * 3.2, scale = c.rng.oneIn(3) ? c.rng.between(1, 5) : 0.3 + 2 * std::fabs(unit(c));
    double xx = std::cos(angle) * scale, xy = std::sin(angle) * scale, x0, y0;
    if (kind < 3) xx = turns[kind == 0 ? 0 : c.rng.below(4)][0], xy = xx != 0 ? 0 : c.rng.oneIn(2) ? 1 : -1;
    if (kind == 2) xx *= scale, xy *= scale;
    const double flip = c.rng.oneIn(3) ? -1 : 1;
    const double m[2][2] = {{xx, xy}, {-xy * flip, xx * flip}};
    x0 = to.x - (m[0][0] * from.x + m[0][1] * from.y), y0 = to.y - (m[1][0] * from.x + m[1][1] * from.y);
    if (kind == 0) {
        static const double parts[] = {0, 0.5, 0.5, 0x1p-20, 0x1p-20 + 0x1p-40, -0x1p-20, 1 / 3.0, -0x1p-21};
        x0 = std::floor(x0) + parts[c.rng.below(8)], y0 = std::floor(y0) + parts[c.rng.below(8)];
    }
    double rows[3][4] = {{m[0][0], m[0][1], x0}, {m[1][0], m[1][1], y0}, {0, 0, 1}};
    if (w.map == Warp::perspective && !c.rng.oneIn(6)) {
        const double bend = c.rng.oneIn(4) ? 4 : 0.7;  // beyond 1 the vanishing line crosses the tile
        const double px = bend * unit(c) / size, py = bend * unit(c) / size;
        const double lift = 1 - (px * from.x + py * from.y);
        for (int i = 0; i < 2; ++i) {
            const double middle = i ? to.y : to.x;  // the middle stays
            rows[i][0] += px * middle, rows[i][1] += py * middle, rows[i][2] += (lift - 1) * middle;
        }
        rows[2][0] = px, rows[2][1] = py, rows[2][2] = lift;
        if (c.rng.oneIn(8)) rows[2][2] = std::floor(lift), rows[2][0] = 1, rows[2][1] = 0;
        if (const int power = c.rng.between(-2, 2); c.rng.oneIn(4))
            for (auto& row : rows)
                for (double& number : row) number = std::ldexp(number, 100 * power);
    }
    if (w.map == Warp::bilinear)
        for (auto& row : rows) {  // (x - from.x) (y - from.y) of it
            const double bend = c.rng.oneIn(6) ? 0 : unit(c) * (c.rng.oneIn(4) ? 3 : 0.8) / size;
            const double k0 = row[0], k1 = row[1], k2 = row[2];
            row[0] = bend, row[1] = k0 - bend * from.y, row[2] = k1 - bend * from.x;
            row[3] = k2 + bend * from.x * from.y;
        }
    std::memcpy(w.c, rows, sizeof k);
    if (c.rng.oneIn(10)) w.c[c.rng.below(w.rows())][c.rng.below(w.columns())] = anyNumber(c);
    if (c.rng.oneIn(20)) w.c[c.rng.below(w.rows())][c.rng.below(w.columns())] = anyNumber(c);
}

// ---- Objects ----

void putSides(Case& c, const Warp& w) {
    c.arg("srcSize") = {w.src.width, w.src.height}, c.arg("dstSize") = {w.dst.width, w.dst.height};
}
void arrangeInit(Case& c) {
    Warp& w = arrangedWarp;
    nameWarp(c, w);
    const auto side = [&] { return c.rng.oneIn(8) ? INT_MAX - c.rng.below(3) : c.rng.between(1, 60); };
    w.src = {side(), side()}, w.dst = {side(), side()};
    w.roi = {c.rng.below(70), c.rng.below(70), side(), side()};
    w.direction = c.rng.below(2), w.smooth = c.rng.below(2);
    anyMap(c, w, {30, 20}, {20, 30}, 30);
    if (c.rng.oneIn(12)) w.c[c.rng.below(w.rows())][c.rng.below(w.columns())] = c.rng.oneIn(2) ? NAN : -INFINITY;
    const bool ladder = c.mode == Mode::controls;
    if (ladder) w.src = w.dst = {9, 9}, w.roi = {0, 0, 9, 9}, std::memcpy(w.c, Warp{}.c, sizeof w.c);
    if (ladder && w.map == Warp::bilinear) w.c[0][1] = w.c[1][2] = 1, w.c[0][0] = w.c[1][1] = 0;
    Image& k = c.place("coeffs", w.columns(), w.rows());
    for (int i = 0; i < w.numbers(); ++i)
        c.set(k, i % w.columns(), i / w.columns(), 0, w.c[i / w.columns()][i % w.columns()]);
    putSides(c, w);
    c.arg("srcRoi") = {w.roi.x, w.roi.y, w.roi.width, w.roi.height};
    c.arg("direction") = w.direction, c.arg("smoothEdge") = w.smooth;
    if (c.has("B")) std::memcpy(&c.arg("B").a, &w.B, 4), std::memcpy(&c.arg("C").a, &w.C, 4);
    placeBlock(c, "spec", warpSpecBytes);
    c.expected = !w.form() ? STATUS_BAD_COEFFS : w.empty() ? STATUS_WARN_NO_INTERSECTION : STATUS_OK;
    if (c.has("B") && c.mode == Mode::usual && c.rng.oneIn(8)) {
        const float bad[] = {NAN, INFINITY, -INFINITY};
        std::memcpy(&c.arg(c.rng.oneIn(2) ? "B" : "C").a, &bad[c.rng.below(3)], 4);
        c.expected = STATUS_BAD_ARGUMENT;
    }
    if (c.member.large && c.mode == Mode::usual && c.rng.oneIn(6)) {
        const int64_t beyond = (int64_t(1) << 53) + 1;
        const char* const names[] = {"srcSize", "dstSize", "srcRoi"};
        Slot& slot = c.arg(names[c.rng.below(3)]);
        (c.rng.oneIn(2) ? slot.a : slot.b) = beyond;
        c.expected = STATUS_BAD_SIZE;
    }
}
void judgeInit(Case& c) {
    if (c.expected >= STATUS_OK) acceptBlock(c, "spec");
}

void arrangeSize(Case& c) {
    const auto side = [&] { return c.rng.oneIn(4) ? INT_MAX : c.rng.between(1, 99); };
    c.arg("srcSize") = {side(), side()}, c.arg("dstSize") = {side(), side()};
    c.arg("interpolation") = methods[c.rng.below(3)];
    c.placeValue("specSize", 1);
    if (c.member.large && c.mode == Mode::usual && c.rng.oneIn(4))
        c.arg("dstSize").b = (int64_t(1) << 53) + 1, c.expected = STATUS_BAD_SIZE;
}
template <class To>
void answer(Case& c, const char* name, int64_t bytes) {
    c.set(c.image(name), 0, 0, 0, To(bytes));
}
void answerSize(Case& c) {
    if (c.expected == STATUS_OK)
        c.member.large ? answer<int64_t>(c, "specSize", warpSpecBytes) : answer<int>(c, "specSize", warpSpecBytes);
}
void arrangeBufferSize(Case& c) {
    Warp& w = arrangedWarp = {};
    w.map = Warp::Map(c.rng.below(3));
    if (w.map == Warp::bilinear) w.c[0][1] = w.c[1][2] = 1, w.c[0][0] = w.c[1][1] = 0;
    w.interpolation = methods[c.rng.below(3)];
    const auto side = [&] { return c.rng.oneIn(4) ? INT_MAX : c.rng.between(1, 99); };
    w.dst = {side(), side()};
    if (c.rng.oneIn(4)) w.roi.x = 5;  // outside: it is asked all the same
    placeObject(c, "spec", warpSpecBytes, [&](uint8_t* block) { return makeWarp(c.library, w, block); });
    c.arg("dstTileSize") = {side(), side()};
    const int counts[] = {1, 3, 4};
    c.arg("numChannels") = counts[c.rng.below(3)];
    c.placeValue("bufSize", 1);
}
void answerBufferSize(Case& c) {
    const Slot tile = c.arg("dstTileSize");
    const auto& dst = arrangedWarp.dst;
    const int64_t bytes = 64 + 32 * std::min(tile.b, dst.height) + 16384;
    if (!c.member.large && bytes > INT_MAX) return void(c.expected = STATUS_SIZE_EXCEEDS_INT);
    c.expected = tile.a > dst.width || tile.b > dst.height ? STATUS_WARN_SIZE_CLIPPED : STATUS_OK;
    c.member.large ? answer<int64_t>(c, "bufSize", bytes) : answer<int>(c, "bufSize", int(bytes));
}

// ---- A tile ----

struct {
    int64_t x, y, w, h;
} tile;

void arrangeWarp(Case& c) {
    Warp& w = arrangedWarp;
    nameWarp(c, w);
    const bool far = c.mode == Mode::far, ladder = c.mode == Mode::controls;
    const int width = c.rng.oneIn(3) ? c.rng.between(1, 7) : c.rng.between(1, 60);
    const int height = c.rng.oneIn(8) ? 1 : c.rng.between(1, far ? c.member.large ? 3 : 4 : 30);
    w.roi = {c.rng.below(9), c.rng.below(6), width, height};
    if (c.rng.oneIn(20)) w.roi.x += 1000000, w.roi.y += 300000;
    w.src = {w.roi.x + width + c.rng.below(3), w.roi.y + height + c.rng.below(3)};
    if (c.rng.oneIn(3)) {  // a region that goes beyond the source
        w.src = {w.roi.x + width, w.roi.y + height};
        w.roi.width += c.rng.below(30), w.roi.height += c.rng.below(30);
    }
    if (!ladder && c.rng.oneIn(24)) c.rng.oneIn(2) ? w.src.width = w.roi.x + 0 : w.src.height = w.roi.y;
    if (w.src.width < 1 || w.src.height < 1) w.src = {w.roi.x + width, w.roi.y + height};

    // A tile of the destination; some lie far from its first pixel.
    int64_t tw = c.width, th = c.rng.oneIn(6) && !far ? c.rng.between(14, 40) : c.height;
    tile = {c.rng.below(40), c.rng.below(40), tw, th};
    if (c.rng.oneIn(3)) tile.x = tile.y = 0;
    if (c.rng.oneIn(20)) tile.x += 1 << 20, tile.y += 12345678;
    w.dst = {tile.x + tw, tile.y + th};
    if (c.rng.oneIn(3)) w.dst.width += c.rng.below(99), w.dst.height += c.rng.below(99);
    if (c.rng.oneIn(4)) tw += c.rng.below(90), th += c.rng.below(5);  // beyond the destination
    tile.w = std::min(tw, w.dst.width - tile.x), tile.h = std::min(th, w.dst.height - tile.y);
    if (tw > w.dst.width || th > w.dst.height) c.expected = STATUS_WARN_SIZE_CLIPPED;
    c.arg("dstOffset") = {tile.x, tile.y}, c.arg("dstTileSize") = {tw, th};

    const WarpPoint there = {double(w.roi.x) + width / 2, double(w.roi.y) + height / 2};
    const WarpPoint here = {double(tile.x + tile.w / 2), double(tile.y + tile.h / 2)};
    w.direction = c.rng.below(2);
    const double size = std::max(width, height);
    for (int tries = 0; tries == 0 || !w.form(); ++tries) {
        if (tries < 20)
            w.forward() ? anyMap(c, w, there, here, size) : anyMap(c, w, here, there, double(std::max(tw, th)));
        else
            throw std::string("no map");
    }

    const int words[] = {BORDER_TRANSPARENT, BORDER_REPL, BORDER_MIRROR, BORDER_CONST};
    int word = ladder ? BORDER_CONST : words[c.rng.below(4)];
    w.smooth = !ladder && word == BORDER_TRANSPARENT && c.rng.oneIn(2);
    if (c.mode == Mode::usual && c.rng.oneIn(32)) {
        w.smooth = 1, word = words[c.rng.between(1, 3)];
        c.expected = STATUS_BAD_BORDER;
    } else if (w.empty()) {
        c.expected = STATUS_WARN_NO_INTERSECTION;
    }
    c.arg("borderType") = word;
    if (word == BORDER_CONST || c.rng.oneIn(2))
        c.placeValue("borderValue", c.member.to.channels);
    else
        c.arg("borderValue") = static_cast<const void*>(nullptr);

    Image& src = c.place("src", width, height);
    c.arg("src") = c.arg("src").a - w.roi.y * c.arg("srcStep").a - w.roi.x * src.channels * bytesOf(src.element);
    c.place("dst", tile.w, tile.h);
    c.placeBuffer("buffer", 64 + 32 * std::min(th, w.dst.height) + 16384);
    Warp made = w;
    if (c.mode == Mode::usual && c.rng.oneIn(32)) {  // of another method
        made.interpolation = methods[(c.rng.below(2) + (w.interpolation == INTERP_NEAREST  ? 1
                                                        : w.interpolation == INTERP_LINEAR ? 2
                                                                                           : 3)) %
                                     3];
        c.expected = STATUS_CONTEXT_MISMATCH;
    }
    placeObject(c, "spec", warpSpecBytes, [&](uint8_t* block) { return makeWarp(c.library, made, block); });
}

template <class T, class W>
void judgeWarp(Case& c) {
    const Warp& w = arrangedWarp;
    const Image &src = c.image("src"), &dst = c.image("dst");
    const int64_t word = c.arg("borderType").a, n[2] = {src.width, src.height};
    const double first[2] = {double(w.roi.x), double(w.roi.y)};
    const double last[2] = {double(w.roi.x + n[0] - 1), double(w.roi.y + n[1] - 1)};
    const int taps = w.interpolation == INTERP_NEAREST ? 1 : w.interpolation == INTERP_LINEAR ? 2 : 4;
    const int reach = taps == 4 ? 2 : 1;
    const double e = std::ldexp(1.0, -20);

    for (int64_t j = 0; j < dst.height; ++j)
        for (int64_t i = 0; i < dst.width; ++i) {
            const WarpPoint point = w.at(double(tile.x + i), double(tile.y + j));
            double at[2] = {point.x, point.y};
            const auto within = [&](int k, double more) { return at[k] >= first[k] - more && at[k] <= last[k] + more; };
            const bool inside = within(0, e) && within(1, e);
            if (word == BORDER_TRANSPARENT && !inside && !(w.smooth && within(0, 1) && within(1, 1))) continue;
            W away[2], f[2];
            int64_t base[2];
            bool alone = false;
            for (int k = 0; k < 2; ++k) {
                double v = at[k];
                away[k] = within(k, e) ? W(0) : W(std::max(first[k] - v, v - last[k]));
                if (word == BORDER_MIRROR && n[k] == 1) v = first[k];
                if (word == BORDER_MIRROR && n[k] > 1) {
                    const double period = 2 * (last[k] - first[k]);
                    double t = v - first[k];
                    t = t - period * std::floor(t / period);
                    v = first[k] + (t > last[k] - first[k] ? period - t : t);
                }
                const double more = word == BORDER_REPL || word == BORDER_CONST ? reach : 0;
                const double low = first[k] - more, high = last[k] + more;
                v = v > low ? (v < high ? v : high) : low;
                const double floor = std::floor(v), fraction = v - floor;
                f[k] = W(fraction);
                base[k] = int64_t(floor) - int64_t(first[k]) - (taps == 4 ? 1 : 0);
                if (taps == 1 && fraction >= 0.5 && (inside || !w.smooth)) ++base[k];
                alone = alone || (word == BORDER_CONST && (base[k] >= n[k] || base[k] + taps <= 0));
            }
            const auto wx = w.weights(f[0]), wy = w.weights(f[1]);
            for (int ch = 0; ch < dst.channels; ++ch) {
                const auto pixel = [&](int64_t x, int64_t y) {
                    const int64_t tx = standsFor(x, n[0], word), ty = standsFor(y, n[1], word);
                    return tx < 0 || ty < 0 ? c.get<T>(c.image("borderValue"), 0, 0, ch) : c.get<T>(src, tx, ty, ch);
                };
                const bool copied = taps == 1 && (inside || !w.smooth);
                if (copied || alone) {
                    c.set(dst, i, j, ch, alone ? pixel(-9, -9) : pixel(base[0], base[1]));
                    continue;
                }
                W value = along(wy, base[1], [&](int64_t y) {
                    return along(wx, base[0], [&](int64_t x) { return W(pixel(x, y)); });
                });
                if (word == BORDER_TRANSPARENT && !inside)
                    value = blended(value, W(c.get<T>(dst, i, j, ch)), away[0], away[1]);
                c.set(dst, i, j, ch, rounded<T>(value));
            }
        }
}
void warpOracle(Case& c) {
    if (c.expected < STATUS_OK || c.expected == STATUS_WARN_NO_INTERSECTION) return;
    withElement(c.member.source,
                [&](auto zero) { judgeWarp<decltype(zero), std::conditional_t<sizeof(zero) == 8, double, float>>(c); });
}

}  // namespace

extern const Family test_zmviWarpGetSize = {.arrange = arrangeSize, .oracle = answerSize};
extern const Family test_zmviWarpGetBufferSize = {
    .arrange = arrangeBufferSize, .oracle = answerBufferSize, .more = {noWarp}};
#define INIT(name) extern const Family test_zmviWarp##name##Init = {.arrange = arrangeInit, .oracle = judgeInit};
#define TILES(name)                                                                                                    \
    extern const Family test_zmviWarp##name = {.arrange = arrangeWarp, .oracle = warpOracle, .more = {noWarp}};
#define WARP(map)                                                                                                      \
    INIT(map##Nearest) INIT(map##Linear) INIT(map##Cubic) TILES(map##Nearest) TILES(map##Linear) TILES(map##Cubic)
WARP(Affine)
WARP(Perspective)
WARP(Bilinear)
