// The photograph copied whole, and upside down: a step may be negative.
#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: copy photo.png folder");
    const Picture photo = load(argv[1], 3);
    const int lastRow = photo.size.height - 1;

    Picture copy(photo.size, 3);
    double time = bestTime([&] {
        check(zmviCopy_8u_C3R(photo.at(0, 0), photo.step, copy.at(0, 0), copy.step, photo.size), "zmviCopy_8u_C3R");
    });
    if (!same(copy, photo)) fail("the copy differs from the photograph");
    publish(copy, argv[2], "copy", time, "The photograph", "zmviCopy: every pixel, unchanged.");

    // An image may start at its last row and be walked upwards.
    Picture flipped(photo.size, 3);
    check(zmviCopy_8u_C3R(photo.at(0, lastRow), -photo.step, flipped.at(0, 0), flipped.step, photo.size),
          "zmviCopy_8u_C3R");
    for (int y = 0; y <= lastRow; ++y)
        if (std::memcmp(flipped.at(0, y), photo.at(0, lastRow - y), size_t(photo.size.width) * 3) != 0)
            fail("the rows did not come out in reverse order");
}
