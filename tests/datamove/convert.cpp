// zmviConvert, in long double: its 64 bits hold every value, every scaled one that matters, and one half more.
#include <algorithm>
#include <cmath>

#include "arith/arith.h"

namespace {

using namespace test;

bool clamps(const Member& m) { return m.name.ends_with("Rs"); }

void arrangeConvert(Case& c) {
    arrangeByRoles(c);
    if (c.has("roundMode") && c.rng.below(3)) c.arg("roundMode") = c.rng.below(3);
    // Numbers that are near integers, halves and limits after scaling.
    const Image& src = c.image(onlySource(c));
    if (!c.has("roundMode") || c.rng.oneIn(3)) return;
    const int factor = c.has("scaleFactor") ? int(std::clamp<int64_t>(c.arg("scaleFactor").a, -100, 100)) : 0;
    change(c, src, [&]<class T>(T was, auto...) {
        if constexpr (std::is_integral_v<T>) return was;
        const int bits = c.rng.below(34), sign = c.rng.oneIn(2) ? 1 : -1;
        T v = T(c.rng.between(-2, 2) * 0.5 + double(c.rng.next() >> (63 - bits)) * sign);
        if (c.rng.oneIn(2)) v = T(std::nextafter(v, T(c.rng.oneIn(2) ? INFINITY : -INFINITY)));
        return T(std::ldexp(v, factor));
    });
}

template <class S, class D>
D converted(S value, const Case& c, int64_t mode, int64_t factor) {
    if constexpr (std::is_floating_point_v<D>) {
        return D(value);
    } else {
        using Limits = std::numeric_limits<D>;
        const bool near = mode == ROUND_NEAR, financial = !near && mode != ROUND_ZERO;
        long double v = clamps(c.member) ? std::max<long double>(value, 0) : value;
        v = std::ldexp(v, int(std::clamp<int64_t>(-factor, -3000, 3000))) + (financial ? 0.5L : 0.0L);
        v = near ? std::nearbyint(v) : std::trunc(v);
        return v != v ? D(0) : v <= Limits::min() ? Limits::min() : v >= Limits::max() ? Limits::max() : D(v);
    }
}
// In the order of elements: where rows overlap, each reads what those before it wrote.
void convert(Case& c) {
    const int64_t mode = c.has("roundMode") ? c.arg("roundMode").a : int64_t(ROUND_ZERO);
    const int64_t factor = c.has("scaleFactor") ? c.arg("scaleFactor").a : 0;
    oneByAnother(c, [&]<class S, class D>(S value, D, auto...) { return converted<S, D>(value, c, mode, factor); });
}

}  // namespace

extern const Family test_zmviConvert = {.arrange = arrangeConvert, .oracle = convert};
