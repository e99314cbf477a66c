// What a family has to be tested by beside its facts: one row, named test_<family>, beside its oracle.
#pragma once

#include <string>
#include <vector>

#include "zmvip.h"

namespace test {

class Case;

// Gives every argument its value and operands their memory, for case number c.seed, by their roles and the facts.  A
// family with needs of its own starts from it, or does it all.
void arrangeByRoles(Case& c);

// One way to break a precondition: a value for an argument, or for one part of it.
struct Break {
    std::string argument;
    enum Part {
        whole,
        width,
        height,
        rectWidth,
        rectHeight,
        plane,
        element
    } part;  // a point's x and y are the first two
    int64_t value;
    int index = 0;  // which plane is null; which element of a constant or an array gets the value
};
// A precondition: the status when it does not hold, and the ways to break it.
struct Check {
    StatusCode status;
    std::vector<Break> breaks;
};
// What the facts say of refusals, for an arranged call: every rung with its breaks, in order.
std::vector<Check> ladderOf(Case& c);
void apply(const Break& b, Case& c);

struct Family {
    void (*arrange)(Case& c) = arrangeByRoles;
    // Does on the shadow, simply and exactly, what the call must have done; runs after the call.
    void (*oracle)(Case& c);
    std::vector<Check> more = {};  // other ways to break the last precondition of a status
};

}  // namespace test
