// What lies outside a region: the rules, and the words by which filters and geometry are told which of them to use.
#pragma once

#include <algorithm>

#include "core/frame.h"

namespace zmv {

// The coordinate inside 0 .. n - 1 that each rule takes for coordinate i, however far outside.
struct ReplicateRule {
    static Len at(Len i, Len n) { return i < 0 ? 0 : i >= n ? n - 1 : i; }
};
struct MirrorRule {
    static Len at(Len i, Len n) {
        if (i < 0 && -i < n) return -i;
        if (i >= 0 && i < 2 * n - 1) return i < n ? i : 2 * n - 2 - i;
        const Len period = std::max<Len>(2 * n - 2, 1);
        const Len p = i >= 0 ? i % period : period - 1 - (-i - 1) % period;
        return p < n ? p : period - p;
    }
};
struct WrapRule {
    static Len at(Len i, Len n) { return i >= 0 ? i % n : n - 1 - (-i - 1) % n; }
};

// A border word: a rule, and flags for the sides whose pixels are readable in memory.  The word of all four sides and
// no rule asks for none.
constexpr int borderRule(int word) { return word & 15; }
inline Len borderAt(int word, Len i, Len n) {
    return borderRule(word) == BORDER_MIRROR ? MirrorRule::at(i, n) : ReplicateRule::at(i, n);
}

// The word without a rule that no side needs, and whose constant may be missing.
constexpr int neededBorder(int word) { return (word & BORDER_IN_MEM) == BORDER_IN_MEM ? int(BORDER_IN_MEM) : word; }

// The checks that users of border words share.
inline StatusCode unmirroredBorder(int word) {
    const int rule = borderRule(word);
    const bool known = rule == BORDER_REPL || rule == BORDER_CONST || word == BORDER_IN_MEM;
    return refuse(word < 0 || word > 255 || !known, STATUS_BAD_BORDER);
}
inline StatusCode border(int word) {
    const bool mirrored = word >= 0 && word <= 255 && borderRule(word) == BORDER_MIRROR;
    return mirrored ? StatusCode(STATUS_OK) : unmirroredBorder(word);
}
inline StatusCode borderValue(int word, const void* value) {
    return refuse(borderRule(word) == BORDER_CONST && !value, STATUS_NULL_POINTER);
}

}  // namespace zmv
