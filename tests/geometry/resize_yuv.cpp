// Resizing of YUV images: every plane by the formulas of plain resizing, colours moved to where they are sited.
#include "geometry/resize_object.h"

namespace {

using namespace test;

struct Frame {
    int format = CHROMA_420, site = CHROMA_CENTER;
    Resizing luma = {}, colour = {};
    int64_t x = 0, y = 0, w = 0, h = 0;  // a tile inside the destination
    bool rows() const { return format == CHROMA_420; }
    ImageSizeL colourOf(ImageSizeL s) const { return {(s.width + 1) / 2, rows() ? (s.height + 1) / 2 : s.height}; }
    void divide() {
        const auto shift = [](int64_t s, int64_t d) { return (1 - double(s) / double(d)) / 4; };
        colour = luma, colour.src = colourOf(luma.src), colour.dst = colourOf(luma.dst);
        if (site != CHROMA_CENTER) colour.shift[0] = shift(colour.src.width, colour.dst.width);
        if (site == CHROMA_TOP_LEFT && rows()) colour.shift[1] = shift(colour.src.height, colour.dst.height);
    }
    int64_t specBytes() const { return 128 + (luma.specBytes() + 63) / 64 * 64 + (colour.specBytes() + 63) / 64 * 64; }
    int64_t bufferBytes(ImageSizeL tile) const {
        const ImageSizeL part = colourOf(tile);
        return int64_t(
            std::max(luma.bufferBytes(tile.width, tile.height, 1), colour.bufferBytes(part.width, part.height, 2)));
    }
} frame;

StatusCode makeFrame(const Library& library, const Frame& f, uint8_t* block) {
    static uint8_t init[1 << 14];
    const Resizing& m = f.luma;
    const auto call = [&](const std::string& method, auto... rest) {
        return reinterpret_cast<StatusCode (*)(ImageSize, ImageSize, int, decltype(rest)...)>(
            library.find("zmviResizeYUV" + method + "Init"))({int(m.src.width), int(m.src.height)},
                                                             {int(m.dst.width), int(m.dst.height)}, f.format, rest...);
    };
    if (m.interpolation == INTERP_SUPER) return call("Super", block);
    if (m.interpolation == INTERP_LINEAR) return call("Linear", f.site, -int(m.aa), block, init);
    if (m.interpolation == INTERP_CUBIC) return call("Cubic", f.site, -int(m.aa), block, init, m.b, m.c);
    return call("Lanczos", f.site, -int(m.aa), unsigned(m.lobes), block, init);
}
const ObjectKind anyFrame([](uint8_t* block) {
    Frame f;
    f.luma.interpolation = INTERP_LINEAR, f.luma.src = f.luma.dst = {5, 5};
    return makeFrame(builds().front(), f, block);
});

// Even on axes that are halved, or up to the far edge; sometimes beyond it, where that is warned about.
int64_t stretch(Case& c, int64_t d, int64_t unit, int64_t& at, int64_t& n) {
    at = c.rng.below(int(d)) / unit * unit * c.rng.below(2), n = d - at;
    if (c.rng.oneIn(2)) n = std::min((c.rng.below(int(n)) + unit) / unit * unit, n);
    return n == d && c.rng.oneIn(4) ? c.expected = STATUS_WARN_SIZE_CLIPPED, n + 1 : n;
}
void arrangeFrame(Case& c) {
    const bool usual = c.mode == Mode::usual, asked = c.has("specSize"), maker = c.has("srcSize");
    frame = {};
    Resizing& m = frame.luma;
    m.interpolation = methodOf(c.member.name);
    if (!m.interpolation) m.interpolation = anyMethod(c);
    const bool super = m.interpolation == INTERP_SUPER, any = c.member.name.find("YUV42") == std::string::npos;
    frame.format = any ? c.rng.below(2) : c.member.name.find("422") != std::string::npos;
    frame.site = super ? CHROMA_CENTER : c.rng.below(3), m.aa = !super && c.rng.oneIn(3);
    anyParameters(c, m);
    if (asked || c.mode == Mode::far) m.lobes = 2;
    const int64_t least = 2 * leastSide(m) - 1;
    m.src = {std::max(least, anySide(c, m)), std::max(least, anySide(c, m))}, m.dst = {anySide(c, m), anySide(c, m)};
    if (c.rng.oneIn(3)) m.dst.width = c.width;
    if (c.rng.oneIn(6)) m.dst.height = m.src.height;
    if (c.mode == Mode::far) m.src.height = m.dst.height = 7;
    if (super) m.src = {std::max(m.src.width, m.dst.width), std::max(m.src.height, m.dst.height)};
    if (maker && usual && c.rng.oneIn(8)) {
        m.dst.height = 9, m.src.height = super ? 8 : least - 1, c.expected = STATUS_BAD_SIZE, frame.format = CHROMA_420;
    } else if (c.has("B") && usual && c.rng.oneIn(8)) {
        m.c = NAN, c.expected = STATUS_BAD_ARGUMENT;
    } else if (asked && !super && usual && c.rng.oneIn(8)) {
        m.src = m.dst = {INT_MAX / 8, INT_MAX / 2}, c.expected = STATUS_SIZE_EXCEEDS_INT;
    }
    frame.divide();
    Frame made = frame;
    if (maker) {
        c.arg("srcSize") = {m.src.width, m.src.height}, c.arg("dstSize") = {m.dst.width, m.dst.height};
        c.arg("chromaFormat") = frame.format;
        if (c.has("chromaSite")) c.arg("chromaSite") = frame.site;
        if (c.has("antialiasing")) c.arg("antialiasing") = super ? c.rng.below(2) : -int(m.aa);
        if (c.has("numLobes")) c.arg("numLobes") = m.lobes;
        if (c.has("B")) std::memcpy(&c.arg("B").a, &m.b, 4), std::memcpy(&c.arg("C").a, &m.c, 4);
        if (c.has("interpolation")) c.arg("interpolation") = m.interpolation;
        if (asked && super && c.expected == STATUS_OK && c.arg("antialiasing").a)
            c.expected = STATUS_WARN_ANTIALIAS_IGNORED;
        if (!asked) placeBlock(c, "spec", c.expected ? 64 : frame.specBytes());
        if (c.has("initBuf")) c.placeBuffer("initBuf", std::max(m.initBytes(), frame.colour.initBytes()));
        for (const char* name : {"specSize", "initBufSize"})
            if (asked) c.placeValue(name, 1);
        return;
    }
    m.form(), frame.colour.form();
    const int64_t w = stretch(c, m.dst.width, 2, frame.x, frame.w);
    const int64_t h = stretch(c, m.dst.height, 1 + frame.rows(), frame.y, frame.h);
    c.arg("dstTileSize") = {w, h};
    if (c.has("bufSize")) {
        c.placeValue("bufSize", 1);
    } else {
        for (int p = 0; p < c.member.to.channels; ++p) {
            const int n = p && c.member.to.channels == 2 ? 2 : 1;
            const ImageSizeL from = p ? frame.colour.src : m.src, luma{frame.w, frame.h},
                             to = p ? frame.colourOf(luma) : luma;
            c.rowsApart = true;
            c.placePlane("src", p, n, from.width, from.height);
            c.placePlane("dst", p, n, to.width, to.height);
        }
        c.placeBuffer("buffer", frame.bufferBytes({w, h}));
        c.arg("dstOffset") = {frame.x, frame.y};
        // An object for something else, an odd end, an odd start.
        if (usual && (m.taps() > 2 || frame.rows()) && c.rng.oneIn(10)) {
            m.taps() > 2 ? made.luma.interpolation = INTERP_LINEAR : made.format = CHROMA_422;
            made.divide(), c.expected = STATUS_CONTEXT_MISMATCH;
        }
        if (usual && frame.w > 1 && c.rng.oneIn(10)) c.arg("dstTileSize").a = 1, c.expected = STATUS_BAD_SIZE;
        if (usual && frame.x && c.rng.oneIn(6)) c.arg("dstOffset").a -= 1, c.expected = STATUS_OUT_OF_RANGE;
    }
    placeObject(c, "spec", made.specBytes(), [&](uint8_t* block) { return makeFrame(c.library, made, block); });
}
void judgeFrame(Case& c) {
    const auto number = [&](const char* name, int64_t value) { c.set(c.image(name), 0, 0, 0, int(value)); };
    if (c.expected < STATUS_OK) return;
    if (c.has("specSize")) {
        number("specSize", frame.specBytes());
        return number("initBufSize", std::max(frame.luma.initBytes(), frame.colour.initBytes()));
    }
    if (c.has("srcSize")) return acceptBlock(c, "spec");  // the executions judge it
    if (c.has("bufSize")) return number("bufSize", frame.bufferBytes({c.arg("dstTileSize").a, c.arg("dstTileSize").b}));
    for (int p = 0; p < c.member.to.channels; ++p) {
        const std::string plane = "[" + std::to_string(p) + "]";
        const Image &src = c.image("src" + plane), &dst = c.image("dst" + plane);
        const Resizing& m = p ? frame.colour : frame.luma;
        const int64_t left = frame.x / (p ? 2 : 1), top = frame.y / (p && frame.rows() ? 2 : 1);
        change(c, dst, [&](auto, int64_t x, int64_t y, int k) {
            const auto at = [&](int64_t i, int64_t j) {
                return c.get<uint8_t>(src, standsFor(i, src.width, BORDER_REPL), standsFor(j, src.height, BORDER_REPL),
                                      k);
            };
            return pixel<uint8_t>(m, size_t(left + x), size_t(top + y), at);
        });
    }
}

const Check noFrame = notOne("spec", STATUS_CONTEXT_MISMATCH, anyFrame);

}  // namespace

#define TESTED(name)                                                                                                   \
    extern const Family test_zmviResizeYUV##name = {.arrange = arrangeFrame, .oracle = judgeFrame, .more = {noFrame}};
#define MADE(name) extern const Family test_zmviResizeYUV##name = {.arrange = arrangeFrame, .oracle = judgeFrame};
MADE(GetSize)
MADE(LinearInit)
MADE(CubicInit)
MADE(LanczosInit) MADE(SuperInit) TESTED(GetBufferSize) TESTED(420Linear) TESTED(420Cubic) TESTED(420Lanczos)
    TESTED(420Super) TESTED(422Linear) TESTED(422Cubic) TESTED(422Lanczos) TESTED(422Super)
