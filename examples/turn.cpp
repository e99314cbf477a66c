// Pixels and channels that change places: a picture mirrored, turned, and with red and blue exchanged.
#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: turn photo.png folder");
    const Picture photo = load(argv[1], 3);
    const int width = photo.size.width, height = photo.size.height;
    Picture mirrored(photo.size, 3), turned({height, width}, 3), swapped(photo.size, 3);

    const double mirroring = bestTime([&] {
        check(
            zmviMirror_8u_C3R(photo.at(0, 0), photo.step, mirrored.at(0, 0), mirrored.step, photo.size, AXIS_VERTICAL),
            "zmviMirror_8u_C3R");
    });
    // Rows become columns; with the columns in the opposite order that is a quarter turn to the right.
    const double turning = bestTime([&] {
        check(zmviTranspose_8u_C3R(photo.at(0, 0), photo.step, turned.at(0, 0), turned.step, photo.size),
              "zmviTranspose_8u_C3R");
        check(zmviMirror_8u_C3IR(turned.at(0, 0), turned.step, turned.size, AXIS_VERTICAL), "zmviMirror_8u_C3IR");
    });
    const int blueFirst[3] = {2, 1, 0};
    const double swapping = bestTime([&] {
        check(
            zmviSwapChannels_8u_C3R(photo.at(0, 0), photo.step, swapped.at(0, 0), swapped.step, photo.size, blueFirst),
            "zmviSwapChannels_8u_C3R");
    });

    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const uint8_t* pixel = photo.at(x, y);
            const uint8_t exchanged[3] = {pixel[2], pixel[1], pixel[0]};
            if (std::memcmp(mirrored.at(width - 1 - x, y), pixel, 3) != 0) fail("not mirrored");
            if (std::memcmp(turned.at(height - 1 - y, x), pixel, 3) != 0) fail("not turned to the right");
            if (std::memcmp(swapped.at(x, y), exchanged, 3) != 0) fail("red and blue are not exchanged");
        }
    publish(mirrored, argv[2], "mirrored", mirroring, "Mirrored", "zmviMirror about the vertical axis.");
    publish(turned, argv[2], "turned", turning, "Turned",
            "zmviTranspose, then zmviMirror in place: a quarter turn to the right.");
    publish(swapped, argv[2], "exchanged", swapping, "Red and blue exchanged",
            "zmviSwapChannels: channel 2 first, then 1 and 0.");
}
