// zmviLShiftC, zmviRShiftC: bits moved by a number of places of its own for each channel.
#include "arith/binary.h"

namespace zmv {
namespace {

// The whole vector is shifted by each channel's number in turn, and a mask takes that channel's bits from it: all of
// them but those that came in from the neighbouring element or, without the sign, from nowhere.
template <class Unit, bool left>
struct Shift {
    int places[4];
    template <class V, class... Mask>
    ZMV_INLINE V operator()(V v, Mask... mask) const {
        V result{};
        int channel = 0;
        ((result |= (V)moved((Vec<Unit>)v, places[channel++]) & mask), ...);
        return result;
    }
    ZMV_INLINE static Vec<Unit> moved(Vec<Unit> v, int n) { return left ? v << n : v >> n; }
};

// The bits of T that hold something after a shift by n places, n below its width.
template <class T, bool left>
Bits<T> kept(uint32_t n) {
    const auto all = Bits<T>(~0u);
    if (std::is_signed_v<T> && !left) return all;
    return left ? Bits<T>(all << n) : Bits<T>(all >> n);
}

template <bool left, class T>
StatusCode shiftEach(Image<const T> src, const uint32_t* value, Image<T> dst, Roi roi, Layout layout) {
    if (auto bad = firstOf({pointers(src.data, value, dst.data), size(roi), steps(src.step, dst.step)})) return bad;
    constexpr uint32_t bits = 8 * sizeof(T);
    // There is no shift of bytes: they go in pairs.
    Shift<std::conditional_t<sizeof(T) == 1, uint16_t, std::conditional_t<left, Bits<T>, T>>, left> shift{};
    Bits<T> masks[4][4] = {};
    for (int c = 0; c < layout.used(); ++c) {
        const uint32_t n = get(value + c);
        shift.places[c] = int(std::min(n, bits - 1));
        // Too far, nothing is left but signs.
        if (n < bits || (std::is_signed_v<T> && !left)) masks[c][c] = kept<T, left>(shift.places[c]);
    }
    const auto mask = [&](int c) { return Constant<T>(reinterpret_cast<const T*>(masks[c]), layout); };
    if (layout.used() == 1)
        pointwise(shift, dst, roi, layout, false, src, mask(0));
    else if (layout.used() == 3)
        pointwise(shift, dst, roi, layout, false, src, mask(0), mask(1), mask(2));
    else
        pointwise(shift, dst, roi, layout, false, src, mask(0), mask(1), mask(2), mask(3));
    return STATUS_OK;
}

struct LShift {
    template <class T>
    static StatusCode constant(Image<const T> src, const uint32_t* value, Image<T> dst, Roi roi, Layout layout, int) {
        return shiftEach<true>(src, value, dst, roi, layout);
    }
};
struct RShift {
    template <class T>
    static StatusCode constant(Image<const T> src, const uint32_t* value, Image<T> dst, Roi roi, Layout layout, int) {
        return shiftEach<false>(src, value, dst, roi, layout);
    }
};

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "arith/binary.def"
L_SHIFT_FAMILY
R_SHIFT_FAMILY
