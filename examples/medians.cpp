// Salt and pepper taken out of a photograph: by medians of a window, of a cross and of colours, and by the mean of a
// box, which only spreads it.  And how long windows of 3 x 3 to 63 x 63 take, as a plot.
#include <cmath>
#include <vector>

#include "picture.h"

// One pixel in ten becomes black or white.
static void season(const Picture& picture) {
    uint32_t random = 1;
    for (int y = 0; y < picture.size.height; ++y)
        for (int x = 0; x < picture.size.width; ++x) {
            random = random * 1664525 + 1013904223;
            if (random >> 24 < 26) std::memset(picture.at(x, y), random >> 16 & 1 ? 255 : 0, size_t(picture.channels));
        }
}

static double meanError(const Picture& a, const Picture& b) {
    double sum = 0;
    for (int y = 0; y < a.size.height; ++y)
        for (int k = 0; k < a.size.width * a.channels; ++k) sum += std::abs(a.at(0, y)[k] - b.at(0, y)[k]);
    return sum / a.size.width / a.size.height / a.channels;
}

// A work buffer by a query that takes mask, type and channels.
template <class Query>
static std::vector<uint8_t> bufferFor(Query query, ImageSize size, int side, int channels) {
    int bytes = 0;
    check(query(size, {side, side}, DATATYPE_8U, channels, &bytes), "GetBufferSize");
    return std::vector<uint8_t>(size_t(bytes) + 1);
}

static void clean(const Picture& photo, const std::string& folder) {
    const ImageSize size = photo.size, inner{size.width - 2, size.height - 2}, mask{3, 3};
    Picture noisy(size, 3), made(size, 3);
    const auto copy = [&](const Picture& from, const Picture& to) {
        check(zmviCopy_8u_C3R(from.at(0, 0), from.step, to.at(0, 0), to.step, size), "zmviCopy_8u_C3R");
    };
    copy(photo, noisy), season(noisy);
    publish(noisy, folder, "salted", 0, "Salt and pepper", "One pixel in ten is black or white.");

    auto buffer = bufferFor(zmviFilterBoxBorderGetBufferSize, size, 3, 3);
    const double boxTime = bestTime([&] {
        check(zmviFilterBoxBorder_8u_C3R(noisy.at(0, 0), noisy.step, made.at(0, 0), made.step, size, mask, BORDER_REPL,
                                         nullptr, buffer.data()),
              "zmviFilterBoxBorder_8u_C3R");
    });
    const double spread = meanError(photo, made);
    publish(made, folder, "salted_box", boxTime, "The mean of 3 x 3", "zmviFilterBoxBorder: noise is spread.");

    const auto show = [&](const char* name, const char* title, const char* words, const auto& filter) {
        copy(noisy, made);  // filters without a border rule leave the frame alone
        const double time = bestTime(filter);
        if (meanError(photo, made) > 0.8 * spread) fail(std::string(name) + " is not much better than the mean");
        publish(made, folder, name, time, title, words);
    };
    buffer = bufferFor(zmviFilterMedianBorderGetBufferSize, size, 3, 3);
    show("median", "The median of 3 x 3", "zmviFilterMedianBorder: noise is gone, channel by channel.", [&] {
        check(zmviFilterMedianBorder_8u_C3R(noisy.at(0, 0), noisy.step, made.at(0, 0), made.step, size, mask,
                                            BORDER_REPL, nullptr, buffer.data()),
              "zmviFilterMedianBorder_8u_C3R");
    });
    show("median_cross", "The median of a cross", "zmviFilterMedianCross: thin lines stay, and some of the noise.",
         [&] {
             check(zmviFilterMedianCross_8u_C3R(noisy.at(1, 1), noisy.step, made.at(1, 1), made.step, inner, MASK_3X3),
                   "zmviFilterMedianCross_8u_C3R");
         });
    show("median_colour", "The median of colours", "zmviFilterMedianColor: no colour that was not there.", [&] {
        check(zmviFilterMedianColor_8u_C3R(noisy.at(1, 1), noisy.step, made.at(1, 1), made.step, inner, MASK_3X3),
              "zmviFilterMedianColor_8u_C3R");
    });
}

// Time a pixel, from 0.02 ns at the bottom to 50 ns at the top, against the side of the window, 3 on the left, 63 on
// the right; grey lines at 0.1, 1 and 10 ns.
static void plot(const Picture& gray, const std::string& folder) {
    const ImageSize size{std::min(gray.size.width, 256), std::min(gray.size.height, 128)};
    const Picture chart({640, 360}, 3), made(size, 1);
    const int height = chart.size.height;
    for (int y = 0; y < height; ++y) std::memset(chart.at(0, y), 255, size_t(chart.size.width) * 3);
    const auto dot = [&](double x, double y, uint32_t colour, int radius) {
        for (int j = std::max(0, int(y) - radius); j <= std::min(height - 1, int(y) + radius); ++j)
            for (int i = int(x) - radius; i <= int(x) + radius; ++i)
                for (int c = 0; c < 3; ++c) chart.at(i, j)[c] = uint8_t(colour >> (16 - 8 * c));
    };
    const auto level = [&](double ns) { return (1 - std::log10(ns / 0.02) / std::log10(50 / 0.02)) * height; };
    const auto column = [](int side) { return 8.0 + (side - 3) * 10.4; };
    for (double ns : {0.1, 1.0, 10.0})
        for (int x = 1; x < chart.size.width - 1; ++x) dot(x, level(ns), 0xcccccc, 0);

    double total = 0;
    const auto curve = [&](uint32_t colour, auto query, auto filter) {
        double before = 0;
        for (int side = 3; side <= 63; side += 2) {
            auto buffer = bufferFor(query, size, side, 1);
            double best = 1e30;
            for (int run = 0; run < 3; ++run) {
                const auto start = std::chrono::steady_clock::now();
                check(filter(gray.at(0, 0), gray.step, made.at(0, 0), made.step, size, {side, side}, BORDER_REPL, 0,
                             buffer.data()),
                      "a filter of a large window");
                best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
            }
            total += best * 1e6;
            const double now = level(best * 1e9 / size.width / size.height);
            for (int k = 0; k < 20 && side > 3; ++k)
                dot(column(side) - 20.8 * k / 20, now + (before - now) * k / 20, colour, 1);
            dot(column(side), now, colour, 3);
            before = now;
        }
    };
    curve(0xc0392b, zmviFilterMedianBorderGetBufferSize, zmviFilterMedianBorder_8u_C1R);
    curve(0x2471a3, zmviFilterMaxBorderGetBufferSize, zmviFilterMaxBorder_8u_C1R);
    curve(0x1e8449, zmviFilterBoxBorderGetBufferSize, zmviFilterBoxBorder_8u_C1R);
    publish(chart, folder, "mask_times", total, "Time against the mask",
            "Medians (red), maxima (blue) and means (green) of 3 x 3 to 63 x 63; lines at 0.1, 1 and 10 ns a pixel.");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: medians photo.png folder");
    clean(load(argv[1], 3), argv[2]);
    plot(load(argv[1], 1), argv[2]);
}
