// A photograph in black and white, parted at the level that separates its dark pixels best from its light ones.
#include "picture.h"

// How far apart the classes up to a level and above it are, as Otsu measures it.
static double separation(const Picture& photo, int level) {
    double pixels[2] = {}, sum[2] = {};
    for (int y = 0; y < photo.size.height; ++y)
        for (int x = 0; x < photo.size.width; ++x) {
            const int pixel = *photo.at(x, y);
            ++pixels[pixel > level], sum[pixel > level] += pixel;
        }
    if (pixels[0] == 0 || pixels[1] == 0) return 0;
    const double apart = sum[1] / pixels[1] - sum[0] / pixels[0];
    return pixels[0] * pixels[1] * apart * apart;
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: otsu photo.png folder");
    const Picture photo = load(argv[1], 1);
    Picture parted(photo.size, 1);
    uint8_t level = 0;
    const double time = bestTime([&] {
        check(zmviComputeThreshold_Otsu_8u_C1R(photo.at(0, 0), photo.step, photo.size, &level),
              "zmviComputeThreshold_Otsu_8u_C1R");
    });
    check(zmviThreshold_GTVal_8u_C1R(photo.at(0, 0), photo.step, parted.at(0, 0), parted.step, photo.size, level, 255),
          "zmviThreshold_GTVal_8u_C1R");
    check(zmviThreshold_LTVal_8u_C1IR(parted.at(0, 0), parted.step, photo.size, 255, 0), "zmviThreshold_LTVal_8u_C1IR");

    for (int y = 0; y < photo.size.height; ++y)
        for (int x = 0; x < photo.size.width; ++x)
            if (*parted.at(x, y) != (*photo.at(x, y) > level ? 255 : 0)) fail("not parted at the level");
    const double best = separation(photo, level);
    for (int other = 0; other < 256; ++other)
        if (separation(photo, other) > best * (1 + 1e-9)) fail("another level parts better");
    publish(parted, argv[2], "otsu", time, "Black and white",
            "zmviComputeThreshold_Otsu finds the level " + std::to_string(level) + ": what is above it becomes white.");
}
