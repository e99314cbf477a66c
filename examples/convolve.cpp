// Kernels of one's own: an emboss, a motion blur, a soft focus, and lights that become stars.
#include <cmath>
#include <vector>

#include "picture.h"

// A kernel's spec object and its work memory, for 8-bit pixels of so many channels.
struct Filter {
    std::unique_ptr<uint8_t[]> spec, buffer;

    Filter(ImageSize kernel, ImageSize region, int kernelType, int channels) {
        int specBytes = 0, bufferBytes = 0;
        check(zmviFilterBorderGetSize(kernel, region, DATATYPE_8U, kernelType, channels, &specBytes, &bufferBytes),
              "zmviFilterBorderGetSize");
        spec.reset(new uint8_t[specBytes]), buffer.reset(new uint8_t[bufferBytes]);
    }
    Filter(const std::vector<int16_t>& taps, int divisor, int size, ImageSize region, int channels)
        : Filter(ImageSize{size, size}, region, DATATYPE_16S, channels) {
        check(
            zmviFilterBorderInit_16s(taps.data(), {size, size}, divisor, DATATYPE_8U, channels, ROUND_NEAR, spec.get()),
            "zmviFilterBorderInit_16s");
    }
    Filter(const std::vector<float>& taps, int size, ImageSize region, int channels)
        : Filter(ImageSize{size, size}, region, DATATYPE_32F, channels) {
        check(zmviFilterBorderInit_32f(taps.data(), {size, size}, DATATYPE_8U, channels, ROUND_NEAR, spec.get()),
              "zmviFilterBorderInit_32f");
    }
    // The microseconds that it takes.
    double apply(const Picture& from, const Picture& to) const {
        const auto filter = from.channels == 1 ? zmviFilterBorder_8u_C1R : zmviFilterBorder_8u_C3R;
        return bestTime([&] {
            check(filter(from.at(0, 0), from.step, to.at(0, 0), to.step, from.size, BORDER_REPL, nullptr, spec.get(),
                         buffer.get()),
                  "zmviFilterBorder");
        });
    }
};

// The sum at one pixel of one channel, the slow way.
static double weighed(const Picture& photo, const auto& taps, int size, int x, int y, int channel) {
    double sum = 0;
    for (int i = 0; i < size; ++i)
        for (int j = 0; j < size; ++j) {
            const int u = std::clamp(x + size / 2 - j, 0, photo.size.width - 1);
            const int v = std::clamp(y + size / 2 - i, 0, photo.size.height - 1);
            sum += double(taps[size_t(i * size + j)]) * photo.at(u, v)[channel];
        }
    return sum;
}
static void compare(const Picture& photo, const Picture& made, const auto& taps, int size, double divisor, int offset) {
    for (int y = 0; y < photo.size.height; y += 31)
        for (int x = 0; x < photo.size.width; x += 37)
            for (int c = 0; c < photo.channels; ++c) {
                const double exact = std::clamp(weighed(photo, taps, size, x, y, c) / divisor + offset, 0.0, 255.0);
                if (std::fabs(made.at(x, y)[c] - exact) > 0.501)
                    fail("a wrong sum at " + std::to_string(x) + ", " + std::to_string(y));
            }
}

static double emboss(const Picture& photo, Picture& made) {
    const std::vector<int16_t> taps = {2, 1, 0, 1, 0, -1, 0, -1, -2};
    const Filter filter(taps, 1, 3, photo.size, photo.channels);
    check(zmviFilterBorderSetMode(0, 128, filter.spec.get()), "zmviFilterBorderSetMode");
    const double time = filter.apply(photo, made);
    compare(photo, made, taps, 3, 1, 128);
    return time;
}

static double motion(const Picture& photo, Picture& made) {
    constexpr int size = 15;
    std::vector<int16_t> taps(size * size);
    for (int i = 0; i < size; ++i) taps[size_t(i * size + size - 1 - i)] = 1;
    const double time = Filter(taps, size, size, photo.size, photo.channels).apply(photo, made);
    compare(photo, made, taps, size, size, 0);
    return time;
}

// A sharp picture with a halo: half of it comes from the pixel itself, half from a bell round it.
static double softFocus(const Picture& photo, Picture& made) {
    constexpr int size = 7;
    std::vector<float> taps;
    float total = 0;
    for (int i = 0; i < size * size; ++i) {
        const int x = i % size - size / 2, y = i / size - size / 2;
        taps.push_back(std::exp(-float(x * x + y * y) / 8));
        total += taps.back();
    }
    for (float& tap : taps) tap /= 2 * total;
    taps[size * size / 2] += 0.5f;
    const double time = Filter(taps, size, photo.size, photo.channels).apply(photo, made);
    compare(photo, made, taps, size, 1, 0);
    return time;
}

