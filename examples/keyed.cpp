// Two photographs, the second shining through where the first has one colour; and a page as one bit a pixel.
#include <cmath>
#include <vector>

#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: keyed photo.png folder");
    const Picture photo = load(argv[1], 3), other = load(PHOTOGRAPHS "/coffee.png", 3);
    const ImageSize size = photo.size;

    // A round window is painted in a green that the photograph has nowhere near; behind it stands the other one, as
    // often as it takes.
    const uint8_t green[3] = {0, 254, 1};
    Picture stencil(size, 3), behind(size, 3), result(size, 3), plain(size, 3);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const double u = 2.0 * x / size.width - 1, v = 2.0 * y / size.height - 1;
            const bool open = u * u + v * v > 0.8;
            std::memcpy(stencil.at(x, y), open ? green : photo.at(x, y), 3);
            std::memcpy(behind.at(x, y), other.at(x % other.size.width, y % other.size.height), 3);
            const bool through = std::memcmp(stencil.at(x, y), green, 3) == 0;
            std::memcpy(plain.at(x, y), (through ? behind : stencil).at(x, y), 3);
        }
    const double keyTime = bestTime([&] {
        check(zmviCompColorKey_8u_C3R(stencil.at(0, 0), stencil.step, behind.at(0, 0), behind.step, result.at(0, 0),
                                      result.step, size, green),
              "zmviCompColorKey_8u_C3R");
    });
    if (!same(result, plain)) fail("a wrong pixel was taken");

    // To bits and back.
    const Picture paper = load(PHOTOGRAPHS "/text.png", 1);
    const ImageSize page = paper.size;
    const int step = (page.width + 7) / 8;
    std::vector<uint8_t> bits(size_t(step) * page.height);
    Picture back(page, 1);
    const double bitTime = bestTime([&] {
        check(zmviGrayToBin_8u1u_C1R(paper.at(0, 0), paper.step, bits.data(), step, 0, page, 96),
              "zmviGrayToBin_8u1u_C1R");
        check(zmviBinToGray_1u8u_C1R(bits.data(), step, 0, back.at(0, 0), back.step, page, 40, 250),
              "zmviBinToGray_1u8u_C1R");
    });
    for (int y = 0; y < page.height; ++y)
        for (int x = 0; x < page.width; ++x)
            if (*back.at(x, y) != (*paper.at(x, y) > 96 ? 250 : 40)) fail("a bit is wrong");

    publish(result, argv[2], "keyed", keyTime, "Keyed",
            "zmviCompColorKey: the second photograph where the first is green.");
    publish(back, argv[2], "bits", bitTime, "One bit a pixel",
            "zmviGrayToBin and back: the page in " + std::to_string(bits.size()) + " bytes.");
}
