// A filter run tile by tile from several threads gives the same bits as one run over the whole image.
#include <atomic>
#include <thread>
#include <vector>

#include "picture.h"

constexpr int mask = 15;

static void filter(const Picture& src, const Picture& dst, ImageRect tile, int border) {
    int bytes = 0;
    check(zmviFilterBoxBorderGetBufferSize({tile.width, tile.height}, {mask, mask}, DATATYPE_8U, 3, &bytes),
          "zmviFilterBoxBorderGetBufferSize");
    const std::unique_ptr<uint8_t[]> buffer(new uint8_t[bytes]);  // one for each call that runs at the same time
    check(zmviFilterBoxBorder_8u_C3R(src.at(tile.x, tile.y), src.step, dst.at(tile.x, tile.y), dst.step,
                                     {tile.width, tile.height}, {mask, mask}, border, nullptr, buffer.get()),
          "zmviFilterBoxBorder_8u_C3R");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: tiles photo.png folder");
    const Picture photo = load(argv[1], 3);
    const int width = photo.size.width, height = photo.size.height;
    Picture whole(photo.size, 3), tiled(photo.size, 3);
    const double wholeTime = bestTime([&] { filter(photo, whole, {0, 0, width, height}, BORDER_REPL); });

    // A tile reads its neighbours, so none may be narrower than half a window.
    const int columns = std::clamp(width / mask, 1, 4), rows = std::clamp(height / mask, 1, 3);
    const int count = columns * rows;
    auto tile = [&](int i) {
        const int x = i % columns * width / columns, y = i / columns * height / rows;
        return ImageRect{x, y, (i % columns + 1) * width / columns - x, (i / columns + 1) * height / rows - y};
    };
    auto run = [&](int i) {
        const ImageRect r = tile(i);
        int border = BORDER_REPL;  // for the edges of the photograph; the other sides are there in memory
        if (r.x > 0) border |= BORDER_IN_MEM_LEFT;
        if (r.y > 0) border |= BORDER_IN_MEM_TOP;
        if (r.x + r.width < width) border |= BORDER_IN_MEM_RIGHT;
        if (r.y + r.height < height) border |= BORDER_IN_MEM_BOTTOM;
        filter(photo, tiled, r, border);
    };
    const int threads = std::max(2, int(std::thread::hardware_concurrency()));
    const double time = bestTime([&] {
        std::atomic<int> next{0};
        std::vector<std::thread> team;
        for (int t = 0; t < threads; ++t)
            team.emplace_back([&] {
                for (int i; (i = next++) < count;) run(i);
            });
        for (std::thread& member : team) member.join();
    });
    if (!same(tiled, whole)) fail("the tiles differ from the whole");

    // Lines along the seams, which could not be seen otherwise.
    const uint8_t white[3] = {255, 255, 255};
    for (int i = 0; i < count; ++i) {
        const ImageRect r = tile(i);
        if (r.y > 0) check(zmviSet_8u_C3R(white, tiled.at(r.x, r.y), tiled.step, {r.width, 1}), "zmviSet_8u_C3R");
        if (r.x > 0) check(zmviSet_8u_C3R(white, tiled.at(r.x, r.y), tiled.step, {1, r.height}), "zmviSet_8u_C3R");
    }
    char sentence[200];
    std::snprintf(
        sentence, sizeof sentence,
        "zmviFilterBoxBorder, %d x %d, on %d tiles by %d threads: the same bits as the whole image, which one "
        "thread does in %.0f us; starting the threads counts.",
        mask, mask, count, threads, wholeTime);
    publish(tiled, argv[2], "tiles", time, "Tiles from " + std::to_string(threads) + " threads", sentence);
}
