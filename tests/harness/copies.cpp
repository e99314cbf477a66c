// Stands in for the C library's memcpy, in the library under test too: it may not be called for operands that overlap.
#include <cstring>

#include "harness/case.h"

namespace test {

volatile bool copiedOverlapping = false;

// The address sanitizer has its own.
#ifndef __SANITIZE_ADDRESS__
extern "C" {
__attribute__((visibility("default"))) void* checkedCopy(void* dst, const void* src, size_t bytes) __asm__("memcpy");
__attribute__((visibility("default"))) void* checkedCopyWithin(void* dst, const void* src, size_t bytes,
                                                               size_t room) __asm__("__memcpy_chk");
void* checkedCopy(void* dst, const void* src, size_t bytes) {
    const auto to = reinterpret_cast<uintptr_t>(dst), from = reinterpret_cast<uintptr_t>(src);
    if (to < from + bytes && from < to + bytes) copiedOverlapping = true;
    return std::memmove(dst, src, bytes);
}
void* checkedCopyWithin(void* dst, const void* src, size_t bytes, size_t) { return checkedCopy(dst, src, bytes); }
}
#endif

}  // namespace test
