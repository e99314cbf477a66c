// How the processor rounds real numbers, for what does not leave it to the caller.
#pragma once

#include <bit>
#include <cstdint>

#include "core/frame.h"

namespace zmv {

inline double powerOfTwo(int n) {  // n from -1022 to 1023
    return std::bit_cast<double>(uint64_t(1023 + n) << 52);
}

// Sets the rounding, with exceptions masked and no flushing of small numbers, and gives the caller's control word back
// at the end of its life.  To the compiler, computations in between are free to move out: see rounding() below.
class RoundingControl {
  public:
    enum Mode : unsigned { callers = 1, toNearestEven = 0, down = 0x2000, towardZero = 0x6000 };
    explicit RoundingControl(Mode mode) {
        if (mode == callers) return;
        constexpr unsigned flags = 0x3f, exceptionsMasked = 0x1f80;
        __asm__ volatile("stmxcsr %0" : "=m"(callers_));
        if (unsigned wanted = exceptionsMasked | mode; (callers_ & ~flags) != wanted) {
            __asm__ volatile("ldmxcsr %0" : : "m"(wanted) : "memory");
            changed_ = true;
        }
    }
    ~RoundingControl() {
        if (changed_) __asm__ volatile("ldmxcsr %0" : : "m"(callers_) : "memory");
    }
    RoundingControl(const RoundingControl&) = delete;

  private:
    unsigned callers_ = 0;
    bool changed_ = false;
};

// A call of its own, which to the compiler may read and write any memory that anybody can reach: what f computes of
// the variables that it refers to is computed in it, neither before nor behind.
template <class F>
__attribute__((noinline)) auto apart(const F& f) {
    __asm__ volatile("" : : "r"(&f) : "memory");
    return f();
}
// For the one function whose late refusals leave the processor so: to nearest, small results flushed to zero.
inline void leaveFlushingToZero() {
    constexpr unsigned rounding = 0x6000, flush = 0x8000;
    unsigned word;
    __asm__ volatile("stmxcsr %0" : "=m"(word));
    word = (word & ~rounding) | flush;
    __asm__ volatile("ldmxcsr %0" : : "m"(word));
}
// f() under a rounding.
template <class F>
auto rounding(RoundingControl::Mode mode, const F& f) {
    const RoundingControl control(mode);
    return apart(f);
}
template <class F>
auto toNearest(const F& f) {
    return rounding(RoundingControl::toNearestEven, f);
}
// Where only integers, or only real numbers, do not leave it to the caller.
template <bool needed, class F>
auto toNearestIf(const F& f) {
    if constexpr (needed)
        return toNearest(f);
    else
        return f();
}

}  // namespace zmv

// Stamps members that never leave it to the caller, from their first check to their last result.
#define ZMV_DEFINE_TO_NEAREST(result, name, params, call)                                                              \
    ZMV_DEFINE(result, name, params, zmv::toNearest([&] { return call; }))
