// Warps by coefficients: a photograph turned into the frame that fits it, its edge with and without smooth edges,
// turned thirty-six times over; a page laid on a table and straightened again; a photograph hung into a frame by two
// maps.
#include <array>
#include <cmath>
#include <vector>

#include "picture.h"

// Eight bits, three channels, the whole source: how it goes to a destination, in tiles that could be worked by threads.
class Warp {
  public:
    enum Direction { forward = WARP_FORWARD, backward = WARP_BACKWARD };
    Warp(ImageSize src, ImageSize dst) : src_(src), dst_(dst) {}

    Warp& affine(const double (*coeffs)[3], Direction direction, int interpolation, int smooth = 0) {
        make(coeffs, direction, interpolation, smooth, zmviWarpAffineNearestInit, zmviWarpAffineLinearInit,
             zmviWarpAffineCubicInit);
        return *this = by(interpolation, zmviWarpAffineNearest_8u_C3R, zmviWarpAffineLinear_8u_C3R,
                          zmviWarpAffineCubic_8u_C3R);
    }
    Warp& perspective(const double (*coeffs)[3], Direction direction, int interpolation, int smooth = 0) {
        make(coeffs, direction, interpolation, smooth, zmviWarpPerspectiveNearestInit, zmviWarpPerspectiveLinearInit,
             zmviWarpPerspectiveCubicInit);
        return *this = by(interpolation, zmviWarpPerspectiveNearest_8u_C3R, zmviWarpPerspectiveLinear_8u_C3R,
                          zmviWarpPerspectiveCubic_8u_C3R);
    }
    Warp& bilinear(const double (*coeffs)[4], Direction direction, int interpolation, int smooth = 0) {
        make(coeffs, direction, interpolation, smooth, zmviWarpBilinearNearestInit, zmviWarpBilinearLinearInit,
             zmviWarpBilinearCubicInit);
        return *this = by(interpolation, zmviWarpBilinearNearest_8u_C3R, zmviWarpBilinearLinear_8u_C3R,
                          zmviWarpBilinearCubic_8u_C3R);
    }
    // What comes from outside the source stays as it is.  Returns the time of a call on a copy.
    double run(const Picture& src, const Picture& dst) const {
        int bytes = 0;
        check(zmviWarpGetBufferSize(spec(), dst_, 3, &bytes), "zmviWarpGetBufferSize");
        std::vector<uint8_t> buffer(static_cast<size_t>(bytes));
        const auto into = [&](const Picture& to) {
            check(warp_(src.at(0, 0), src.step, to.at(0, 0), to.step, {0, 0}, dst_, BORDER_TRANSPARENT, nullptr, spec(),
                        buffer.data()),
                  "zmviWarp_8u_C3R");
        };
        into(dst);
        const Picture other(dst_, 3);
        return bestTime([&] { into(other); });
    }

  private:
    using Function = decltype(zmviWarpAffineNearest_8u_C3R);
    const WarpSpec* spec() const { return reinterpret_cast<const WarpSpec*>(object_.data()); }
    Warp by(int interpolation, Function* nearest, Function* linear, Function* cubic) const {
        Warp made = *this;
        made.warp_ = interpolation == INTERP_NEAREST ? nearest : interpolation == INTERP_LINEAR ? linear : cubic;
        return made;
    }
    template <class Coeffs, class Init, class CubicInit>
    void make(Coeffs coeffs, Direction direction, int interpolation, int smooth, Init nearest, Init linear,
              CubicInit cubic) {
        const ImageRect all = {0, 0, src_.width, src_.height};
        const auto made = reinterpret_cast<WarpSpec*>(object_.data());
        int bytes = 0;
        check(zmviWarpGetSize(src_, dst_, interpolation, &bytes), "zmviWarpGetSize");
        if (size_t(bytes) > object_.size()) fail("an object of another size");
        check(interpolation == INTERP_CUBIC ? cubic(src_, all, dst_, coeffs, direction, smooth, 0, 0.5f, made)
                                            : (interpolation == INTERP_LINEAR ? linear : nearest)(
                                                  src_, all, dst_, coeffs, direction, smooth, made),
              "zmviWarpInit");
    }
    ImageSize src_, dst_;
    alignas(64) std::array<uint8_t, 512> object_ = {};  // copies begin at such a boundary too
    Function* warp_ = nullptr;
};

