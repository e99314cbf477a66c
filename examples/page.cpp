// Handwriting under a lamp: no single level separates ink from paper, the mean round each pixel does.  And what that
// makes of the photograph.
#include <vector>

#include "picture.h"

// 255 where a pixel is above the mean round it less delta, else 0.
static constexpr float delta = 8;

static Picture belowBox(const Picture& gray, int mask, double& time) {
    const ImageSize square = {mask, mask};
    int bufferSize = 0;
    check(zmviThresholdAdaptiveBoxGetBufferSize(gray.size, square, DATATYPE_8U, 1, &bufferSize),
          "zmviThresholdAdaptiveBoxGetBufferSize");
    std::vector<uint8_t> buffer(bufferSize);
    Picture result(gray.size, 1);
    time = bestTime([&] {
        check(zmviThresholdAdaptiveBox_8u_C1R(gray.at(0, 0), gray.step, result.at(0, 0), result.step, gray.size, square,
                                              delta, 255, 0, BORDER_REPL, 0, buffer.data()),
              "zmviThresholdAdaptiveBox_8u_C1R");
    });
    return result;
}

static Picture belowGauss(const Picture& gray, int mask, double& time) {
    const ImageSize square = {mask, mask};
    int specSize = 0, bufferSize = 0;
    check(zmviThresholdAdaptiveGaussGetBufferSize(gray.size, square, DATATYPE_8U, 1, &specSize, &bufferSize),
          "zmviThresholdAdaptiveGaussGetBufferSize");
    std::vector<uint8_t> spec(specSize), buffer(bufferSize);
    check(zmviThresholdAdaptiveGaussInit(gray.size, square, DATATYPE_8U, 1, 0, spec.data()),
          "zmviThresholdAdaptiveGaussInit");
    Picture result(gray.size, 1);
    time = bestTime([&] {
        check(zmviThresholdAdaptiveGauss_8u_C1R(gray.at(0, 0), gray.step, result.at(0, 0), result.step, gray.size,
                                                square, delta, 255, 0, BORDER_REPL, 0, spec.data(), buffer.data()),
              "zmviThresholdAdaptiveGauss_8u_C1R");
    });
    return result;
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: page photo.png folder");
    const Picture photo = load(argv[1], 1), paper = load(PHOTOGRAPHS "/text.png", 1);
    const ImageSize size = paper.size;
    Picture light(size, 1), page(size, 1), fixed(size, 1);

    // The lamp stands on the left.
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) *light.at(x, y) = uint8_t(255 - 165 * x / size.width);
    const double lampTime = bestTime([&] {
        check(
            zmviMulScale_8u_C1R(paper.at(0, 0), paper.step, light.at(0, 0), light.step, page.at(0, 0), page.step, size),
            "zmviMulScale_8u_C1R");
    });

    // One level for all: three quarters of the mean.
    double sum = 0;
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) sum += *page.at(x, y);
    const auto level = uint8_t(0.75 * sum / size.width / size.height);
    const double fixedTime = bestTime([&] {
        check(zmviThreshold_LTVal_8u_C1R(page.at(0, 0), page.step, fixed.at(0, 0), fixed.step, size, level, 0),
              "zmviThreshold_LTVal_8u_C1R");
        check(zmviThreshold_GTVal_8u_C1IR(fixed.at(0, 0), fixed.step, size, uint8_t(level - 1), 255),
              "zmviThreshold_GTVal_8u_C1IR");
    });

    constexpr int mask = 25;
    double boxTime = 0, gaussTime = 0, drawingTime = 0;
    const Picture box = belowBox(page, mask, boxTime), gauss = belowGauss(page, mask, gaussTime),
                  drawing = belowGauss(photo, 15, drawingTime);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            int total = 0;
            for (int j = -mask / 2; j <= mask / 2; ++j)
                for (int i = -mask / 2; i <= mask / 2; ++i)
                    total += *page.at(std::clamp(x + i, 0, size.width - 1), std::clamp(y + j, 0, size.height - 1));
            const int area = mask * mask, pixel = *page.at(x, y);
            if (*box.at(x, y) != (area * (pixel + int(delta)) > total ? 255 : 0)) fail("not against the mean");
            if (*fixed.at(x, y) != (pixel < level ? 0 : 255)) fail("not one level for all");
        }

    publish(page, argv[2], "page", lampTime, "A page under a lamp",
            "zmviMulScale: handwriting times the light of a lamp on its left.");
    publish(fixed, argv[2], "page_fixed", fixedTime, "One level for all",
            "zmviThreshold_LTVal and _GTVal: no level suits both sides of the page.");
    publish(box, argv[2], "page_box", boxTime, "Against the mean of a box",
            "zmviThresholdAdaptiveBox: ink is what lies 8 below the mean of 25 x 25 pixels.");
    publish(gauss, argv[2], "page_gauss", gaussTime, "Against a Gaussian mean",
            "zmviThresholdAdaptiveGauss: the same, nearer pixels counting more.");
    publish(drawing, argv[2], "ink", drawingTime, "Pen and ink",
            "zmviThresholdAdaptiveGauss: the photograph against the Gaussian mean of 15 x 15 pixels.");
}
