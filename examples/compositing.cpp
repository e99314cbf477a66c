// Two pictures with soft edges, composited in six ways and laid on paper.
#include <cmath>

#include "picture.h"

namespace {

// A part of the photograph from its middle, seen through a round window, soft at its edge, round the point (x, y).
Picture throughWindow(const Picture& photo, ImageSize size, double x, double y, double radius) {
    Picture picture(size, 4);
    for (int row = 0; row < size.height; ++row)
        for (int column = 0; column < size.width; ++column) {
            const auto inside = [](int at, int length, int all) {
                return std::clamp(at + (all - length) / 2, 0, all - 1);
            };
            uint8_t* const pixel = picture.at(column, row);
            std::memcpy(
                pixel,
                photo.at(inside(column, size.width, photo.size.width), inside(row, size.height, photo.size.height)), 3);
            const double distance = std::hypot(column - x, row - y);
            pixel[3] = uint8_t(255 * std::clamp((radius - distance) / 12, 0.0, 1.0));
        }
    return picture;
}

// What a pixel of the result has to be, from 0 to 255 and not rounded: colours times their alpha, and alpha.
double due(int operation, const uint8_t* a, const uint8_t* b, int channel) {
    const double alphaA = a[3] / 255.0, alphaB = b[3] / 255.0;
    const double shownA[] = {1, alphaB, 1 - alphaB, alphaB, 1 - alphaB, 1};
    const double shownB[] = {1 - alphaA, 0, 0, 1 - alphaA, 1 - alphaA, 1};
    const double ofA = channel == 3 ? a[3] : a[channel] * alphaA, ofB = channel == 3 ? b[3] : b[channel] * alphaB;
    return std::min(ofA * shownA[operation] + ofB * shownB[operation], 255.0);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: compositing photo.png folder");
    const ImageSize size = {300, 216};
    const Picture a = throughWindow(load(argv[1], 4), size, 110, 108, 92);
    const Picture b = throughWindow(load(PHOTOGRAPHS "/coffee.png", 4), size, 190, 108, 92);
    const int operations[] = {ALPHA_OVER, ALPHA_IN, ALPHA_OUT, ALPHA_ATOP, ALPHA_XOR, ALPHA_PLUS};

    Picture sheet({3 * size.width, 2 * size.height}, 4), result(size, 4);
    const uint8_t paper[4] = {246, 243, 232, 255};
    check(zmviSet_8u_C4R(paper, sheet.at(0, 0), sheet.step, sheet.size), "zmviSet_8u_C4R");
    double time = 0;
    for (int i = 0; i < 6; ++i) {
        time += bestTime([&] {
            check(zmviAlphaComp_8u_AC4R(a.at(0, 0), a.step, b.at(0, 0), b.step, result.at(0, 0), result.step, size,
                                        operations[i]),
                  "zmviAlphaComp_8u_AC4R");
        });
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < 4 * size.width; ++x) {
                const double exact = due(i, a.at(x / 4, y), b.at(x / 4, y), x % 4);
                if (std::abs(result.at(x / 4, y)[x % 4] - exact) > 0.5001) fail("not the composition");
            }
        // Results are multiplied by their alpha, and the next operation takes them so.
        uint8_t* const place = sheet.at(i % 3 * size.width, i / 3 * size.height);
        check(zmviAlphaComp_8u_AC4IR(result.at(0, 0), result.step, place, sheet.step, size, ALPHA_OVER_PREMUL),
              "zmviAlphaComp_8u_AC4IR");
    }
    publish(
        sheet, argv[2], "compositing", time, "Composited",
        "zmviAlphaComp: the photograph in the left window and coffee in the right one. Above OVER, IN and OUT, below "
        "ATOP, XOR and PLUS; each result goes on paper by OVER_PREMUL. The time is that of all six.");
}
