// What a blur takes away: the difference between a photograph and its box-filtered self, four times as strong.
#include "picture.h"

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: edges photo.png folder");
    const Picture photo = load(argv[1], 3);
    const ImageSize size = photo.size, mask = {9, 9};
    Picture blurred(size, 3), edges(size, 3), below(size, 3);

    int bytes = 0;
    check(zmviFilterBoxBorderGetBufferSize(size, mask, DATATYPE_8U, 3, &bytes), "zmviFilterBoxBorderGetBufferSize");
    const std::unique_ptr<uint8_t[]> buffer(new uint8_t[bytes]);
    check(zmviFilterBoxBorder_8u_C3R(photo.at(0, 0), photo.step, blurred.at(0, 0), blurred.step, size, mask,
                                     BORDER_REPL, nullptr, buffer.get()),
          "zmviFilterBoxBorder_8u_C3R");

    // The second image minus the first, four times; where that is negative it gives zero, and the other way round does
    // not.
    const double time = bestTime([&] {
        check(zmviSub_8u_C3RSfs(blurred.at(0, 0), blurred.step, photo.at(0, 0), photo.step, edges.at(0, 0), edges.step,
                                size, -2),
              "zmviSub_8u_C3RSfs");
        check(zmviSub_8u_C3RSfs(photo.at(0, 0), photo.step, blurred.at(0, 0), blurred.step, below.at(0, 0), below.step,
                                size, -2),
              "zmviSub_8u_C3RSfs");
        check(zmviAdd_8u_C3IRSfs(below.at(0, 0), below.step, edges.at(0, 0), edges.step, size, 0),
              "zmviAdd_8u_C3IRSfs");
    });
    for (int y = 0; y < size.height; ++y)
        for (int i = 0; i < size.width * 3; ++i)
            if (edges.at(0, y)[i] != std::min(4 * std::abs(photo.at(0, y)[i] - blurred.at(0, y)[i]), 255))
                fail("not four times the difference");
    publish(edges, argv[2], "edges", time, "Edges",
            "zmviSub and zmviAdd: four times what a 9 x 9 box filter takes away.");
}
