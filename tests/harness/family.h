// What a family of functions has to be tested by: one row, named test_<family>, beside its oracle.
#pragma once

#include <string>
#include <vector>

#include "zmvip.h"

namespace test {

class Case;
struct Member;

enum class Steps { positive, nonzero, any };
enum class Rounds { never, floats, always };  // as the caller's control word says

// One way to break a precondition: a value for an argument, or for one part of it.
struct Break {
    std::string argument;
    enum Part { whole, width, height, plane, channel } part;
    int64_t value;  // of a plane: which one is null; of a channel: which one's constant is zero
};

// A precondition: the status when it does not hold, and the ways to break it.  Breaks of arguments that a member does
// not have are left out.
struct Check {
    StatusCode status;
    std::vector<Break> breaks;
};
Check pointers(std::vector<std::string> names);  // arrays of planes too: the array, and each plane
Check sizes(std::vector<std::string> names, StatusCode status = STATUS_BAD_SIZE);
Check positive(std::vector<std::string> names, StatusCode status);  // plain integers
Check zeroConstants(StatusCode status);
Check values(const char* argument, StatusCode status, std::vector<int64_t> bad);

struct Family {
    // Gives every argument its value, and operands their memory, for case number c.seed.
    void (*arrange)(Case& c);
    // Does on the shadow, simply and exactly, what the call must have done; runs after the call.
    void (*oracle)(Case& c);
    Steps steps = Steps::positive;
    bool (*freeSteps)(const Member& m) = nullptr;  // where steps are checked: members that accept any nevertheless
    std::vector<Check> ladder = {};                // in order of refusal
    bool status = true;                            // the result is a status, the same in every build; not a pointer
    Rounds rounds = Rounds::never;                 // where they do, the sweep leaves the control words alone
    bool bulk = false;                             // has code of its own for large regions
    bool (*overlaps)(const Member& m) = nullptr;   // the member defines what overlapping operands give
};

}  // namespace test
