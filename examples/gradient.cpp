// What changes in a picture and where: Sobel's directions and magnitude, the Laplacian, sharpening, the high-pass, and
// erosion and dilation of a page.
#include <cmath>

#include "picture.h"

using Bytes = std::unique_ptr<uint8_t[]>;

// A work buffer by one of the queries that take a mask's code.
static Bytes bufferFor(ImageSize size, int mask, int to, int channels,
                       decltype(&zmviFilterSobelHorizBorderGetBufferSize) query) {
    int bytes = 0;
    check(query(size, mask, DATATYPE_8U, to, channels, &bytes), "zmviFilter...GetBufferSize");
    return Bytes(new uint8_t[size_t(bytes)]);
}

// Two planes of derivatives, one row behind the other.
struct Plane {
    ImageSize size;
    std::unique_ptr<int16_t[]> memory{new int16_t[size_t(size.width) * size_t(size.height)]};
    int step = size.width * 2;
    int16_t* row(int y) const { return memory.get() + ptrdiff_t(y) * size.width; }
};

// The direction in which it gets brighter as a hue, and how much so as its strength.
static void colour(uint8_t* pixel, double across, double down) {
    const double strength = std::min(255.0, std::hypot(across, down)), angle = std::atan2(down, across);
    for (int c = 0; c < 3; ++c) pixel[c] = uint8_t(strength * (0.5 + 0.5 * std::cos(angle - c * 2.0943951)));
}

static void derivatives(const Picture& gray, const std::string& folder) {
    const ImageSize size = gray.size;
    const Plane down{size}, left{size};
    const Bytes buffer = bufferFor(size, MASK_3X3, DATATYPE_16S, 1, zmviFilterSobelHorizBorderGetBufferSize);
    const double time = bestTime([&] {
        check(zmviFilterSobelHorizBorder_8u16s_C1R(gray.at(0, 0), gray.step, down.row(0), down.step, size, MASK_3X3,
                                                   BORDER_REPL, 0, buffer.get()),
              "zmviFilterSobelHorizBorder");
        check(zmviFilterSobelVertBorder_8u16s_C1R(gray.at(0, 0), gray.step, left.row(0), left.step, size, MASK_3X3,
                                                  BORDER_REPL, 0, buffer.get()),
              "zmviFilterSobelVertBorder");
    });
    Picture hues(size, 3), strength(size, 1);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) colour(hues.at(x, y), -left.row(y)[x], down.row(y)[x]);
    publish(hues, folder, "sobel", time, "Which way it gets brighter",
            "zmviFilterSobelHorizBorder and -Vert-: their direction as a hue, their size as its strength.");

    // The magnitude has no border rule: it reads the pixels next to the region, which is one smaller on each side.
    const ImageSize inner{size.width - 2, size.height - 2};
    std::memset(strength.at(0, 0), 0, size_t(strength.step) * size_t(size.height));
    const Plane magnitude{inner};
    const double rootTime = bestTime([&] {
        check(zmviFilterSobel_8u16s_C1R(gray.at(1, 1), gray.step, magnitude.row(0), magnitude.step, inner, MASK_3X3),
              "zmviFilterSobel");
    });
    for (int y = 0; y < inner.height; ++y)
        for (int x = 0; x < inner.width; ++x) {
            const int value = magnitude.row(y)[x];
            if (value != std::lround(std::hypot(down.row(y + 1)[x + 1], left.row(y + 1)[x + 1])))
                fail("the magnitude is not that of the two derivatives");
            *strength.at(x + 1, y + 1) = uint8_t(std::min(value, 255));
        }
    publish(strength, folder, "magnitude", rootTime, "Where it changes",
            "zmviFilterSobel: the magnitude of the gradient.");
}

static void enhanced(const Picture& photo, const std::string& folder) {
    const ImageSize size = photo.size;
    Picture made(size, 3);
    const auto apply = [&](auto filter, auto query, int mask, const char* name, const char* title, const char* words) {
        const Bytes buffer = bufferFor(size, mask, DATATYPE_8U, 3, query);
        const double time = bestTime([&] {
            check(filter(photo.at(0, 0), photo.step, made.at(0, 0), made.step, size, mask, BORDER_REPL, nullptr,
                         buffer.get()),
                  name);
        });
        publish(made, folder, name, time, title, words);
    };
    apply(zmviFilterLaplaceBorder_8u_C3R, zmviFilterLaplaceBorderGetBufferSize, MASK_3X3, "laplace", "The Laplacian",
          "zmviFilterLaplaceBorder: what lies below the mean of its neighbours.");
    apply(zmviFilterHipassBorder_8u_C3R, zmviFilterHipassBorderGetBufferSize, MASK_5X5, "hipass", "High-pass",
          "zmviFilterHipassBorder: the pixel minus the mean of 5 x 5.");
    apply(zmviFilterSharpenBorder_8u_C3R, zmviFilterSharpenBorderGetBufferSize, MASK_3X3, "sharpened", "Sharpened",
          "zmviFilterSharpenBorder: the pixel minus its Laplacian.");
}

// Opening takes away what is bright and smaller than the mask, closing what is dark.
static void morphology(const Picture& page, const std::string& folder) {
    const ImageSize size = page.size, mask{3, 3};
    Picture less(size, 1), more(size, 1), opened(size, 1), closed(size, 1);
    int bytes = 0;
    check(zmviFilterMinBorderGetBufferSize(size, mask, DATATYPE_8U, 1, &bytes), "zmviFilterMinBorderGetBufferSize");
    const Bytes buffer(new uint8_t[size_t(bytes)]);
    const auto reduce = [&](auto filter, const Picture& from, const Picture& to) {
        check(filter(from.at(0, 0), from.step, to.at(0, 0), to.step, size, mask, BORDER_REPL, 0, buffer.get()),
              "zmviFilterMinBorder or -Max-");
    };
    const double time = bestTime([&] { reduce(zmviFilterMinBorder_8u_C1R, page, less); });
    reduce(zmviFilterMaxBorder_8u_C1R, page, more);
    reduce(zmviFilterMaxBorder_8u_C1R, less, opened);
    reduce(zmviFilterMinBorder_8u_C1R, more, closed);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const int at[] = {*less.at(x, y), *opened.at(x, y), *page.at(x, y), *closed.at(x, y), *more.at(x, y)};
            if (!std::is_sorted(at, at + 5)) fail("erosion, opening, closing and dilation are out of order");
        }
    publish(opened, folder, "opened", 2 * time, "Opened", "zmviFilterMinBorder, then -Max-: bright specks are gone.");
    publish(closed, folder, "closed", 2 * time, "Closed", "zmviFilterMaxBorder, then -Min-: dark specks are gone.");
    check(zmviSub_8u_C1IRSfs(less.at(0, 0), less.step, more.at(0, 0), more.step, size, 0), "zmviSub_8u_C1IRSfs");
    publish(more, folder, "outlines", 2 * time, "Outlines", "Dilation minus erosion: the morphological gradient.");
}

int main(int argc, char** argv) {
    if (argc != 3) fail("usage: gradient photo.png folder");
    derivatives(load(argv[1], 1), argv[2]);
    enhanced(load(argv[1], 3), argv[2]);
    morphology(load(PHOTOGRAPHS "/text.png", 1), argv[2]);
}
