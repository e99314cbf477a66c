// Colours under an alpha channel: AC4 functions write the three colours and leave the fourth channel as it was.
#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: alpha photo.png folder");
    const Picture photo = load(argv[1], 4);
    const int width = photo.size.width, height = photo.size.height;

    // A picture without colours yet, opaque in the middle and fading towards an ellipse at the edge.
    Picture vignette(photo.size, 4);
    auto opacity = [&](int x, int y) {
        const double u = (2 * x + 1.0) / width - 1, v = (2 * y + 1.0) / height - 1;
        return uint8_t(255 * std::clamp(3 * (1 - (u * u + v * v)), 0.0, 1.0));
    };
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) vignette.at(x, y)[3] = opacity(x, y);

    const double time = bestTime([&] {
        check(zmviCopy_8u_AC4R(photo.at(0, 0), photo.step, vignette.at(0, 0), vignette.step, photo.size),
              "zmviCopy_8u_AC4R");
    });

    // A region is a pointer to its first pixel and a size: here a band across the lower part.
    const int bandTop = height * 4 / 5;
    const ImageSize band = {width, std::max(1, height / 14)};
    const uint8_t colour[3] = {255, 165, 0};
    check(zmviSet_8u_AC4R(colour, vignette.at(0, bandTop), vignette.step, band), "zmviSet_8u_AC4R");

    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const bool inBand = y >= bandTop && y < bandTop + band.height;
            if (vignette.at(x, y)[3] != opacity(x, y)) fail("alpha has changed");
            if (std::memcmp(vignette.at(x, y), inBand ? colour : photo.at(x, y), 3) != 0) fail("a wrong colour");
        }
    publish(vignette, argv[2], "alpha", time, "Alpha kept",
            "zmviCopy, AC4R: the colours go under a soft alpha channel; zmviSet, AC4R, adds the band.");
}
