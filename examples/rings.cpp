// Test images: rings that grow finer outwards, what two filters make of them, and ramps along three axes.
#include <cmath>
#include <vector>

#include "picture.h"

static void blur(const Picture& from, const Picture& to, int mask) {
    int bytes = 0;
    check(zmviFilterBoxBorderGetBufferSize(from.size, {mask, mask}, DATATYPE_8U, 1, &bytes),
          "zmviFilterBoxBorderGetBufferSize");
    std::vector<uint8_t> buffer(bytes);
    check(zmviFilterBoxBorder_8u_C1R(from.at(0, 0), from.step, to.at(0, 0), to.step, from.size, {mask, mask},
                                     BORDER_REPL, nullptr, buffer.data()),
          "zmviFilterBoxBorder_8u_C1R");
}

// How far from the middle gray the pixels of a ring of so many periods a pixel are, at most.
static int contrast(const Picture& rings, double frequency) {
    const double radius = frequency * rings.size.width, middle = (rings.size.width - 1) / 2.0;
    int most = 0;
    for (int y = 0; y < rings.size.height; ++y)
        for (int x = 0; x < rings.size.width; ++x)
            if (std::fabs(std::hypot(x - middle, y - middle) - radius) < 4)
                most = std::max(most, std::abs(*rings.at(x, y) - 128));
    return most;
}

static void ramps(const char* folder) {
    const ImageSize size = {480, 150};
    Picture all({size.width, 3 * size.height}, 1);
    const int axes[] = {AXIS_HORIZONTAL, AXIS_VERTICAL, AXIS_BOTH};
    const double longest[] = {479, 149, 628};
    double time = 1e30;
    for (int i = 0; i < 3; ++i) {
        uint8_t* const first = all.at(0, i * size.height);
        time = std::min(time, bestTime([&] {
                            check(zmviImageRamp_8u_C1R(first, all.step, size, 0, 255 / longest[i], axes[i]),
                                  "zmviImageRamp_8u_C1R");
                        }));
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) {
                const int along = i == 0 ? x : i == 1 ? y : x + y;
                if (std::fabs(*all.at(x, i * size.height + y) - along * 255 / longest[i]) > 0.501) fail("no ramp");
            }
    }
    publish(all, folder, "ramps", time, "Ramps", "zmviImageRamp: along x, along y, along both; one third's time.");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: rings photo.png folder");
    const int side = 450;  // whatever the photograph
    Picture rings({side, side}, 1), box(rings.size, 1), once(rings.size, 1), twice(rings.size, 1), soft(rings.size, 1);
    const double time = bestTime(
        [&] { check(zmviImageJaehne_8u_C1R(rings.at(0, 0), rings.step, rings.size), "zmviImageJaehne_8u_C1R"); });
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const double dx = 2 * x - side + 1, dy = 2 * y - side + 1;
            const double value = (1 + std::cos(std::acos(-1.0) * (dx * dx + dy * dy) / (4 * side))) / 2 * 255;
            if (std::fabs(*rings.at(x, y) - value) > 0.501) fail("no rings");
        }
    publish(rings, argv[2], "rings", time, "Rings",
            "zmviImageJaehne: the finer, the farther out; at the edge a period is two pixels.");

    const double boxTime = bestTime([&] { blur(rings, box, 9); });
    const double softTime = bestTime([&] { blur(rings, once, 5), blur(once, twice, 5), blur(twice, soft, 5); });
    // Beyond its first zero, at a period of 9 pixels, the box lets rings of 6 pixels through, upside down.
    if (contrast(rings, 1 / 6.0) < 120 || contrast(box, 1 / 6.0) < 20 || contrast(soft, 1 / 6.0) > 10)
        fail("filters do not do to rings what they should");
    publish(
        box, argv[2], "rings_box", boxTime, "Rings through a box",
        "zmviFilterBoxBorder, 9 x 9: rings of 9 pixels vanish, and finer ones come back, black and white exchanged.");
    publish(soft, argv[2], "rings_soft", softTime, "Rings through three boxes",
            "zmviFilterBoxBorder, 5 x 5, three times, which is almost a Gaussian: what is fine stays away.");
    ramps(argv[2]);
}
