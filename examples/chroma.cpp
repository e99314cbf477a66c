// A photograph as video holds it, colours at half the resolution in planes of their own: reduced and enlarged beside
// the same done in red, green and blue, and an edge between two colours enlarged with them in their place and beside
// it.
#include <cmath>
#include <vector>

#include "picture.h"

namespace {

// Luma, and two planes of colours whose samples lie in the column of the even luma samples, between their rows.
struct Frame {
    Picture planes[3];
    explicit Frame(ImageSize size)
        : planes{{size, 1},
                 {{(size.width + 1) / 2, (size.height + 1) / 2}, 1},
                 {{(size.width + 1) / 2, (size.height + 1) / 2}, 1}} {}
    ImageSize size() const { return planes[0].size; }
    // Bilinear in the colour plane, where the luma sample lies in it.
    double colour(int plane, int x, int y) const {
        const Picture& p = planes[plane];
        const double u = x / 2.0, v = y / 2.0 - 0.25;
        const int column = int(u), row = int(std::floor(v));
        const auto at = [&](int i, int j) {
            return double(*p.at(std::clamp(i, 0, p.size.width - 1), std::clamp(j, 0, p.size.height - 1)));
        };
        const auto along = [&](int j) { return at(column, j) + (at(column + 1, j) - at(column, j)) * (u - column); };
        return along(row) + (along(row + 1) - along(row)) * (v - row);
    }
};

uint8_t byte(double x) { return uint8_t(std::lround(std::clamp(x, 0.0, 255.0))); }

Frame frameOf(const Picture& rgb) {
    Frame frame(rgb.size);
    const auto luma = [](const uint8_t* p) { return 0.299 * p[0] + 0.587 * p[1] + 0.114 * p[2]; };
    for (int y = 0; y < rgb.size.height; ++y)
        for (int x = 0; x < rgb.size.width; ++x) *frame.planes[0].at(x, y) = byte(luma(rgb.at(x, y)));
    for (int y = 0; y < frame.planes[1].size.height; ++y)
        for (int x = 0; x < frame.planes[1].size.width; ++x) {
            double blue = 0, red = 0;
            for (int j = 0; j < 2; ++j)
                for (int i = -1; i < 2; ++i) {
                    const uint8_t* p =
                        rgb.at(std::clamp(2 * x + i, 0, rgb.size.width - 1), std::min(2 * y + j, rgb.size.height - 1));
                    const double weight = i ? 0.125 : 0.25;
                    blue += weight * (p[2] - luma(p)) / 1.772, red += weight * (p[0] - luma(p)) / 1.402;
                }
            *frame.planes[1].at(x, y) = byte(128 + blue), *frame.planes[2].at(x, y) = byte(128 + red);
        }
    return frame;
}

Picture pictureOf(const Frame& frame) {
    Picture rgb(frame.size(), 3);
    for (int y = 0; y < rgb.size.height; ++y)
        for (int x = 0; x < rgb.size.width; ++x) {
            const double luma = *frame.planes[0].at(x, y), blue = frame.colour(1, x, y) - 128,
                         red = frame.colour(2, x, y) - 128;
            uint8_t* to = rgb.at(x, y);
            to[0] = byte(luma + 1.402 * red), to[1] = byte(luma - 0.344136 * blue - 0.714136 * red);
            to[2] = byte(luma + 1.772 * blue);
        }
    return rgb;
}

Frame resized(const Frame& frame, ImageSize size, int site, double& time) {
    int specSize = 0, initSize = 0, bufferSize = 0;
    check(zmviResizeYUVGetSize(frame.size(), size, CHROMA_420, INTERP_LANCZOS, 1, &specSize, &initSize),
          "zmviResizeYUVGetSize");
    std::vector<uint8_t> object(static_cast<size_t>(specSize)), init(static_cast<size_t>(initSize));
    const auto spec = reinterpret_cast<ResizeYUVSpec*>(object.data());
    check(zmviResizeYUVLanczosInit(frame.size(), size, CHROMA_420, site, 1, 3, spec, init.data()),
          "zmviResizeYUVLanczosInit");
    check(zmviResizeYUVGetBufferSize(spec, size, &bufferSize), "zmviResizeYUVGetBufferSize");
    std::vector<uint8_t> buffer(static_cast<size_t>(bufferSize));
    Frame result(size);
    const uint8_t* src[3];
    uint8_t* dst[3];
    int srcStep[3], dstStep[3];
    for (int p = 0; p < 3; ++p) {
        src[p] = frame.planes[p].at(0, 0), srcStep[p] = frame.planes[p].step;
        dst[p] = result.planes[p].at(0, 0), dstStep[p] = result.planes[p].step;
    }
    time = bestTime([&] {
        check(zmviResizeYUV420Lanczos_8u_P3R(src, srcStep, dst, dstStep, {0, 0}, size, spec, buffer.data()),
              "zmviResizeYUV420Lanczos_8u_P3R");
    });
    return result;
}

Picture resized(const Picture& rgb, ImageSize size) {
    int specSize = 0, initSize = 0, bufferSize = 0;
    check(zmviResizeGetSize_8u(rgb.size, size, INTERP_LANCZOS, 1, &specSize, &initSize), "zmviResizeGetSize_8u");
    std::vector<uint8_t> object(static_cast<size_t>(specSize)), init(static_cast<size_t>(initSize));
    const auto spec = reinterpret_cast<ResizeSpec*>(object.data());
    check(zmviResizeAntialiasingLanczosInit_8u(rgb.size, size, 3, spec, init.data()),
          "zmviResizeAntialiasingLanczosInit_8u");
    check(zmviResizeGetBufferSize_8u(spec, size, 3, &bufferSize), "zmviResizeGetBufferSize_8u");
    std::vector<uint8_t> buffer(static_cast<size_t>(bufferSize));
    Picture result(size, 3);
    check(zmviResizeAntialiasing_8u_C3R(rgb.at(0, 0), rgb.step, result.at(0, 0), result.step, {0, 0}, size, BORDER_REPL,
                                        nullptr, spec, buffer.data()),
          "zmviResizeAntialiasing_8u_C3R");
    return result;
}

Picture sideBySide(const Picture& left, const Picture& right) {
    const int gap = 8;
    Picture both({left.size.width + gap + right.size.width, left.size.height}, 3);
    const uint8_t white[3] = {255, 255, 255};
    check(zmviSet_8u_C3R(white, both.at(0, 0), both.step, both.size), "zmviSet_8u_C3R");
    check(zmviCopy_8u_C3R(left.at(0, 0), left.step, both.at(0, 0), both.step, left.size), "zmviCopy_8u_C3R");
    check(zmviCopy_8u_C3R(right.at(0, 0), right.step, both.at(left.size.width + gap, 0), both.step, right.size),
          "zmviCopy_8u_C3R");
    return both;
}

// How far apart two pictures of one size are, on average.
double apart(const Picture& a, const Picture& b) {
    double sum = 0;
    for (int y = 0; y < a.size.height; ++y)
        for (int i = 0; i < 3 * a.size.width; ++i) sum += std::abs(a.at(0, y)[i] - b.at(0, y)[i]);
    return sum / (3.0 * a.size.width * a.size.height);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: chroma photo.png folder");
    const Picture photo = load(argv[1], 3);
    const ImageSize third{photo.size.width / 3, photo.size.height / 3};
    double time = 0;
    const Picture small = pictureOf(resized(frameOf(photo), third, CHROMA_LEFT, time)), colours = resized(photo, third);
    if (apart(small, colours) > 4) fail("reducing the planes differs from reducing the picture");
    publish(sideBySide(small, colours), argv[2], "yuv_reduced", time, "Reduced three times as 4:2:0",
            "zmviResizeYUV420Lanczos on luma and colour planes; on the right red, green and blue are reduced.");

    const int side = std::min({photo.size.width, photo.size.height, 80});
    Picture detail({side, side}, 3);
    check(zmviCopy_8u_C3R(photo.at((photo.size.width - side) / 2, (photo.size.height - side) / 2), photo.step,
                          detail.at(0, 0), detail.step, detail.size),
          "zmviCopy_8u_C3R");
    const ImageSize large{4 * side, 4 * side};
    const Picture enlarged = pictureOf(resized(frameOf(detail), large, CHROMA_LEFT, time));
    publish(sideBySide(enlarged, resized(detail, large)), argv[2], "yuv_enlarged", time, "Enlarged four times as 4:2:0",
            "zmviResizeYUV420Lanczos; on the right red, green and blue are enlarged.");

    // Luma keeps its edge where it is: colours that are moved leave a fringe along it.
    Picture edge({20, 20}, 3);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) {
            const uint8_t colour[2][3] = {{200, 30, 30}, {235, 235, 225}};
            std::memcpy(edge.at(x, y), colour[x + y / 4 > 12], 3);
        }
    const Frame frame = frameOf(edge);
    const Picture right = pictureOf(resized(frame, {320, 320}, CHROMA_LEFT, time)),
                  wrong = pictureOf(resized(frame, {320, 320}, CHROMA_CENTER, time)),
                  truth = resized(pictureOf(frame), {320, 320});
    if (apart(right, truth) >= apart(wrong, truth)) fail("colours are not in their place");
    publish(sideBySide(right, wrong), argv[2], "yuv_edge", time, "An edge of colours, enlarged sixteen times",
            "CHROMA_LEFT, as the frame was made; on the right CHROMA_CENTER, which moves colours off their edge.");
}