static Picture blank(ImageSize size, uint8_t shade) {
    Picture picture(size, 3);
    const uint8_t colour[] = {shade, shade, shade};
    check(zmviSet_8u_C3R(colour, picture.at(0, 0), picture.step, size), "zmviSet_8u_C3R");
    return picture;
}
static void place(const Picture& from, const Picture& to, int x, int y) {
    check(zmviCopy_8u_C3R(from.at(0, 0), from.step, to.at(x, y), to.step, from.size), "zmviCopy_8u_C3R");
}
static double difference(const Picture& a, const Picture& b, ImageRect part) {
    double sum = 0;
    for (int y = part.y; y < part.y + part.height; ++y)
        for (int i = 0; i < 3 * part.width; ++i) sum += std::abs(a.at(part.x, y)[i] - b.at(part.x, y)[i]);
    return sum / (3.0 * part.width * part.height);
}

static void turned(const Picture& photo, const char* folder) {
    double bound[2][2], coeffs[2][3];
    check(zmviGetRotateBound({0, 0, photo.size.width, photo.size.height}, bound, 20, 0, 0), "zmviGetRotateBound");
    const ImageSize frame = {int(std::ceil(bound[1][0] - bound[0][0])) + 1,
                             int(std::ceil(bound[1][1] - bound[0][1])) + 1};
    check(zmviGetRotateTransform(20, -bound[0][0], -bound[0][1], coeffs), "zmviGetRotateTransform");
    const Picture whole = blank(frame, 255);
    const double time = Warp(photo.size, frame).affine(coeffs, Warp::forward, INTERP_CUBIC, 1).run(photo, whole);
    if (*whole.at(0, 0) != 255 || *whole.at(frame.width - 1, frame.height - 1) != 255) fail("the frame has no corners");
    publish(whole, folder, "rotated", time, "Turned by 20 degrees",
            "zmviWarpAffineCubic into the frame that zmviGetRotateBound makes.");

    const int scale = 8, width = 40, height = 60, left = frame.width / 2;
    int top = 0;  // where the upper edge runs through the picture
    while (top + height < frame.height && *whole.at(left + width / 2, top + height / 2) == 255) ++top;
    const Picture both = blank({(2 * width + 1) * scale, height * scale}, 255);
    double edge = 0;
    for (const int smooth : {0, 1}) {
        const Picture one = blank(frame, 255), large({width * scale, height * scale}, 3);
        edge = Warp(photo.size, frame).affine(coeffs, Warp::forward, INTERP_LINEAR, smooth).run(photo, one);
        const double enlarge[2][3] = {{1.0 / scale, 0, left - 0.4999}, {0, 1.0 / scale, top - 0.4999}};
        Warp(frame, large.size).affine(enlarge, Warp::backward, INTERP_NEAREST).run(one, large);
        place(large, both, smooth * (width + 1) * scale, 0);
    }
    publish(both, folder, "turned_edge", edge, "The edge of it",
            "zmviWarpAffineLinear, 8 times as large: without and with smooth edges.");
}

static void turnedOften(const Picture& photo, const char* folder) {
    const int side = std::min(photo.size.width, photo.size.height), part = side / 2;
    const double middleX = (photo.size.width - 1) / 2.0, middleY = (photo.size.height - 1) / 2.0;
    double x, y, coeffs[2][3], worse = 1e9, time = 0;
    check(zmviGetRotateShift(middleX, middleY, 10, &x, &y), "zmviGetRotateShift");
    check(zmviGetRotateTransform(10, x, y, coeffs), "zmviGetRotateTransform");
    const ImageRect inner = {(photo.size.width - part) / 2, (photo.size.height - part) / 2, part, part};
    const Picture all = blank({3 * part + 16, part}, 255);
    int column = 0;
    for (const int interpolation : {INTERP_LINEAR, INTERP_NEAREST, INTERP_CUBIC}) {
        Picture from = blank(photo.size, 0), to = blank(photo.size, 0);
        place(photo, from, 0, 0);
        const Warp warp = Warp(photo.size, photo.size).affine(coeffs, Warp::forward, interpolation);
        for (int turn = 0; turn < 36; ++turn) time = warp.run(from, to), std::swap(from, to);
        const double off = difference(from, photo, inner);
        if (interpolation == INTERP_CUBIC && off >= worse) fail("cubic turns lose more than linear ones");
        worse = off;
        check(zmviCopy_8u_C3R(from.at(inner.x, inner.y), from.step, all.at(column, 0), all.step, {part, part}),
              "zmviCopy_8u_C3R");
        column += part + 8;
    }
    publish(all, folder, "turned_often", time, "36 turns of 10 degrees",
            "zmviWarpAffineLinear, -Nearest, -Cubic: blurred, torn, and least far from where it began.");
}

