// zmviQualityIndex: how much of one image's structure is left in another, by windows.
#include "kernels/rounding.h"
#include "kernels/tree.h"
#include "kernels/window_sums.h"
#include "stats/realsums.h"

namespace zmv {
namespace {

// What is summed over a window: x, y, x x, y y, x y.
constexpr int kinds = 5;

// ---- The index of a window, and the mean of all ----

// Of windows of so many pixels, each operation rounded.  Floats whose variance is lost in rounding count as flat.
template <bool real, class V>
ZMV_INLINE V indexOf(const V (&sums)[kinds], double pixels) {
    const auto [x, y, xx, yy, xy] = sums;
    V varianceX = pixels * xx - x * x, varianceY = pixels * yy - y * y, covariance = pixels * xy - x * y;
    if constexpr (real) {
        constexpr double lost = 0x1p-40;
        const auto flatX = varianceX <= pixels * xx * lost, flatY = varianceY <= pixels * yy * lost;
        varianceX = flatX ? V{} : varianceX;
        varianceY = flatY ? V{} : varianceY;
        covariance = flatX | flatY ? V{} : covariance;
    }
    const V variances = varianceX + varianceY, squares = x * x + y * y, product = x * y, one = V{} + 1;
    const auto flat = variances == 0, dark = squares == 0;
    const V above = flat ? (dark ? one : 2.0 * product) : dark ? 2.0 * covariance : 4.0 * covariance * product;
    const V below = flat ? (dark ? one : squares) : dark ? variances : variances * squares;
    return above / below;
}

// Sums of a stretch of windows in a row, by kind, and what they add to the mean: window x of a row to part x % 24 of
// its channel.  Parts start from zero in each row, and are added to the total from the first one on.
template <int n, bool real>
class Mean {
    static constexpr int parts = 24 * n;

  public:
    static constexpr int most = 120 / parts * parts;  // elements: whole rounds of all parts
    double sums[kinds][most] = {};

    explicit Mean(Len pixels) : pixels_(double(pixels)) {}
    void add(int count) {
        using V = Vec<double>;
        const auto at = [&](int i) __attribute__((always_inline)) {
            V all[kinds];
            for (int k = 0; k < kinds; ++k) all[k] = load(sums[k] + i);
            return indexOf<real>(all, pixels_);
        };
        int i = 0;
        for (int part = 0; i + lanes<double> <= count; i += lanes<double>) {
            store(parts_ + part, load(parts_ + part) + at(i));
            part = part + lanes<double> == parts ? 0 : part + lanes<double>;
        }
        if (i == count) return;
        const V last = at(i);
        for (int k = 0; i + k < count; ++k) parts_[(i + k) % parts] += last[k];
    }
    void endRow() {
        double row[n] = {};
        for (int i = 0; i < parts; ++i) row[i % n] += parts_[i], parts_[i] = 0;
        for (int c = 0; c < n; ++c) totals_[c] += row[c];
    }
    void write(double* quality, Len windows) const {
        for (int c = 0; c < n; ++c) {
            const double mean = totals_[c] / double(windows);
            put(quality + c, mean == mean ? mean : __builtin_nan(""));
        }
    }

