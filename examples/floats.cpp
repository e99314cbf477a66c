// Into floats and back: bytes survive the way there and back exactly, and in between there is room for any function.
#include <cmath>

#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: floats photo.png folder");
    const Picture photo = load(argv[1], 3);
    const ImageSize size = photo.size;
    Picture back(size, 3), lifted(size, 3);

    int step = 0;
    const std::unique_ptr<float, Free> floats(zmviMalloc_32f_C3(size.width, size.height, &step));
    if (!floats) fail("no memory for the floats");
    const auto toFloats = [&] {
        check(zmviConvert_8u32f_C3R(photo.at(0, 0), photo.step, floats.get(), step, size), "zmviConvert_8u32f_C3R");
    };
    const auto toBytes = [&](const Picture& picture) {
        check(zmviConvert_32f8u_C3R(floats.get(), step, picture.at(0, 0), picture.step, size, ROUND_NEAR),
              "zmviConvert_32f8u_C3R");
    };
    const double time = bestTime([&] {
        toFloats();
        toBytes(back);
    });
    if (!same(photo, back)) fail("the round trip has changed the picture");

    // The geometric mean of each number and white lifts the shadows.
    const float white[3] = {255, 255, 255};
    toFloats();
    check(zmviMulC_32f_C3IR(floats.get(), step, white, size), "zmviMulC_32f_C3IR");
    check(zmviSqrt_32f_C3IR(floats.get(), step, size), "zmviSqrt_32f_C3IR");
    toBytes(lifted);
    for (int y = 0; y < size.height; ++y)
        for (int i = 0; i < size.width * 3; ++i)
            if (lifted.at(0, y)[i] != std::lround(std::sqrt(255.0 * photo.at(0, y)[i]))) fail("not the nearest root");
    publish(lifted, argv[2], "floats", time, "Floats and back",
            "zmviConvert: the round trip changes nothing; zmviMulC and zmviSqrt in between lift the shadows.");
}
