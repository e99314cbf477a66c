// zmviImageJaehne, zmviImageRamp: test images.
#include "core/streaming.h"
#include "generate/strip.h"
#include "kernels/pointwise_in.h"
#include "kernels/simd_trig.h"

namespace zmv {
namespace {

// ---- Ramps ----

struct Ramp {
    double offset, slope;
    ZMV_INLINE Vec<double> operator()(Vec<double> i) const { return addInOrder(fill(offset), fill(slope) * i); }
};

template <class T>
class RampImage {
    using B = Bits<T>;

  public:
    RampImage(Ramp ramp, Image<T> dst, Roi roi, Layout layout, bool pastCache)
        : ramp_(ramp),
          to_(bits(dst.data, dst.step)),
          roi_(roi),
          layout_(layout),
          pastCache_(pastCache),
          strip_(layout) {}

    // Equal pixels along each row.
    void down() {
        const Pattern mask = Pattern::mask<B>(3, 4);
        for (Len y = 0; y < roi_.height; ++y) {
            const Len inStrip = y % strip_.most();
            if (inStrip == 0) compute(y, std::min(strip_.most(), roi_.height - y));
            const B value = values_[inStrip], pixel[] = {value, value, value, value};
            const Pattern pixels(pixel, layout_);
            if (layout_.alpha)
                blendRow(to_.row(y), fromPattern(pixels), mask, rowBytes());
            else
                (pastCache_ ? streamFill : fill)(to_.row(y), pixels, rowBytes());
        }
    }
    // The first row, copied; not by way of the caller's memory where rows overlap there.
    void across() {
        if (to_.step < rowBytes()) return tiles(0, roi_.height, 0);
        tiles(0, 1, 0);
        // Rows without a gap go several at a time, as long as they stay in the nearest cache.
        constexpr Len nearby = 8192;
        const bool joined = !layout_.alpha && gapless(to_, roi_.width, layout_.channels);
        const Len most = joined ? std::max(Len(1), nearby / rowBytes()) : 1;
        for (Len y = 1, n; y < roi_.height; y += n) {
            n = std::min({y, roi_.height - y, most});
            strip_.copy(to_.row(y), to_.row(0), n * roi_.width, pastCache_);
        }
    }
    // Each row is the one above it, one pixel further.
    void both() {
        const Len most = strip_.most(), rows = std::max(most / 8, most - roi_.width + 1);
        for (Len y = 0; y < roi_.height; y += rows) tiles(y, std::min(rows, roi_.height - y), 1);
    }

  private:
    static void fill(void* row, const Pattern& pattern, Len bytes) { fillRow(row, pattern, bytes); }
    Len rowBytes() const { return zmv::rowBytes<T>(roi_.width, layout_.used(), layout_.channels); }
    void compute(Len first, Len n) {
        pointwiseIn<double>(ramp_, image(reinterpret_cast<T*>(values_), 0), Roi(n, 1), C1, false,
                            Columns<double>(first));
    }
    // n rows, each so many pixels further than the one above it, from one strip.
    void tiles(Len y, Len n, Len further) {
        const Len columns = strip_.most() - further * (n - 1);
        for (Len x = 0; x < roi_.width; x += columns) {
            const Len width = std::min(columns, roi_.width - x), pixels = width + further * (n - 1);
            compute(x + further * y, pixels);
            strip_.spread(values_, pixels);
            for (Len k = 0; k < n; ++k)
                strip_.write(to_.at(x * layout_.channels, y + k).data, further * k, width, pastCache_ && n > 1);
        }
    }

