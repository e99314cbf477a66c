// Levels of histograms and the object that holds them, for the tests of what makes it and what uses it.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

#include "harness/spec.h"

namespace test {

constexpr int histogramTypes[] = {DATATYPE_8U, DATATYPE_16U, DATATYPE_16S, DATATYPE_32F};
constexpr int headerBytes = 80;

// The levels that an object holds, which is what all of its functions are about.
struct Spec {
    int type = 0, channels = 0;
    bool uniform = false;
    std::vector<float> given[4];    // what the caller says: all levels, or the first and the last
    std::vector<double> levels[4];  // what is kept of it; a double holds both kinds
    float steps[4] = {};

    bool real() const { return type == DATATYPE_32F; }
    size_t most() const { return std::max({levels[0].size(), levels[1].size(), levels[2].size(), levels[3].size()}); }
    int64_t bytes() const {
        return headerBytes + 4 * int64_t(levels[0].size() + levels[1].size() + levels[2].size() + levels[3].size());
    }
    double kept(double level) const {
        return real() ? float(level) : std::trunc(std::clamp(level, double(INT_MIN), double(INT_MAX))) + 0.0;
    }
    void keep(int k, int n) {
        const double lower = given[k][0], step = (given[k].back() - lower) / (n - 1);
        if (uniform) steps[k] = float(step);
        for (int i = 0; i < n; ++i)
            levels[k].push_back(kept(!uniform               ? given[k][size_t(i)]
                                     : i == 0 || i == n - 1 ? given[k][i > 0]
                                                            : i * step + lower));
    }
    std::vector<uint8_t> objectAt(const uint8_t* address) const {
        std::vector<uint8_t> object(size_t(bytes()), 0);
        const auto put = [&](int64_t at, auto value) { std::memcpy(&object[size_t(at)], &value, sizeof value); };
        put(0, type), put(4, channels), put(8, int(uniform));
        std::memcpy(&object[12], "hist", 4);
        int64_t at = headerBytes;
        for (int k = 0; k < channels; ++k) {
            put(16 + 4 * k, int(levels[k].size())), put(32 + 8 * k, address + at), put(64 + 4 * k, steps[k]);
            for (const double level : levels[k]) real() ? put(at, float(level)) : put(at, int(level)), at += 4;
        }
        return object;
    }
};
inline Spec arranged;  // for the oracle of the same case

// Bounds of levels: the whole type, a part of it, more than it; floats of every magnitude, and so close to each other
// that there are fewer of them than levels.
inline std::pair<float, float> bounds(Case& c, int type) {
    if (c.mode == Mode::controls && !c.has("src"))  // so that zero as the first level is not below the others
        return {float(c.rng.between(-300, -200)), float(c.rng.between(-100, -1))};
    const float low = type == DATATYPE_16S ? -32768 : 0, range = type == DATATYPE_8U ? 256 : 65536;
    if (type == DATATYPE_32F) {
        if (c.rng.oneIn(5)) return {16777216.0f, 16777216.0f + float(2 * c.rng.between(1, 40))};
        const float scale = std::ldexp(1.0f, c.rng.oneIn(3) ? c.rng.between(-149, 118) : 0);
        return {float(c.rng.between(-100, 100)) * scale, float(c.rng.between(101, 300)) * scale};
    }
    if (c.rng.oneIn(3)) return {low, low + range};
    const float from = low + range * float(c.rng.between(-200, 900)) / 1000;
    return {from, c.rng.oneIn(8) ? 3e10f : from + range * float(c.rng.between(1, 1000)) / 1000};
}

inline Spec anySpec(Case& c, int type, int channels, bool uniform) {
    Spec spec;
    spec.type = type, spec.channels = channels, spec.uniform = uniform;
    for (int k = 0; k < channels; ++k) {
        const auto [from, to] = bounds(c, type);
        const int n = c.rng.oneIn(4) ? 2 : c.rng.oneIn(6) ? 257 : c.rng.between(2, c.mode == Mode::controls ? 20 : 300);
        std::vector<float>& given = spec.given[k] = {from, to};
        for (int i = 2; i < n && !uniform; ++i)
            given.push_back(from + (to - from) * float(c.rng.below(1 << 20)) * 0x1p-20f);
        if (!uniform && c.rng.oneIn(6)) given[0] = -INFINITY;
        if (!uniform && c.rng.oneIn(6)) given[1] = INFINITY;
        std::sort(given.begin(), given.end());
        given.erase(std::unique(given.begin(), given.end()), given.end());
        spec.keep(k, uniform ? n : int(given.size()));
    }
    return spec;
}
inline int anyType(Case& c) { return histogramTypes[c.rng.below(4)]; }
inline int anyChannels(Case& c) {
    const int counts[] = {1, 3, 4};
    return c.mode == Mode::controls ? 4 : counts[c.rng.below(3)];
}

// The object made by the library.
inline StatusCode makeHistogram(const Library& library, const Spec& spec, uint8_t* block) {
    const float* levels[4];
    float lower[4], upper[4];
    int counts[4];
    for (int k = 0; k < spec.channels; ++k) {
        levels[k] = spec.given[k].data(), lower[k] = spec.given[k].front(), upper[k] = spec.given[k].back();
        counts[k] = int(spec.levels[k].size());
    }
    using Init = StatusCode(int, const float* const*, const int*, int, uint8_t*);
    using UniformInit = StatusCode(int, const float*, const float*, const int*, int, uint8_t*);
    if (!spec.uniform)
        return reinterpret_cast<Init*>(library.find("zmviHistogramInit"))(spec.type, levels, counts, spec.channels,
                                                                          block);
    return reinterpret_cast<UniformInit*>(library.find("zmviHistogramUniformInit"))(spec.type, lower, upper, counts,
                                                                                    spec.channels, block);
}
inline void placeHistogram(Case& c) {
    placeObject(
        c, "pSpec", arranged.bytes(), [&](uint8_t* block) { return makeHistogram(c.library, arranged, block); }, 1);
}
inline const ObjectKind histogramObject([](uint8_t* block) {
    Spec spec;
    spec.type = DATATYPE_8U, spec.channels = 1, spec.given[0] = {0, 128, 256}, spec.keep(0, 3);
    return makeHistogram(builds().front(), spec, block);
});

// What lacks the tag of an object.
inline const uint8_t untagged[headerBytes] = {DATATYPE_8U, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 'h', 'i', 's', 'x'};
inline Check badTag() {
    Check check = notOne("pSpec", STATUS_BAD_SPEC_TAG, histogramObject);
    check.breaks.push_back({"pSpec", Break::whole, reinterpret_cast<int64_t>(untagged)});
    return check;
}

}  // namespace test
