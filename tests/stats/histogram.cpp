// zmviHistogram.
#include "stats/histogram.h"

#include <gtest/gtest.h>

namespace {

using namespace test;

template <class F>
auto call(const char* name, const Library& library = underTest()) {
    return reinterpret_cast<F*>(library.find(name));
}
int bufferSize(const Library& library, const Spec& spec, int64_t width, int64_t height) {
    int counts[4], specSize = 0, size = 0;
    for (int k = 0; k < 4; ++k) counts[k] = int(spec.levels[k].size());
    const auto ask =
        call<StatusCode(int, ImageSize, const int*, int, int, int*, int*)>("zmviHistogramGetBufferSize", library);
    EXPECT_EQ(ask(spec.type, {int(width), int(height)}, counts, spec.channels, 0, &specSize, &size), STATUS_OK);
    return size;
}

// Anything; nearly flat; levels, and what lies beside them.
template <class T>
void choosePixels(Case& c, const Image& src) {
    const int kind = c.rng.below(4);
    const T base = c.get<T>(src, 0, 0, 0);
    for (int64_t y = 0; y < c.height && kind; ++y)
        for (int64_t x = 0; x < c.width; ++x)
            for (int k = 0; k < src.channels; ++k) {
                const std::vector<double>& levels = arranged.levels[k];
                const double level = levels[size_t(c.rng.below(int(levels.size())))],
                             near = level + c.rng.between(-1, 1);
                if (kind == 1) {
                    if (!c.rng.oneIn(50)) c.set(src, x, y, k, base);
                } else if constexpr (std::is_floating_point_v<T>) {
                    const T beside[] = {T(level), std::nextafter(T(level), -T(INFINITY)),
                                        std::nextafter(T(level), T(INFINITY)), T(NAN)};
                    if (const int i = c.rng.below(6); i < 4) c.set(src, x, y, k, beside[i]);
                } else if (sizeof(T) < 4 && near >= std::numeric_limits<T>::min() &&
                           near <= double(std::numeric_limits<T>::max())) {
                    c.set(src, x, y, k, T(near));
                }
            }
}

void arrangeHistogram(Case& c) {
    const int channels = c.member.to.channels, bytes = bytesOf(c.member.source);
    if (c.mode == Mode::usual && bytes < 4 && c.rng.oneIn(20))  // where one way to count ends
        c.height = (bytes == 1 ? 131072 : 32768) / c.width + c.rng.below(2);
    arranged = anySpec(c, dataTypeOf(c.member.source), channels, c.rng.oneIn(2));
    const Image& src = c.place("src", c.width, c.height);
    withElement(c.member.source, [&](auto zero) { choosePixels<decltype(zero)>(c, src); });
    c.arg("roiSize") = {c.width, c.height};
    c.place("pHist", int64_t(arranged.most()) - 1, 1);
    placeHistogram(c);
    c.placeBuffer("buffer", bufferSize(c.library, arranged, c.width, c.height));
    if (c.mode != Mode::usual) return;
    const auto spoil = [&](int64_t byte, int value) {
        if (!c.rng.oneIn(30)) return;
        c.set(c.image("pSpec"), byte, 0, 0, uint8_t(value));
        c.expected = STATUS_BAD_SPEC_TAG;
    };
    spoil(0, arranged.type == DATATYPE_16U ? DATATYPE_16S : DATATYPE_16U);
    spoil(4, channels == 3 ? 4 : 3);
    spoil(c.rng.between(12, 15), 'H');
    if (c.rng.oneIn(30)) c.arg("srcStep") = c.width * channels * bytes - 1, c.expected = STATUS_BAD_STEP;
}

// Pixels in order; each bin is what lies between its levels.
void countPixels(Case& c) {
    if (c.expected < 0) return;
    withElement(c.member.source, [&](auto zero) {
        using T = decltype(zero);
        for (int k = 0; k < arranged.channels; ++k) {
            std::vector<T> pixels;
            for (int64_t y = 0; y < c.height; ++y)
                for (int64_t x = 0; x < c.width; ++x)
                    if (const T pixel = c.get<T>(c.image("src"), x, y, k); pixel == pixel) pixels.push_back(pixel);
            std::sort(pixels.begin(), pixels.end());
            const auto below = [&](double level) {
                return std::lower_bound(pixels.begin(), pixels.end(), level, std::less<double>()) - pixels.begin();
            };
            const std::vector<double>& levels = arranged.levels[k];
            for (size_t i = 0; i + 1 < levels.size(); ++i)
                c.set(c.image("pHist"), int64_t(i), 0, k, int(below(levels[i + 1]) - below(levels[i])));
        }
    });
}

// More pixels in a bin than its int holds.
template <class T>
void countMany(const char* name, int type) {
    constexpr int width = 1 << 16, height = 33280, period = int(Arena::ringBytes / sizeof(T));
    Arena ring = Arena::ring(size_t(width) * height * sizeof(T) + Arena::ringBytes);
    for (int i = 0; i < period; ++i) {
        const T value = T(i % width == 7 ? 3 : i % width == 9 ? 20 : 9);
        std::memcpy(ring.begin + size_t(i) * sizeof(T), &value, sizeof value);
    }
    Spec spec;
    spec.type = type, spec.channels = 1, spec.levels[0] = {0, 5, 10, 30};
    const std::vector<uint8_t> object = spec.objectAt(nullptr);
    std::vector<uint8_t> buffer(size_t(bufferSize(underTest(), spec, width, height)));
    int bins[3] = {};
    const auto count = call<StatusCode(const void*, int, ImageSize, int*, const uint8_t*, uint8_t*)>(name);
    ASSERT_EQ(count(ring.begin, width * int(sizeof(T)), {width, height}, bins, object.data(), buffer.data()),
              STATUS_OK);
    EXPECT_EQ(std::vector<int>(bins, bins + 3), (std::vector<int>{height, INT_MAX, height}));
}
TEST(Large, HistogramOfBytes) { countMany<uint8_t>("zmviHistogram_8u_C1R", DATATYPE_8U); }
TEST(Large, HistogramOf16Bits) { countMany<int16_t>("zmviHistogram_16s_C1R", DATATYPE_16S); }

}  // namespace

extern const Family test_zmviHistogram = {.arrange = arrangeHistogram, .oracle = countPixels, .more = {badTag()}};
