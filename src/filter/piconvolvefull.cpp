// zmviConv: the convolution of two images, all of it or the part in which one lies inside the other.
#include "filter/integerfilter.h"
#include "filter/realfilter.h"

namespace zmv {
namespace {

// Which operand is the image and which the kernel, and the results: those of a window that reaches `before` columns and
// rows back, the rest of it ahead.
struct Plan {
    bool valid, exchanged;
    ImageSize image, kernel;
    Roi results() const {
        const Len w = Len(kernel.width) - 1, h = Len(kernel.height) - 1;
        return valid ? Roi(image.width - w, image.height - h) : Roi(image.width + w, image.height + h);
    }
    Window window() const {
        Window window(kernel);
        window.left = valid ? 0 : window.width - 1, window.right = window.width - 1 - window.left;
        window.top = valid ? 0 : window.height - 1, window.bottom = window.height - 1 - window.top;
        return window;
    }
};
StatusCode plan(ImageSize size1, ImageSize size2, int algType, Plan& made) {
    const int method = algType & 255, shape = algType >> 16 & 255;
    if (method > CONV_METHOD_FFT || shape > 1) return STATUS_BAD_ALGORITHM;
    const auto area = [](ImageSize size) { return Len(size.width) * size.height; };
    made.valid = shape == 1;
    made.exchanged = made.valid ? size1.width < size2.width || size1.height < size2.height : area(size1) < area(size2);
    made.image = made.exchanged ? size2 : size1, made.kernel = made.exchanged ? size1 : size2;
    return refuse(made.valid && (made.image.width < made.kernel.width || made.image.height < made.kernel.height),
                  STATUS_BAD_SIZE);
}

// Whether a call would rather go by way of a transform than sum directly.
bool prefersTransform(int method, bool valid, Len kernelArea, Len resultArea) {
    if (method == CONV_METHOD_FFT) return true;
    if (method == CONV_METHOD_DIRECT) return false;
    return valid ? kernelArea >= 225 && resultArea >= 144 : kernelArea >= 121 && resultArea >= 2961;
}

// Images of integers whose sums need more than 32 bits.
template <class T>
class WideFilter {
  public:
    using Result = T;
    static constexpr int rows = 1, step = lanes<T>;
    using Rows = RealRows<double, T, rows>;
    using Memory = typename Rows::Memory;
    static constexpr Len longest = Rows::longest;
    WideFilter(const Memory& memory, RealTaps<double> taps, const Quotient& quotient)
        : taps_(taps), quotient_(quotient), source_(memory, taps) {}

    void start(const T* const* above, Len count) const { source_.start(above, count); }
    __attribute__((noinline)) void operator()(const T* const* row, T* const* dst, Len count) const {
        const Weigher<double, rows, false> weigher(source_.next(row, count), taps_);
        eachStretchOf<stretch, step>(count, [&](Len from, Len m) {
            StretchSums<double, T> sums;
            weigher.run(from, from + m, nothing,
                        [&](int, Len x, Vec<double> sum, int) { store(sums + x - from, sum); });
            eachVectorOf<step>(m, [&](Len, Len x, int k) {
                std::array<Vec<int32_t>, 4 / sizeof(T)> results;
                for (size_t i = 0; i < results.size(); ++i) {
                    const double* const at = sums + x + Len(i) * lanes<int32_t>;
                    results[i] = quotient_.ofDoubles(load(at), load(at + lanes<double>));
                }
                storeUpTo(dst[0] + from + x, joined<T>(results), k);
            });
        });
    }

