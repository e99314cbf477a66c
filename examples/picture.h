// What the examples share: pictures in the library's memory, PNG files through libpng, checked calls, and the clock.
#pragma once

#include <png.h>
#include <zmvip.h>
#include <zmvip_status.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

[[noreturn]] inline void fail(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    std::exit(1);
}

// Every function reports what became of it; look at it every time.
inline void check(StatusCode status, const char* call) {
    if (status != STATUS_OK) fail(std::string(call) + ": " + zmvStatusName(status) + ", " + zmvStatusText(status));
}

struct Free {
    void operator()(void* memory) const { zmviFree(memory); }
};

// An 8-bit image: rows start at multiples of 64 bytes and are `step` bytes apart.
struct Picture {
    ImageSize size;
    int channels;
    int step = 0;
    std::unique_ptr<uint8_t, Free> memory;

    Picture(ImageSize size, int channels) : size(size), channels(channels) {
        auto allocate = channels == 1 ? zmviMalloc_8u_C1 : channels == 3 ? zmviMalloc_8u_C3 : zmviMalloc_8u_C4;
        memory.reset(allocate(size.width, size.height, &step));
        if (!memory) fail("no memory for the image");
    }
    // The first byte of a pixel.
    uint8_t* at(int x, int y) const { return memory.get() + ptrdiff_t(y) * step + ptrdiff_t(x) * channels; }
};

// Whether two pictures of one size and layout show the same.  What lies between the rows does not count.
inline bool same(const Picture& a, const Picture& b) {
    for (int y = 0; y < a.size.height; ++y)
        if (std::memcmp(a.at(0, y), b.at(0, y), size_t(a.size.width) * a.channels) != 0) return false;
    return true;
}

// Any PNG as 1 (gray), 3 (RGB) or 4 (RGBA) channels of 8 bits; where transparency has to go, white shines through.
inline Picture load(const char* file, int channels) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, file)) fail(std::string(file) + ": " + png.message);
    png.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;
    png.format = channels == 1 ? PNG_FORMAT_GRAY : channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_RGBA;
    Picture picture({int(png.width), int(png.height)}, channels);
    const png_color white{255, 255, 255};
    if (!png_image_finish_read(&png, &white, picture.memory.get(), picture.step, nullptr))
        fail(std::string(file) + ": " + png.message);
    return picture;
}

// Calls several times and returns the shortest time in microseconds: the one least disturbed by other programs.
template <class Call>
double bestTime(Call call) {
    double best = 1e30, total = 0;
    for (int run = 0; run < 100 && (run < 3 || total < 200e3); ++run) {
        auto start = std::chrono::steady_clock::now();
        call();
        double time = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
        best = std::min(best, time);
        total += time;
    }
    return best;
}

// Writes folder/name.png, and a line about it: name, microseconds, title and sentence between tabs.
inline void publish(const Picture& picture, const std::string& folder, const std::string& name, double time,
                    const std::string& title, const std::string& sentence) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = png_uint_32(picture.size.width);
    png.height = png_uint_32(picture.size.height);
    png.format = picture.channels == 1 ? PNG_FORMAT_GRAY : picture.channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_RGBA;
    const std::string file = folder + "/" + name + ".png";
    if (!png_image_write_to_file(&png, file.c_str(), 0, picture.memory.get(), picture.step, nullptr))
        fail(file + ": " + png.message);
    std::printf("%s\t%.1f\t%s\t%s\n", name.c_str(), time, title.c_str(), sentence.c_str());
}
