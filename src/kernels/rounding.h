// How the processor rounds real numbers, for operations that do not leave it to the caller.
#pragma once

#include <bit>
#include <cstdint>

namespace zmv {

inline double powerOfTwo(int n) {  // n from -1022 to 1023
    return std::bit_cast<double>(uint64_t(1023 + n) << 52);
}

// Sets the rounding, with exceptions masked and no flushing of small numbers, and gives the caller's control word back
// at the end of its life.  What is computed in between reads and writes memory, which keeps it there.
class RoundingControl {
  public:
    enum Mode : unsigned { toNearestEven = 0, down = 0x2000, towardZero = 0x6000 };
    explicit RoundingControl(Mode mode) {
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
    unsigned callers_;
    bool changed_ = false;
};

}  // namespace zmv
