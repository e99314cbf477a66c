// What the filters promise beyond single values: results that depend on nothing but the window.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "filter/box.h"

namespace {

using namespace test;

// A direct call: the arguments of all bordered windows are the same.
struct Window {
    const Member& member;
    ImageSize mask;
    const void* value;

    void operator()(const uint8_t* src, int64_t srcStep, uint8_t* dst, int64_t dstStep, int64_t w, int64_t h,
                    int word) const {
        Case asked(member, underTest(), 0);
        asked.arg("roiSize") = {w, h};
        asked.arg("maskSize") = {mask.width, mask.height};
        const std::unique_ptr<uint8_t[]> buffer(new uint8_t[size_t(asked.bufferSize())]);
        const Slot args[] = {src, srcStep, dst, dstStep, {w, h}, {mask.width, mask.height}, word, value, buffer.get()};
        ASSERT_EQ(member.invoke(underTest().find(member.name), args), STATUS_OK) << member.name;
    }
};

std::vector<const Member*> windows() {
    std::vector<const Member*> found;
    for (const Member& m : members())
        if (m.points("borderValue") && (options.only.empty() || m.name == options.only)) found.push_back(&m);
    return found;
}

// Rows of pixels with a step and a misalignment of their own.
struct Rows {
    int64_t pixel, width, step;
    std::vector<uint8_t> bytes;
    int64_t offset;
    Rows(int64_t w, int64_t h, int64_t pixelBytes, Rng& rng)
        : pixel(pixelBytes), width(w), step(w * pixelBytes + rng.below(70)), offset(rng.below(64)) {
        bytes.resize(size_t(offset + step * h));
    }
    uint8_t* at(int64_t x, int64_t y) { return bytes.data() + offset + y * step + x * pixel; }
};

// A region cut into tiles, each told that its neighbours are in memory, gives the bits of the whole, wherever tiles
// and results lie.  So does the region in place.
void tilesEqualWhole(const Member& m, uint64_t seed) {
    Rng rng(seed);
    const int rules[] = {BORDER_REPL, BORDER_MIRROR, BORDER_CONST};
    const int word = rules[rng.below(3)];
    const int64_t w = rng.between(20, 120), h = rng.between(12, 40), n = m.to.channels;
    const ImageSize mask = {rng.between(1, 10), rng.between(1, 10)};  // reaches 5 pixels at most
    const int64_t srcPixel = n * bytesOf(m.source), dstPixel = n * bytesOf(m.destination);
    Rows src(w, h, srcPixel, rng), whole(w, h, dstPixel, rng), tiled(w, h, dstPixel, rng);
    for (int64_t y = 0; y < h; ++y)
        for (int64_t i = 0; i < w * n; ++i) {
            const float value = std::ldexp(float(rng.between(-999, 999)), rng.between(-12, 12));
            uint8_t* const to = src.at(0, y) + i * bytesOf(m.source);
            if (m.source == Element::f32)
                std::memcpy(to, &value, 4);
            else
                for (int k = 0; k < bytesOf(m.source); ++k) to[k] = uint8_t(rng.next());
        }
    const float values[4] = {1.5f, -2, 3, 0};
    const Window window{m, mask, values};
    window(src.at(0, 0), src.step, whole.at(0, 0), whole.step, w, h, word);

    // Tiles larger than the reach of the mask: a smaller one would have a border rule of its own.
    const auto cuts = [&](int64_t size) {
        std::vector<int64_t> at = {0, size};
        for (int i = 0; i < 5; ++i) {
            const int64_t cut = rng.between(0, int(size));
            if (std::all_of(at.begin(), at.end(), [&](int64_t other) { return std::abs(cut - other) >= 6; }))
                at.push_back(cut);
        }
        std::sort(at.begin(), at.end());
        return at;
    };
    const auto columns = cuts(w), rows = cuts(h);
    for (size_t j = 0; j + 1 < rows.size(); ++j)
        for (size_t i = 0; i + 1 < columns.size(); ++i) {
            const int64_t x = columns[i], y = rows[j], tw = columns[i + 1] - x, th = rows[j + 1] - y;
            const int flags = (x > 0 ? BORDER_IN_MEM_LEFT : 0) | (y > 0 ? BORDER_IN_MEM_TOP : 0) |
                              (x + tw < w ? BORDER_IN_MEM_RIGHT : 0) | (y + th < h ? BORDER_IN_MEM_BOTTOM : 0);
            window(src.at(x, y), src.step, tiled.at(x, y), tiled.step, tw, th, word | flags);
        }
    const auto expectSame = [&](Rows& got, const char* what) {
        for (int64_t y = 0; y < h; ++y)
            for (int64_t x = 0; x < w; ++x)
                ASSERT_EQ(std::memcmp(got.at(x, y), whole.at(x, y), size_t(m.to.used() * bytesOf(m.destination))), 0)
                    << m.name << " " << what << " differ at pixel " << x << " of row " << y << ", mask " << mask.width
                    << "x" << mask.height << " border " << word << " seed=" << seed;
    };
    expectSame(tiled, "tiles");
    Rows both(w, h, std::max(srcPixel, dstPixel), rng);
    for (int64_t y = 0; y < h; ++y) std::memcpy(both.at(0, y), src.at(0, y), size_t(w * srcPixel));
    window(both.at(0, 0), both.step, both.at(0, 0), both.step, w, h, word);
    expectSame(both, "results in place");
}

TEST(Window, TilesEqualWhole) {
    for (const Member* m : windows())
        for (long seed = 0; seed < 40 * options.cases; ++seed) {
            tilesEqualWhole(*m, uint64_t(seed));
            if (HasFatalFailure()) break;
        }
}

// All pixels at their largest, masks of millions: the sum of 8-bit pixels saturates at what 32 bits hold.
TEST(Window, SumsBeyond32Bits) {
    const uint8_t pixels[8] = {255, 255, 255, 255, 255, 255, 255, 255};
    for (const Member* m : windows()) {
        if (m->source != Element::u8 || m->to.alpha) continue;
        for (const ImageSize mask : {ImageSize{2900, 2901}, ImageSize{2903, 2901}, ImageSize{4200, 4001}}) {
            if (m->to.channels > 1 && mask.width > 4000) continue;  // the buffer's size would not fit an int
            int32_t sum[4] = {};
            Window{*m, mask, nullptr}(pixels, 4, reinterpret_cast<uint8_t*>(sum), 16, 1, 1, BORDER_REPL);
            const int64_t exact = 255LL * mask.width * mask.height;
            const bool mean = m->destination == Element::u8;
            EXPECT_EQ(mean ? sum[0] & 255 : sum[0], mean ? 255 : std::min<int64_t>(exact, INT32_MAX)) << m->name;
        }
    }
}

}  // namespace
