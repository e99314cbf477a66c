// Noise that is the same however the image is cut into tiles, and windows that fade an image out.
#include <cmath>
#include <thread>
#include <vector>

#include "picture.h"

// The mean and the standard deviation of what was added, where nothing saturates.
static void judge(const Picture& photo, const Picture& noisy, double deviation) {
    double sum = 0, squares = 0, count = 0;
    for (int y = 0; y < photo.size.height; ++y)
        for (int x = 0; x < photo.channels * photo.size.width; ++x) {
            const double pixel = photo.at(0, y)[x], noise = noisy.at(0, y)[x] - pixel;
            if (std::fabs(pixel - 127.5) > 127.5 - 5 * deviation) continue;
            sum += noise, squares += noise * noise, ++count;
        }
    const double error = 5 * deviation / std::sqrt(count + 1);
    if (std::fabs(sum / count) > error || std::fabs(std::sqrt(squares / count) - deviation) > error)
        fail("no such noise");
}

static void noise(const Picture& photo, const char* folder) {
    Picture uniform(photo.size, 3), gauss(photo.size, 3), tiled(photo.size, 3);
    const double uniformTime = bestTime([&] {
        check(zmviAddNoiseUniform_8u_C3R(photo.at(0, 0), photo.step, uniform.at(0, 0), uniform.step, photo.size, {0, 0},
                                         -40, 40, 1),
              "zmviAddNoiseUniform_8u_C3R");
    });
    judge(photo, uniform, std::sqrt(80 * 80 / 12.0 + 1 / 12.0));
    publish(uniform, folder, "noise_uniform", uniformTime, "Uniform noise",
            "zmviAddNoiseUniform: up to 40 more or less in every channel.");

    // A tile says where it lies; nothing else is needed for the noise of the whole.
    const auto tile = [&](const Picture& to, int x, int y, ImageSize size) {
        check(zmviAddNoiseGauss_8u_C3R(photo.at(x, y), photo.step, to.at(x, y), to.step, size, {x, y}, 0, 20, 2),
              "zmviAddNoiseGauss_8u_C3R");
    };
    const double wholeTime = bestTime([&] { tile(gauss, 0, 0, photo.size); });
    const int threads = std::max(2, int(std::thread::hardware_concurrency())), side = 61;
    const double time = bestTime([&] {
        std::vector<std::thread> team;
        for (int t = 0; t < threads; ++t)
            team.emplace_back([&, t] {
                for (int y = t * side; y < photo.size.height; y += threads * side)
                    for (int x = 0; x < photo.size.width; x += side)
                        tile(tiled, x, y,
                             {std::min(side, photo.size.width - x), std::min(side, photo.size.height - y)});
            });
        for (std::thread& member : team) member.join();
    });
    if (!same(tiled, gauss)) fail("the tiles differ from the whole");
    judge(photo, gauss, std::sqrt(400 + 1 / 12.0));
    char sentence[200];
    std::snprintf(sentence, sizeof sentence,
                  "zmviAddNoiseGauss, standard deviation 20, on tiles of %d x %d by %d threads: the same bits as the "
                  "whole image, which one thread does in %.0f us.",
                  side, side, threads, wholeTime);
    publish(tiled, folder, "noise_gauss", time, "Gaussian noise", sentence);
}

static void window(const Picture& gray, const char* folder, bool hamming) {
    const auto call = hamming ? zmviWinHamming_8u_C1R : zmviWinBartlett_8u_C1R;
    Picture faded(gray.size, 1);
    const double time =
        bestTime([&] { check(call(gray.at(0, 0), gray.step, faded.at(0, 0), faded.step, gray.size), "zmviWin"); });
    const auto weight = [&](int i, int n) {
        return hamming ? 0.54 - 0.46 * std::cos(2 * std::acos(-1.0) * i / (n - 1))
                       : 1 - std::fabs(2.0 * i / (n - 1) - 1);
    };
    for (int y = 0; y < gray.size.height; ++y)
        for (int x = 0; x < gray.size.width; ++x) {
            const double exact = weight(x, gray.size.width) * weight(y, gray.size.height) * *gray.at(x, y);
            if (std::fabs(*faded.at(x, y) - exact) > 0.501) fail("no window");
        }
    publish(faded, folder, hamming ? "hamming" : "bartlett", time, hamming ? "A Hamming window" : "A Bartlett window",
            hamming ? "zmviWinHamming: a wave along each axis, 0.08 at the edges."
                    : "zmviWinBartlett: a roof along each axis, 0 at the edges.");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: noise photo.png folder");
    const Picture photo = load(argv[1], 3), gray = load(argv[1], 1);
    noise(photo, argv[2]);
    window(gray, argv[2], false);
    window(gray, argv[2], true);
}
