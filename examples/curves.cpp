// Pixels through tables: a tone curve of five levels, nearest, straight and smooth; few shades; false colours; and a
// ramp of 16 bits brought to 8.
#include <vector>

#include "picture.h"

// A spec object with one curve for every channel.
static std::vector<uint8_t> curveOf(int interpolation, const std::vector<int32_t>& levels,
                                    const std::vector<int32_t>& values, int channels) {
    const int count = int(levels.size()), counts[] = {count, count, count};
    const int32_t* const allLevels[] = {levels.data(), levels.data(), levels.data()};
    const int32_t* const allValues[] = {values.data(), values.data(), values.data()};
    int size = 0;
    check(zmviLUT_GetSize(interpolation, DATATYPE_8U, channels, counts, &size), "zmviLUT_GetSize");
    std::vector<uint8_t> spec(size);
    check(zmviLUT_Init_8u(interpolation, allLevels, allValues, counts, channels, spec.data()), "zmviLUT_Init_8u");
    return spec;
}

// What the curve makes of each value: a row of them all through it.
static std::vector<uint8_t> valuesOf(const std::vector<uint8_t>& spec) {
    std::vector<uint8_t> row(256 * 3);
    for (int i = 0; i < 256 * 3; ++i) row[i] = uint8_t(i / 3);
    check(zmviLUT_8u_C3IR(row.data(), 256 * 3, {256, 1}, spec.data()), "zmviLUT_8u_C3IR");
    for (int i = 0; i < 256; ++i) row[i] = row[3 * i];
    row.resize(256);
    return row;
}

static void toneCurve(const Picture& photo, const char* folder) {
    const std::vector<int32_t> levels = {0, 64, 128, 192, 255}, values = {0, 30, 140, 225, 255};
    const int interpolations[] = {INTERP_NEAREST, INTERP_LINEAR, INTERP_CUBIC}, third = photo.size.width / 3;
    Picture toned(photo.size, 3);
    double time = 1e30;
    for (int i = 0; i < 3; ++i) {
        const std::vector<uint8_t> spec = curveOf(interpolations[i], levels, values, 3);
        const ImageSize part = {third, photo.size.height};
        time = std::min(time, bestTime([&] {
                            check(zmviLUT_8u_C3R(photo.at(i * third, 0), photo.step, toned.at(i * third, 0), toned.step,
                                                 part, spec.data()),
                                  "zmviLUT_8u_C3R");
                        }));
        const std::vector<uint8_t> curve = valuesOf(spec);
        for (size_t k = 0; k < levels.size(); ++k)
            if (curve[levels[k]] != values[k]) fail("the curve misses its levels");
        for (int y = 0; y < part.height; ++y)
            for (int x = 0; x < 3 * third; ++x)
                if (toned.at(i * third, y)[x] != curve[photo.at(i * third, y)[x]]) fail("not along the curve");

        // The curve below its picture, as high and wide as there is room.
        const int side = std::min(third, photo.size.height) / 2;
        const uint8_t white[3] = {255, 255, 255};
        int before = 0;
        for (int x = 0; x < side; ++x) {
            const int height = curve[x * 255 / (side - 1)] * (side - 1) / 255, top = std::max(height, before + 1);
            check(zmviSet_8u_C3R(white, toned.at(i * third + 8 + x, photo.size.height - 9 - top), toned.step,
                                 {2, std::max(2, std::abs(top - before))}),
                  "zmviSet_8u_C3R");
            before = height;
        }
    }
    for (int y = 0; y < photo.size.height; ++y)  // what three does not divide
        std::memcpy(toned.at(3 * third, y), photo.at(3 * third, y), size_t(photo.size.width - 3 * third) * 3);
    publish(toned, folder, "tone", time, "A tone curve",
            "zmviLUT: five levels, from left to right with INTERP_NEAREST, _LINEAR and _CUBIC; a third's time.");
}

static void posterised(const Picture& photo, const char* folder) {
    // The nearest of four levels a channel.
    const std::vector<int32_t> shades = {0, 85, 170, 255};
    const std::vector<uint8_t> spec = curveOf(INTERP_NEAREST, shades, shades, 3);
    Picture poster(photo.size, 3);
    const double time = bestTime([&] {
        check(zmviLUT_8u_C3R(photo.at(0, 0), photo.step, poster.at(0, 0), poster.step, photo.size, spec.data()),
              "zmviLUT_8u_C3R");
    });
    for (int y = 0; y < photo.size.height; ++y)
        for (int x = 0; x < 3 * photo.size.width; ++x) {
            const int shade = poster.at(0, y)[x], pixel = photo.at(0, y)[x];
            if (shade % 85 != 0 || std::abs(shade - pixel) > 42) fail("not the nearest shade");
        }
    publish(poster, folder, "poster", time, "Posterised",
            "zmviLUT with INTERP_NEAREST: four shades a channel, 64 colours.");
}

static void falseColours(const Picture& gray, const char* folder) {
    uint8_t palette[256][3];  // from black through blue, red and yellow to white
    for (int i = 0; i < 256; ++i) {
        palette[i][0] = uint8_t(std::clamp(i * 3 - 192, 0, 255));
        palette[i][1] = uint8_t(std::clamp(i * 3 - 448, 0, 255));
        palette[i][2] =
            uint8_t(i < 128 ? std::min(2 * i, 255 - std::max(0, i - 64) * 3) : std::clamp(i * 4 - 765, 60, 255));
    }
    Picture colours(gray.size, 3);
    const double time = bestTime([&] {
        check(zmviLUTPalette_8u24u_C1R(gray.at(0, 0), gray.step, colours.at(0, 0), colours.step, gray.size, palette[0],
                                       8),
              "zmviLUTPalette_8u24u_C1R");
    });
    for (int y = 0; y < gray.size.height; ++y)
        for (int x = 0; x < gray.size.width; ++x)
            if (std::memcmp(colours.at(x, y), palette[*gray.at(x, y)], 3) != 0) fail("not the palette's colour");
    publish(colours, folder, "heat", time, "False colours", "zmviLUTPalette_8u24u: each gray has a colour of its own.");
}

static void ramp(const char* folder) {
    const ImageSize size = {768, 240};
    std::vector<uint16_t> deep(size_t(size.width) * size.height);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            deep[size_t(y) * size.width + x] =
                uint16_t((int64_t(y) * size.width + x) * 65535 / (size.width * size.height - 1));
    Picture shown(size, 1);
    const int step = size.width * int(sizeof(uint16_t));
    const double time = bestTime([&] {
        check(zmviScale_16u8u_C1R(deep.data(), step, shown.at(0, 0), shown.step, size), "zmviScale_16u8u_C1R");
    });
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            if (std::abs(deep[size_t(y) * size.width + x] - 257 * *shown.at(x, y)) > 128) fail("not the nearest byte");
    publish(shown, folder, "ramp", time, "16 bits as 8",
            "zmviScale_16u8u: the range of 65536 values brought to 256, to nearest.");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: curves photo.png folder");
    const Picture photo = load(argv[1], 3), gray = load(argv[1], 1);
    toneCurve(photo, argv[2]);
    posterised(photo, argv[2]);
    falseColours(gray, argv[2]);
    ramp(argv[2]);
}
