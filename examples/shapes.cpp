// The letters of a page, each with its centroid and its axes; numbers that stay when the page is turned; and what the
// quality index says of the photograph against versions of itself.
#include <cmath>
#include <vector>

#include "picture.h"

// The moments of a region of ink, gathered at its place in the page.
struct State {
    std::vector<uint8_t> block;
    State() {
        int size = 0;
        check(zmviMomentsGetSize(DATATYPE_8U, 1, &size), "zmviMomentsGetSize");
        block.resize(size_t(size));
        check(zmviMomentsInit(DATATYPE_8U, 1, block.data()), "zmviMomentsInit");
    }
    void add(const Picture& ink, ImagePoint at) {
        check(zmviMoments_8u_C1R(ink.at(0, 0), ink.step, ink.size, at, block.data()), "zmviMoments_8u_C1R");
    }
    double spatial(int p, int q) const {
        double value = 0;
        check(zmviMomentsGetSpatial(block.data(), p, q, 0, &value), "zmviMomentsGetSpatial");
        return value;
    }
    double central(int p, int q) const {
        double value = 0;
        check(zmviMomentsGetCentral(block.data(), p, q, 0, &value), "zmviMomentsGetCentral");
        return value;
    }
};

// What hangs together, each in a picture of its own that lies somewhere in the page.
struct Letter {
    ImageRect at;
    Picture ink;
};
static std::vector<Letter> letters(const Picture& page) {
    const int width = page.size.width, height = page.size.height;
    std::vector<bool> seen(size_t(width) * height);
    std::vector<Letter> found;
    for (int start = 0; start < width * height; ++start) {
        std::vector<int> pixels;
        const auto visit = [&](int x, int y) {
            if (x < 0 || y < 0 || x >= width || y >= height || seen[size_t(y * width + x)] || !*page.at(x, y)) return;
            seen[size_t(y * width + x)] = true;
            pixels.push_back(y * width + x);
        };
        visit(start % width, start / width);
        ImageRect r = {width, height, 0, 0};
        for (size_t i = 0; i < pixels.size(); ++i) {
            const int x = pixels[i] % width, y = pixels[i] / width;
            for (int k = 0; k < 9; ++k) visit(x + k % 3 - 1, y + k / 3 - 1);
            r = {std::min(r.x, x), std::min(r.y, y), std::max(r.width, x + 1), std::max(r.height, y + 1)};
        }
        if (pixels.size() < 40) continue;
        r.width -= r.x, r.height -= r.y;
        Letter letter = {r, Picture({r.width, r.height}, 1)};
        for (int y = 0; y < r.height; ++y) std::memset(letter.ink.at(0, y), 0, size_t(r.width));
        for (const int i : pixels) *letter.ink.at(i % width - r.x, i / width - r.y) = *page.at(i % width, i / width);
        found.push_back(std::move(letter));
    }
    return found;
}

static void draw(const Picture& to, double x, double y, double dx, double dy, const uint8_t (&colour)[3]) {
    for (double t = -1; t <= 1; t += 0.01) {
        const int px = int(std::lround(x + t * dx)), py = int(std::lround(y + t * dy));
        if (px >= 0 && py >= 0 && px < to.size.width && py < to.size.height) std::memcpy(to.at(px, py), colour, 3);
    }
}

