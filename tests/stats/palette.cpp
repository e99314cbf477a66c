// zmviLUTPalette.
#include "harness/case.h"

namespace {

using namespace test;

std::string tableOf(const Case& c) { return c.has("pTable") ? "pTable" : "pTables"; }
bool inThrees(const Case& c) { return c.member.from.channels < c.member.to.channels; }

void arrangePalette(Case& c) {
    const int bits = c.seed % 3 ? c.rng.between(1, 8) : 8;
    c.allChannels = true;
    c.arg("nBitSize") = bits;
    c.arg("roiSize") = {c.width, c.height};
    c.place("src", c.width, c.height);
    c.place("dst", c.width, c.height);
    if (!inThrees(c) && c.member.source == c.member.destination && c.rng.oneIn(4)) c.alias("dst", "src");
    c.place(tableOf(c), (inThrees(c) ? 3 : 1) << bits, 1);
}
void choose(Case& c) {
    const Image &src = c.image("src"), &dst = c.image("dst"), &table = c.image(tableOf(c));
    const int mask = (1 << c.arg("nBitSize").a) - 1;
    withElement(dst.element, [&](auto zero) {
        for (int64_t y = 0; y < c.height; ++y)
            for (int64_t x = 0; x < c.width; ++x)
                for (int k = 0; k < c.member.to.used(); ++k) {
                    const int entry = c.get<uint8_t>(src, x, y, inThrees(c) ? 0 : k) & mask;
                    c.set(dst, x, y, k,
                          inThrees(c) ? c.get<decltype(zero)>(table, 3 * entry + k, 0)
                                      : c.get<decltype(zero)>(table, entry, 0, table.planes ? k : 0));
                }
    });
}
}  // namespace

extern const Family test_zmviLUTPalette = {.arrange = arrangePalette, .oracle = choose};
