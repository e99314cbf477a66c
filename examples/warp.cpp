// Pixels from wherever two maps say: a lens that bends, and its bending undone; a swirl; a disc unrolled; a turned
// photograph, at whose edge the background shines through or not; and the frame that a turn makes of a rectangle.
#include <cmath>
#include <vector>

#include "picture.h"

constexpr double pi = 3.14159265358979323846;

struct Point {
    double x, y;
};

// Where each pixel of a result of this size comes from.
struct Maps {
    ImageSize size;
    std::vector<float> x, y;
    template <class From>
    Maps(ImageSize size, From from) : size(size) {
        for (int v = 0; v < size.height; ++v)
            for (int u = 0; u < size.width; ++u) {
                const Point p = from(u, v);
                x.push_back(float(p.x)), y.push_back(float(p.y));
            }
    }
    int step() const { return size.width * int(sizeof(float)); }
};

static Picture blank(ImageSize size, uint8_t shade) {
    Picture picture(size, 3);
    const uint8_t colour[] = {shade, shade, shade};
    check(zmviSet_8u_C3R(colour, picture.at(0, 0), picture.step, size), "zmviSet_8u_C3R");
    return picture;
}
// Fills `to` by the maps, and returns the time of a call.  What fades in does so once: the clock runs beside it.
static double remap(const Picture& from, const Maps& maps, const Picture& to, int interpolation) {
    const auto into = [&](const Picture& picture) {
        check(zmviRemap_8u_C3R(from.at(0, 0), from.size, from.step, {0, 0, from.size.width, from.size.height},
                               maps.x.data(), maps.step(), maps.y.data(), maps.step(), picture.at(0, 0), picture.step,
                               maps.size, interpolation),
              "zmviRemap_8u_C3R");
    };
    into(to);
    const Picture other = blank(to.size, 0);
    return bestTime([&] { into(other); });
}

// A lens moves what is at distance r of the middle, in half diagonals, to where r = d (1 + bend d^2).
static void lens(const Picture& photo, const char* folder) {
    const double bend = 0.35, mx = (photo.size.width - 1) / 2.0, my = (photo.size.height - 1) / 2.0;
    const double unit = std::hypot(mx, my);
    const auto scaled = [&](int u, int v, double factor) {
        return Point{mx + (u - mx) * factor, my + (v - my) * factor};
    };
    const Maps on(photo.size, [&](int u, int v) {
        const double d = std::hypot(u - mx, v - my) / unit;
        return scaled(u, v, 1 + bend * d * d);
    });
    const Maps off(photo.size, [&](int u, int v) {
        const double r = std::hypot(u - mx, v - my) / unit;
        double d = r;
        for (int i = 0; i < 20; ++i) d -= (d * (1 + bend * d * d) - r) / (1 + 3 * bend * d * d);
        return scaled(u, v, r > 0 ? d / r : 1);
    });
    Picture bent = blank(photo.size, 0), straight = blank(photo.size, 0);
    const double time = remap(photo, on, bent, INTERP_CUBIC), back = remap(bent, off, straight, INTERP_CUBIC);
    double difference = 0, count = 0;
    for (int y = photo.size.height / 4; y < photo.size.height * 3 / 4; ++y)
        for (int i = 3 * (photo.size.width / 4); i < 3 * (photo.size.width * 3 / 4); ++i, ++count)
            difference += std::abs(photo.at(0, y)[i] - straight.at(0, y)[i]);
    if (difference / count > 6) fail("the lens is not undone");
    publish(bent, folder, "bent", time, "Through a lens",
            "zmviRemap with INTERP_CUBIC: a lens that bends straight lines.");
    publish(straight, folder, "straight", back, "The lens undone",
            "zmviRemap: the bent photograph through the inverse.");
}

static void swirl(const Picture& photo, const char* folder) {
    const double mx = photo.size.width * 0.5, my = photo.size.height * 0.5, reach = 0.9 * std::min(mx, my);
    const Maps maps(photo.size, [&](int u, int v) {
        const double dx = u - mx, dy = v - my, r = std::hypot(dx, dy), left = std::max(0.0, 1 - r / reach);
        const double angle = 2.5 * left * left;
        return Point{mx + dx * std::cos(angle) - dy * std::sin(angle),
                     my + dx * std::sin(angle) + dy * std::cos(angle)};
    });
    Picture turned = blank(photo.size, 0);
    const double time = remap(photo, maps, turned, INTERP_LINEAR);
    for (int v = 0; v < photo.size.height; ++v)
        for (int u = 0; u < photo.size.width; ++u)
            if (std::hypot(u - mx, v - my) > reach && std::memcmp(photo.at(u, v), turned.at(u, v), 3) != 0)
                fail("what does not move has changed");
    publish(turned, folder, "swirl", time, "A swirl",
            "zmviRemap with INTERP_LINEAR: the nearer the middle, the farther.");
}

static void unrolled(const Picture& photo, const char* folder) {
    const double mx = photo.size.width * 0.5, my = photo.size.height * 0.5, reach = std::min(mx, my) - 2;
    const ImageSize size = {photo.size.width, int(reach)};
    const Maps maps(size, [&](int u, int v) {
        const double angle = 2 * pi * u / size.width;
        return Point{mx + v * std::sin(angle), my - v * std::cos(angle)};
    });
    Picture strip = blank(size, 0);
    const double time = remap(photo, maps, strip, INTERP_LANCZOS);
    for (int u = 1; u < size.width; ++u)
        if (std::memcmp(strip.at(0, 0), strip.at(u, 0), 3) != 0) fail("the middle is not one point");
    publish(strip, folder, "polar", time, "A disc unrolled",
            "zmviRemap with INTERP_LANCZOS: angles from left to right, distances from the middle downwards.");
}