static double quality(const Picture& a, const Picture& b, std::vector<uint8_t>& buffer) {
    double values[3] = {};
    check(zmviQualityIndex_8u_C3R(a.at(0, 0), a.step, b.at(0, 0), b.step, a.size, {8, 8}, values, buffer.data()),
          "zmviQualityIndex_8u_C3R");
    return (values[0] + values[1] + values[2]) / 3;
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: shapes photo.png folder");
    const Picture paper = load(PHOTOGRAPHS "/text.png", 1);
    const ImageSize size = paper.size;
    Picture ink(size, 1), turned({size.height, size.width}, 1), shown(size, 3);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            *ink.at(x, y) = uint8_t(*paper.at(x, y) < 75 ? 255 - *paper.at(x, y) : 0);
            *turned.at(size.height - 1 - y, x) = *ink.at(x, y);
            std::memset(shown.at(x, y), *paper.at(x, y), 3);
        }
    const double time = bestTime([&] { State().add(ink, {0, 0}); });
    State together;
    for (const Letter& letter : letters(ink)) {
        const ImageRect r = letter.at;
        State word;
        word.add(letter.ink, {r.x, r.y});
        check(zmviMomentsMerge(word.block.data(), together.block.data()), "zmviMomentsMerge");
        double area = 0, sumX = 0, sumY = 0;
        for (int y = 0; y < r.height; ++y)
            for (int x = 0; x < r.width; ++x) {
                const double f = *letter.ink.at(x, y);
                area += f, sumX += (r.x + x) * f, sumY += (r.y + y) * f;
            }
        if (word.spatial(0, 0) != area || word.spatial(1, 0) != sumX || word.spatial(0, 1) != sumY)
            fail("wrong moments of a letter");
        const double xx = word.central(2, 0) / area, yy = word.central(0, 2) / area, xy = word.central(1, 1) / area,
                     apart = std::hypot((xx - yy) / 2, xy), angle = 0.5 * std::atan2(2 * xy, xx - yy),
                     along = 2 * std::sqrt((xx + yy) / 2 + apart),
                     across = 2 * std::sqrt(std::max(0.0, (xx + yy) / 2 - apart));
        draw(shown, sumX / area, sumY / area, along * std::cos(angle), along * std::sin(angle), {230, 40, 30});
        draw(shown, sumX / area, sumY / area, -across * std::sin(angle), across * std::cos(angle), {30, 90, 230});
    }

    // Hu's numbers of the page and of the page turned.
    double hu[2][7];
    State upright, lying;
    upright.add(ink, {0, 0}), lying.add(turned, {0, 0});
    check(zmviMomentsGetHu(upright.block.data(), 0, hu[0]), "zmviMomentsGetHu");
    check(zmviMomentsGetHu(lying.block.data(), 0, hu[1]), "zmviMomentsGetHu");
    if (together.spatial(0, 0) > upright.spatial(0, 0)) fail("more ink in letters than on the page");
    FILE* const table = std::fopen((std::string(argv[2]) + "/shapes.tsv").c_str(), "w");
    if (!table) fail("no table can be written");
    for (int i = 0; i < 7; ++i) {
        if (std::fabs(hu[0][i] - hu[1][i]) > 1e-9 * std::fabs(hu[0][i])) fail("a number of Hu's has turned");
        std::fprintf(table, "invariant %d of the page, and of the page turned\t%.4e\t%.4e\n", i + 1, hu[0][i],
                     hu[1][i]);
    }

    // The photograph against itself, filtered, darker, and with noise.
    const Picture photo = load(argv[1], 3);
    Picture version(photo.size, 3);
    int bytes = 0;
    check(zmviQualityIndexGetBufferSize(photo.size, {8, 8}, DATATYPE_8U, 3, &bytes), "zmviQualityIndexGetBufferSize");
    std::vector<uint8_t> buffer;
    buffer.resize(size_t(bytes));
    const double itself = quality(photo, photo, buffer);
    if (std::fabs(itself - 1) > 1e-9) fail("the photograph is not like itself");
    std::fprintf(table, "quality index of the photograph against itself\t%.4f\t\n", itself);
    double before = itself;
    for (const int mask : {3, 9, 27}) {
        int filterBytes = 0;
        check(zmviFilterBoxBorderGetBufferSize(photo.size, {mask, mask}, DATATYPE_8U, 3, &filterBytes),
              "zmviFilterBoxBorderGetBufferSize");
        const std::unique_ptr<uint8_t[]> memory(new uint8_t[filterBytes]);
        check(zmviFilterBoxBorder_8u_C3R(photo.at(0, 0), photo.step, version.at(0, 0), version.step, photo.size,
                                         {mask, mask}, BORDER_REPL, nullptr, memory.get()),
              "zmviFilterBoxBorder_8u_C3R");
        const double index = quality(photo, version, buffer);
        if (!(index < before)) fail("a larger box leaves more of the photograph");
        std::fprintf(table, "against its means of %d x %d\t%.4f\t\n", mask, mask, before = index);
    }
    uint32_t noise = 1;
    for (const int strength : {8, 32}) {
        for (int y = 0; y < photo.size.height; ++y)
            for (int i = 0; i < photo.size.width * 3; ++i) {
                noise = noise * 1664525 + 1013904223;
                const int value = photo.at(0, y)[i] + int(noise >> 16) % (2 * strength + 1) - strength;
                version.at(0, y)[i] = uint8_t(std::clamp(value, 0, 255));
            }
        std::fprintf(table, "against itself with noise of up to %d\t%.4f\t\n", strength,
                     quality(photo, version, buffer));
    }
    if (std::fclose(table) != 0) fail("the table was not written");
    publish(shown, argv[2], "shapes", time, "Letters and their axes",
            "zmviMoments: the centroid of each letter, and the axes of its ink.");
}
