// The words of a page, each with its centroid and its axes; numbers that stay when the page is turned; and what the
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
    void add(const Picture& ink, ImageRect r) {
        check(zmviMoments_8u_C1R(ink.at(r.x, r.y), ink.step, {r.width, r.height}, {r.x, r.y}, block.data()),
              "zmviMoments_8u_C1R");
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

// The rectangles of words: rows, then columns, with some emptiness between them.
static std::vector<ImageRect> words(const Picture& ink) {
    const auto stretches = [](int n, int gap, auto inked) {
        std::vector<std::pair<int, int>> found;
        for (int i = 0; i < n; ++i) {
            if (!inked(i)) continue;
            if (found.empty() || i - found.back().second > gap) found.push_back({i, i});
            found.back().second = i + 1;
        }
        return found;
    };
    std::vector<ImageRect> result;
    const auto rowHas = [&](int y) {
        int count = 0;
        for (int x = 0; x < ink.size.width; ++x) count += *ink.at(x, y) > 0;
        return count > 2;
    };
    for (const auto& [top, bottom] : stretches(ink.size.height, 1, rowHas)) {
        const auto columnHas = [&, top = top, bottom = bottom](int x) {
            for (int y = top; y < bottom; ++y)
                if (*ink.at(x, y) > 0) return true;
            return false;
        };
        for (const auto& [left, right] : stretches(ink.size.width, 7, columnHas))
            if (right - left > 4 && bottom - top > 4) result.push_back({left, top, right - left, bottom - top});
    }
    return result;
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
            *ink.at(x, y) = uint8_t(*paper.at(x, y) < 96 ? 255 - *paper.at(x, y) : 0);
            *turned.at(size.height - 1 - y, x) = *ink.at(x, y);
            std::memset(shown.at(x, y), *paper.at(x, y), 3);
        }
    const std::vector<ImageRect> rectangles = words(ink);
    const ImageRect all = {0, 0, size.width, size.height};
    const double time = bestTime([&] { State().add(ink, all); });
    State together;
    for (const ImageRect& r : rectangles) {
        State word;
        word.add(ink, r);
        check(zmviMomentsMerge(word.block.data(), together.block.data()), "zmviMomentsMerge");
        double area = 0, sumX = 0, sumY = 0;
        for (int y = r.y; y < r.y + r.height; ++y)
            for (int x = r.x; x < r.x + r.width; ++x) {
                area += *ink.at(x, y);
                sumX += double(x) * *ink.at(x, y), sumY += double(y) * *ink.at(x, y);
            }
        if (word.spatial(0, 0) != area || word.spatial(1, 0) != sumX || word.spatial(0, 1) != sumY)
            fail("wrong moments of a word");
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
    upright.add(ink, all), lying.add(turned, {0, 0, size.height, size.width});
    check(zmviMomentsGetHu(upright.block.data(), 0, hu[0]), "zmviMomentsGetHu");
    check(zmviMomentsGetHu(lying.block.data(), 0, hu[1]), "zmviMomentsGetHu");
    if (together.spatial(0, 0) > upright.spatial(0, 0)) fail("more ink in words than on the page");
    FILE* const table = std::fopen((std::string(argv[2]) + "/shapes.tsv").c_str(), "w");
    if (!table) fail("no table can be written");
    for (int i = 0; i < 7; ++i) {
        if (std::fabs(hu[0][i] - hu[1][i]) > 1e-9 * std::fabs(hu[0][i])) fail("a number of Hu's has turned");
        std::fprintf(table, "invariant %d of the page, and of the page turned\t%.6e\t%.6e\n", i + 1, hu[0][i],
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
    publish(shown, argv[2], "shapes", time, "Words and their axes",
            "zmviMoments: the centroid of each word, and the axes of its ink.");
}