// What is bright in the photograph, convolved with a small star and added to it.
static double stars(const Picture& photo, Picture& made) {
    constexpr int radius = 12, size = 2 * radius + 1;
    Picture star({size, size}, 3), lights(photo.size, 3);
    int total = 0;
    for (int y = -radius; y <= radius; ++y)
        for (int x = -radius; x <= radius; ++x) {
            const int reach = std::max(std::abs(x), std::abs(y));
            const bool ray = x == 0 || y == 0 || (std::abs(x) == std::abs(y) && reach < radius / 2);
            const int light = ray ? 255 * (radius + 1 - reach) / (radius + 1) : 0;
            std::memset(star.at(x + radius, y + radius), light, 3);
            total += light;
        }
    for (int y = 0; y < photo.size.height; ++y)
        for (int x = 0; x < photo.size.width; ++x) {
            const uint8_t* const p = photo.at(x, y);
            const int least = std::min({p[0], p[1], p[2]});
            for (int c = 0; c < 3; ++c) lights.at(x, y)[c] = least > 225 ? p[c] : 0;
        }
    // All of the convolution: the rays go on beyond the edges, where they are cut off.
    Picture full({photo.size.width + size - 1, photo.size.height + size - 1}, 3);
    int bytes = 0;
    check(zmviConvGetBufferSize(lights.size, star.size, DATATYPE_8U, 3, CONV_SHAPE_FULL, &bytes),
          "zmviConvGetBufferSize");
    const std::unique_ptr<uint8_t[]> buffer(new uint8_t[bytes]);
    const double time = bestTime([&] {
        check(zmviConv_8u_C3R(lights.at(0, 0), lights.step, lights.size, star.at(0, 0), star.step, star.size,
                              full.at(0, 0), full.step, std::max(1, total / 3), CONV_SHAPE_FULL, buffer.get()),
              "zmviConv_8u_C3R");
    });
    check(zmviAdd_8u_C3RSfs(photo.at(0, 0), photo.step, full.at(radius, radius), full.step, made.at(0, 0), made.step,
                            photo.size, 0),
          "zmviAdd_8u_C3RSfs");
    return time;
}

// The same kernel with integer and with real taps: how long each takes, and how far apart they are.
static std::string comparison(const Picture& photo) {
    std::string text;
    for (const int size : {3, 5, 7, 15}) {
        std::vector<int16_t> whole;
        std::vector<float> real;
        int total = 0;
        for (int k = 0; k < size * size; ++k) total += 50 + 37 * k % 101;
        for (int k = 0; k < size * size; ++k)
            whole.push_back(int16_t(50 + 37 * k % 101)), real.push_back(float(whole.back()) / float(total));
        Picture a(photo.size, photo.channels), b(photo.size, photo.channels);
        const double wholeTime = Filter(whole, total, size, photo.size, photo.channels).apply(photo, a);
        const double realTime = Filter(real, size, photo.size, photo.channels).apply(photo, b);
        int most = 0;
        for (int y = 0; y < photo.size.height; ++y)
            for (int k = 0; k < photo.size.width * photo.channels; ++k)
                most = std::max(most, std::abs(a.at(0, y)[k] - b.at(0, y)[k]));
        if (most > 1) fail("integer and real taps differ by " + std::to_string(most));
        char line[96];
        std::snprintf(line, sizeof line, "%s%d x %d: %.0f and %.0f µs, %d", text.empty() ? "" : "; ", size, size,
                      wholeTime, realTime, most);
        text += line;
    }
    return text;
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: convolve photo.png folder");
    const Picture photo = load(argv[1], 3), gray = load(argv[1], 1);
    Picture made(photo.size, 3), madeGray(gray.size, 1);

    publish(madeGray, argv[2], "emboss", emboss(gray, madeGray), "Emboss",
            "zmviFilterBorder: a 3 x 3 kernel of integers, with 128 added to what it gives. Integer and real taps, "
            "time and "
            "largest difference: " +
                comparison(gray) + ".");
    publish(made, argv[2], "motion", motion(photo, made), "Motion blur",
            "zmviFilterBorder: the mean of 15 pixels along a diagonal.");
    publish(made, argv[2], "soft", softFocus(photo, made), "Soft focus",
            "zmviFilterBorder: a 7 x 7 kernel of real numbers, half of it the pixel itself and half a bell.");
    publish(made, argv[2], "stars", stars(photo, made), "Lights as stars",
            "zmviConv: what is bright, convolved with a drawn star, added to the photograph.");
}