  private:
    RealTaps<double> taps_;
    const Quotient& quotient_;
    Rows source_;
};

// ---- One channel ----

template <class T>
struct Channel {
    Image<const T> src;
    Roi readable;  // zeros lie round it, unless the results' windows never leave it
    int word;
    Image<T> dst;
    Roi results;
};
// The taps of a rule, and its walk.
template <class T, class Rule, class Tap>
struct ConvMemory {
    Tap* taps;
    WindowMemory<T, Rule> walk;
    constexpr ConvMemory(Scratch& s, Roi results, Window window)
        : taps(s.take<Tap, alignof(Tap)>(std::is_floating_point_v<Tap> ? WideLen(window.width) * window.height
                                                                       : pairRows(window.height) * window.width)),
          walk(s, results, window, 1) {}
};
// The kernel's pixels, turned round, as R.
template <class R, class T>
RealTaps<R> turned(R* taps, Image<const T> kernel, Window size, Len pixel) {
    R* to = taps;
    for (Len i = size.height - 1; i >= 0; --i)
        for (Len j = size.width - 1; j >= 0; --j) *to++ = R(get(kernel.row(i) + j * pixel));
    return {taps, size.width, size.height, 1};
}
template <class T>
int64_t magnitude(Image<const T> kernel, Window size, Len pixel) {
    int64_t sum = 0;
    for (Len i = 0; i < size.height; ++i)
        for (Len j = 0; j < size.width; ++j) sum += std::abs(int64_t(get(kernel.row(i) + j * pixel)));
    return sum;
}

constexpr Len exactDoubles = Len(1) << 53;

// Sums of which doubles lose bits: one by one.
template <class T>
void longSums(const Bands<T, 1>& bands, const Channel<T>& c, Window window, RealTaps<double> taps, int32_t divisor) {
    const int64_t d = divisor < 0 ? -int64_t(divisor) : divisor;
    for (Len y = 0; y < c.results.height; ++y)
        for (Len x = 0; x < c.results.width; ++x) {
            int64_t sum = 0;
            for (Len i = 0; i < window.height; ++i) {
                const T* const row = bands.row(y - window.top + i, 0).inside;
                for (Len j = 0; j < window.width && row; ++j) {
                    const Len column = bands.column(x - window.left + j);
                    if (column != bands.none) sum += int64_t(taps.row(i)[j]) * get(row + column);
                }
            }
            const int64_t n = divisor < 0 ? -sum : sum, down = n / d - (n % d < 0), rest = 2 * (n - down * d);
            const int64_t nearest = down + (rest > d || (rest == d && down & 1));
            put(c.dst.row(y) + x,
                T(std::clamp<int64_t>(nearest, std::numeric_limits<T>::min(), std::numeric_limits<T>::max())));
        }
}

// pixel: elements from one pixel of the kernel to the next.
template <class T>
void convolve(const Channel<T>& c, Image<const T> kernel, Len pixel, Window window, int32_t divisor, Scratch scratch) {
    const T zero = 0;
    const Bands<T, 1> bands(c.src, c.readable, C1, window, c.word, &zero, false);
    if constexpr (std::is_same_v<T, float>) {
        const ConvMemory<T, FloatFilter, float> memory(scratch, c.results, window);
        walk(bands, c.dst, c.results, window, memory.walk, turned(memory.taps, kernel, window, pixel));
    } else {
        using Limits = std::numeric_limits<T>;
        const int64_t largest = magnitude(kernel, window, pixel) * (Limits::max() + std::is_signed_v<T>);
        const Quotient quotient(divisor, ROUND_NEAR, 0, Limits::min(), Limits::max(), largest > INT32_MAX);
        if (largest <= INT32_MAX) {
            const ConvMemory<T, PairFilter<T>, TapPair<int16_t>> memory(scratch, c.results, window);
            writePairs(memory.taps, window.width, window.height, [&](Len i, Len j) {
                return get(kernel.row(window.height - 1 - i) + (window.width - 1 - j) * pixel);
            });
            return walk(bands, c.dst, c.results, window, memory.walk, window, Len(1), memory.taps, quotient);
        }
        const ConvMemory<T, WideFilter<T>, double> memory(scratch, c.results, window);
        const auto taps = turned(memory.taps, kernel, window, pixel);
        if (largest > exactDoubles) return longSums(bands, c, window, taps, divisor);
        walk(bands, c.dst, c.results, window, memory.walk, taps, quotient);
    }
}

// ---- Three and four ----
// Each channel has a kernel of its own: it is taken out of a tile of pixels, and its results put into the pixels.
constexpr Len tileWidth = 512, tileHeight = 32;
template <class T>
struct TileMemory {
    T *pixels, *made;
    constexpr TileMemory(Scratch& s, Window window)
        : pixels(s.take<T>((tileWidth + window.width - 1) * WideLen(tileHeight + window.height - 1))),
          made(s.take<T>(tileWidth * tileHeight)) {}
};
template <int n, class T>
void convolveTiles(Image<const T> src, Image<const T> kernel, Image<T> dst, const Plan& plan, int32_t divisor,
                   Scratch scratch) {
    const Window window = plan.window();
    const Roi results = plan.results();
    const Len width = tileWidth + window.width - 1;
    const TileMemory<T> memory(scratch, window);
    T *const pixels = memory.pixels, *const made = memory.made;
    for (Len y0 = 0; y0 < results.height; y0 += tileHeight)
        for (Len x0 = 0; x0 < results.width; x0 += tileWidth)
            for (int c = 0; c < n; ++c) {
                const Roi tile(std::min(tileWidth, results.width - x0), std::min(tileHeight, results.height - y0));
                for (Len y = 0; y < tile.height + window.height - 1; ++y) {
                    const Len row = y0 + y - window.top, first = x0 - window.left;
                    const bool inside = row >= 0 && row < plan.image.height;
                    for (Len x = 0; x < tile.width + window.width - 1; ++x) {
                        const bool has = inside && first + x >= 0 && first + x < plan.image.width;
                        put(pixels + y * width + x, has ? get(src.row(row) + (first + x) * n + c) : T(0));
                    }
                }
                Window within = window;
                within.left = within.top = 0;
                within.right = window.width - 1, within.bottom = window.height - 1;
                convolve<T>(
                    {{pixels, width * Len(sizeof(T))}, tile, BORDER_IN_MEM, {made, tileWidth * Len(sizeof(T))}, tile},
                    {kernel.data + c, kernel.step}, n, within, divisor, scratch);
                for (Len y = 0; y < tile.height; ++y)
                    for (Len x = 0; x < tile.width; ++x)
                        put(dst.row(y0 + y) + (x0 + x) * n + c, get(made + y * tileWidth + x));
            }
}

// ---- Entries ----

template <Layout layout, class T>
StatusCode ownpi_Conv(Image<const T> src1, ImageSize size1, Image<const T> src2, ImageSize size2, Image<T> dst,
                      int divisor, int algType, uint8_t* buffer) {
    if (auto bad = firstOf({pointers(src1.data, src2.data, dst.data), size(size1), size(size2),
                            steps(src1.step, src2.step, dst.step), pointers(buffer),
                            refuse(divisor == 0, STATUS_BAD_DIVISOR)}))
        return bad;
    Plan made;
    if (auto bad = plan(size1, size2, algType, made)) return bad;
    const Roi results = made.results();
    // The library has no transforms yet: both answers are summed directly.
    static_cast<void>(prefersTransform(algType & 255, made.valid, Len(made.kernel.width) * made.kernel.height,
                                       results.width * results.height));
    const auto& src = made.exchanged ? src2 : src1;
    const auto& kernel = made.exchanged ? src1 : src2;
    const auto run = [&] {
        if constexpr (layout.channels > 1)
            convolveTiles<layout.channels>(src, kernel, dst, made, divisor, Scratch(buffer));
        else
            convolve<T>(
                {src, made.valid ? results : Roi(made.image), made.valid ? BORDER_IN_MEM : BORDER_CONST, dst, results},
                kernel, 1, made.window(), divisor, Scratch(buffer));
    };
    toNearestIf<std::is_integral_v<T>>(run);
    return STATUS_OK;
}

template <class T>
WideLen convBytes(Window window, int channels) {
    const Roi any(1, 1);
    Scratch tile;
    if (channels > 1) TileMemory<T>(tile, window);
    if constexpr (std::is_same_v<T, float>)
        return tile.bytes() + scratchBytes<ConvMemory<T, FloatFilter, float>>(any, window);
    else
        return tile.bytes() + std::max(scratchBytes<ConvMemory<T, PairFilter<T>, TapPair<int16_t>>>(any, window),
                                       scratchBytes<ConvMemory<T, WideFilter<T>, double>>(any, window));
}

StatusCode ownpi_ConvGetBufferSize(ImageSize size1, ImageSize size2, int type, int channels, int algType, int* bytes) {
    if (auto bad = firstOf({pointers(bytes), size(size1), size(size2),
                            refuse(type == DATATYPE_16U, STATUS_BAD_DATATYPE), dataType(type), channelCount(channels)}))
        return bad;
    Plan made;
    if (auto bad = plan(size1, size2, algType, made)) return bad;
    const Window window(made.kernel);
    const WideLen total = type == DATATYPE_8U    ? convBytes<uint8_t>(window, channels)
                          : type == DATATYPE_16S ? convBytes<int16_t>(window, channels)
                                                 : convBytes<float>(window, channels);
    if (auto bad = fits<int>(total)) return bad;
    put(bytes, int(total));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/convolve.def"
CONV_SIZE_FAMILY
CONV_FAMILY
