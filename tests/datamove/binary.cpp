// zmviGrayToBin, zmviBinToGray.
#include "harness/case.h"

namespace {

using namespace test;

const char* bitsOf(const Case& c) { return c.has("dstBitOffset") ? "dst" : "src"; }
std::string offsetOf(const Case& c) { return bitsOf(c) + std::string("BitOffset"); }

// An image of bits is placed as the bytes that it has bits in: what is beyond is not for the call to touch.
void arrangeBits(Case& c) {
    const int64_t offset = c.rng.below(8);
    c.arg(offsetOf(c)) = offset;
    for (const char* name : {"src", "dst"})
        if (std::string(name) == bitsOf(c))
            c.place(name, (offset + c.width + 7) / 8, c.height);
        else
            c.place(name, c.width, c.height), fillNumbers(c, name);
    for (const char* name : {"threshold", "loVal", "hiVal"})
        if (c.has(name)) c.placeValue(name, 1), fillNumbers(c, name), c.bindValue(name);
    c.arg("roiSize") = {c.width, c.height};
    if (!c.has("threshold")) return;
    // Pixels that equal the threshold.
    change(c, c.image("src"),
           [&]<class T>(T v, auto...) { return c.rng.oneIn(8) ? c.get<T>(c.image("threshold"), 0, 0) : v; });
}

template <class F>
void eachBit(Case& c, F f) {
    for (int64_t y = 0; y < c.height; ++y)
        for (int64_t x = 0; x < c.width; ++x) {
            const int64_t at = x + c.arg(offsetOf(c)).a;
            f(x, y, at / 8, 128 >> at % 8);
        }
}
void toBits(Case& c) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    withElement(src.element, [&]<class T>(T) {
        const T threshold = c.get<T>(c.image("threshold"), 0, 0);
        eachBit(c, [&](int64_t x, int64_t y, int64_t byte, int bit) {
            const int others = c.get<uint8_t>(dst, byte, y) & ~bit;
            c.set(dst, byte, y, 0, uint8_t(c.get<T>(src, x, y) > threshold ? others | bit : others));
        });
    });
}
void fromBits(Case& c) {
    const Image &src = c.image("src"), &dst = c.image("dst");
    withElement(dst.element, [&]<class T>(T) {
        eachBit(c, [&](int64_t x, int64_t y, int64_t byte, int bit) {
            const char* const value = c.get<uint8_t>(src, byte, y) & bit ? "hiVal" : "loVal";
            std::memcpy(dst.at(c.blocks(), x, y, 0), c.image(value).at(c.blocks(), 0, 0, 0), sizeof(T));
        });
    });
}

}  // namespace

extern const Family test_zmviGrayToBin = {.arrange = arrangeBits, .oracle = toBits};
extern const Family test_zmviBinToGray = {.arrange = arrangeBits, .oracle = fromBits};
