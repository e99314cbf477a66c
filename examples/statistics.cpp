// What can be said of a photograph in numbers, and how far its filtered versions are from it.
#include <cmath>
#include <vector>

#include "picture.h"

// A plain loop over all pixels of two pictures; f gets a pixel of each and the channel.
template <class F>
static void each(const Picture& a, const Picture& b, F f) {
    for (int y = 0; y < a.size.height; ++y)
        for (int x = 0; x < a.size.width; ++x)
            for (int c = 0; c < 3; ++c) f(a.at(x, y)[c], b.at(x, y)[c], c);
}

struct Difference {
    double largest[3], mean[3], relative[3];
};
static Difference difference(const Picture& version, const Picture& photo) {
    Difference d;
    const auto measure = [&](auto norm, double* value, const char* name) {
        check(norm(version.at(0, 0), version.step, photo.at(0, 0), photo.step, photo.size, value), name);
    };
    measure(zmviNormDiff_Inf_8u_C3R, d.largest, "zmviNormDiff_Inf_8u_C3R");
    measure(zmviNormDiff_L1_8u_C3R, d.mean, "zmviNormDiff_L1_8u_C3R");
    measure(zmviNormRel_L2_8u_C3R, d.relative, "zmviNormRel_L2_8u_C3R");
    const double pixels = double(photo.size.width) * photo.size.height;
    for (double& sum : d.mean) sum /= pixels;

    double largest[3] = {}, sum[3] = {}, squares[3] = {}, all[3] = {};
    each(version, photo, [&](double a, double b, int c) {
        largest[c] = std::max(largest[c], std::fabs(a - b));
        sum[c] += std::fabs(a - b), squares[c] += (a - b) * (a - b), all[c] += b * b;
    });
    for (int c = 0; c < 3; ++c) {
        if (all[c] == 0) fail("a channel of the photograph is black, and nothing is relative to it");
        if (d.largest[c] != largest[c] || d.mean[c] != sum[c] / pixels ||
            d.relative[c] != std::sqrt(squares[c] / all[c]))
            fail("a wrong norm of channel " + std::to_string(c));
    }
    return d;
}

// A row of out/statistics.tsv, which ./try prints as a table.
template <class Number>
static void print(FILE* table, const std::string& what, const Number* numbers, const char* format) {
    std::fprintf(table, "%s", what.c_str());
    for (int c = 0; c < 3; ++c) std::fputc('\t', table), std::fprintf(table, format, numbers[c]);
    std::fputc('\n', table);
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: statistics photo.png folder");
    const Picture photo = load(argv[1], 3);
    FILE* const table = std::fopen((std::string(argv[2]) + "/statistics.tsv").c_str(), "w");
    if (!table) fail("no table can be written");
    std::fprintf(table, "\tred\tgreen\tblue\n");

    uint8_t least[3], most[3];
    double mean[3];
    check(zmviMinMax_8u_C3R(photo.at(0, 0), photo.step, photo.size, least, most), "zmviMinMax_8u_C3R");
    check(zmviMean_8u_C3R(photo.at(0, 0), photo.step, photo.size, mean), "zmviMean_8u_C3R");
    int low[3] = {255, 255, 255}, high[3] = {}, smallest[3], largest[3];
    double sum[3] = {};
    each(photo, photo,
         [&](int v, int, int c) { low[c] = std::min(low[c], v), high[c] = std::max(high[c], v), sum[c] += v; });
    for (int c = 0; c < 3; ++c) {
        smallest[c] = least[c], largest[c] = most[c];
        if (smallest[c] != low[c] || largest[c] != high[c] ||
            mean[c] != sum[c] / (double(photo.size.width) * photo.size.height))
            fail("a wrong extreme or mean of channel " + std::to_string(c));
    }
    print(table, "smallest pixel", smallest, "%d");
    print(table, "largest pixel", largest, "%d");
    print(table, "mean", mean, "%.2f");

    // The smoother, the farther away: from left to right ever larger boxes, each with its distance from the photograph.
    const std::vector<int> masks = {3, 9, 27};
    Picture smooth(photo.size, 3);
    for (const int mask : masks) {
        int bytes = 0;
        check(zmviFilterBoxBorderGetBufferSize(photo.size, {mask, mask}, DATATYPE_8U, 3, &bytes),
              "zmviFilterBoxBorderGetBufferSize");
        const std::unique_ptr<uint8_t[]> buffer(new uint8_t[bytes]);
        check(zmviFilterBoxBorder_8u_C3R(photo.at(0, 0), photo.step, smooth.at(0, 0), smooth.step, photo.size,
                                         {mask, mask}, BORDER_REPL, nullptr, buffer.get()),
              "zmviFilterBoxBorder_8u_C3R");
        const Difference d = difference(smooth, photo);
        const std::string box = "box filter " + std::to_string(mask) + " x " + std::to_string(mask);
        print(table, box + ": largest difference", d.largest, "%.0f");
        print(table, box + ": mean difference", d.mean, "%.2f");
        print(table, box + ": relative L2 norm", d.relative, "%.4f");
    }
    if (std::fclose(table) != 0) fail("the table was not written");

    // Where the last one differs: eight times the larger pixel minus the smaller.
    Picture larger(photo.size, 3), smaller(photo.size, 3);
    for (Picture* picture : {&larger, &smaller})
        check(zmviCopy_8u_C3R(photo.at(0, 0), photo.step, picture->at(0, 0), picture->step, photo.size),
              "zmviCopy_8u_C3R");
    const double time = bestTime([&] {
        check(zmviMaxEvery_8u_C3IR(smooth.at(0, 0), smooth.step, larger.at(0, 0), larger.step, photo.size),
              "zmviMaxEvery_8u_C3IR");
        check(zmviMinEvery_8u_C3IR(smooth.at(0, 0), smooth.step, smaller.at(0, 0), smaller.step, photo.size),
              "zmviMinEvery_8u_C3IR");
    });
    Picture map(photo.size, 3);
    check(zmviSub_8u_C3RSfs(smaller.at(0, 0), smaller.step, larger.at(0, 0), larger.step, map.at(0, 0), map.step,
                            photo.size, -3),
          "zmviSub_8u_C3RSfs");
    Picture plain(photo.size, 3);
    for (int y = 0; y < photo.size.height; ++y)
        for (int i = 0; i < photo.size.width * 3; ++i)
            plain.at(0, y)[i] = uint8_t(std::min(255, 8 * std::abs(smooth.at(0, y)[i] - photo.at(0, y)[i])));
    if (!same(map, plain)) fail("a wrong larger or smaller pixel");
    publish(
        map, argv[2], "statistics", time, "Larger minus smaller",
        "zmviMaxEvery and zmviMinEvery: the photograph and its 27 x 27 means, the difference eight times as large.");
}
