#include "harness/member.h"

#include <cstring>

#include "core/members.h"
#include "harness/family.h"

// A family without a row of this name does not link: nothing gets into the library untested.
#define FAMILY(name, module, facts, text, rows) extern const test::Family test_##name;
#include "families.def"
#undef FAMILY

namespace test {
namespace {

struct Table {
    std::vector<Member> members;
    std::vector<Tested> families;

    Table() {
#define FAMILY(name, module, facts, text, rows)                                                                        \
    families.push_back({&catalog::families()[families.size()], &test_##name});
#include "families.def"
        for (const Tested& f : families)
            for (const catalog::Member& m : f.row->members)
                members.push_back({m, f.row, f.family, thunks()[members.size()]});
    }
};

const Table& table() {
    static const Table t;
    return t;
}

}  // namespace

int dataTypeOf(Element element) {
    switch (element) {
        case Element::u8:
            return DATATYPE_8U;
        case Element::u16:
            return DATATYPE_16U;
        case Element::s16:
            return DATATYPE_16S;
        case Element::f32:
            return DATATYPE_32F;
        case Element::f64:
            return DATATYPE_64F;
        default:
            throw std::string("an element type that no query is told");
    }
}

const std::vector<Member>& members() { return table().members; }
const std::vector<Tested>& families() { return table().families; }

}  // namespace test
