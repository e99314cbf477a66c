// A way to call any member of the library by its address.  A thunk depends on the shape of the parameters alone, and
// all pointers have one shape: members share thunks, and a new one costs a line of a table.
#pragma once

#include <cstdint>
#include <span>

namespace test {

// One argument of a call: a pointer or an integer in a, a floating-point value by its bits in a, a size or point in
// a and b, a rectangle in all four.
struct Slot {
    int64_t a = 0, b = 0, c = 0, d = 0;
    Slot() = default;
    Slot(int64_t first, int64_t second = 0, int64_t third = 0, int64_t fourth = 0)
        : a(first), b(second), c(third), d(fourth) {}
    Slot(const void* p) : a(reinterpret_cast<int64_t>(p)) {}
};

// Calls so many times, until the first negative result; the last result as an integer, 0 for void.
using Thunk = int64_t (*)(void* function, const Slot* args, int64_t times);

std::span<const Thunk> thunks();  // in the order of families.def

}  // namespace test
