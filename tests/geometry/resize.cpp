// Resizing, the executions: pixels by the formulas, one by one, from tiles of every kind.
#include <gtest/gtest.h>

#include "geometry/resize_object.h"

namespace {

using namespace test;

// ---- A tile ----

struct Tile {
    int64_t x, y, w, h;  // inside the destination
    int word;
} tile;

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
                        if (across) column = standsFor(column, m.src.width, tile.word);
                        if (down) row = standsFor(row, m.src.height, tile.word);
                        return c.get<T>(src, column - left, row - top, k);
                    };
                    c.set(dst, x, y, k, pixel<T>(m, size_t(tile.x + x), size_t(tile.y + y), at));
                }
    });
}

}  // namespace

#define TESTED(name)                                                                                                   \
    extern const Family test_zmviResize##name = {.arrange = arrangeTile, .oracle = resize, .more = {noResizing}};
TESTED(Nearest) TESTED(Linear) TESTED(Cubic) TESTED(Lanczos) TESTED(Super) TESTED(Antialiasing)
