// The mean of the 5 x 5 and of the 31 x 31 pixels round each pixel.
#include "picture.h"

// The mean of one window, summed the slow way; outside pixels repeat the nearest one.  The area is odd: no ties.
static int mean(const Picture& photo, int x, int y, int channel, int mask) {
    long sum = 0;
    for (int v = y - mask / 2; v <= y + mask / 2; ++v)
        for (int u = x - mask / 2; u <= x + mask / 2; ++u)
            sum += photo.at(std::clamp(u, 0, photo.size.width - 1), std::clamp(v, 0, photo.size.height - 1))[channel];
    return int((2 * sum + mask * mask) / (2 * mask * mask));
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: box photo.png folder");
    const Picture photo = load(argv[1], 3);
    Picture smooth(photo.size, 3);

    for (int mask : {5, 31}) {
        // A filter asks for work memory, and says how much; it may serve any number of calls, one after another.
        int bytes = 0;
        check(zmviFilterBoxBorderGetBufferSize(photo.size, {mask, mask}, DATATYPE_8U, 3, &bytes),
              "zmviFilterBoxBorderGetBufferSize");
        const std::unique_ptr<uint8_t[]> buffer(new uint8_t[bytes]);

        const double time = bestTime([&] {
            check(zmviFilterBoxBorder_8u_C3R(photo.at(0, 0), photo.step, smooth.at(0, 0), smooth.step, photo.size,
                                             {mask, mask}, BORDER_REPL, nullptr, buffer.get()),
                  "zmviFilterBoxBorder_8u_C3R");
        });

        // Every 13th column and 7th row, from the corner on, which reach all four edges and the inside.
        for (int y = 0; y < photo.size.height; y += 7)
            for (int x = 0; x < photo.size.width; x += 13)
                for (int channel = 0; channel < 3; ++channel)
                    if (smooth.at(x, y)[channel] != mean(photo, x, y, channel, mask))
                        fail("a wrong mean at " + std::to_string(x) + ", " + std::to_string(y));

        const std::string width = std::to_string(mask);
        publish(smooth, argv[2], "box" + width, time, "Box filter " + width + " x " + width,
                "zmviFilterBoxBorder: the mean of the " + width + " x " + width +
                    " pixels round each; the nearest pixel repeats beyond the edges.");
    }
}
