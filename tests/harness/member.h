// The members of the library as the tests call them: the catalog, and a way to call each.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "catalog.h"
#include "harness/thunks.h"
#include "zmvip.h"

namespace test {

using catalog::bytesOf;
using catalog::Constant;
using catalog::Element;
using catalog::isReal;
using catalog::Layout;
using catalog::Parameter;
using catalog::Role;
using zmv::Facts;

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

int dataTypeOf(Element element);  // as size queries are told

struct Family;

// A member with what is needed to call and to judge it.
struct Member : catalog::Member {
    const catalog::Family* row;
    const Family* family;
    Thunk thunk;
    int64_t invoke(void* function, const Slot* args) const { return thunk(function, args, 1); }

    const Facts& facts() const { return row->facts; }
};

const std::vector<Member>& members();
struct Tested {
    const catalog::Family* row;
    const Family* family;
};
const std::vector<Tested>& families();  // in the order of families.def

}  // namespace test
