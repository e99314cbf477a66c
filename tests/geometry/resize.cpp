// Resizing, the executions: pixels by the formulas, one by one, from tiles of every kind.
#include <gtest/gtest.h>

#include "geometry/resize_object.h"

namespace {

using namespace test;

// ---- The arithmetic ----

template <class R>
R quiet(R x) {  // as every operation leaves a NaN
    return x + R(0) == x ? x : x + x;
}
__int128 sum(__int128 a, __int128 b) { return a + b; }
__int128 product(__int128 a, __int128 b) { return a * b; }
template <class R>
R sum(R a, R b) {  // of NaNs the first
    return std::isnan(a) ? quiet(a) : std::isnan(b) ? quiet(b) : a + b;
}
template <class R>
R product(R a, R b) {
    return std::isnan(a) ? quiet(a) : a * b;
}
template <class R, class At>
R filtered(const ResizeAxis& axis, size_t i, At at) {
    const int64_t j = axis.first[i];
    if (axis.kind == axis.pixel) return at(j);
    const auto weight = [&](size_t k) { return R(axis.w[i][k]); };
    if (axis.kind == axis.between) {
        const R a = at(j), b = at(j + 1);
        return sum(a, product(sum(b, -a), weight(0)));
    }
    R total = product(at(j), weight(0));
    for (size_t k = 1; k < axis.w[i].size(); ++k) total = sum(total, product(at(j + int64_t(k)), weight(k)));
    return total;
}
template <class T, class R>
T rounded(R x) {
    if constexpr (std::is_floating_point_v<T>) return T(x);
    return T(
        std::clamp<double>(std::nearbyint(double(x)), std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
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
int64_t steps14(const ResizeAxis& axis, size_t i) {
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
    return rounded<T>(
        filtered<R>(m.y, j, [&](int64_t r) { return filtered<R>(m.x, i, [&](int64_t c) { return R(at(c, r)); }); }));
}

// ---- A tile ----

struct Tile {
    int64_t x, y, w, h;  // inside the destination
    int word;
} tile;
int64_t outside(int64_t i, int64_t n, int word) {
    if (n == 1 || (word & 15) != BORDER_MIRROR) return std::clamp<int64_t>(i, 0, n - 1);
    while (i < 0 || i >= n) i = i < 0 ? -i : 2 * n - 2 - i;
    return i;
}

int methodOf(const std::string& name) {
    const std::pair<const char*, int> names[] = {{"Nearest", INTERP_NEAREST},
                                                 {"Linear", INTERP_LINEAR},
                                                 {"Cubic", INTERP_CUBIC},
                                                 {"Super", INTERP_SUPER},
                                                 {"Lanczos", INTERP_LANCZOS}};
    for (const auto& [part, interpolation] : names)
        if (name.find(part) != name.npos) return interpolation;
    return 0;
}

void arrangeTile(Case& c) {
    Resizing& m = arrangedResizing = {};
    m.aa = c.member.name.find("Antialiasing") != std::string::npos;
    const int any[] = {INTERP_LINEAR, INTERP_CUBIC, INTERP_LANCZOS};
    m.interpolation = m.aa ? any[c.rng.below(3)] : methodOf(c.member.name);
    m.real64 = c.member.source == Element::f64;
    anyParameters(c, m);
    m.src = {anySide(c, m), anySide(c, m)}, m.dst = {anySide(c, m), anySide(c, m)};
    if (c.rng.oneIn(4)) m.dst.width = c.width;
    if (c.rng.oneIn(6)) m.dst.width = m.src.width;
    if (c.rng.oneIn(6)) m.dst.height = m.src.height;
    if (m.interpolation == INTERP_SUPER) {
        m.src.width = std::max(m.src.width, m.dst.width), m.src.height = std::max(m.src.height, m.dst.height);
        if (c.rng.oneIn(3))
            m.src.width = m.dst.width * c.rng.between(1, 6), m.src.height = m.dst.height * c.rng.between(1, 6);
    } else if (c.rng.oneIn(3)) {
        m.shift[0] = c.rng.between(-8, 8) / 16.0, m.shift[1] = c.rng.between(-50, 50) / 100.0;
    }
    if (c.rng.oneIn(16)) m.src.width = c.rng.between(1000, 3000), m.dst.width = c.rng.between(1, 3);
    // Areas whose sums just pass in double, and the next ones.
    const int large[] = {370727, 370728, 524289};
    const bool vast = m.interpolation == INTERP_SUPER && c.mode == Mode::usual && c.seed % 80 == 41;
    if (vast) m.src.width = m.src.height = large[c.rng.below(3)], m.dst = {m.src.width - 1, m.src.height - 1};
    const bool far = c.mode == Mode::far;  // rows gigabytes apart: one of the source for one of the destination
    if (far) m.dst.height = m.src.height, m.b = 0, m.shift[1] = 0;
    m.form();

    tile = {c.rng.below(int(m.dst.width)), c.rng.below(int(m.dst.height)), 0, 0, BORDER_REPL};
    if (c.rng.oneIn(2)) tile.x = tile.y = 0;
    int64_t w = m.dst.width - tile.x + c.rng.below(3), h = m.dst.height - tile.y + c.rng.below(2);
    if (c.rng.oneIn(3)) w = c.rng.between(1, int(w)), h = c.rng.between(1, int(h));
    if (c.rng.oneIn(8)) w = h = 1;
    if (vast) w = std::min<int64_t>(w, 7), h = std::min<int64_t>(h, 3);
    if (far) h = std::min<int64_t>(h, c.member.large ? 2 : 5);
    tile.w = std::min(w, m.dst.width - tile.x), tile.h = std::min(h, m.dst.height - tile.y);
    if (w > m.dst.width || h > m.dst.height) c.expected = STATUS_WARN_SIZE_CLIPPED;
    c.arg("dstOffset") = {tile.x, tile.y}, c.arg("dstTileSize") = {w, h};
    if (c.has("borderType")) {
        const int rules[] = {BORDER_REPL, BORDER_MIRROR, 4};
        tile.word = rules[m.interpolation == INTERP_LANCZOS && !m.aa ? 0 : c.rng.below(3)] |
                    (c.rng.oneIn(2) ? 0 : 16 * c.rng.below(16));
        if (c.rng.oneIn(8)) tile.word = BORDER_IN_MEM;
        c.arg("borderType") = tile.word;
        c.arg("borderValue") = static_cast<const void*>(nullptr);
    }

    // The source is as much as the tile may read, or all of it; on sides in memory what lies behind them too.
    const int64_t left = tile.x * m.src.width / m.dst.width, top = tile.y * m.src.height / m.dst.height;
    auto [x0, x1] = m.needed(m.x, tile.x, tile.x + tile.w);
    auto [y0, y1] = m.needed(m.y, tile.y, tile.y + tile.h);
    if (!far && !vast && c.rng.oneIn(2)) x0 = y0 = 0, x1 = m.src.width, y1 = m.src.height;
    if (m.interpolation != INTERP_SUPER) {
        const auto memory = [&](const ResizeAxis& a, int64_t from, int64_t count, int low, int high, int64_t& first,
                                int64_t& end) {
            if (tile.word & low) first = std::min(first, a.first[size_t(from)]);
            if (tile.word & high) end = std::max(end, a.end(size_t(from + count - 1)));
        };
        memory(m.x, tile.x, tile.w, BORDER_IN_MEM_LEFT, BORDER_IN_MEM_RIGHT, x0, x1);
        memory(m.y, tile.y, tile.h, BORDER_IN_MEM_TOP, BORDER_IN_MEM_BOTTOM, y0, y1);
    }
    c.rowsApart = true;
    c.place("src", x1 - left, y1 - top, {left - x0, 0, top - y0, 0});
    c.place("dst", tile.w, tile.h);
    placeResizing(c, m);
    if (c.mode == Mode::usual && c.rng.oneIn(16)) {
        // Changed by somebody: the flag, the method, the kind to that of other types, the kind to its other number.
        const struct {
            int field, value;
            int64_t status;
        } changes[] = {{20, !m.aa, STATUS_BAD_ARGUMENT},
                       {8, m.interpolation == INTERP_SUPER ? INTERP_NEAREST : INTERP_SUPER, STATUS_CONTEXT_MISMATCH},
                       {4, m.real64 ? 13 : 19, STATUS_CONTEXT_MISMATCH},
                       {4, 7, m.real64 ? int64_t(STATUS_CONTEXT_MISMATCH) : c.expected}};
        const auto& change = changes[c.rng.below(4)];
        const Image& spec = c.image("spec");
        const auto base = int64_t(-reinterpret_cast<uintptr_t>(spec.pointer[0]) % 64);
        c.set(spec, base + change.field, 0, 0, uint8_t(change.value));
        c.expected = change.status;
    }
    c.placeBuffer("buffer", int64_t(m.bufferBytes(w, h, c.member.to.channels)));
}

void resize(Case& c) {
    if (c.expected < 0) return;
    const Resizing& m = arrangedResizing;
    const Image &src = c.image("src"), &dst = c.image("dst");
    const int64_t left = tile.x * m.src.width / m.dst.width, top = tile.y * m.src.height / m.dst.height;
    withElement(c.member.source, [&](auto zero) {
        using T = decltype(zero);
        for (int64_t y = 0; y < tile.h; ++y)
            for (int64_t x = 0; x < tile.w; ++x)
                for (int k = 0; k < c.member.to.channels; ++k) {
                    const auto at = [&](int64_t column, int64_t row) {
                        const bool across = (column < 0 && !(tile.word & BORDER_IN_MEM_LEFT)) ||
                                            (column >= m.src.width && !(tile.word & BORDER_IN_MEM_RIGHT));
                        const bool down = (row < 0 && !(tile.word & BORDER_IN_MEM_TOP)) ||
                                          (row >= m.src.height && !(tile.word & BORDER_IN_MEM_BOTTOM));
                        if (across) column = outside(column, m.src.width, tile.word);
                        if (down) row = outside(row, m.src.height, tile.word);
                        return c.get<T>(src, column - left, row - top, k);
                    };
                    c.set(dst, x, y, k, pixel<T>(m, size_t(tile.x + x), size_t(tile.y + y), at));
                }
    });
}

}  // namespace

extern const Family test_zmviResizeNearest = {.arrange = arrangeTile, .oracle = resize, .more = {noResizing}};
extern const Family test_zmviResizeLinear = {.arrange = arrangeTile, .oracle = resize, .more = {noResizing}};
extern const Family test_zmviResizeCubic = {.arrange = arrangeTile, .oracle = resize, .more = {noResizing}};
extern const Family test_zmviResizeLanczos = {.arrange = arrangeTile, .oracle = resize, .more = {noResizing}};
extern const Family test_zmviResizeSuper = {.arrange = arrangeTile, .oracle = resize, .more = {noResizing}};
extern const Family test_zmviResizeAntialiasing = {.arrange = arrangeTile, .oracle = resize, .more = {noResizing}};
