// zmviCopy, zmviCopyManaged, zmviDup, zmviSet: pixels moved or set one by one.
#include "harness/case.h"

namespace {

using namespace test;

bool spreads(const Member& m) { return m.name.rfind("zmviDup", 0) == 0; }

// Channels that take part.
int used(const Member& m) {
    if (m.oneChannel) return 1;
    if (spreads(m)) return m.to.channels;
    if (m.from.planar || m.to.planar || std::min(m.from.channels, m.to.channels) > 1)
        return std::min(m.from.used(), m.to.used());
    return 1;
}

void arrangePixels(Case& c) {
    c.allChannels = spreads(c.member);
    arrangeByRoles(c);
    // Copying an image onto itself is allowed and changes nothing.
    const bool same = c.has("src") && c.member.from == c.member.to && !c.has("flags");
    if (same && c.mode == Mode::usual && c.rng.oneIn(8)) c.alias("dst", "src");
}

// Rows top to bottom, pixels left to right, channels in order: that order counts where operands overlap, or rows do.
void movePixels(Case& c) {
    const Image& dst = c.image("dst");
    const bool constant = c.has("value");
    const Image& from = c.image(constant ? "value" : "src");
    const Image* mask = c.has("mask") ? &c.image("mask") : nullptr;
    const int channels = used(c.member), next = spreads(c.member) ? 0 : 1;
    withElement(dst.element, [&](auto zero) {
        using Bytes = std::array<uint8_t, sizeof(zero)>;  // a float need not survive being looked at
        for (int64_t y = 0; y < c.height; ++y)
            for (int64_t x = 0; x < c.width; ++x) {
                if (mask && c.get<uint8_t>(*mask, x, y) == 0) continue;
                for (int k = 0; k < channels; ++k)
                    c.set(dst, x, y, k, constant ? c.get<Bytes>(from, 0, 0, k) : c.get<Bytes>(from, x, y, k * next));
            }
    });
}

}  // namespace

extern const Family test_zmviCopy = {.arrange = arrangePixels, .oracle = movePixels};
extern const Family test_zmviCopyManaged = {.arrange = arrangePixels, .oracle = movePixels};
extern const Family test_zmviDup = {.arrange = arrangePixels, .oracle = movePixels};
extern const Family test_zmviSet = {.arrange = arrangePixels, .oracle = movePixels};
