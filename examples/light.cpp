// Brighter and darker: sums saturate instead of wrapping round, and a scale factor makes integers behave like
// fractions.
#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: light photo.png folder");
    const Picture photo = load(argv[1], 3);
    Picture brighter(photo.size, 3), darker(photo.size, 3);

    const uint8_t more[3] = {60, 60, 60}, threeEighths[3] = {3, 3, 3};
    const double brightening = bestTime([&] {
        check(zmviAddC_8u_C3RSfs(photo.at(0, 0), photo.step, more, brighter.at(0, 0), brighter.step, photo.size, 0),
              "zmviAddC_8u_C3RSfs");
    });
    // The product of each pixel and 3, times 2 to the power of -3.
    const double darkening = bestTime([&] {
        check(zmviMulC_8u_C3RSfs(photo.at(0, 0), photo.step, threeEighths, darker.at(0, 0), darker.step, photo.size, 3),
              "zmviMulC_8u_C3RSfs");
    });

    for (int y = 0; y < photo.size.height; ++y)
        for (int i = 0; i < photo.size.width * 3; ++i) {
            const int pixel = photo.at(0, y)[i];
            if (brighter.at(0, y)[i] != std::min(pixel + 60, 255)) fail("not 60 brighter");
            if (std::abs(8 * darker.at(0, y)[i] - 3 * pixel) > 4) fail("not three eighths");
        }
    publish(brighter, argv[2], "brighter", brightening, "Brighter",
            "zmviAddC: 60 more in each channel, white stays white.");
    publish(darker, argv[2], "darker", darkening, "Darker",
            "zmviMulC: times 3 with scale factor 3, three eighths rounded to nearest.");
}