// The turn about the middle, by the library's own functions, and back again from the destination's pixels.
struct Turn {
    double forth[2][3], back[2][3];
    Turn(ImageSize size, double degrees) {
        const double mx = (size.width - 1) / 2.0, my = (size.height - 1) / 2.0;
        for (const double sign : {1, -1}) {
            double x, y;
            check(zmviGetRotateShift(mx, my, sign * degrees, &x, &y), "zmviGetRotateShift");
            check(zmviGetRotateTransform(sign * degrees, x, y, sign > 0 ? forth : back), "zmviGetRotateTransform");
        }
    }
    Maps maps(ImageSize size) const {
        return Maps(size, [&](int u, int v) {
            return Point{back[0][0] * u + back[0][1] * v + back[0][2], back[1][0] * u + back[1][1] * v + back[1][2]};
        });
    }
};

static void edge(const Picture& photo, const char* folder) {
    const Maps maps = Turn(photo.size, 7).maps(photo.size);
    const ImageSize crop = {40, 60};  // where the turned photograph's upper edge runs through the picture
    const int scale = 8, left = photo.size.width / 8;
    int top = 0;
    while (maps.y[size_t(top) * photo.size.width + left + crop.width / 2] < 0) ++top;
    top = std::clamp(top - crop.height / 2, 0, photo.size.height - crop.height);
    Picture both = blank({2 * crop.width * scale + scale, crop.height * scale}, 255);
    double time = 0;
    int smoothed[2] = {};
    for (int smooth = 0; smooth < 2; ++smooth) {
        Picture turned = blank(photo.size, 255);
        time = remap(photo, maps, turned, smooth ? INTERP_LINEAR | INTERP_SMOOTH_EDGE : INTERP_LINEAR);
        for (size_t i = 0; i < maps.x.size(); ++i)
            smoothed[smooth] +=
                maps.y[i] < 0 && *turned.at(int(i) % photo.size.width, int(i) / photo.size.width) != 255;
        const Maps enlarge({crop.width * scale, crop.height * scale}, [&](int u, int v) {
            return Point{double(left + u / scale), double(top + v / scale)};
        });
        Picture large(enlarge.size, 3);
        remap(turned, enlarge, large, INTERP_NEAREST);
        check(zmviCopy_8u_C3R(large.at(0, 0), large.step, both.at(smooth * (crop.width + 1) * scale, 0), both.step,
                              large.size),
              "zmviCopy_8u_C3R");
    }
    if (smoothed[0] != 0 || smoothed[1] == 0) fail("edges do not fade in");
    publish(both, folder, "fading", time, "Edges that fade in",
            "A turned photograph, 8 times as large: without and with INTERP_SMOOTH_EDGE.");
}

static void line(Picture& picture, const double* from, const double* to, const uint8_t (&colour)[3]) {
    const int steps = int(std::max(std::fabs(to[0] - from[0]), std::fabs(to[1] - from[1]))) + 1;
    for (int i = 0; i <= steps; ++i) {
        const int x = int(std::lround(from[0] + (to[0] - from[0]) * i / steps)),
                  y = int(std::lround(from[1] + (to[1] - from[1]) * i / steps));
        if (x >= 1 && y >= 1 && x < picture.size.width - 1 && y < picture.size.height - 1)
            check(zmviSet_8u_C3R(colour, picture.at(x - 1, y - 1), picture.step, {3, 3}), "zmviSet_8u_C3R");
    }
}
static void frame(const Picture& photo, const char* folder) {
    const ImageSize size = photo.size;
    const Turn turn(size, 25);
    const ImageRect part = {size.width / 4, size.height / 4, size.width / 2, size.height / 2};
    double quad[4][2], bound[2][2], again[2][3];
    const double time = bestTime([&] {
        check(zmviGetAffineQuad(part, quad, turn.forth), "zmviGetAffineQuad");
        check(zmviGetAffineBound(part, bound, turn.forth), "zmviGetAffineBound");
    });
    check(zmviGetAffineTransform(part, quad, again), "zmviGetAffineTransform");
    for (int i = 0; i < 6; ++i)
        if (std::fabs(again[i / 3][i % 3] - turn.forth[i / 3][i % 3]) > 1e-9)
            fail("the quadrangle is not that of the turn");
    Picture drawn = blank(size, 90);
    remap(photo, turn.maps(size), drawn, INTERP_CUBIC | INTERP_SMOOTH_EDGE);
    const double corners[4][2] = {
        {bound[0][0], bound[0][1]}, {bound[1][0], bound[0][1]}, {bound[1][0], bound[1][1]}, {bound[0][0], bound[1][1]}};
    for (int i = 0; i < 4; ++i) {
        line(drawn, corners[i], corners[(i + 1) % 4], {255, 255, 255});
        line(drawn, quad[i], quad[(i + 1) % 4], {255, 200, 0});
    }
    publish(drawn, folder, "frame", time, "A turned frame",
            "zmviGetRotateShift turns about the middle; zmviGetAffineQuad in yellow, zmviGetAffineBound in white.");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: warp photo.png folder");
    const Picture photo = load(argv[1], 3);
    lens(photo, argv[2]);
    swirl(photo, argv[2]);
    unrolled(photo, argv[2]);
    edge(photo, argv[2]);
    frame(photo, argv[2]);
}
