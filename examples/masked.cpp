// Masks: the sharp photograph copied into an ellipse of a blurred one, and rounded corners painted round it.
#include "picture.h"

// Whether (x, y) lies in |x/a|^p + |y/b|^p <= 1 about the middle: an ellipse for 2, a box with rounded corners for 8.
static bool inside(ImageSize size, int x, int y, double scale, int power) {
    const double u = (2 * x + 1.0) / size.width - 1, v = (2 * y + 1.0) / size.height - 1;
    double left = 1;
    for (double t : {u / scale, v / scale}) {
        double raised = 1;
        for (int i = 0; i < power; ++i) raised *= t;
        left -= raised;
    }
    return left >= 0;
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: masked photo.png folder");
    const Picture photo = load(argv[1], 3);
    const ImageSize size = photo.size;

    Picture blurred(size, 3), result(size, 3), ellipse(size, 1), corners(size, 1);
    int bytes = 0;
    check(zmviFilterBoxBorderGetBufferSize(size, {31, 31}, DATATYPE_8U, 3, &bytes), "zmviFilterBoxBorderGetBufferSize");
    const std::unique_ptr<uint8_t[]> buffer(new uint8_t[bytes]);
    check(zmviFilterBoxBorder_8u_C3R(photo.at(0, 0), photo.step, blurred.at(0, 0), blurred.step, size, {31, 31},
                                     BORDER_MIRROR, nullptr, buffer.get()),
          "zmviFilterBoxBorder_8u_C3R");
    check(zmviCopy_8u_C3R(blurred.at(0, 0), blurred.step, result.at(0, 0), result.step, size), "zmviCopy_8u_C3R");

    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            *ellipse.at(x, y) = inside(size, x, y, 0.8, 2) ? 255 : 0;  // any value but zero will do
            *corners.at(x, y) = inside(size, x, y, 1.0, 8) ? 0 : 255;
        }

    double time = bestTime([&] {
        check(zmviCopy_8u_C3MR(photo.at(0, 0), photo.step, result.at(0, 0), result.step, size, ellipse.at(0, 0),
                               ellipse.step),
              "zmviCopy_8u_C3MR");
    });
    auto verify = [&](const Picture& mask, const uint8_t* colour) {
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) {
                const uint8_t* other = *ellipse.at(x, y) ? photo.at(x, y) : blurred.at(x, y);
                const uint8_t* expected = colour && *mask.at(x, y) ? colour : other;
                if (std::memcmp(result.at(x, y), expected, 3) != 0) fail("a pixel that does not follow the mask");
            }
    };
    verify(ellipse, nullptr);
    publish(result, argv[2], "masked", time, "Copy through a mask",
            "zmviCopy, masked: the sharp photograph goes into an ellipse of a blurred one.");

    const uint8_t colour[3] = {70, 130, 180};
    time = bestTime([&] {
        check(zmviSet_8u_C3MR(colour, result.at(0, 0), result.step, size, corners.at(0, 0), corners.step),
              "zmviSet_8u_C3MR");
    });
    verify(corners, colour);
    publish(result, argv[2], "rounded", time, "Set through a mask",
            "zmviSet, masked: one colour, only where the mask is not zero, rounds the corners.");
}
