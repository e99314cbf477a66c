// The memory of a call: parts of the caller's work buffer, whatever its alignment.
//
// One constructor lays a buffer out, for the query as for the driver:
//
//     struct CurveMemory {
//         float* line;
//         int32_t* sums;
//         constexpr CurveMemory(Scratch& s, Roi roi)
//             : line(s.take<float>(roi.width)), sums(s.take<int32_t, 64>(roi.height)) {}  // from a 64-byte boundary on
//     };
//
// A query reports scratchBytes<CurveMemory>(roi), which fits<int> has passed.  A driver does
//
//     Scratch scratch(buffer);
//     const CurveMemory memory(scratch, roi);
//
// Where a formula for the size is part of the contract, a static_assert compares it with scratchBytes.
#pragma once

#include "core/spec.h"

namespace zmv {

class Scratch {
  public:
    constexpr Scratch() = default;  // without a buffer, it only measures
    explicit Scratch(uint8_t* buffer) : next_(buffer) {}
    template <class T, int alignment = 1>
    constexpr T* take(WideLen count) {
        bytes_ += count * WideLen(sizeof(T)) + alignment - 1;
        if (!next_) return nullptr;
        next_ += -reinterpret_cast<uintptr_t>(next_) % alignment;
        T* const part = reinterpret_cast<T*>(next_);
        next_ += Len(count) * Len(sizeof(T));
        return part;
    }
    // At most, wherever a buffer starts.
    constexpr WideLen bytes() const { return bytes_; }
    // Of a part that is aligned as its type wants.
    template <class T>
    static constexpr Len bytesOf(Len count = 1) {
        return count * Len(sizeof(T)) + Len(alignof(T)) - 1;
    }

  private:
    uint8_t* next_ = nullptr;
    WideLen bytes_ = 0;
};

template <class Memory, class... Args>
constexpr WideLen scratchBytes(const Args&... args) {
    Scratch measure;
    Memory(measure, args...);
    return measure.bytes();
}

}  // namespace zmv