    const Ramp ramp_;
    const Image<B> to_;
    const Roi roi_;
    const Layout layout_;
    const bool pastCache_;
    Strip<B> strip_;
    alignas(64) typename Strip<B>::Values values_;
};

template <class T>
StatusCode ownpi_ImageRamp(Image<T> dst, Roi roi, Layout layout, double offset, double slope, int axis) {
    const bool known = axis == AXIS_HORIZONTAL || axis == AXIS_VERTICAL || axis == AXIS_BOTH;
    if (auto bad = firstOf({pointers(dst.data), size(roi), steps(dst.step), refuse(!known, STATUS_BAD_AXIS)}))
        return bad;
    const bool pastCache = regionPastCache(roi, layout, sizeof(T));
    RampImage<T> ramp({offset, slope}, dst, roi, layout, pastCache);
    if (axis == AXIS_HORIZONTAL)
        ramp.across();
    else
        axis == AXIS_VERTICAL ? ramp.down() : ramp.both();
    if (pastCache) fence();
    return STATUS_OK;
}

// ---- Rings ----

// N modulo 8L along a row, N = (2x - w + 1)^2 + (2y - h + 1)^2: by second differences, since the remainder of N itself
// would cost a division a pixel.  All numbers are whole.
class Phases {
    using V = Vec<double>;

  public:
    Phases(Len x, Len y, Roi roi, Len L) : period_(fill(double(8 * L))) {
        constexpr uint64_t lane = lanes<double>;
        const auto remainder = [&](uint64_t n) { return double(n % uint64_t(8 * L)); };
        const auto square = [](Len a) { return uint64_t(a) * uint64_t(a); };  // below 2^64, of either sign
        const Len down = 2 * y - roi.height + 1;
        for (int i = 0; i < lanes<double>; ++i) {
            const Len across = 2 * (x + i) - roi.width + 1;
            const uint64_t now = square(across) + square(down), next = square(across + 2 * Len(lane)) + square(down);
            phase_[i] = remainder(now);
            step_[i] = next >= now ? remainder(next - now) : double(8 * L) - remainder(now - next);
        }
        more_ = fill(remainder(8 * lane * lane));
    }
    ZMV_INLINE V next() {
        const V now = phase_;
        phase_ = within(phase_ + step_), step_ = within(step_ + more_);
        return now;
    }

  private:
    // What is below twice the period.
    ZMV_INLINE V within(V v) const { return v >= period_ ? v - period_ : v; }
    V period_, phase_, step_, more_;
};

template <class T>
ZMV_INLINE Vec<double> brightness(Vec<double> z) {
    constexpr double most = std::is_integral_v<T> ? double(std::numeric_limits<T>::max()) : 1;
    return (std::is_signed_v<T> && std::is_integral_v<T> ? z : (1 + z) * 0.5) * most;
}
template <class T>
void rings(T* values, Len n, Phases phases, Len L) {
    for (Len x = 0; x < n; x += lanes<T>) {
        std::array<Vec<double>, sizeof(double) / sizeof(T)> results;
        for (auto& part : results) part = brightness<T>(cosineOfPi(phases.next(), fill(double(4 * L))));
        store(values + x, joined<T>(results));
    }
}

// n values from the last to the first; where in `to` they start.
template <class T>
const T* mirrored(const T* values, T* to, Len n) {
    const Len whole = (n + lanes<T> - 1) / lanes<T> * lanes<T>;
    for (Len x = 0; x < whole; x += lanes<T>)
        store(to + whole - lanes<T> - x, opposite<int(sizeof(T))>(load(values + x)));
    return to + whole - n;
}

// The four quarters are one, turned over: it is computed once.
template <class T>
StatusCode ownpi_ImageJaehne(Image<T> dst, Roi roi, Layout layout) {
    if (auto bad = firstOf({pointers(dst.data), size(roi), steps(dst.step)})) return bad;
    using B = Bits<T>;
    const Image<B> to = bits(dst.data, dst.step);
    const Len L = std::min(roi.width, roi.height), width = (roi.width + 1) / 2, height = (roi.height + 1) / 2;
    Strip<B> strip(layout);
    alignas(64) typename Strip<B>::Values values, turned;
    for (Len y = 0; y < height; ++y)
        for (Len x = 0; x < width; x += strip.most()) {
            const Len n = std::min(strip.most(), width - x);
            const auto write = [&](const B* half, Len at) {
                strip.spread(half, n);
                for (const Len row : {y, roi.height - 1 - y})
                    strip.write(to.at(at * layout.channels, row).data, 0, n, false);
            };
            rings(reinterpret_cast<T*>(values), n, Phases(x, y, roi, L), L);
            write(values, x);
            write(mirrored(values, turned, n), roi.width - x - n);
        }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "generate/generate.def"
JAEHNE_FAMILY
RAMP_FAMILY
