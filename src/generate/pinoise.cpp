// zmviAddNoiseUniform, zmviAddNoiseGauss: noise that is a function of place and seed.
#include <cmath>

#include "generate/philox.h"
#include "kernels/logarithm.h"
#include "kernels/pointwise_in.h"
#include "kernels/simd_trig.h"

namespace zmv {
namespace {

using U = Vec<uint32_t>;
using F = Vec<float>;

constexpr float largest = std::numeric_limits<float>::max();
constexpr float place24 = 0x1p-24f;

// The noise of the elements of two vectors, in memory's order.
struct Pair {
    F first, second;
};

// The even or odd elements of a, lane by lane, then those of b: as floats, which two of take one instruction to
// shuffle.
template <int odd>
struct HalfInLanes {
    static constexpr int at(int i) { return InLanes<F>::of(i, 2 * InLanes<F>::inLane(i) + odd); }
};
template <int odd>
ZMV_INLINE U halfOf(U a, U b) {
    return (U)permute<HalfInLanes<odd>>((F)a, (F)b);
}

struct Uniform {
    static constexpr uint32_t kind = 0;
    float low, high, unit;
    Uniform(float from, float to) : low(from), high(to), unit(float((double(to) - from) * 0x1p-24)) {}
    StatusCode check() const { return refuse(!(low <= high && double(high) - low <= largest), STATUS_BAD_RANGE); }

    ZMV_INLINE F of(U words) const { return smaller(fill(high), toFloat(asSigned(words >> 8)) * unit + low); }
    ZMV_INLINE Pair operator()(const Words& w) const {
        const U front = halfOf<0>(w[0], w[1]), back = halfOf<0>(w[2], w[3]);
        return {of(halfOf<0>(front, back)), of(halfOf<1>(front, back))};  // of the even counters, of the odd ones
    }
};

// Two words make two results (Box and Muller, 1958): one the radius, the other the direction.
struct Gauss {
    static constexpr uint32_t kind = 1;
    float mean, stdDev;
    StatusCode check() const {
        return refuse(!(std::abs(mean) <= largest && stdDev >= 0 && stdDev <= largest), STATUS_OUT_OF_RANGE);
    }

    // Elements 0 and 2 of the even counters, then those of the odd ones; and the elements behind each.
    template <int odd>
    struct Order {
        using In = InLanes<F>;
        static constexpr int at(int i) {
            const int k = In::inLane(i), source = k / 2 * 2 + odd;
            return In::of(i, k % 2 * In::perLane + source);
        }
    };
    ZMV_INLINE Pair operator()(const Words& w) const {
        const U first = halfOf<0>(w[0], w[2]) >> 8, second = halfOf<0>(w[1], w[3]) >> 8;
        const F u = toFloat(asSigned(first + 1)) * place24;
        const F radius = squareRoot(logarithm(u) * -2);
        const auto [cosine, sine] = turnOf(second);
        const F a = radius * cosine * stdDev + mean, b = radius * sine * stdDev + mean;
        return {permute<Order<0>>(a, b), permute<Order<1>>(a, b)};
    }
};

// Computes the noise of a row, whole counters at a time, into a room that serves one row after the other.
template <class Kind>
struct Noise : ComputedRows {
    static constexpr Len most = 1024, step = 2 * lanes<float>;  // elements of a row, and of a vector of counters

    const Kind& kind;
    const Philox& random;
    Len left, top, channels;  // of the first pixel, in the whole image
    float* room;

    struct Row {
        const float* noise;
        F at(Len x) const { return load(noise + x); }
        F part(Len x, Len) const { return at(x); }
    };
    Row rowAt(Len y, Len x, Len n) const {
        const Len first = left * channels + x, phase = first & 3;
        const auto row = uint32_t(top + y);
        // The upper half of a counter changes where it passes zero; elsewhere it does not, in numbers of 34 bits.
        for (Len done = 0, end; done < phase + n; done = end) {
            const Len block = (first - phase + done) / 4;
            end = block < 0 ? std::min(phase + n, done - 4 * block) : phase + n;
            const auto upper = uint32_t(block >> 32);
            auto counters = countersFrom(uint64_t(block));
            const auto compute = [&]<size_t n>(float* to, std::array<Vec<uint64_t>, n> next) {
                for (auto& vector : next) vector = counters, counters += lanes<uint64_t>;
                for (const Words& words : random(next, upper, row, Kind::kind)) {
                    const Pair noise = kind(words);
                    store(to, noise.first);
                    store(to + lanes<float>, noise.second);
                    to += step;
                }
            };
            Len i = done;
            for (; end - i > step; i += 2 * step) compute(room + i, std::array<Vec<uint64_t>, 2>{});
            if (i < end) compute(room + i, std::array<Vec<uint64_t>, 1>{});
        }
        return {room + phase};
    }
};

template <class T, class Kind>
StatusCode ownpi_AddNoise(Image<const T> src, Image<T> dst, Roi roi, Layout layout, ImagePoint offset, uint64_t seed,
                          const Kind& kind) {
    if (auto bad = firstOf({pointers(src.data, dst.data), size(roi), steps(src.step, dst.step), kind.check()}))
        return bad;
    const Philox random(seed);
    alignas(64) float room[Noise<Kind>::most + 4 * Noise<Kind>::step];  // what makes a vector of bytes reads four
    const Len columns = Noise<Kind>::most / layout.channels;
    const auto sum = [](F pixel, F noise) { return addInOrder(pixel, noise); };
    for (Len x = 0; x < roi.width; x += columns) {
        const Noise<Kind> noise{{}, kind, random, offset.x + x, offset.y, layout.channels, room};
        const Len n = std::min(columns, roi.width - x), at = x * layout.channels;
        pointwiseIn<float>(sum, dst.at(at, 0), Roi(n, roi.height), layout, false, src.at(at, 0), noise);
    }
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE_TO_NEAREST
#include "generate/generate.def"
UNIFORM_FAMILY
GAUSS_FAMILY
