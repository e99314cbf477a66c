// Spec objects in the memory of a case.
#pragma once

#include "geometry/resize.h"
#include "harness/spec.h"

namespace test {

inline void anyParameters(Case& c, Resizing& m) {
    const float pairs[][2] = {{0, 0.5f}, {1, 0}, {0.5f, 0.3f}, {1 / 3.f, 1 / 3.f}, {0, 1}, {-1, 2.5f}, {0, -30}};
    const auto& pair = pairs[c.rng.below(7)];
    m.b = pair[0], m.c = pair[1];
    m.lobes = c.rng.between(2, 3);
}
inline int anyMethod(Case& c) {
    const int methods[] = {INTERP_LINEAR, INTERP_CUBIC, INTERP_LANCZOS, INTERP_SUPER, INTERP_NEAREST};
    return methods[c.rng.below(c.member.name.find("YUV") == std::string::npos ? 5 : 4)];
}
inline int leastSide(const Resizing& m) {
    return m.interpolation == INTERP_LANCZOS ? 2 * m.lobes : std::max(1, m.taps());
}
inline int64_t anySide(Case& c, const Resizing& m) {
    const int least = leastSide(m);
    if (c.rng.oneIn(10)) return c.rng.between(40, c.mode == Mode::usual ? 260 : 60);
    return std::max(least, c.rng.between(1, c.rng.oneIn(2) ? 12 : 40));
}

// What an initialiser leaves in its block: fills in those bytes of the header and of the tables that are settled.
template <class Put>
void describeObject(const Resizing& m, const uint8_t* block, Put put) {
    const int64_t base = int64_t(-reinterpret_cast<uintptr_t>(block) % 64);
    const uint8_t* const object = block + base;
    const auto field = [&](int64_t at, auto value) { put(base + at, value); };
    const int radius = m.radius(m.x), radiusY = m.radius(m.y);
    field(0, 0x4B617389), field(4, m.real64 ? 19 : 13), field(8, m.interpolation), field(12, radiusY),
        field(16, radius), field(20, int(m.aa));
    const ResizeAxis* axes[] = {&m.x, &m.y};
    for (int side = 0; side < 4; ++side) {  // left, top, right, bottom
        const ResizeAxis& a = *axes[side % 2];
        int64_t width = side % 2 ? radiusY : radius;
        if (m.aa) width = std::max<int64_t>(0, side < 2 ? -a.first.front() : a.end(size_t(a.d - 1)) - a.s);
        field(24 + 4 * side, m.taps() ? int(width) : 0);
    }
    const bool tables = m.interpolation != INTERP_SUPER;
    const int64_t rows = 272, columns = rows + 4 * m.dst.height;
    for (int side = 0; side < 2; ++side) {  // vertical, horizontal
        const int64_t s = side ? m.src.width : m.src.height, d = side ? m.dst.width : m.dst.height, g = std::gcd(s, d);
        const int64_t at = side ? 64 : 40;
        field(at, int(s)), field(at + 4, int(d)), field(at + 8, int(s / g)), field(at + 12, int(d / g));
        field(at + 16, tables ? object + (side ? columns : rows) : nullptr);
        field(88 + 8 * side, m.shift[side]);
    }
    field(104, 2);
    if (!tables) return;
    int64_t weights = columns + 4 * m.dst.width;
    for (const ResizeAxis* a : {&m.y, &m.x}) {
        weights = (weights + 31) / 32 * 32;
        const int64_t e = m.real64 ? 8 : 4;
        for (size_t i = 0; i < a->index.size(); ++i) {
            field((a == &m.y ? rows : columns) + 4 * int64_t(i), int(a->index[i]));
            for (size_t k = 0; k < (m.taps() ? a->w[i].size() : 0); ++k) {
                const int64_t at = weights + (int64_t(i) * a->stride + int64_t(k)) * e;
                m.real64 ? field(at, a->w[i][k]) : field(at, float(a->w[i][k]));
            }
        }
        weights += a->d * a->stride * e;
    }
}

inline StatusCode makeObject(const Library& library, const Resizing& m, uint8_t* block) {
    static uint8_t init[1 << 16];
    const std::string kind = m.real64 ? "_64f" : "_8u", aa = m.aa ? "Antialiasing" : "";
    const auto function = [&](const std::string& name) { return library.find("zmviResize" + name); };
    const ImageSize src{int(m.src.width), int(m.src.height)}, dst{int(m.dst.width), int(m.dst.height)};
    const auto call = [&](const std::string& name, auto... rest) {
        return reinterpret_cast<StatusCode (*)(ImageSize, ImageSize, decltype(rest)...)>(
            function(name + "Init" + kind))(src, dst, rest...);
    };
    StatusCode status = STATUS_OK;
    if (m.interpolation == INTERP_NEAREST) status = call("Nearest", block);
    if (m.interpolation == INTERP_SUPER) status = call("Super", block);
    if (m.interpolation == INTERP_LINEAR) status = m.aa ? call(aa + "Linear", block, init) : call("Linear", block);
    if (m.interpolation == INTERP_CUBIC) status = call(aa + "Cubic", block, init, m.b, m.c);
    if (m.interpolation == INTERP_LANCZOS) status = call(aa + "Lanczos", unsigned(m.lobes), block, init);
    if (status != STATUS_OK || (m.shift[0] == 0 && m.shift[1] == 0)) return status;
    return reinterpret_cast<StatusCode (*)(double, double, void*)>(function("SetMode"))(m.shift[0], m.shift[1], block);
}
inline void placeResizing(Case& c, const Resizing& m) {
    placeObject(c, "spec", m.specBytes(), [&](uint8_t* block) { return makeObject(c.library, m, block); });
}
inline const ObjectKind anyResizing([](uint8_t* block) {
    Resizing m;
    m.src = m.dst = {5, 5};
    return makeObject(builds().front(), m, block);
});
inline const Check noResizing = notOne("spec", STATUS_CONTEXT_MISMATCH, anyResizing);

}  // namespace test
