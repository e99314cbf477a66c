// Memory of a call, handed out piece by piece from the caller's buffer, whatever its alignment.
#pragma once

#include "core/frame.h"

namespace zmv {

class Scratch {
  public:
    explicit Scratch(uint8_t* buffer) : next_(buffer) {}
    // What taking so many aligned T uses at most, wherever the buffer starts.
    template <class T>
    static constexpr Len bytesOf(Len count = 1) {
        return count * Len(sizeof(T)) + Len(alignof(T)) - 1;
    }
    template <class T, int alignment = 1>
    T* take(Len count) {
        next_ += -reinterpret_cast<uintptr_t>(next_) % alignment;
        T* const piece = reinterpret_cast<T*>(next_);
        next_ += count * Len(sizeof(T));
        return piece;
    }

  private:
    uint8_t* next_;
};

}  // namespace zmv
