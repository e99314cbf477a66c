// The spec objects of resizing: sizes, what initialisers leave, what is asked of an object.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "geometry/resize_object.h"

namespace {

using namespace test;

void putBits(Slot& slot, auto value) { slot = {}, std::memcpy(&slot.a, &value, sizeof value); }
void setNumbers(Case& c, const char* name, std::initializer_list<int64_t> numbers) {
    const Image& i = c.image(name);
    int k = 0;
    for (const int64_t n : numbers) i.element == Element::s64 ? c.set(i, 0, 0, k++, n) : c.set(i, 0, 0, k++, int(n));
}
void putSizes(Case& c, const Resizing& m) {
    c.arg("srcSize") = {m.src.width, m.src.height}, c.arg("dstSize") = {m.dst.width, m.dst.height};
}

// ---- Sizes ----

void arrangeSize(Case& c) {
    Resizing& m = arrangedResizing = {};
    m.real64 = c.member.source == Element::f64;
    m.interpolation = anyMethod(c), m.aa = c.rng.oneIn(2), m.lobes = 2;
    const auto side = [&] {
        return c.rng.oneIn(8) ? INT_MAX - c.rng.below(3) : c.rng.between(1, c.rng.oneIn(2) ? 20 : 5000);
    };
    m.src = {side(), side()}, m.dst = {side(), side()};
    putSizes(c, m);
    c.arg("interpolation") = m.interpolation, c.arg("antialiasing") = m.aa ? c.rng.between(1, 9) : 0;
    if (c.mode == Mode::controls)
        m.interpolation = INTERP_LINEAR, m.src = m.dst = {7, 9}, putSizes(c, m), c.arg("interpolation") = 2;
    c.placeValue("specSize", 1), c.placeValue("initBufSize", 1);
}
void answerSize(Case& c) {
    Resizing m = arrangedResizing;
    const bool plain = m.taps() == 0, super = m.interpolation == INTERP_SUPER;
    const int least = m.taps() > 4 ? 4 : m.taps();
    if (m.real64 && (plain || (!m.aa && m.interpolation != INTERP_LINEAR)))
        return void(c.expected = STATUS_BAD_ARGUMENT);
    if (std::min(m.src.width, m.src.height) < least ||
        (super && (m.src.width < m.dst.width || m.src.height < m.dst.height)))
        return void(c.expected = STATUS_BAD_SIZE);
    c.expected = plain && m.aa ? STATUS_WARN_ANTIALIAS_IGNORED : STATUS_OK;
    m.aa &= !plain;
    const int64_t spec = m.specBytes(), init = m.initBytes();
    if (!c.member.large && std::max(spec, init) > 0x7ffffffe) return void(c.expected = STATUS_SIZE_EXCEEDS_INT);
    setNumbers(c, "specSize", {spec}), setNumbers(c, "initBufSize", {init});
}

// ---- Initialisation ----

// What is refused for the values of its arguments together.
void refused(Case& c, const Resizing& m) {
    if (c.member.large && c.rng.oneIn(2)) {
        c.arg(c.rng.oneIn(2) ? "srcSize" : "dstSize") = {c.rng.between(1, 9), int64_t(INT_MAX) + 1};
        c.expected = STATUS_SIZE_EXCEEDS_INT;
    } else if (c.has("B")) {
        putBits(c.arg(c.rng.oneIn(2) ? "B" : "C"), c.rng.oneIn(2) ? NAN : -INFINITY);
        c.expected = STATUS_BAD_ARGUMENT;
    } else if (m.interpolation == INTERP_SUPER) {
        c.arg("srcSize").b = m.dst.height - 1;
        c.expected = m.dst.height > 1 ? STATUS_BAD_SIZE : STATUS_NO_OPERATION;
    }
}
void arrangeInit(Case& c) {
    Resizing& m = arrangedResizing = {};
    m.aa = c.member.name.find("Antialiasing") != std::string::npos, m.real64 = c.member.source == Element::f64;
    m.interpolation = methodOf(c.member.name);
    anyParameters(c, m);
    m.src = {anySide(c, m), anySide(c, m)}, m.dst = {anySide(c, m), anySide(c, m)};
    if (m.interpolation == INTERP_SUPER) m.src.width += m.dst.width, m.src.height += m.dst.height;
    if (c.rng.oneIn(5)) m.dst = m.src;
    m.form();
    putSizes(c, m);
    if (c.has("numLobes")) c.arg("numLobes") = m.lobes;
    if (c.has("B")) putBits(c.arg("B"), m.b), putBits(c.arg("C"), m.c);
    placeBlock(c, "spec", m.specBytes());
    if (c.mode == Mode::usual && c.rng.oneIn(12)) refused(c, m);
    if (c.has("initBuf")) c.placeBuffer("initBuf", m.initBytes());
}
// What is settled of the object; the rest is as it is.
void judgeObject(Case& c) {
    if (c.expected != STATUS_OK) return;
    const Resizing& m = arrangedResizing;
    const Image& block = c.image("spec");
    const auto base = int64_t(-reinterpret_cast<uintptr_t>(block.pointer[0]) % 64);
    for (int64_t i = base + 108; i < block.width; ++i) c.set(block, i, 0, 0, c.result<uint8_t>(block, i, 0));
    describeObject(m, block.pointer[0], [&](int64_t at, auto value) {
        for (size_t i = 0; i < sizeof value; ++i)
            c.set(block, at + int64_t(i), 0, 0, reinterpret_cast<const uint8_t*>(&value)[i]);
    });
    if (m.aa || m.taps() < 4 || !c.has("initBuf")) return;
    auto fractions = reinterpret_cast<const float*>((c.arg("initBuf").a + 63) & ~int64_t(63));
    for (const ResizeAxis* a : {&m.y, &m.x})
        for (int64_t i = 0; i < a->d; ++i, ++fractions) {
            const double x = a->kind == a->pixel ? double(i) : ((double(i) + 0.5) * double(a->s)) / double(a->d) - 0.5;
            if (*fractions != float(x - double(a->index[size_t(i)]))) c.fail("a wrong fraction in the buffer");
        }
}

// ---- Questions to an object ----

ImagePointL asked;
ImageSizeL askedSize;
void arrangeQuestion(Case& c) {
    Resizing& m = arrangedResizing = {};
    const bool any = c.member.source == Element::none;
    m.real64 = c.member.source == Element::f64 || (any && c.rng.oneIn(3));
    m.interpolation = anyMethod(c);
    m.aa = m.taps() && (c.rng.oneIn(2) || (m.real64 && m.interpolation != INTERP_LINEAR));
    if (m.real64 && !m.aa) m.interpolation = INTERP_LINEAR;
    anyParameters(c, m);
    m.src = {anySide(c, m), anySide(c, m)}, m.dst = {anySide(c, m), anySide(c, m)};
    m.src.width = std::max<int64_t>(m.src.width, leastSide(m)),
    m.src.height = std::max<int64_t>(m.src.height, leastSide(m));
    if (m.interpolation == INTERP_SUPER) m.src.width += m.dst.width, m.src.height += m.dst.height;
    m.form();
    placeResizing(c, m);
    if (c.has("shiftX")) {
        m.shift[0] = c.rng.between(-8, 8) / 16.0, m.shift[1] = c.rng.between(-50, 50) / 100.0;
        if (c.mode == Mode::usual && c.rng.oneIn(8)) {
            const double bad[] = {0.51, -0.50000001, NAN, INFINITY};
            (c.rng.oneIn(2) ? m.shift[0] : m.shift[1]) = bad[c.rng.below(4)];
            c.expected = STATUS_OUT_OF_RANGE;
        } else if (m.interpolation == INTERP_SUPER) {
            c.expected = STATUS_BAD_ARGUMENT;
        }
        putBits(c.arg("shiftX"), m.shift[0]), putBits(c.arg("shiftY"), m.shift[1]);
        if (c.expected != STATUS_OK) return;
        m.form();
    }
    asked = {c.rng.below(int(m.dst.width)), c.rng.below(int(m.dst.height))};
    askedSize = {c.rng.between(1, int(m.dst.width) + 2), c.rng.between(1, int(m.dst.height) + 2)};
    if (c.has("dstOffset")) c.arg("dstOffset") = {asked.x, asked.y};
    if (c.has("dstTileSize")) c.arg("dstTileSize") = {askedSize.width, askedSize.height};
    const int counts[] = {1, 3, 4};
    if (c.has("numChannels")) c.arg("numChannels") = counts[c.rng.below(3)];
    for (const auto& [name, count] : {std::pair("bufSize", 1), {"borderSize", 4}, {"srcOffset", 2}, {"srcRoi", 4}})
        if (c.has(name)) c.placeValue(name, count);
}
void answer(Case& c) {
    const Resizing& m = arrangedResizing;
    if (c.has("shiftX")) return judgeObject(c);
    if (c.has("dstTileSize") && (askedSize.width > m.dst.width || askedSize.height > m.dst.height))
        c.expected = STATUS_WARN_SIZE_CLIPPED;
    if (c.has("bufSize"))
        setNumbers(c, "bufSize",
                   {int64_t(m.bufferBytes(askedSize.width, askedSize.height, int(c.arg("numChannels").a)))});
    if (c.has("srcOffset"))
        setNumbers(c, "srcOffset", {asked.x * m.src.width / m.dst.width, asked.y * m.src.height / m.dst.height});
    if (c.has("srcRoi")) {
        const auto [x0, x1] = m.needed(m.x, asked.x, std::min(asked.x + askedSize.width, m.dst.width));
        const auto [y0, y1] = m.needed(m.y, asked.y, std::min(asked.y + askedSize.height, m.dst.height));
        setNumbers(c, "srcRoi", {x0, y0, x1 - x0, y1 - y0});
    }
    if (c.has("borderSize")) {
        int sides[4] = {};
        describeObject(m, nullptr, [&](int64_t at, auto value) {
            if (at >= 24 && at < 40) std::memcpy(&sides[(at - 24) / 4], &value, 4);
        });
        setNumbers(c, "borderSize", {sides[0], sides[1], sides[2], sides[3]});
    }
}

// Of a plain Lanczos initialiser the lobes are looked at last, and leave the processor as they found it here.
TEST(Resize, LateLanczosRefusals) {
    const auto init = reinterpret_cast<StatusCode (*)(ImageSize, ImageSize, unsigned, void*, void*)>(
        underTest().find("zmviResizeLanczosInit_16s"));
    alignas(64) static uint8_t spec[4096], buffer[1024];
    const std::tuple<int, unsigned, StatusCode> calls[] = {{6, 1, STATUS_BAD_ARGUMENT}, {6, 4, STATUS_BAD_ARGUMENT},
                                                           {5, 3, STATUS_BAD_SIZE},     {3, 2, STATUS_BAD_SIZE},
                                                           {5, 2, STATUS_OK},           {6, 3, STATUS_OK}};
    for (const auto& [side, lobes, status] : calls) {
        const unsigned ours = _mm_getcsr();
        _mm_setcsr(0x1f80 | 0x4000);
        std::memset(spec, 0, sizeof spec);
        EXPECT_EQ(init({side, side}, {9, 9}, lobes, spec, buffer), status);
        const unsigned after = _mm_getcsr() & 0xffc0;
        _mm_setcsr(ours);
        EXPECT_EQ(after, status == STATUS_OK ? 0x1f80u | 0x4000 : 0x1f80u | 0x8000);
        EXPECT_EQ(spec[0], 0x89);
    }
}

// Sides that only _L forms can pass, radii that no int holds, and a kind that no initialiser writes.
TEST(Resize, Limits) {
    const auto find = [](const char* name) { return underTest().find(std::string("zmviResize") + name); };
    int64_t spec = 0, size = 0;
    const auto getSize =
        reinterpret_cast<StatusCode (*)(ImageSizeL, ImageSizeL, int, int, int64_t*, int64_t*)>(find("GetSize_L"));
    const int64_t most = INT_MAX;
    EXPECT_EQ(getSize({most + 1, 1}, {1, 1}, INTERP_NEAREST, 0, &spec, &size), STATUS_SIZE_EXCEEDS_INT);
    EXPECT_EQ(getSize({most + 1, -1}, {1, 1}, INTERP_NEAREST, 0, &spec, &size), STATUS_BAD_SIZE);
    EXPECT_EQ(getSize({most, 9}, {1, most}, INTERP_LANCZOS, 1, &spec, &size), STATUS_OK);
    EXPECT_GT(spec, 24 * most);
    alignas(64) static uint8_t block[4096], buffer[64];
    using Init = StatusCode (*)(ImageSizeL, ImageSizeL, void*, void*, float, float);
    EXPECT_EQ(reinterpret_cast<Init>(find("AntialiasingCubicInit_L"))({most, 4}, {1, 4}, block, buffer, 0, 1),
              STATUS_SIZE_EXCEEDS_INT);
    EXPECT_EQ(reinterpret_cast<Init>(find("CubicInit_L"))({4, most + 1}, {1, 4}, block, buffer, 0, 1),
              STATUS_SIZE_EXCEEDS_INT);
    EXPECT_EQ(block[0], 0);
    const auto super = reinterpret_cast<StatusCode (*)(ImageSize, ImageSize, void*)>(find("SuperInit_8u"));
    EXPECT_EQ(super({INT_MAX, INT_MAX}, {INT_MAX - 1, INT_MAX - 1}, block), STATUS_OK);
    const auto bytes =
        reinterpret_cast<StatusCode (*)(const void*, ImageSizeL, int, int64_t*)>(find("GetBufferSize_L"));
    EXPECT_EQ(bytes(block, {most, most}, 4, &size), STATUS_SIZE_EXCEEDS_INT);
    block[4] = 7;
    EXPECT_EQ(bytes(block, {most - 1, 1}, 1, &size), STATUS_OK);
    EXPECT_EQ(size, 4 * (most + 1) + 32 + 64 + 4 * (most / 32 * 32 + 32) + 8 + 64);
    const auto mode = reinterpret_cast<StatusCode (*)(double, double, void*)>(find("SetMode"));
    EXPECT_EQ(mode(0, 0, block), STATUS_BAD_ARGUMENT);
}

}  // namespace

#define TESTED(name, ...) extern const Family test_zmviResize##name = {__VA_ARGS__};
TESTED(GetSize, .arrange = arrangeSize, .oracle = answerSize)
#define MADE(name) TESTED(name##Init, .arrange = arrangeInit, .oracle = judgeObject)
MADE(Nearest) MADE(Linear) MADE(Cubic) MADE(Lanczos) MADE(Super)
MADE(AntialiasingLinear) MADE(AntialiasingCubic) MADE(AntialiasingLanczos)
#define ASKED(name) TESTED(name, .arrange = arrangeQuestion, .oracle = answer, .more = {noResizing})
ASKED(GetBufferSize) ASKED(GetBorderSize) ASKED(GetSrcOffset) ASKED(GetSrcRoi) ASKED(SetMode)
