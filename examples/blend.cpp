// Two photographs in one: their average where both are, and a vignette multiplied over the result.
#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: blend photo.png folder");
    const Picture photo = load(argv[1], 3), other = load(PHOTOGRAPHS "/coffee.png", 3);
    const ImageSize both = {std::min(photo.size.width, other.size.width),
                            std::min(photo.size.height, other.size.height)};
    Picture blend(photo.size, 3), shaded(photo.size, 3), light(photo.size, 3);

    // Half the sum, and a tie goes to the even number.
    check(zmviCopy_8u_C3R(photo.at(0, 0), photo.step, blend.at(0, 0), blend.step, photo.size), "zmviCopy_8u_C3R");
    const double blending = bestTime([&] {
        check(zmviAdd_8u_C3RSfs(photo.at(0, 0), photo.step, other.at(0, 0), other.step, blend.at(0, 0), blend.step,
                                both, 1),
              "zmviAdd_8u_C3RSfs");
    });
    for (int y = 0; y < both.height; ++y)
        for (int i = 0; i < both.width * 3; ++i) {
            const int sum = photo.at(0, y)[i] + other.at(0, y)[i];
            if (blend.at(0, y)[i] != sum / 2 + (sum % 4 == 3)) fail("not the average");
        }

    // Light falls off towards the corners: 255 stands for one.
    for (int y = 0; y < photo.size.height; ++y)
        for (int x = 0; x < photo.size.width; ++x) {
            const double u = (2 * x + 1.0) / photo.size.width - 1, v = (2 * y + 1.0) / photo.size.height - 1;
            std::memset(light.at(x, y), int(255 * std::clamp(1.15 - 0.55 * (u * u + v * v), 0.0, 1.0)), 3);
        }
    const double shading = bestTime([&] {
        check(zmviMulScale_8u_C3R(photo.at(0, 0), photo.step, light.at(0, 0), light.step, shaded.at(0, 0), shaded.step,
                                  photo.size),
              "zmviMulScale_8u_C3R");
    });
    for (int y = 0; y < photo.size.height; ++y)
        for (int i = 0; i < photo.size.width * 3; ++i)
            if (shaded.at(0, y)[i] != photo.at(0, y)[i] * light.at(0, y)[i] / 255) fail("not the share of the light");

    publish(blend, argv[2], "blend", blending, "Blended",
            "zmviAdd with scale factor 1: the average with a second photograph, where both are.");
    publish(shaded, argv[2], "vignette", shading, "Vignette",
            "zmviMulScale: times a vignette whose 255 stands for one.");
}
