// The photograph taken apart into red, green and blue, and put together again, once in another order.
#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: planes photo.png folder");
    const Picture photo = load(argv[1], 3);
    const ImageSize size = photo.size;
    const Picture red(size, 1), green(size, 1), blue(size, 1);

    // Planes share one step; here they do, since one size gives one step.
    uint8_t* const planes[3] = {red.at(0, 0), green.at(0, 0), blue.at(0, 0)};
    double time = bestTime(
        [&] { check(zmviCopy_8u_C3P3R(photo.at(0, 0), photo.step, planes, red.step, size), "zmviCopy_8u_C3P3R"); });
    const char* sentence = "zmviCopy, C3P3R: one pass writes all three planes; the time is that of the three.";
    publish(red, argv[2], "red", time, "The red plane", sentence);
    publish(green, argv[2], "green", time, "The green plane", sentence);
    publish(blue, argv[2], "blue", time, "The blue plane", sentence);

    Picture again(size, 3);
    const uint8_t* const inOrder[3] = {planes[0], planes[1], planes[2]};
    check(zmviCopy_8u_P3C3R(inOrder, red.step, again.at(0, 0), again.step, size), "zmviCopy_8u_P3C3R");
    if (!same(again, photo)) fail("the planes do not give back the photograph");

    const uint8_t* const reversed[3] = {planes[2], planes[1], planes[0]};
    time = bestTime(
        [&] { check(zmviCopy_8u_P3C3R(reversed, red.step, again.at(0, 0), again.step, size), "zmviCopy_8u_P3C3R"); });
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const uint8_t *was = photo.at(x, y), *is = again.at(x, y);
            if (is[0] != was[2] || is[1] != was[1] || is[2] != was[0]) fail("a channel in the wrong place");
        }
    publish(again, argv[2], "swapped", time, "Blue, green, red",
            "zmviCopy, P3C3R: the planes put together in reverse order.");
}
