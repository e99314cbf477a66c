// A curve through given points: nearest, straight or cubic from one to the next.
#pragma once

#include <algorithm>

#include "kernels/rounding.h"
#include "stats/intervals.h"

namespace zmv {

// The curve from a level on: nearest: two values, and the middle in between; else a polynomial in what the pixel lies
// above the level.
struct Piece {
    double level, value, first, second, third;
    template <int interpolation>
    double at(double v) const {
        if constexpr (interpolation == INTERP_NEAREST) return v > first ? second : value;
        const double d = v - level;
        if constexpr (interpolation == INTERP_LINEAR) return value + d * first;
        return value + d * (first + d * (second + d * third));
    }
};
struct PieceLevels {
    const Piece* first;
    int count;
    double operator[](Len k) const { return first[k].level; }
};

template <class L>
struct Curve {
    LevelArray<L> levels, values;

    bool rises() const {
        constexpr double most = std::numeric_limits<float>::max();
        const auto finite = [](L x) { return std::is_integral_v<L> || (double(x) >= -most && double(x) <= most); };
        for (int k = 0; k < levels.count; ++k)
            if (!finite(levels[k]) || !finite(values[k]) || (k > 0 && !(levels[k - 1] < levels[k]))) return false;
        return true;
    }
    double width(int k) const { return double(levels[k + 1]) - double(levels[k]); }
    double chord(int k) const { return (double(values[k + 1]) - double(values[k])) / width(k); }
    // At a level, that of the parabola through it and its neighbours; at the ends, so that the chord is the mean.
    double slope(int k) const {
        const int last = levels.count - 1;
        if (last == 1) return chord(0);
        if (k == 0) return 2 * chord(0) - slope(1);
        if (k == last) return 2 * chord(last - 1) - slope(last - 1);
        return (width(k) * chord(k - 1) + width(k - 1) * chord(k)) / (width(k - 1) + width(k));
    }
    // From level k on; behind the last level its value, to which minus zero adds nothing.
    Piece piece(int k, int interpolation) const {
        const auto level = double(levels[k]), value = double(values[k]);
        if (k == levels.count - 1) return {level, value, -0.0, interpolation == INTERP_NEAREST ? value : -0.0, -0.0};
        if (interpolation == INTERP_NEAREST)
            return {level, value, (level + double(levels[k + 1])) / 2, double(values[k + 1]), 0};
        if (interpolation == INTERP_LINEAR) return {level, value, chord(k), 0, 0};
        const double from = slope(k), to = slope(k + 1), straight = chord(k), h = width(k);
        return {level, value, from, (3 * straight - 2 * from - to) / h, (from + to - 2 * straight) / h / h};
    }
};

// The integer nearest to a number of moderate size, to even ones at ties: such numbers added leave no place for more.
inline double roundedToEven(double x) {
    constexpr double noFractions = 6755399441055744.0;
    return (x + noFractions) - noFractions;
}
// y + (v - l) * (y' - y) / (l' - l), to nearest, to even at ties.  Differences have 33 bits, products may fill 64.
inline int64_t onChord(int64_t v, int64_t l, int64_t nextLevel, int64_t y, int64_t nextValue) {
    const bool falls = nextValue < y;
    const uint64_t width = uint64_t(nextLevel - l), rise = uint64_t(falls ? y - nextValue : nextValue - y);
    const uint64_t product = uint64_t(v - l) * rise, whole = product / width, twiceRest = 2 * (product % width);
    const int64_t found = falls ? y - int64_t(whole) : y + int64_t(whole);
    const bool further = twiceRest > width || (twiceRest == width && found % 2 != 0);
    return found + (further ? (falls ? -1 : 1) : 0);
}

// The curve at every value of T, by the bits of the value.
template <class T>
void tabulate(const Curve<int32_t>& curve, int interpolation, Bits<T>* table) {
    using Limits = std::numeric_limits<T>;
    constexpr int64_t least = Limits::min(), end = int64_t(Limits::max()) + 1;
    const int last = curve.levels.count - 1;
    int64_t v = least;
    const auto upTo = [&](int64_t stop, auto result) {
        for (stop = std::min(stop, end); v < stop; ++v)
            table[Bits<T>(v)] = Bits<T>(std::clamp<decltype(result(v))>(result(v), least, end - 1));
    };
    upTo(curve.levels[0], [&](int64_t) -> int64_t { return curve.values[0]; });
    for (int k = 0; k < last && v < end; ++k) {
        const int64_t l = curve.levels[k], nextLevel = curve.levels[k + 1];
        const int64_t y = curve.values[k], nextValue = curve.values[k + 1];
        if (v >= nextLevel) continue;
        if (interpolation == INTERP_NEAREST)
            upTo(nextLevel, [&](int64_t x) { return 2 * x > l + nextLevel ? nextValue : y; });
        else if (interpolation == INTERP_LINEAR)
            upTo(nextLevel, [&](int64_t x) { return onChord(x, l, nextLevel, y, nextValue); });
        else
            upTo(nextLevel, [&, piece = curve.piece(k, interpolation)](int64_t x) {
                const double exact = piece.at<INTERP_CUBIC>(double(x));
                return roundedToEven(std::clamp(exact, double(least), double(end - 1)));
            });
    }
    upTo(end, [&](int64_t) -> int64_t { return curve.values[last]; });
}

}  // namespace zmv
