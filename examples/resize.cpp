// Resizing: a detail enlarged by each method, a picture reduced with and without antialiasing, and tiles in threads.
#include <cmath>
#include <thread>
#include <vector>

#include "picture.h"

// The spec object for one pair of sizes, its initialisation and the work buffers that it takes.
struct Resizer {
    ImageSize dst;
    int interpolation;
    bool antialiasing;
    std::vector<uint8_t> object;

    Resizer(ImageSize src, ImageSize dst, int interpolation, bool antialiasing = false)
        : dst(dst), interpolation(interpolation), antialiasing(antialiasing) {
        int bytes = 0, initBytes = 0;
        check(zmviResizeGetSize_8u(src, dst, interpolation, antialiasing, &bytes, &initBytes), "zmviResizeGetSize_8u");
        object.resize(size_t(bytes));
        std::vector<uint8_t> init(static_cast<size_t>(initBytes));
        const auto made = reinterpret_cast<ResizeSpec*>(object.data());
        if (interpolation == INTERP_NEAREST)
            check(zmviResizeNearestInit_8u(src, dst, made), "zmviResizeNearestInit_8u");
        else if (interpolation == INTERP_LINEAR)
            check(zmviResizeLinearInit_8u(src, dst, made), "zmviResizeLinearInit_8u");
        else if (interpolation == INTERP_CUBIC)
            check(zmviResizeCubicInit_8u(src, dst, made, init.data(), 0, 0.5f), "zmviResizeCubicInit_8u");
        else if (antialiasing)
            check(zmviResizeAntialiasingLanczosInit_8u(src, dst, 3, made, init.data()),
                  "zmviResizeAntialiasingLanczosInit_8u");
        else
            check(zmviResizeLanczosInit_8u(src, dst, 3, made, init.data()), "zmviResizeLanczosInit_8u");
    }
    const ResizeSpec* spec() const { return reinterpret_cast<const ResizeSpec*>(object.data()); }

    // A tile of the destination; src is the whole source.
    void tile(const Picture& src, Picture& to, ImagePoint at, ImageSize size) const {
        int bytes = 0;
        ImagePoint from;
        check(zmviResizeGetBufferSize_8u(spec(), size, src.channels, &bytes), "zmviResizeGetBufferSize_8u");
        check(zmviResizeGetSrcOffset_8u(spec(), at, &from), "zmviResizeGetSrcOffset_8u");
        std::vector<uint8_t> buffer(static_cast<size_t>(bytes));
        const uint8_t* const pixels = src.at(from.x, from.y);
        uint8_t* const result = to.at(at.x, at.y);
        if (interpolation == INTERP_NEAREST) {
            check(zmviResizeNearest_8u_C3R(pixels, src.step, result, to.step, at, size, spec(), buffer.data()),
                  "zmviResizeNearest_8u_C3R");
            return;
        }
        const auto resize = antialiasing                     ? zmviResizeAntialiasing_8u_C3R
                            : interpolation == INTERP_LINEAR ? zmviResizeLinear_8u_C3R
                            : interpolation == INTERP_CUBIC  ? zmviResizeCubic_8u_C3R
                                                             : zmviResizeLanczos_8u_C3R;
        check(resize(pixels, src.step, result, to.step, at, size, BORDER_REPL, nullptr, spec(), buffer.data()),
              "zmviResize_8u_C3R");
    }
    void whole(const Picture& src, Picture& to) const { tile(src, to, {0, 0}, dst); }
};

static void copy(const Picture& from, Picture& to, int x) {
    check(zmviCopy_8u_C3R(from.at(0, 0), from.step, to.at(x, 0), to.step, from.size), "zmviCopy_8u_C3R");
}

// Reduced four times in both directions: every fourth pixel or so on the left, all of them on the right.
static Picture reducedTwice(const Picture& picture, double& time) {
    const ImageSize quarter{picture.size.width / 4, picture.size.height / 4};
    Picture plain(quarter, 3), smooth(quarter, 3), both({2 * quarter.width + 8, quarter.height}, 3);
    Resizer(picture.size, quarter, INTERP_LINEAR).whole(picture, plain);
    const Resizer antialiased(picture.size, quarter, INTERP_LANCZOS, true);
    time = bestTime([&] { antialiased.whole(picture, smooth); });
    const uint8_t white[3] = {255, 255, 255};
    check(zmviSet_8u_C3R(white, both.at(0, 0), both.step, both.size), "zmviSet_8u_C3R");
    copy(plain, both, 0), copy(smooth, both, quarter.width + 8);
    return both;
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: resize photo.png folder");
    const Picture photo = load(argv[1], 3);
    const int side = std::min({photo.size.width, photo.size.height, 64});

    // A square out of the middle, enlarged four times by each method, side by side.
    Picture detail({side, side}, 3), enlarged({16 * side, 4 * side}, 3), one({4 * side, 4 * side}, 3),
        tiled(one.size, 3);
    check(zmviCopy_8u_C3R(photo.at((photo.size.width - side) / 2, (photo.size.height - side) / 2), photo.step,
                          detail.at(0, 0), detail.step, detail.size),
          "zmviCopy_8u_C3R");
    double time = 0;
    int x = 0;
    for (const int method : {INTERP_NEAREST, INTERP_LINEAR, INTERP_CUBIC, INTERP_LANCZOS}) {
        const Resizer resizer(detail.size, one.size, method);
        time += bestTime([&] { resizer.whole(detail, one); });
        copy(one, enlarged, x), x += one.size.width;

        // Four threads, a quarter of the rows each, with the same object: the same picture.
        std::vector<std::thread> threads;
        for (int part = 0; part < 4; ++part)
            threads.emplace_back([&, part] { resizer.tile(detail, tiled, {0, part * side}, {one.size.width, side}); });
        for (std::thread& thread : threads) thread.join();
        if (!same(one, tiled)) fail("tiles differ from the whole");
    }
    publish(enlarged, argv[2], "enlarged", time, "Enlarged four times",
            "zmviResizeNearest, Linear, Cubic and Lanczos, from the left; the same from tiles in four threads.");

    const Picture small = reducedTwice(photo, time);
    publish(small, argv[2], "reduced", time, "Reduced four times",
            "zmviResizeLinear leaves pixels out; zmviResizeAntialiasing (right) takes all of them.");

    // Rings that become finer toward the edge: those that the small picture cannot hold must turn into grey.
    Picture plate({640, 640}, 3);
    for (int row = 0; row < 640; ++row)
        for (int column = 0; column < 640; ++column) {
            const double dx = column - 319.5, dy = row - 319.5;
            std::memset(plate.at(column, row), int(std::lround(127.5 + 127.5 * std::cos((dx * dx + dy * dy) / 320))),
                        3);
        }
    const Picture plates = reducedTwice(plate, time);
    int roughest[2] = {};
    for (int half = 0; half < 2; ++half)
        for (int row = 2; row < 158; ++row) {
            const int value = *plates.at(half * 168 + 4, row);
            roughest[half] = std::max(roughest[half], std::abs(value - 128));
        }
    if (roughest[0] < 60 || roughest[1] > 20) fail("antialiasing leaves false rings");
    publish(plates, argv[2], "zone_plate", time, "A zone plate, reduced",
            "Without antialiasing false rings appear where the true ones are too fine; with it they turn grey.");
}
