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
    using Rows = RealRows<double, T, 1, rows>;
    WideFilter(RealTaps<double> taps, const Quotient& quotient, Scratch& scratch)
        : taps_(taps), quotient_(quotient), source_(taps.width, taps.height, scratch) {}

    void start(const T* const* above, Len count) const { source_.start(above, count); }
    void operator()(const T* const* row, T* const* dst, Len count) const {
        const Weigher<double, rows, false> weigher(source_.next(row, count), taps_);
        eachStretch<T>(count, [&](Len from, Len to) {
            StretchSums<double, T> sums;
            weigher.run(from, to, nothing, [&](int, Len x, Vec<double> sum, int) { store(sums + x - from, sum); });
            eachVectorOf<step>(to - from, [&](Len, Len x, int k) {
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
// The kernel's pixels, turned round, as R.
template <class R, class T>
RealTaps<R> turned(Image<const T> kernel, ImageSize size, Len pixel, Scratch& scratch) {
    R* const taps = scratch.take<R, alignof(R)>(Len(size.width) * size.height);
    R* to = taps;
    for (Len i = size.height - 1; i >= 0; --i)
        for (Len j = size.width - 1; j >= 0; --j) *to++ = R(get(kernel.row(i) + j * pixel));
    return {taps, size.width, size.height, 1};
}
template <class T>
int64_t magnitude(Image<const T> kernel, ImageSize size, Len pixel) {
    int64_t sum = 0;
    for (Len i = 0; i < size.height; ++i)
        for (Len j = 0; j < size.width; ++j) sum += std::abs(int64_t(get(kernel.row(i) + j * pixel)));
    return sum;
}

constexpr Len exactDoubles = Len(1) << 53;

// Sums of which doubles lose bits: one by one.
template <class T>
void longSums(const Bands<T, 1>& bands, const Channel<T>& c, Window window, RealTaps<double> taps, int32_t divisor) {
    const __int128 d = divisor < 0 ? -int64_t(divisor) : divisor;
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
            const __int128 twice = 2 * __int128(divisor < 0 ? -sum : sum) + d;
            __int128 quotient = twice / (2 * d) - (twice % (2 * d) < 0);
            if (twice % (2 * d) == 0) quotient -= quotient & 1;
            put(c.dst.row(y) + x,
                T(std::clamp<__int128>(quotient, std::numeric_limits<T>::min(), std::numeric_limits<T>::max())));
        }
}

// pixel: elements from one pixel of the kernel to the next.
template <class T>
void convolve(const Channel<T>& c, Image<const T> kernel, Len pixel, Window window, int32_t divisor, Scratch scratch) {
    const ImageSize size{int(window.width), int(window.height)};
    const T zero = 0;
    const Bands<T, 1> bands(c.src, c.readable, C1, window, c.word, &zero, false);
    const auto walk = [&]<class Rule>(Rule rule, Len longest) {
        SmallWindow<T, 1, Rule>(bands, c.dst, c.results, window, longest).run(rule, scratch);
    };
    if constexpr (std::is_same_v<T, float>) {
        const auto taps = turned<float>(kernel, size, pixel, scratch);
        walk(FloatFilter<1>(taps), longestStrip);
    } else {
        constexpr int lowest = std::numeric_limits<T>::min(), highest = std::numeric_limits<T>::max();
        const int64_t largest = magnitude(kernel, size, pixel) * (highest + (lowest < 0));
        if (largest <= INT32_MAX) {
            const Quotient quotient(divisor, ROUND_NEAR, 0, lowest, highest);
            using Taps = TapPair<int16_t>;
            Taps* const pairs = scratch.take<Taps, alignof(Taps)>(Len(pairRows(size.height)) * size.width);
            writePairs(pairs, size.width, size.height, [&](Len i, Len j) {
                return get(kernel.row(size.height - 1 - i) + (size.width - 1 - j) * pixel);
            });
            return walk(PairFilter<T, 1>(window, pairs, quotient), longestStrip);
        }
        const auto taps = turned<double>(kernel, size, pixel, scratch);
        if (largest > exactDoubles) return longSums(bands, c, window, taps, divisor);
        const Quotient quotient(divisor, ROUND_NEAR, 0, lowest, highest, true);
        walk(WideFilter<T>(taps, quotient, scratch), WideFilter<T>::Rows::longest);
    }
}

// ---- Three and four ----
// Each channel has a kernel of its own: it is taken out of a tile of pixels, and its results put into the pixels.
constexpr Len tileWidth = 512, tileHeight = 32;
WideLen tilePixels(ImageSize kernel) {
    return (tileWidth + kernel.width - 1) * WideLen(tileHeight + kernel.height - 1) + tileWidth * tileHeight;
}
template <int n, class T>
void convolveTiles(Image<const T> src, Image<const T> kernel, Image<T> dst, const Plan& plan, int32_t divisor,
                   Scratch scratch) {
    const Window window = plan.window();
    const Roi results = plan.results();
    const Len width = tileWidth + window.width - 1;
    T* const pixels = scratch.take<T>(width * (tileHeight + window.height - 1));
    T* const made = scratch.take<T>(tileWidth * tileHeight);
    for (Len y0 = 0; y0 < results.height; y0 += tileHeight)
        for (Len x0 = 0; x0 < results.width; x0 += tileWidth)
            for (int c = 0; c < n; ++c) {
                const Roi tile(std::min(tileWidth, results.width - x0), std::min(tileHeight, results.height - y0));
                for (Len y = 0; y < tile.height + window.height - 1; ++y) {
                    const Len row = y0 + y - window.top, first = x0 - window.left;
                    const bool inside = row >= 0 && row < plan.image.height;
                    for (Len x = 0; x < tile.width + window.width - 1; ++x) {
                        const bool has = inside && first + x >= 0 && first + x < plan.image.width;
                        pixels[y * width + x] = has ? get(src.row(row) + (first + x) * n + c) : T(0);
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
                        put(dst.row(y0 + y) + (x0 + x) * n + c, made[y * tileWidth + x]);
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
    if constexpr (std::is_same_v<T, float>) {
        run();
    } else {
        const RoundingControl control(RoundingControl::toNearestEven);
        run();
    }
    return STATUS_OK;
}

constexpr int anyVector = 64;
template <class T>
WideLen walkBytes(WideLen width, WideLen height) {
    if constexpr (std::is_same_v<T, float>) {
        return SmallWindow<T, 1, FloatFilter<1>>::bytes(width, height, longestStrip, anyVector);
    } else {
        using Wide = WideFilter<T>;
        return std::max(Wide::Rows::bytes(width, height, anyVector) +
                            SmallWindow<T, 1, Wide>::bytes(width, height, Wide::Rows::longest, anyVector),
                        SmallWindow<T, 1, PairFilter<T, 1>>::bytes(width, height, longestStrip, anyVector));
    }
}

StatusCode ownpi_ConvGetBufferSize(ImageSize size1, ImageSize size2, int type, int channels, int algType, int* bytes) {
    if (auto bad = firstOf({pointers(bytes), size(size1), size(size2),
                            refuse(type == DATATYPE_16U, STATUS_BAD_DATATYPE), dataType(type), channelCount(channels)}))
        return bad;
    Plan made;
    if (auto bad = plan(size1, size2, algType, made)) return bad;
    const WideLen width = made.kernel.width, height = made.kernel.height;
    const WideLen element = type == DATATYPE_8U ? 1 : type == DATATYPE_16S ? 2 : 4;
    const WideLen walk = type == DATATYPE_8U    ? walkBytes<uint8_t>(width, height)
                         : type == DATATYPE_16S ? walkBytes<int16_t>(width, height)
                                                : walkBytes<float>(width, height);
    const WideLen total = 8 * width * height + (channels > 1 ? tilePixels(made.kernel) * element : 0) + walk + 64;
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
