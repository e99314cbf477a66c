// The members of the library as the tests see them: the rows of src/families.def, taken apart.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "zmvip.h"

namespace test {

enum class Element { none, u8, s8, u16, s16, u32, s32, s64, f32, f64, sc32, fc32 };
int bytesOf(Element);
inline bool isReal(Element e) { return e == Element::f32 || e == Element::f64; }

// Calls f with a value of the element's type: the way from a member's name to a template.
template <class F>
void withElement(Element element, F f) {
    switch (element) {
        case Element::u8:
            return f(uint8_t{});
        case Element::s8:
            return f(int8_t{});
        case Element::u16:
            return f(uint16_t{});
        case Element::s16:
            return f(int16_t{});
        case Element::u32:
            return f(uint32_t{});
        case Element::s32:
            return f(int32_t{});
        case Element::s64:
            return f(int64_t{});
        case Element::f32:
            return f(float{});
        case Element::f64:
            return f(double{});
        default:
            throw std::string("an element type without arithmetic");
    }
}

// One argument of a call: a pointer or an integer in a, a floating-point value by its bits in a, a size or point in
// a and b.
struct Slot {
    int64_t a = 0, b = 0;
    Slot() = default;
    Slot(int64_t first, int64_t second = 0) : a(first), b(second) {}
    Slot(const void* p) : a(reinterpret_cast<int64_t>(p)) {}
};

struct Parameter {
    std::string type, name;
    Element element = Element::none;  // of what it points at, or of itself
    bool pointer = false, written = false;
    int planes = 0;  // of an array of planes
};

// A channel code of a name: P3 is three planes of one channel.
struct Layout {
    int channels = 1;
    bool planar = false, alpha = false;
    bool operator==(const Layout&) const = default;
    int used() const { return alpha ? 3 : channels; }
};

struct Family;

struct Member {
    std::string name;
    const Family* family;
    std::vector<Parameter> params;
    int64_t (*invoke)(void* function, const Slot* args);  // the result as an integer, 0 for void
    // What the name says.
    Element source = Element::none, destination = Element::none;
    Layout from, to;
    bool inPlace = false, masked = false, oneChannel = false, large = false;

    const Parameter* find(const std::string& parameter) const;
    bool points(const std::string& parameter) const {
        const Parameter* p = find(parameter);
        return p && p->pointer;
    }
};

const std::vector<Member>& members();
const std::vector<std::pair<std::string, const Family*>>& families();  // in the order of families.def
struct Constant {
    const char* name;
    double value;
};
const std::vector<Constant>& constants();

}  // namespace test
