// The photograph in a frame of its own pixels: repeated, mirrored, wrapped round; or of one colour.
#include "picture.h"

// Where column or row i of a photograph of n comes from when i lies outside; -1: from nowhere in it.
static int repeated(int i, int n) { return std::clamp(i, 0, n - 1); }
static int wrapped(int i, int n) { return (i % n + n) % n; }
static int mirrored(int i, int n) {
    const int there = wrapped(i, std::max(1, 2 * n - 2));
    return std::min(there, 2 * n - 2 - there);
}
static int outside(int i, int n) { return i < 0 || i >= n ? -1 : i; }

static const uint8_t colour[4] = {70, 130, 180, 255};

// Compares every pixel of the framed picture with the one that it has to come from.
static void verify(const Picture& framed, const Picture& photo, int left, int top, int (*origin)(int, int)) {
    for (int y = 0; y < framed.size.height; ++y)
        for (int x = 0; x < framed.size.width; ++x) {
            const int fromX = origin(x - left, photo.size.width), fromY = origin(y - top, photo.size.height);
            const uint8_t* expected = fromX < 0 || fromY < 0 ? colour : photo.at(fromX, fromY);
            if (std::memcmp(framed.at(x, y), expected, 4) != 0)
                fail("a wrong pixel at " + std::to_string(x) + ", " + std::to_string(y));
        }
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: borders photo.png folder");
    const Picture photo = load(argv[1], 4);
    const ImageSize size = photo.size;
    const int left = std::max(1, size.width / 5), top = std::max(1, size.height / 5);
    Picture framed({size.width + 2 * left, size.height + 2 * top}, 4);

    double time = bestTime([&] {
        check(zmviCopyReplicateBorder_8u_C4R(photo.at(0, 0), photo.step, size, framed.at(0, 0), framed.step,
                                             framed.size, top, left),
              "zmviCopyReplicateBorder_8u_C4R");
    });
    verify(framed, photo, left, top, repeated);
    publish(framed, argv[2], "replicate", time, "Border: replicate",
            "zmviCopyReplicateBorder: the frame repeats the nearest pixel of the photograph.");

    time = bestTime([&] {
        check(zmviCopyMirrorBorder_8u_C4R(photo.at(0, 0), photo.step, size, framed.at(0, 0), framed.step, framed.size,
                                          top, left),
              "zmviCopyMirrorBorder_8u_C4R");
    });
    verify(framed, photo, left, top, mirrored);
    publish(framed, argv[2], "mirror", time, "Border: mirror",
            "zmviCopyMirrorBorder: the frame mirrors the photograph about its edge pixels.");

    // Four channels of 8 bits are one element of 32 bits to a function that only moves them.
    time = bestTime([&] {
        check(zmviCopyWrapBorder_32s_C1R(reinterpret_cast<const int32_t*>(photo.at(0, 0)), photo.step, size,
                                         reinterpret_cast<int32_t*>(framed.at(0, 0)), framed.step, framed.size, top,
                                         left),
              "zmviCopyWrapBorder_32s_C1R");
    });
    verify(framed, photo, left, top, wrapped);
    publish(framed, argv[2], "wrap", time, "Border: wrap",
            "zmviCopyWrapBorder: the frame goes on with the photograph's other side, as tiles do.");

    time = bestTime([&] {
        check(zmviCopyConstBorder_8u_C4R(photo.at(0, 0), photo.step, size, framed.at(0, 0), framed.step, framed.size,
                                         top, left, colour),
              "zmviCopyConstBorder_8u_C4R");
    });
    verify(framed, photo, left, top, outside);
    publish(framed, argv[2], "constant", time, "Border: constant", "zmviCopyConstBorder: a frame of one colour.");
}
