// The catalog: every family with its facts and its members, taken apart, as the printers, the tests and the timings see
// them.  One parser of names, one table of roles.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/facts.h"

namespace catalog {

using zmv::Facts;
using zmv::Refusal;

enum class Element { none, u1, u8, s8, u16, s16, u32, s32, s64, u64, f32, f64, sc16, sc32, fc32 };
int bytesOf(Element);
std::string stepOf(const std::string& image);  // the name of its step
inline bool isReal(Element e) { return e == Element::f32 || e == Element::f64; }

// What an argument is to its function.
enum class Role {
    image,
    planes,
    mask,
    map,
    step,
    size,
    point,
    rectangle,
    constant,
    scale,
    border,
    borderValue,
    option,
    number,
    table,  // levels, orders, coefficients: arrays of the caller's
    buffer,
    spec,
    initBuffer,
    kernel,
    result
};
const char* nameOf(Role);

struct Parameter {
    std::string declaration;          // "const uint8_t* const src[3]"
    std::string type, name;           // "uint8_t", "src"
    Element element = Element::none;  // of what it points at, or of itself
    bool pointer = false, written = false;
    int planes = 0;  // of an array of pointers: how many, or 4 where another argument says it
    Role role = Role::number;
    const char* enumeration = "";  // of an option: how the names of its values begin
    double usual = 0;              // a value for everyday
    const char* count = "";        // in C, how many an array has, a channel: where its type and the layout leave it open

    std::string spelled() const;    // the type as C has it: "const uint8_t* const[3]"
    const char* direction() const;  // in, out, inout, work
};

// A channel code of a name: P3 is three planes of one channel, AC4 four channels of which the last is left alone.
struct Layout {
    int channels = 1;
    bool planar = false, alpha = false;
    bool operator==(const Layout&) const = default;
    int used() const { return alpha ? 3 : channels; }
};

struct Member {
    std::string result, name, list;  // list: the parameters as they are declared, in parentheses
    std::vector<Parameter> params;
    // What the name says.
    Element source = Element::none, destination = Element::none;
    std::string types, layout, letters;  // "8u16s", "C3AC4", "IR"
    Layout from, to;
    bool inPlace = false, masked = false, oneChannel = false, large = false;

    const Parameter* find(const std::string& parameter) const;
    bool points(const std::string& parameter) const {
        const Parameter* p = find(parameter);
        return p && p->pointer;
    }
    // One of a list of layouts with their letters, as facts name them: "Rs C3CR *".
    bool among(const char* layouts) const;
};

struct Constant {
    const char* name;
    double value;
};

struct Family {
    std::string name, area, page, module, text;
    Facts facts;
    std::vector<Member> members;
    std::vector<Constant> constants;

    // The arguments that a refusal is about, of all members: those that it names, or all that it can concern.
    std::vector<std::string> argumentsOf(const Refusal&) const;
    std::string banner() const;  // the text, and what the facts add to it: lines of any length
};
bool concerns(const Facts&, const Refusal&, const Member&, const Parameter&);
// In words: "an image is null".
std::string words(const Family&, const Refusal&);
const char* nameOf(StatusCode);

// In the order of the header.  Throws for a parameter that has no role.
const std::vector<Family>& families();

// Takes a prototype apart.
Member parse(const std::string& result, const std::string& name, const std::string& list);

}  // namespace catalog