  private:
    double pixels_, parts_[parts] = {}, totals_[n] = {};
};

// ---- Sums of integers: columns gain a row and lose one, windows a column ----

// f(zero), zero being of the type that holds the sums of such a window.
template <class T, class F>
constexpr auto withWindowSums(ImageSize window, F f) {
    constexpr int64_t most = sizeof(T) == 1 ? 255 * 255 : int64_t(1) << 32;
    const Len area = Len(window.width) * window.height;
    if constexpr (sizeof(T) == 1)
        if (area <= INT32_MAX / most) return f(uint32_t());
    if (area <= INT64_MAX / most) return f(int64_t());
    return f(WideLen());
}
template <class S>
struct LineMemory {
    S* lines[kinds] = {};
    constexpr LineMemory(Scratch& s, Len elements) {
        for (S*& line : lines) line = s.take<S, 64>(paddedLength(elements));
    }
    // Vectors that start in a line end in it.
    static constexpr WideLen paddedLength(Len elements) { return roundUp(elements, 16) + 16; }
};
// The sums of columns, with rows x and y, and without the rows that leave the window.
template <class S, class T>
void moveLines(S* const (&lines)[kinds], const T* x, const T* y, const T* oldX, const T* oldY, Len count) {
    if constexpr (sizeof(S) == 4) {
        using V = Vec<uint32_t>;
        const auto add = [&](Len i, int k, V v) { store(lines[k] + i, load(lines[k] + i) + v); };
        const auto times = [](V a, V b) { return (V)pairProducts((Vec<int16_t>)a, (Vec<int16_t>)b); };
        const auto step = [&](Len i, auto at) __attribute__((always_inline)) {
            const V a = at(x), b = at(y);
            V sums[kinds] = {a, b, times(a, a), times(b, b), times(a, b)};
            if (oldX) {
                const V c = at(oldX), d = at(oldY), old[kinds] = {c, d, times(c, c), times(d, d), times(c, d)};
                for (int k = 0; k < kinds; ++k) sums[k] -= old[k];
            }
            for (int k = 0; k < kinds; ++k) add(i, k, sums[k]);
        };
        Len i = 0;
        for (; i + lanes<uint32_t> <= count; i += lanes<uint32_t>)
            step(
                i, [&](const T* p) __attribute__((always_inline)) { return loadWiden<uint32_t>(p + i); });
        if (i < count) step(i, [&](const T* p) { return loadWidenPart<uint32_t>(p + i, int(count - i)); });
    } else {
        for (Len i = 0; i < count; ++i) {
            const auto add = [&](const T* p, const T* q, int sign) __attribute__((always_inline)) {
                const int64_t a = get(p + i), b = get(q + i), all[kinds] = {a, b, a * a, b * b, a * b};
                for (int k = 0; k < kinds; ++k) lines[k][i] += sign * all[k];
            };
            add(x, y, 1);
            if (oldX) add(oldX, oldY, -1);
        }
    }
}
template <class S>
struct WideReader {
    const S* line;
    S one(Len i) const { return line[i]; }
};
inline double asDouble(uint32_t sum) { return double(int32_t(sum)); }
inline double asDouble(int64_t sum) { return double(sum); }
inline double asDouble(WideLen sum) { return rounded(sum); }

template <int n, class S, class T>
void integerIndices(Image<const T> a, Image<const T> b, Roi roi, ImageSize window, Scratch scratch,
                    Mean<n, false>& mean) {
    const Len elements = roi.width * n, windows = roi.width - window.width + 1;
    const LineMemory<S> memory(scratch, elements);
    for (S* line : memory.lines) std::memset(line, 0, size_t(memory.paddedLength(elements)) * sizeof(S));
    const auto sumsOf = [&](int k) {
        if constexpr (sizeof(S) == 4)
            return RowSums<LineReader<S>, n>({memory.lines[k]}, window.width);
        else
            return WideRowSums(WideReader<S>{memory.lines[k]}, window.width, n);
    };
    for (Len y = 0; y < roi.height; ++y) {
        const Len leaving = y - window.height;
        moveLines(memory.lines, a.row(y), b.row(y), leaving < 0 ? nullptr : a.row(leaving),
                  leaving < 0 ? nullptr : b.row(leaving), elements);
        if (leaving < -1) continue;
        decltype(sumsOf(0)) sums[kinds] = {sumsOf(0), sumsOf(1), sumsOf(2), sumsOf(3), sumsOf(4)};
        constexpr int most = Mean<n, false>::most;
        for (Len x = 0; x < windows; x += most / n) {
            const int pixels = int(std::min<Len>(most / n, windows - x));
            for (int k = 0; k < kinds; ++k) {
                S chunk[most + lanes<uint32_t>];
                sums[k].next(chunk, pixels);
                for (int i = 0; i < pixels * n; ++i) mean.sums[k][i] = asDouble(chunk[i]);
            }
            mean.add(pixels * n);
        }
        mean.endRow();
    }
}

// ---- Sums of floats, in the one order of their window ----

struct TreeMemory {
    double *row, *sums, *tree;
    constexpr TreeMemory(Scratch& s, Roi roi, ImageSize window, int n)
        : row(s.take<double, 64>(WideLen(roi.width) * n)),
          sums(s.take<double, 64>(sumsOf(roi, window, n))),
          tree(s.take<double, 64>(sumsOf(roi, window, n) * RowTree<double>::rowsNeeded(window.height))) {}
    static constexpr WideLen sumsOf(Roi roi, ImageSize window, int n) {
        return WideLen(roi.width - window.width + 1) * n * kinds;
    }
};
template <int n>
void realIndices(Image<const float> a, Image<const float> b, Roi roi, ImageSize window, Scratch scratch,
                 Mean<n, true>& mean) {
    const Len elements = roi.width * n, count = (roi.width - window.width + 1) * n;
    const TreeMemory memory(scratch, roi, window, n);
    RowTree<double> tree(memory.tree, window.height, count * kinds);
    for (Len y = 0; y < roi.height; ++y) {
        const float *const x = a.row(y), *const z = b.row(y);
        const auto sumRow = [&](int k, auto term) {
            for (Len i = 0; i < elements; ++i) memory.row[i] = term(double(get(x + i)), double(get(z + i)));
            sumAlong(tree.nextRow() + k * count, memory.row, count, Len(window.width), Len(n));
        };
        sumRow(0, [](double p, double) { return p; });
        sumRow(1, [](double, double q) { return q; });
        sumRow(2, [](double p, double) { return p * p; });
        sumRow(3, [](double, double q) { return q * q; });
        sumRow(4, [](double p, double q) { return p * q; });
        tree.push();
        if (!tree.full()) continue;
        tree.sum([&](Len i, Vec<double> sum, int part) { storeUpTo(memory.sums + i, sum, part); });
        for (Len i = 0; i < count; i += mean.most) {
            const int here = int(std::min<Len>(mean.most, count - i));
            for (int k = 0; k < kinds; ++k)
                std::memcpy(mean.sums[k], memory.sums + k * count + i, size_t(here) * sizeof(double));
            mean.add(here);
        }
        mean.endRow();
    }
}

// ---- Entries ----

StatusCode windowSize(Roi roi, ImageSize window) {
    const bool inside =
        window.width >= 1 && window.height >= 1 && window.width <= roi.width && window.height <= roi.height;
    return refuse(!inside, STATUS_BAD_MASK_SIZE);
}
template <class T>
WideLen bufferBytes(Roi roi, ImageSize window, int n) {
    if constexpr (std::is_same_v<T, float>)
        return scratchBytes<TreeMemory>(roi, window, n);
    else
        return withWindowSums<T>(
            window, [&](auto zero) { return scratchBytes<LineMemory<decltype(zero)>>(Len(roi.width * n)); });
}
StatusCode ownpi_QualityIndexGetBufferSize(Roi roi, ImageSize window, int type, int n, int* bufferSize) {
    if (auto bad = firstOf({pointers(bufferSize), size(roi), windowSize(roi, window), dataType(type), channelCount(n)}))
        return bad;
    const WideLen bytes = type == DATATYPE_8U    ? bufferBytes<uint8_t>(roi, window, n)
                          : type == DATATYPE_32F ? bufferBytes<float>(roi, window, n)
                                                 : bufferBytes<uint16_t>(roi, window, n);
    if (auto bad = fits<int>(bytes)) return bad;
    put(bufferSize, int(bytes));
    return STATUS_OK;
}

template <int n, class T>
StatusCode ownpi_QualityIndex(Image<const T> a, Image<const T> b, Roi roi, ImageSize window, double* quality,
                              uint8_t* buffer) {
    if (auto bad = firstOf(
            {pointers(a.data, b.data, quality, buffer), size(roi), steps(a.step, b.step), windowSize(roi, window)}))
        return bad;
    constexpr bool real = std::is_same_v<T, float>;
    Mean<n, real> mean(Len(window.width) * window.height);
    if constexpr (real)
        realIndices<n>(a, b, roi, window, Scratch(buffer), mean);
    else
        withWindowSums<T>(
            window, [&](auto zero) { integerIndices<n, decltype(zero)>(a, b, roi, window, Scratch(buffer), mean); });
    mean.write(quality, (roi.width - window.width + 1) * (roi.height - window.height + 1));
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "stats/quality.def"
QUALITY_SIZE_FAMILY
QUALITY_FAMILY
