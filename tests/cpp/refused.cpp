// What must not compile: each case by itself, with what the compiler has to say of it behind its number; refused.sh
// tries them.  Case 0 has to compile.
#include <zmvip.hpp>

using namespace zmvip;

extern image<uint8_t, 3> a, b;
extern image<uint16_t, 3> deep;
extern image<uint8_t> gray;
extern image<float> real;
extern image<double> wide;
extern view<const uint8_t, 3> constant_pixels;
extern spec<ResizeSpec, uint8_t> resizing;

void call() {
#if CASE == 0
    add(a, b, b, 1).orThrow();
    resize_linear(constant_pixels, b, resizing).orThrow();
#elif CASE == 1  // zmvip::add: no member takes these images together; there are uint8_t, uint16_t, int16_t, float: 1, 3
    add(wide, wide, wide).orThrow();
#elif CASE == 2  // zmvip::add: no member takes these images together
    add(a, gray, b).orThrow();
#elif CASE == 3  // zmvip::add: for images like these there is no scale
    add(real, real, real, 1).orThrow();
#elif CASE == 4  // the destination is a view of const pixels
    add(a, b, constant_pixels).orThrow();
#elif CASE == 5  // zmvip::filter_median: no member takes these images together; there are uint8_t, uint16_t, int16_t: 1
    filter_median(a, deep, {3, 3}).orThrow();
#elif CASE == 6  // no (known conversion|matching function).*|cannot convert
    filter_box(a, b, {5, 5}, axis::both).orThrow();
#elif CASE == 7  // a pixel with two channels
    set(a, {1, 2}).orThrow();
#elif CASE == 8  // narrowing|cannot be narrowed|no matching function
    set(a, {1, 2, 300}).orThrow();
#elif CASE == 9  // (no matching function|invalid initialization).*resize_linear|reference of type .const
                 // zmvip::spec<ResizeSpec, short
    resize_linear(deep, deep, resizing).orThrow();
#elif CASE == 10  // no matching function for call to .histogram
    histogram(gray, resizing, nullptr).orThrow();
#elif CASE == 11  // nodiscard
    add(a, b, b);
#elif CASE == 12  // no matching function for call to .keep_alpha
    copy(a, keep_alpha(b)).orThrow();
#elif CASE == 13  // in_mem
    filter_box(a, b, {5, 5}, border::in_mem_top).orThrow();
#elif CASE == 14  // zmvip::copy: no member takes these images together; there are .*3 to planes<3>, 4 to planes<4>
    copy(a, planes(gray, gray)).orThrow();
#elif CASE == 15  // no matching function for call to .remap
    remap(a, b, gray, gray).orThrow();
#elif CASE == 16  // (deleted|implicitly-deleted)
    image<uint8_t, 3> copy = a;
#endif
}