static void laid(const char* folder) {
    const Picture text = load(PHOTOGRAPHS "/text.png", 3), table = load(PHOTOGRAPHS "/coffee.png", 3);
    const ImageSize size = text.size;
    const double width = table.size.width, height = table.size.height;
    const double corners[4][2] = {{0.30 * width, 0.42 * height},
                                  {0.78 * width, 0.30 * height},
                                  {0.97 * width, 0.72 * height},
                                  {0.26 * width, 0.93 * height}};
    double coeffs[3][3];
    check(zmviGetPerspectiveTransform({0, 0, size.width, size.height}, corners, coeffs), "zmviGetPerspectiveTransform");
    const Picture scene = blank(table.size, 0), page = blank({size.width, 2 * size.height + 8}, 255);
    place(table, scene, 0, 0);
    const double there = Warp(size, table.size).perspective(coeffs, Warp::forward, INTERP_CUBIC, 1).run(text, scene);
    publish(scene, folder, "page_laid", there, "A page on the table",
            "zmviGetPerspectiveTransform and zmviWarpPerspectiveCubic, forward, with smooth edges.");
    // Straightened: the same coefficients take the page's pixels to where they are found.
    const Picture found = blank(size, 0), apart(size, 3);
    const double back = Warp(table.size, size).perspective(coeffs, Warp::backward, INTERP_CUBIC).run(scene, found);
    if (difference(found, text, {0, 0, size.width, size.height}) > 12) fail("the page is not found again");
    for (int y = 0; y < size.height; ++y)
        for (int i = 0; i < 3 * size.width; ++i)
            apart.at(0, y)[i] = uint8_t(255 - std::abs(found.at(0, y)[i] - text.at(0, y)[i]));
    place(found, page, 0, 0), place(apart, page, 0, size.height + 8);
    publish(page, folder, "page_found", back, "Found again and straightened",
            "zmviWarpPerspectiveCubic, backward; below what differs from the page, dark.");
}

static void hung(const Picture& photo, const char* folder) {
    const ImageSize size = photo.size;
    const Picture checked = blank(size, 0), both = blank({2 * size.width + 8, size.height}, 255);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            for (int c = 0; c < 3; ++c) {
                const int square = (x * 8 / size.width + y * 8 / size.height) % 2;
                checked.at(x, y)[c] = uint8_t(square ? photo.at(x, y)[c] : photo.at(x, y)[c] / 3);
            }
    const double w = size.width, h = size.height;
    const double corners[4][2] = {{0.1 * w, 0.3 * h}, {0.9 * w, 0.05 * h}, {0.95 * w, 0.95 * h}, {0.05 * w, 0.65 * h}};
    double straight[3][3], even[2][4], time = 0;
    const ImageRect all = {0, 0, size.width, size.height};
    check(zmviGetPerspectiveTransform(all, corners, straight), "zmviGetPerspectiveTransform");
    check(zmviGetBilinearTransform(all, corners, even), "zmviGetBilinearTransform");
    for (const int bilinear : {0, 1}) {
        const Picture wall = blank(size, 230);
        Warp warp(size, size);
        bilinear ? warp.bilinear(even, Warp::forward, INTERP_LINEAR, 1)
                 : warp.perspective(straight, Warp::forward, INTERP_LINEAR, 1);
        time = warp.run(checked, wall);
        if (*wall.at(0, 0) != 230 || *wall.at(size.width / 2, size.height / 2) == 230)
            fail("the picture hangs elsewhere");
        place(wall, both, bilinear * (size.width + 8), 0);
    }
    publish(both, folder, "hung", time, "In a frame, by two maps",
            "zmviWarpPerspectiveLinear keeps lines straight, zmviWarpBilinearLinear keeps their parts even.");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: perspective photo.png folder");
    const Picture photo = load(argv[1], 3);
    turned(photo, argv[2]);
    turnedOften(photo, argv[2]);
    laid(argv[2]);
    hung(photo, argv[2]);
}
