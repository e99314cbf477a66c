// How often each value occurs in red, green and blue, drawn as columns of light.
#include <vector>

#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: histogram photo.png folder");
    const Picture photo = load(argv[1], 3);

    // Bins are what lies between two levels: 0 to 1, 1 to 2 and so on, up to 256.
    constexpr int bins = 256;
    const int levels[3] = {bins + 1, bins + 1, bins + 1};
    const float lower[3] = {0, 0, 0}, upper[3] = {bins, bins, bins};
    int specSize = 0, bufferSize = 0;
    check(zmviHistogramGetBufferSize(DATATYPE_8U, photo.size, levels, 3, 1, &specSize, &bufferSize),
          "zmviHistogramGetBufferSize");
    std::vector<uint8_t> spec(specSize), buffer(bufferSize);
    check(zmviHistogramUniformInit(DATATYPE_8U, lower, upper, levels, 3, spec.data()), "zmviHistogramUniformInit");
    int counts[3][bins];
    int* const channels[3] = {counts[0], counts[1], counts[2]};
    const double time = bestTime([&] {
        check(zmviHistogram_8u_C3R(photo.at(0, 0), photo.step, photo.size, channels, spec.data(), buffer.data()),
              "zmviHistogram_8u_C3R");
    });

    int plain[3][bins] = {};
    for (int y = 0; y < photo.size.height; ++y)
        for (int i = 0; i < photo.size.width * 3; ++i) ++plain[i % 3][photo.at(0, y)[i]];
    if (std::memcmp(plain, counts, sizeof plain) != 0) fail("miscounted");

    // Each column sets one channel of its pixels: where columns of several channels meet, their colours add up.
    Picture plot({3 * bins, 480}, 3);
    const uint8_t background[3] = {24, 24, 28};
    check(zmviSet_8u_C3R(background, plot.at(0, 0), plot.step, plot.size), "zmviSet_8u_C3R");
    for (int c = 0; c < 3; ++c) {
        const int most = *std::max_element(counts[c] + 1, counts[c] + bins - 1);  // black and white may stand out
        for (int k = 0; k < bins; ++k) {
            const double part = std::min(1.0, double(counts[c][k]) / std::max(1, most));
            const int height = int(part * (plot.size.height - 10));
            if (height > 0)
                check(zmviSet_8u_C3CR(225, plot.at(3 * k, plot.size.height - height) + c, plot.step, {3, height}),
                      "zmviSet_8u_C3CR");
        }
    }
    publish(plot, argv[2], "histogram", time, "Histogram",
            "zmviHistogram: how many pixels have each value, in red, green and blue.");
}
