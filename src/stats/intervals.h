// Between which of a number of rising levels a value lies.
#pragma once

#include "kernels/simd_convert.h"

namespace zmv {

template <class L>
struct LevelArray {
    const L* first;
    int count;
    L operator[](Len k) const { return get(first + k); }
};

// The line from the first level to the last, on which evenly spaced levels lie close to whole numbers.
struct LevelLine {
    double from = 0, perLevel = 0, last = 0;
    int64_t even = false;  // whether each level is nearest to its own number

    // Where the line has a value, in vectors too; NaN, also that of a line that is none, counts as the first level.
    template <class V>
    ZMV_INLINE V place(V value) const {
        return smaller(larger((value - from) * perLevel, V{}), fill<double, sizeof(V)>(last));
    }
    // The level next to it.  A vector's choice is no branch: on which side of the levels a pixel lies nobody can
    // foretell.
    int nearest(double value) const { return numberAt(place(fill<double, 16>(value))[0]); }
    static int numberAt(double place) { return int(place + 0.5); }
};
// Levels: levels[k], and how many there are as levels.count.
template <class Levels>
LevelLine lineThrough(const Levels& levels) {
    LevelLine line{double(levels[0]), 0, double(levels.count - 1), true};
    line.perLevel = line.last / (double(levels[levels.count - 1]) - line.from);
    for (int k = 0; k < levels.count && line.even; ++k) line.even = line.nearest(double(levels[k])) == k;
    return line;
}

template <class Levels>
class IntervalFinder {
  public:
    IntervalFinder(const Levels& levels, const LevelLine& line) : levels_(levels), line_(line) {}
    // How many levels do not exceed the value: k + 1 between level k and the next, 0 below all and of NaN.  When the
    // levels are even, a value between two of them is nearest to one of the two, since the line never falls.
    template <class L>
    int levelsUpTo(L value) const {
        if (line_.even) {
            const int k = line_.nearest(double(value));
            return k + (value >= levels_[k]);
        }
        int from = 0;
        for (int left = levels_.count; left > 1;) {
            const int half = left / 2;
            if (value >= levels_[from + half - 1]) from += half;
            left -= half;
        }
        return from + (value >= levels_[from]);
    }

  private:
    Levels levels_;
    LevelLine line_;
};

}  // namespace zmv
