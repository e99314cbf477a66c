// A pencil drawing: how much darker each pixel is than the window round it, from sums of 31 x 31 pixels.
#include "picture.h"

constexpr int mask = 31, area = mask * mask;

static long slowSum(const Picture& photo, int x, int y) {
    long sum = 0;
    for (int v = y - mask / 2; v <= y + mask / 2; ++v)
        for (int u = x - mask / 2; u <= x + mask / 2; ++u)
            sum += *photo.at(std::clamp(u, 0, photo.size.width - 1), std::clamp(v, 0, photo.size.height - 1));
    return sum;
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: sums photo.png folder");
    const Picture photo = load(argv[1], 1);
    const ImageSize size = photo.size;

    int sumStep = 0;  // in bytes, as every step
    const std::unique_ptr<int32_t, Free> sums(zmviMalloc_32s_C1(size.width, size.height, &sumStep));
    if (!sums) fail("no memory for the sums");
    int bytes = 0;
    check(zmviSumWindowGetBufferSize(size, {mask, mask}, DATATYPE_8U, 1, &bytes), "zmviSumWindowGetBufferSize");
    const std::unique_ptr<uint8_t[]> buffer(new uint8_t[bytes]);

    const double time = bestTime([&] {
        check(zmviSumWindow_8u32s_C1R(photo.at(0, 0), photo.step, sums.get(), sumStep, size, {mask, mask}, BORDER_REPL,
                                      nullptr, buffer.get()),
              "zmviSumWindow_8u32s_C1R");
    });

    Picture drawing(size, 1);
    for (int y = 0; y < size.height; ++y) {
        const int32_t* row = sums.get() + ptrdiff_t(y) * (sumStep / int(sizeof(int32_t)));
        for (int x = 0; x < size.width; ++x) {
            if (y % 7 == 0 && x % 13 == 0 && row[x] != slowSum(photo, x, y))
                fail("a wrong sum at " + std::to_string(x) + ", " + std::to_string(y));
            const int darker = row[x] - *photo.at(x, y) * area;
            *drawing.at(x, y) = uint8_t(255 - std::clamp(darker * 5 / area, 0, 255));
        }
    }
    publish(drawing, argv[2], "sums", time, "Window sums 31 x 31",
            "zmviSumWindow: each pixel against the sum of its window makes a pencil drawing; the time is the sums'.");
}
